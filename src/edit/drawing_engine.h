#pragma once
// Drawing a symbol with the mouse: the events of the drawing surface, the action buttons, the
// Delete and Move menus, the flip choice and Done. They work on the editor's drawing state and
// the working symbol, and hand over to the arc and circle constructions, point editing, undo
// and the transformations.
//
// Choices made where the behaviour is open:
// - After an arc or a circle (built or refused), line drawing is pending with a new stroke:
//   the next left click is a pen-up move, as the prompt "Move without Drawing" says, and the
//   Arc or Circle button starts the next one.
// - The right button during an arc or a circle drops its points, clears ArcInProgress and
//   CircleInProgress and makes line drawing pending, so that the next left click does what
//   the line prompt then shown says; the Arc or Circle button starts a new one at once.
// - The start point, the end point and the spindle point are single points: once placed,
//   line drawing is pending again (from the start point on; after the end or spindle point
//   with a new stroke). Tapping points stay pending until another button.
// - Until the start point is placed, a left click places it whatever is pending, and the
//   item buttons only repeat the start point prompt.
// - The limit of 200 steps is checked before a left click of the Draw operation; deleting and
//   moving add no step and are not limited.
// - The end and spindle points live in their own slots: placing one adds a step to the undo
//   history but not to the action count, which counts the slots from the start point up.
// - Done ends the symbol's stay on the surface; the symbol list then shows the Current Set.

#include <cstdint>

#include "base/messages.h"
#include "config/configuration.h"
#include "display/canvas.h"
#include "display/edit_window_state.h"
#include "display/grid_geometry.h"
#include "edit/arc_construction.h"
#include "edit/circle_construction.h"
#include "edit/point_editing.h"
#include "edit/transformations.h"
#include "model/editor_state.h"
#include "model/symbol_collection.h"
#include "model/working_symbol.h"
#include "skey/group_entries.h"

namespace quorn {

/// The steps that the undo history holds at most.
inline constexpr int kMaxEditingSteps = 200;

enum class MouseButton { Left, Right };

/// What drawing keeps between events besides the editor's drawing state: the arc and the
/// circle under construction, and whether a rubber band stands on the surface.
struct DrawingSession {
  ArcConstruction arc;
  CircleConstruction circle;
  bool rubberBandShown = false;
};

/// What drawing reads and changes; the editor owns all of it.
struct DrawingContext {
  const Configuration& config;
  const GridGeometry& grid;
  GroupFlags flags;  // of the symbol's SKEY: spindle and tapping points allowed or required
  CurrentSet& set;
  WorkingSymbol& working;
  EditorState& state;
  EditWindowState& window;
  DrawingSession& session;
  Canvas& canvas;
  Messages& messages;
};

/// What the editor has to do after a button, beyond what the button did itself.
enum class ButtonFollowUp {
  None,
  SymbolStored,     // Done stored the symbol: refresh the symbol list
  OpenScaleDialog,  // Scale: open the dialog on the grid in use
};

/// A mouse button pressed on the drawing surface at (`x`, `y`) in form units.
void pressMouse(DrawingContext& context, MouseButton button, float x, float y);

/// The mouse moved over the drawing surface to (`x`, `y`): the hint goes, the pointer is a
/// crosshair over the grid, and while a polyline is under way the surface shows the rubber
/// band from LastPoint to the grid point under the mouse.
void moveMouse(DrawingContext& context, float x, float y);

/// An action button pressed. Records it as LastButton and shows its hint first.
ButtonFollowUp pressActionButton(DrawingContext& context, ActionButton button);

/// Done: checks the symbol and stores it into the Current Set as `state.symbolNumber` (behind
/// the last when that number has no place in the set). True when stored.
bool finishSymbol(DrawingContext& context);

/// The Delete menu opened: it drops an arc or circle under construction. Nothing happens
/// without a symbol on the surface.
void openDeleteMenu(DrawingContext& context);
/// A Delete menu entry chosen, the menu opened first when it was not. Without a symbol on the
/// surface only "Please Initiate New Symbol first" is shown; without a start point the start
/// point is asked for instead.
void chooseDeleteEntry(DrawingContext& context, DeleteEntry entry);
/// Delete › Symbol: the symbol on the surface deleted from the Current Set after a Yes.
/// True when deleted.
bool chooseDeleteSymbol(DrawingContext& context);

/// The Move menu opened, and one of its entries chosen, as for the Delete menu.
void openMoveMenu(DrawingContext& context);
void chooseMoveEntry(DrawingContext& context, MoveEntry entry);

/// One of the two rows of the flip choice chosen: the choice goes, and the symbol is flipped
/// and drawn again.
void chooseFlip(DrawingContext& context, FlipAxis axis);

/// Clears the surface, draws the grid and, once it has a start point, the working symbol.
void redrawSurface(DrawingContext& context);

}  // namespace quorn
