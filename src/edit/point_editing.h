#pragma once
// The Delete and Move menus: arming them, and the left click that then deletes a line,
// insulation, tracing, tapping point or the spindle point, or moves the start, end or spindle
// point. Nothing here draws except through the painter given for line picking; the caller
// redraws the symbol after a change.

#include <functional>

#include "base/messages.h"
#include "display/edit_window_state.h"
#include "edit/grid_frame.h"
#include "model/editor_state.h"
#include "model/working_symbol.h"

namespace quorn {

enum class DeleteEntry { Line, Insulation, Tracing, TappingPoint, SpindlePoint };
enum class MoveEntry { StartPoint, EndPoint, SpindlePoint, Symbol };

/// The kinds of segment that line picking looks for.
enum class SegmentKind { Line, Insulation, Tracing };

/// Draws one segment in a palette colour: the candidate offered for deletion in light red,
/// and again in black when the user declines it.
using SegmentPainter =
    std::function<void(const WorkingAction& from, const WorkingAction& to, int colour)>;

inline constexpr int kCandidateColour = 12;  // LIGHTRED
inline constexpr int kDeclinedColour = 0;    // BLACK

/// The Delete menu opened: the Delete operation, with snap switched off until the right button.
void openDeleteMenu(EditorState& state, EditWindowState& window);
/// A Delete menu entry chosen. False, with "Spindle Point not set", when the spindle point is
/// to be deleted but none is placed; the state is then unchanged.
bool chooseDeleteEntry(DeleteEntry entry, EditorState& state, EditWindowState& window,
                       Messages& messages);

/// The Move menu opened: the Move operation.
void openMoveMenu(EditorState& state, EditWindowState& window);
/// A Move menu entry chosen. False, with "Spindle Point not set", when the spindle point is
/// to be moved but none is placed; the state is then unchanged.
bool chooseMoveEntry(MoveEntry entry, EditorState& state, EditWindowState& window,
                     Messages& messages);

/// Half the grid spacing, halves to even: how near a click must come to pick something.
std::int32_t pickTolerance(std::int32_t spacing);

/// Walks the segments of `kind` in action order and offers each one whose bounding rectangle,
/// widened by the tolerance on every side, holds `cursor` strictly inside. The first one the
/// user accepts becomes a pen-up move, so no other action shifts. True when one was deleted;
/// otherwise the kind's "not found" message is shown.
bool deleteSegmentAt(SegmentKind kind, FormPosition cursor, WorkingSymbol& working,
                     std::int32_t spacing, Messages& messages, const SegmentPainter& paint);

/// Deletes the tapping point nearest `cursor` among those less than the tolerance away in x
/// and in y (the first in action order on a tie). It becomes a pen-up move at its place, so no
/// other action shifts, and the tapping count drops by one. True when one was deleted;
/// otherwise "Tapping Point not found." is shown.
bool deleteTappingPointAt(FormPosition cursor, WorkingSymbol& working, std::int32_t spacing,
                          Messages& messages);

/// Removes the spindle point; its slot keeps its last position for an undo.
void deleteSpindlePoint(EditorState& state);

/// Moves the start point (slot 1) to `to`, which must lie in the grid's positive area (x at
/// least the left edge, y at most the bottom edge); otherwise the move is refused with its
/// message. True when moved.
bool moveStartPoint(FormPosition to, WorkingSymbol& working, const GridFrame& grid,
                    Messages& messages);
/// Moves the end point (slot 202) to `to`; it counts as placed from then on.
void moveEndPoint(FormPosition to, EditorState& state, WorkingSymbol& working);
/// Moves the spindle point (slot 201) to `to`.
void moveSpindlePoint(FormPosition to, WorkingSymbol& working);

/// A left click at `state.cursorPoint` in the Delete operation, acting on what the menu armed.
/// True when the symbol changed (the caller then redraws it).
bool deleteAtCursor(EditorState& state, WorkingSymbol& working, const GridFrame& grid,
                    Messages& messages, const SegmentPainter& paint);
/// A left click at `state.cursorPoint` in the Move operation, acting on the pending item
/// (the start, end or spindle point, or the whole symbol). True when the symbol changed.
bool moveAtCursor(EditorState& state, WorkingSymbol& working, const GridFrame& grid,
                  Messages& messages);

}  // namespace quorn
