#pragma once
// Reading the SKEY group tables: one entry, its group flags, an entry found by its SKEY.

#include <array>
#include <optional>
#include <string_view>

#include "config/configuration.h"

namespace quorn {

/// The flags of one group entry, by the digit that names them on the entry's line. The digits
/// 1 to 8 act on the symbol; 0 and 9 have no effect.
struct GroupFlags {
  std::array<bool, 10> digit{};

  /// 1: the symbol takes no Spindle SKEY and no spindle point.
  bool noSpindle() const { return digit[1]; }
  /// 2: the symbol takes no tapping points.
  bool noTappingPoints() const { return digit[2]; }
  /// 3 to 6: 3 makes the symbol symmetrical, else any of 4, 5 and 6 makes it mirrored.
  bool mirrored() const { return !digit[3] && (digit[4] || digit[5] || digit[6]); }
  /// 7: a symbol whose Spindle SKEY is not NONE cannot be finished without a spindle point.
  bool spindlePointRequired() const { return digit[7]; }
  /// 8: the symbol may have a flow arrow.
  bool mayHaveFlowArrow() const { return digit[8]; }
};

/// Entry `entry` (1-based) of group `group`; nothing when either does not exist.
const GroupEntry* groupEntry(const Configuration& config, int group, int entry);

/// The flags of (group, entry); all false when the entry does not exist.
GroupFlags groupFlags(const Configuration& config, int group, int entry);

/// The first entry of `group` whose SKEY, stripped and upper-cased, is `key` itself (no "**"
/// expansion). 1-based; nothing when none.
std::optional<int> findEntryExactly(const Configuration& config, int group, std::string_view key);

}  // namespace quorn
