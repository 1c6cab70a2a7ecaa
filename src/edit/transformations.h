#pragma once
// Changes to the symbol on the surface as a whole: moving it to a new start point, flipping
// it about a horizontal or a vertical axis, and switching between the orthographic and the
// isometric view. The caller clears the surface and redraws afterwards.

#include "base/messages.h"
#include "display/edit_window_state.h"
#include "edit/grid_frame.h"
#include "model/editor_state.h"
#include "model/working_symbol.h"

namespace quorn {

enum class FlipAxis { Horizontal, Vertical };

/// Moves every drawn action (the start point included), and the spindle and end points where
/// placed, by the offset that takes the start point to `newStart`. Refused with its message,
/// nothing moved, when a moved point would lie left of the grid's left edge or below its
/// bottom edge. True when moved; false also when there is no start point.
bool moveSymbolTo(FormPosition newStart, const EditorState& state, WorkingSymbol& working,
                  const GridFrame& grid, Messages& messages);

/// Horizontal: each drawn action's y (the start point included, which also counts for the
/// smallest y) and the placed spindle and end points' y become bottom - (y - smallest drawn
/// y), so the former top lands on the grid's bottom edge. Vertical: each such point's x
/// becomes left + (largest x - x), the largest x taken over the drawn actions and the placed
/// spindle and end points, so the former rightmost point lands on the grid's left edge.
/// A symbol without actions is left alone; otherwise the symbol is marked pending.
void flipSymbol(FlipAxis axis, EditorState& state, WorkingSymbol& working, const GridFrame& grid);

/// Switches the view between orthographic and isometric; the button's caption names the view
/// it switches to next.
void toggleIsoView(EditWindowState& window);

}  // namespace quorn
