#include "model/working_symbol.h"

#include <cmath>

namespace quorn {

namespace {

std::int16_t storedUnits(std::int32_t formUnitsFromOrigin, float unitsPerMm) {
  return static_cast<std::int16_t>(storedValue(formUnitsFromOrigin, unitsPerMm));
}

}  // namespace

float storedValue(long long formDistance, float unitsPerMm) {
  // Single precision throughout, as the grid factor is held.
  return std::floor(static_cast<float>(formDistance) / unitsPerMm * 100.0f);
}

SymbolAction storedAction(std::int16_t type, std::int32_t formX, std::int32_t formY,
                          const GridPlacement& grid) {
  return SymbolAction{type, storedUnits(formX - kGridLeft, grid.unitsPerMm),
                      storedUnits(kGridTop + grid.gridHeight - formY, grid.unitsPerMm)};
}

SymbolRecord recordFromWorkingSymbol(const WorkingSymbol& working, bool spindlePlaced,
                                     const GridPlacement& grid) {
  SymbolRecord record;
  static_cast<SymbolText&>(record) = working;
  record.tappingCount = working.tappingCount;
  for (int slot = 1; slot <= working.actionCount; ++slot) {
    const WorkingAction& action = working.slots[slot];
    const std::int16_t code = action.character ? std::int16_t{kCharacterLine} : action.type;
    record.actions.push_back(storedAction(code, action.x, action.y, grid));
  }
  int n = working.actionCount + 1;
  if (spindlePlaced) {
    const WorkingAction& spindle = working.slots[kSpindleSlot];
    record.actions.push_back(storedAction(kSpindlePoint, spindle.x, spindle.y, grid));
    ++n;
  }
  if (n < kWorkingSlots) {
    const WorkingAction& end = working.slots[kEndSlot];
    record.actions.push_back(storedAction(kMove, end.x, end.y, grid));
  }
  return record;
}

bool storeWorkingSymbol(const WorkingSymbol& working, bool spindlePlaced, const GridPlacement& grid,
                        CurrentSet& set, int number) {
  if (number < 1 || number > set.count() + 1) return false;
  SymbolRecord record = recordFromWorkingSymbol(working, spindlePlaced, grid);
  if (number == set.count() + 1) {
    if (set.full()) return false;
    set.append(std::move(record));
  } else {
    set.symbol(number) = std::move(record);
  }
  set.changed = true;
  return true;
}

}  // namespace quorn
