#pragma once
// Taking work back: Undo (one editing step), Erase (the symbol off the surface) and deleting
// the symbol on the surface from the Current Set. The caller clears the surface and redraws.

#include "base/messages.h"
#include "display/edit_window_state.h"
#include "model/editor_state.h"
#include "model/symbol_collection.h"
#include "model/working_symbol.h"

namespace quorn {

/// Takes back the newest step of the undo history, then drops the pen-up moves left at its
/// end. Taking back the start point empties the symbol and asks for a new start point.
/// False, with nothing changed, when the history is empty.
bool undoLastStep(EditorState& state, WorkingSymbol& working, EditWindowState& window);

/// Drops the symbol from the surface and resets the editing state; the Current Set is not
/// touched. A pending symbol (changed since it was last shown or stored) is dropped only
/// after the user says Yes to the question. True when erased.
bool eraseSymbol(EditorState& state, WorkingSymbol& working, const CurrentSet& set,
                 EditWindowState& window, Messages& messages);

/// Delete › Symbol: after a Yes to the question, removes the symbol on the surface
/// (`state.symbolNumber`) from the Current Set and shows the new count. The symbol stays on
/// the surface as a new one, stored behind the last by a later Done. False, asking nothing,
/// when the symbol is not in the set; false too after a No.
bool deleteSymbolFromSet(EditorState& state, CurrentSet& set, EditWindowState& window,
                         Messages& messages);

}  // namespace quorn
