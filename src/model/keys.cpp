#include "model/keys.h"

#include <algorithm>

#include "base/text.h"

namespace quorn {

bool isEndConditionCode(std::string_view code) {
  return std::find(kEndConditionCodes.begin(), kEndConditionCodes.end(), code) !=
         kEndConditionCodes.end();
}

std::string normaliseKey(std::string_view key) {
  std::string result = normalisedWord(key);
  if (result.size() == 2 && !isEndConditionCode(result)) result += kAnyEndCondition;
  return result;
}

void setNewKey(SymbolText& symbol, std::string_view typed) {
  symbol.newKeyRaw = std::string(trimmed(typed));
  symbol.newKey = normaliseKey(typed);
}

void setOldKey(SymbolText& symbol, std::string_view typed) {
  symbol.oldKeyRaw = std::string(trimmed(typed));
  symbol.oldKey = normaliseKey(typed);
}

static std::string paddedKey(const std::string& key) {
  std::string padded = key;
  if (padded.size() < 4) padded.resize(4, ' ');
  return padded;
}

std::string listLabel(const SymbolText& symbol) {
  const std::string blankKey(4, ' ');
  std::string label = "Old SKEY: " + paddedKey(symbol.oldKey);
  const std::string newKey = paddedKey(symbol.newKey);
  label += newKey != blankKey ? "   New SKEY: " + newKey : std::string(17, ' ');
  const std::string spindleKey = paddedKey(symbol.spindleKey);
  if (spindleKey != blankKey) label += "   Spindle SKEY: " + spindleKey;
  return label;
}

}  // namespace quorn
