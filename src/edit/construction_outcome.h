#pragma once
// What one left click of an arc or circle construction asks the editor to do. The construction
// keeps only its own points; the editor shows the texts and appends the points.

#include <optional>
#include <string_view>
#include <vector>

#include "edit/form_point.h"

namespace quorn {

/// The most actions a symbol may have while it is edited.
inline constexpr int kSymbolActionLimit = 200;

/// Room left in the symbol being edited, as the editor counts it.
struct SymbolRoom {
  /// Actions the symbol has; a shape whose segments would take it past the limit is refused.
  int actionCount = 0;
  /// Action slots still free; a walk stops when they run out.
  int freeSlots = 0;
};

struct ConstructionOutcome {
  std::string_view prompt;   // the new prompt line; empty to leave it as it is
  std::string_view message;  // a message box to show; empty for none
  /// Points to append in order: the first a pen-up move (code 1), each further one a line
  /// (code 2, with the character flag while character mode is on).
  std::vector<FormPoint> points;
  std::optional<FormPoint> lastPoint;    // the editor's new LastPoint, when it moves
  std::optional<FormPoint> strokeStart;  // the editor's new StrokeStart, when it moves
  bool finished = false;                 // the construction is over: built or refused
};

}  // namespace quorn
