#pragma once
// The editor's drawing state for the symbol on the drawing surface, and the flags that say
// what is in progress. Plain data: the editing operations change it.

#include <cstdint>
#include <vector>

namespace quorn {

enum class EditOperation : std::int16_t { Draw = 1, Delete = 2, Move = 3 };

/// What the next left click on the grid acts on.
enum class PendingItem : std::int16_t {
  Line = 0,
  WholeSymbol = 2,
  TappingPoint = 3,
  Insulation = 4,
  Tracing = 5,
  SpindlePoint = 6,
  Arc = 7,
  Circle = 8,
  StartPoint = 10,
  EndPoint = 20,
};

/// The kind of an editing step, as the undo history keeps it.
enum class StepKind : std::int16_t {
  PenUpMove = 1,
  Line = 2,
  TappingPoint = 3,
  Insulation = 4,
  Tracing = 5,
  SpindlePoint = 6,
  StartPoint = 10,
  EndPoint = 20,
};

/// The action buttons in the order the hint line numbers them.
enum class ActionButton : std::int16_t {
  Char = 0,
  PreviousSymbol = 1,
  NextSymbol = 2,
  Done = 3,
  Erase = 4,
  IsoOrtho = 5,
  Scale = 6,
  Flip = 7,
  TappingPoint = 8,
  SpindlePoint = 9,
  End = 10,
  Insulation = 11,
  Tracing = 12,
  Circle = 13,
  Arc = 14,
  Undo = 15,
  Snap = 16,
};

struct FormPosition {
  std::int32_t x = 0;
  std::int32_t y = 0;
  friend bool operator==(const FormPosition&, const FormPosition&) = default;
};

struct EditorState {
  EditOperation operation = EditOperation::Draw;
  PendingItem pendingItem = PendingItem::Line;
  bool newStrokePending = false;
  bool snapOn = true;
  bool charMode = false;
  FormPosition cursorPoint;
  FormPosition strokeStart;
  FormPosition lastPoint;
  bool arcInProgress = false;
  bool circleInProgress = false;
  bool endPointPlaced = false;
  bool spindlePointPlaced = false;
  /// Snap was switched off by the Delete menu and comes back with the right button.
  bool snapSuspended = false;
  /// Line picking of the Delete menu is armed.
  bool lineDeletionArmed = false;
  std::vector<StepKind> undoHistory;
  ActionButton lastButton = ActionButton::Char;

  /// A symbol is on the surface: begun by New Symbol or shown from the Current Set.
  bool symbolOnSurface = false;
  /// A symbol has been begun (or is being edited) and not yet finished with Done.
  bool symbolInProgress = false;
  /// The working symbol has been changed and not stored into the Current Set.
  bool symbolPending = false;
  /// The new-symbol dialog edits the attributes of Current Set symbol `editedSymbol`.
  bool editing = false;
  int editedSymbol = 0;
  /// The Current Set number that the working symbol will be stored as.
  int symbolNumber = 0;
};

}  // namespace quorn
