#pragma once
// The symbol under construction, in the editor's form units.

#include <array>
#include <cstdint>

#include "model/limits.h"
#include "model/symbol_collection.h"
#include "model/symbol_record.h"

namespace quorn {

struct WorkingAction {
  std::int16_t type = 0;
  std::int32_t x = 0;  // form units, y downward
  std::int32_t y = 0;
  bool character = false;  // a line drawn in character mode
  friend bool operator==(const WorkingAction&, const WorkingAction&) = default;
};

/// Slot 1 holds the start point, slots 2 upward the drawn actions, slot 201 the spindle point
/// and slot 202 the end point.
struct WorkingSymbol : SymbolText {
  std::int16_t actionCount = 0;  // the last slot in use from slot 1
  std::int16_t tappingCount = 0;
  std::array<WorkingAction, kWorkingSlots> slots{};
};

/// The grid's top-left corner on the drawing surface, in form units.
inline constexpr std::int32_t kGridLeft = 1100;
inline constexpr std::int32_t kGridTop = 500;

/// The stored value of a distance in form units from the grid's bottom-left corner:
/// hundredths of a millimetre in single precision, cut towards minus infinity.
float storedValue(long long formDistance, float unitsPerMm);

/// Where the grid lies on the drawing surface: what turns form units into stored units.
struct GridPlacement {
  float unitsPerMm = 1.0f;      // form units per millimetre
  std::int32_t gridHeight = 0;  // form units
};

/// A form-unit point as stored: hundredths of a millimetre from the grid's bottom-left corner.
SymbolAction storedAction(std::int16_t type, std::int32_t formX, std::int32_t formY,
                          const GridPlacement& grid);

/// The record that storing the working symbol produces: its drawn slots, then the spindle
/// point when one is placed, then the end point; lines in character mode become code 7.
SymbolRecord recordFromWorkingSymbol(const WorkingSymbol& working, bool spindlePlaced,
                                     const GridPlacement& grid);

/// Stores the working symbol as symbol `number` of the set (replacing it, or appending when
/// `number` is one past the last) and marks the set changed. False when `number` is outside
/// 1 to count + 1 or the set is full.
bool storeWorkingSymbol(const WorkingSymbol& working, bool spindlePlaced, const GridPlacement& grid,
                        CurrentSet& set, int number);

}  // namespace quorn
