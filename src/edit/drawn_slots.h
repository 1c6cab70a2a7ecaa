#pragma once
// Which slots of the working symbol hold its drawn actions.

#include <algorithm>

#include "model/limits.h"
#include "model/working_symbol.h"

namespace quorn {

/// The start point's slot; the drawn actions follow it.
inline constexpr int kStartSlot = 1;

/// The last slot of the drawn actions: the action count, kept clear of the spindle and end
/// point slots behind them.
inline int lastDrawnSlot(const WorkingSymbol& working) {
  return std::clamp<int>(working.actionCount, 0, kSpindleSlot - 1);
}

}  // namespace quorn
