#pragma once
// Browsing symbols between edits: the group chooser, the symbol list in its two views, and
// showing a Current Set or library symbol on the grid.

#include "base/messages.h"
#include "config/configuration.h"
#include "display/canvas.h"
#include "display/edit_window_state.h"
#include "display/grid_geometry.h"
#include "model/editor_state.h"
#include "model/symbol_collection.h"
#include "model/working_symbol.h"

namespace quorn {

enum class ListView { Standard, CurrentSet };

struct BrowseState {
  ListView view = ListView::Standard;
  int currentGroup = 1;
  int currentEntry = 0;  // 1-based entry of the current group
  int shownSymbol = 0;   // the Current Set number on the grid, 0 for none
  /// Set by Creation when it selects a row itself; the next row choice is then ignored.
  bool selectedByCreation = false;
};

/// What browsing reads and changes; the editor owns all of it.
struct BrowseContext {
  const Configuration& config;
  const CurrentSet& set;
  const SymbolLibrary& library;
  BrowseState& browse;
  WorkingSymbol& working;
  EditorState& state;
  EditWindowState& window;
  const GridGeometry& grid;
  Canvas& canvas;
  Messages& messages;
};

/// "Old SKEY: " + SKEY (4 wide) + " " + description, then "  Spindle SKEY: " and the spindle
/// key when there is one: a row of the standard view.
std::string libraryListLabel(const SymbolText& symbol, const GroupEntry& entry);

/// Fills the symbol list for the current view; `fromMenu` when the standard view was chosen
/// from the menu (it writes its prompt).
void refreshSymbolList(BrowseContext& context, bool fromMenu = false);
/// A row of the symbol list chosen (0-based).
void chooseSymbol(BrowseContext& context, int row);
/// A row of the group chooser chosen (0-based): group row + 1 becomes the current group.
void chooseGroup(BrowseContext& context, int row);

struct ShowOptions {
  bool keepGrid = false;       // draw over what the grid shows
  bool attributesSet = false;  // the caller has set the working symbol's keys already
};
/// Show symbol N: Current Set symbol `number` onto the grid as the working symbol.
bool showSymbol(BrowseContext& context, int number, ShowOptions options = {});
/// A library symbol onto the grid, its list label in the status text.
void showLibrarySymbol(BrowseContext& context, int libraryNumber);

/// The working symbol made from a stored one: start point in slot 1, drawn actions from
/// slot 2, the spindle point in slot 201 and the end point in slot 202, in form units; the
/// editor state's placed flags, counts and undo history follow.
void loadWorkingSymbol(const SymbolRecord& symbol, const GridGeometry& grid, WorkingSymbol& working,
                       EditorState& state);

/// Clears the grid and draws the working symbol on it.
void redrawWorkingSymbol(BrowseContext& context);

}  // namespace quorn
