#pragma once
// The small steps that the mouse events, the action buttons and Done share.

#include <cstdint>

#include "display/redraw.h"
#include "edit/drawing_engine.h"

namespace quorn {

/// How the edit window draws the symbol: the normal mode in the view chosen.
SymbolStyle surfaceStyle(const EditWindowState& window);

/// Whether the symbol has its start point in slot 1.
bool hasStartPoint(const WorkingSymbol& working);

/// Appends an action in the next slot with its step, counts it, marks the symbol pending and
/// draws it. False, with nothing changed, when no drawn slot is left.
bool appendAction(DrawingContext& context, std::int16_t code, FormPoint point, StepKind step,
                  bool character = false);

/// Leaves the Delete or Move operation for Draw, with a snap that the Delete menu switched
/// off switched on again.
void returnToDraw(DrawingContext& context);

/// Drops the arc and circle under construction.
void cancelConstructions(DrawingContext& context);

/// The next left click starts a new line: a pen-up move, or the start point when the symbol
/// has none yet. Writes `prompt`, or the start point prompt.
void awaitNewLine(DrawingContext& context, std::string_view prompt);

void setPrompt(EditWindowState& window, std::string_view prompt);

}  // namespace quorn
