#pragma once
// The rules an Old, New and Spindle SKEY must obey before a symbol may use them.

#include <optional>
#include <string>
#include <string_view>

#include "config/configuration.h"
#include "model/symbol_collection.h"

namespace quorn {

/// The keys and scale factor of the new-symbol dialog, as typed.
struct KeysToValidate {
  std::string oldKey;
  std::string newKey;
  std::string spindleKey;
  std::string scaleFactor;
  bool editing = false;    // the dialog edits a symbol already in the Current Set
  int editedSymbol = 0;    // its number, when editing
};

/// The outcome of Validate keys: the first failing rule's message, or the entry matched.
struct KeyValidation {
  std::optional<std::string> failure;
  int entry = 0;  // the entry of the current group that the Old SKEY matched (1-based)
};

/// A group entry found for a stored Old SKEY.
struct GroupPosition {
  int group = 0;
  int entry = 0;  // 1-based
};

/// Match Old SKEY: the lowest-numbered entry of `group` that `key` (normalised) matches, "**"
/// entries standing for the eleven standard end conditions. 1-based; nothing when none.
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
