#include "skey/special_skeys.h"

#include <algorithm>

#include "base/text.h"
#include "model/keys.h"
#include "skey/skey_rules.h"

namespace quorn {

bool isFlowArrowSkey(std::string_view key) {
  return std::find(kFlowArrowNewSkeys.begin(), kFlowArrowNewSkeys.end(), key) !=
         kFlowArrowNewSkeys.end();
}

EntryKeys keysForEntry(std::string_view entry) {
  const std::string skey(trimmed(entry));
  if (isFlowArrowSkey(skey)) return {std::string(kFlowArrowOldSkey), skey, true};
  if (skey == kWeldNewSkey) return {std::string(kWeldOldSkey), skey, true};
  return {skey, std::string(), false};
}

std::optional<std::string> specialPairLookUpKey(std::string_view oldKey, std::string_view newKey) {
  if (oldKey == kFlowArrowOldSkey) {
    return std::string(isFlowArrowSkey(newKey) ? newKey : kFlowArrowOldSkey);
  }
  if (oldKey == kWeldOldSkey && newKey == kWeldNewSkey) return std::string(kWeldNewSkey);
  return std::nullopt;
}

std::string lookUpKey(std::string_view oldKey, std::string_view newKey) {
  return specialPairLookUpKey(oldKey, newKey).value_or(std::string(oldKey));
}

std::string_view typeKeyOf(std::string_view key) {
  if (key.size() > 2 && rightPart(key, 2) == kAnyEndCondition) return leftPart(key, 2);
  return key;
}

}  // namespace quorn
