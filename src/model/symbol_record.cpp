#include "model/symbol_record.h"

#include <algorithm>

namespace quorn {

void placeSpindlePoint(SymbolRecord& symbol) {
  const int count = symbol.actionCount();
  if (count < 3) return;
  const auto first = symbol.actions.begin();
  const auto searchEnd = first + (count - 2);
  const auto spindle = std::find_if(
      first, searchEnd, [](const SymbolAction& action) { return action.type == kSpindlePoint; });
  if (spindle == searchEnd) return;
  // Rotating [spindle, count - 1) shifts the later actions down and puts the spindle point
  // at position count - 1, leaving the last action where it is.
  std::rotate(spindle, spindle + 1, first + (count - 1));
}

}  // namespace quorn
