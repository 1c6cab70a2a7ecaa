#pragma once
// The rules an Old, New and Spindle SKEY must obey before a symbol may use them.

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "config/configuration.h"
#include "model/symbol_collection.h"
#include "skey/skey_texts.h"

namespace quorn {

/// The standard end conditions, in the order they are tried; "**" stands for any.
inline constexpr std::array<std::string_view, 11> kStandardEndConditions = {
    "BW", "CP", "SC", "FL", "SW", "PL", "LC", "LN", "LR", "MP", "**"};

/// The standard Spindle SKEYs; NONE means no spindle.
inline constexpr std::array<std::string_view, 16> kStandardSpindleSkeys = {
    "01SP", "02SP", "03SP", "04SP", "05SP", "06SP", "07SP", "08SP",
    "09SP", "10SP", "11SP", "12SP", "13SP", "14SP", "15SP", "NONE"};

/// The flow-arrow Old SKEY and the standard SKEYs it may still take as New SKEYs.
inline constexpr std::string_view kFlowArrowOldSkey = "FLOW";
inline constexpr std::array<std::string_view, 3> kFlowArrowNewSkeys = {"AR01", "AR02", "AR04"};

/// The keys and scale factor of the new-symbol dialog, as typed. The rules strip and upper-case
/// the keys themselves (`normalisedWord`), without the "**" that `normaliseKey` may add.
struct KeysToValidate {
  std::string oldKey;
  std::string newKey;
  std::string spindleKey;
  std::string scaleFactor;
  bool editing = false;  // the dialog edits a symbol already in the Current Set
  int editedSymbol = 0;  // its number, when editing
};

/// The outcome of Validate keys: the first failing rule's message, or the entry matched.
struct KeyValidation {
  std::optional<std::string> failure;
  /// The entry of the current group that the Old SKEY matched (1-based); 0 when the Old SKEY
  /// was empty or matched nothing.
  int entry = 0;
};

/// A group entry found for a stored Old SKEY.
struct GroupPosition {
  int group = 0;
  int entry = 0;  // 1-based
};

/// Whether `code` is one of the standard end conditions ("**" included).
bool isStandardEndCondition(std::string_view code);

/// The arrow exception: Old SKEY FLOW with New SKEY AR01, AR02 or AR04 (both normalised).
bool isFlowArrowPair(std::string_view oldKey, std::string_view newKey);

/// Match Old SKEY: the lowest-numbered entry of `group` that `key` (normalised) matches, "**"
/// entries standing for the eleven standard end conditions. 1-based; nothing when none, or
/// when the group does not exist.
std::optional<int> matchOldSkey(const Configuration& config, int group, std::string_view key);

/// Validate keys: runs the rules in their fixed order against the current group and the
/// Current Set and reports the first that fails.
KeyValidation validateKeys(const Configuration& config, const CurrentSet& set, int currentGroup,
                           const KeysToValidate& keys);

/// Locate stored Old SKEY: the first entry of groups 1 to the count that equals `oldKey`
/// exactly; nothing when none (show `invalidStoredOldSkeyText()`).
std::optional<GroupPosition> locateStoredOldSkey(const Configuration& config,
                                                 std::string_view oldKey);

}  // namespace quorn
