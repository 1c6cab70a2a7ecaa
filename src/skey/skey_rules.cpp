#include "skey/skey_rules.h"

#include <algorithm>
#include <vector>

#include "base/numbers.h"
#include "base/text.h"

namespace quorn {

namespace {

constexpr std::string_view kAnyEnd = "**";
constexpr std::string_view kSpindleEnd = "SP";
constexpr std::size_t kSpindleSkeyLength = 4;

// Keys are taken apart into their first two and last two characters only; a key shorter than
// two characters stands whole for both.
std::string_view typeOf(std::string_view key) {
  return leftPart(key, 2);
}
std::string_view endOf(std::string_view key) {
  return rightPart(key, 2);
}

bool hasVariableEnd(std::string_view key) {
  return endOf(key) == kAnyEnd;
}

const std::vector<GroupEntry>* entriesOf(const Configuration& config, int group) {
  if (group < 0 || group >= static_cast<int>(config.groups.size())) return nullptr;
  return &config.groups[static_cast<std::size_t>(group)].entries;
}

// The highest group that the count names and the tables hold.
int lastGroup(const Configuration& config) {
  return std::min<int>(config.groupCount, static_cast<int>(config.groups.size()) - 1);
}

bool entryMatches(std::string_view entry, std::string_view key) {
  if (!hasVariableEnd(entry)) return upperCase(entry) == key;
  const std::string type = upperCase(typeOf(entry));
  if (key.size() != type.size() + 2 || key.substr(0, type.size()) != type) return false;
  return isStandardEndCondition(key.substr(type.size()));
}

// Whether some entry of groups 0 to the count, stripped and upper-cased, passes `test`.
template <typename Test>
bool anyEntry(const Configuration& config, Test test) {
  for (int group = 0; group <= lastGroup(config); ++group) {
    for (const GroupEntry& entry : config.groups[static_cast<std::size_t>(group)].entries) {
      if (test(upperCase(trimmed(entry.skey)))) return true;
    }
  }
  return false;
}

bool isStandardSpindle(std::string_view key) {
  return std::find(kStandardSpindleSkeys.begin(), kStandardSpindleSkeys.end(), key) !=
         kStandardSpindleSkeys.end();
}

bool isRedefinedSpindle(const CurrentSet& set, std::string_view key) {
  for (int number = 1; number <= set.count(); ++number) {
    const SymbolRecord& symbol = set.symbol(number);
    const std::string_view oldKey = trimmed(symbol.oldKey);
    if (oldKey.size() == kSpindleSkeyLength && endOf(oldKey) == kSpindleEnd &&
        trimmed(symbol.newKey) == key) {
      return true;
    }
  }
  return false;
}

bool newKeyInCurrentSet(const CurrentSet& set, std::string_view key, const KeysToValidate& keys) {
  for (int number = 1; number <= set.count(); ++number) {
    if (keys.editing && number == keys.editedSymbol) continue;
    if (normalisedWord(set.symbol(number).newKey) == key) return true;
  }
  return false;
}

// Steps 3 to 8: the New SKEY must not pass for a standard SKEY and must be new to the set.
std::optional<std::string_view> newKeyFailure(const Configuration& config, const CurrentSet& set,
                                              std::string_view oldKey, std::string_view newKey,
                                              const KeysToValidate& keys) {
  const bool arrow = isFlowArrowPair(oldKey, newKey);
  const bool standardEnd = isStandardEndCondition(endOf(newKey));
  if (!arrow && anyEntry(config, [&](const std::string& entry) { return entry == newKey; })) {
    return kNewSkeyIsStandardText;
  }
  if (hasVariableEnd(oldKey) && !standardEnd) return kNewSkeyNeedsStandardEndText;
  const std::string_view type = typeOf(newKey);
  if (type != typeOf(oldKey)) {
    if (!arrow &&
        anyEntry(config, [&](const std::string& entry) { return typeOf(entry) == type; })) {
      return kNewSkeyTypeIsStandardText;
    }
  } else if (hasVariableEnd(oldKey)) {
    return kReplaceSingleEndTypeText;
  } else if (standardEnd) {
    return kNewSkeyLooksStandardText;
  }
  if (newKeyInCurrentSet(set, newKey, keys)) return kNewSkeyInCurrentSetText;
  return std::nullopt;
}

}  // namespace

bool isStandardEndCondition(std::string_view code) {
  return std::find(kStandardEndConditions.begin(), kStandardEndConditions.end(), code) !=
         kStandardEndConditions.end();
}

bool isFlowArrowPair(std::string_view oldKey, std::string_view newKey) {
  return oldKey == kFlowArrowOldSkey &&
         std::find(kFlowArrowNewSkeys.begin(), kFlowArrowNewSkeys.end(), newKey) !=
             kFlowArrowNewSkeys.end();
}

std::optional<int> matchOldSkey(const Configuration& config, int group, std::string_view key) {
  const std::vector<GroupEntry>* entries = entriesOf(config, group);
  if (entries == nullptr) return std::nullopt;
  for (std::size_t index = 0; index < entries->size(); ++index) {
    if (entryMatches(trimmed((*entries)[index].skey), key)) return static_cast<int>(index) + 1;
  }
  return std::nullopt;
}

KeyValidation validateKeys(const Configuration& config, const CurrentSet& set, int currentGroup,
                           const KeysToValidate& keys) {
  KeyValidation result;
  const std::string oldKey = normalisedWord(keys.oldKey);
  const std::string newKey = normalisedWord(keys.newKey);
  const std::string spindleKey = normalisedWord(keys.spindleKey);
  if (oldKey.empty()) {
    result.failure = std::string(kOldSkeyRequiredText);
    return result;
  }
  const std::optional<int> entry = matchOldSkey(config, currentGroup, oldKey);
  if (!entry) {
    result.failure = notRedefinableText(oldKey);
    return result;
  }
  result.entry = *entry;
  if (!newKey.empty()) {
    if (const auto failure = newKeyFailure(config, set, oldKey, newKey, keys)) {
      result.failure = std::string(*failure);
      return result;
    }
  }
  if (!spindleKey.empty() && !isStandardSpindle(spindleKey) &&
      !isRedefinedSpindle(set, spindleKey)) {
    result.failure = std::string(kUnknownSpindleSkeyText);
    return result;
  }
  if (leadingNumber(keys.scaleFactor) <= 0) {
    result.failure = std::string(kScaleFactorRequiredText);
  }
  return result;
}

std::optional<GroupPosition> locateStoredOldSkey(const Configuration& config,
                                                 std::string_view oldKey) {
  const std::string_view key = trimmed(oldKey);
  for (int group = 1; group <= lastGroup(config); ++group) {
    const auto& entries = config.groups[static_cast<std::size_t>(group)].entries;
    for (std::size_t index = 0; index < entries.size(); ++index) {
      if (trimmed(entries[index].skey) == key) {
        return GroupPosition{group, static_cast<int>(index) + 1};
      }
    }
  }
  return std::nullopt;
}

}  // namespace quorn
