#include "edit/point_editing.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <string>

#include "base/numbers.h"
#include "edit/drawn_slots.h"
#include "edit/editing_texts.h"
#include "edit/transformations.h"
#include "model/symbol_record.h"

namespace quorn {

namespace {

void setPrompt(EditWindowState& window, std::string_view prompt) {
  window.prompt = std::string(prompt);
}

/// Opening a menu disarms whatever was pending, so a click before an entry is chosen does
/// nothing.
void enterOperation(EditOperation operation, EditorState& state) {
  state.operation = operation;
  state.pendingItem = PendingItem::Line;
  state.lineDeletionArmed = false;
}

std::int16_t actionCode(SegmentKind kind) {
  switch (kind) {
    case SegmentKind::Insulation:
      return kInsulation;
    case SegmentKind::Tracing:
      return kTracing;
    case SegmentKind::Line:
      break;
  }
  return kLine;
}

std::string_view notFoundText(SegmentKind kind) {
  switch (kind) {
    case SegmentKind::Insulation:
      return kInsulationNotFound;
    case SegmentKind::Tracing:
      return kTracingNotFound;
    case SegmentKind::Line:
      break;
  }
  return kLineNotFound;
}

/// Whether `cursor` lies strictly inside the segment's bounding rectangle widened by `t`.
bool nearSegment(FormPosition cursor, const WorkingAction& from, const WorkingAction& to,
                 std::int32_t t) {
  const auto [left, right] = std::minmax(from.x, to.x);
  const auto [top, bottom] = std::minmax(from.y, to.y);
  return left - t < cursor.x && cursor.x < right + t && top - t < cursor.y && cursor.y < bottom + t;
}

/// A deleted item stays in its slot as a pen-up move, and no longer counts as a character line.
void makePenUpMove(WorkingAction& action) {
  action.type = kMove;
  action.character = false;
}

std::optional<SegmentKind> segmentKindOf(PendingItem item) {
  switch (item) {
    case PendingItem::Insulation:
      return SegmentKind::Insulation;
    case PendingItem::Tracing:
      return SegmentKind::Tracing;
    default:
      return std::nullopt;
  }
}

}  // namespace

void openDeleteMenu(EditorState& state, EditWindowState& window) {
  enterOperation(EditOperation::Delete, state);
  // Only a snap that this menu switched off comes back with the right button.
  if (state.snapOn) {
    state.snapOn = false;
    state.snapSuspended = true;
  }
  window.snapLabel = std::string(kSnapOffLabel);
  setPrompt(window, kDeleteMenuPrompt);
}

bool chooseDeleteEntry(DeleteEntry entry, EditorState& state, EditWindowState& window,
                       Messages& messages) {
  if (entry == DeleteEntry::SpindlePoint && !state.spindlePointPlaced) {
    messages.tell(std::string(kSpindlePointNotSet));
    return false;
  }
  state.operation = EditOperation::Delete;
  state.lineDeletionArmed = entry == DeleteEntry::Line;
  switch (entry) {
    case DeleteEntry::Line:
      state.pendingItem = PendingItem::Line;
      setPrompt(window, kDeleteLinePrompt);
      break;
    case DeleteEntry::Insulation:
      state.pendingItem = PendingItem::Insulation;
      setPrompt(window, kDeleteInsulationPrompt);
      break;
    case DeleteEntry::Tracing:
      state.pendingItem = PendingItem::Tracing;
      setPrompt(window, kDeleteTracingPrompt);
      break;
    case DeleteEntry::TappingPoint:
      state.pendingItem = PendingItem::TappingPoint;
      setPrompt(window, kDeleteTappingPointPrompt);
      break;
    case DeleteEntry::SpindlePoint:
      state.pendingItem = PendingItem::SpindlePoint;
      setPrompt(window, kDeleteSpindlePointPrompt);
      break;
  }
  return true;
}

void openMoveMenu(EditorState& state, EditWindowState& window) {
  enterOperation(EditOperation::Move, state);
  setPrompt(window, kMoveMenuPrompt);
}

bool chooseMoveEntry(MoveEntry entry, EditorState& state, EditWindowState& window,
                     Messages& messages) {
  if (entry == MoveEntry::SpindlePoint && !state.spindlePointPlaced) {
    messages.tell(std::string(kSpindlePointNotSet));
    return false;
  }
  state.operation = EditOperation::Move;
  state.lineDeletionArmed = false;
  switch (entry) {
    case MoveEntry::StartPoint:
      state.pendingItem = PendingItem::StartPoint;
      setPrompt(window, kMoveStartPointPrompt);
      break;
    case MoveEntry::EndPoint:
      state.pendingItem = PendingItem::EndPoint;
      setPrompt(window, kMoveEndPointPrompt);
      break;
    case MoveEntry::SpindlePoint:
      state.pendingItem = PendingItem::SpindlePoint;
      setPrompt(window, kMoveSpindlePointPrompt);
      break;
    case MoveEntry::Symbol:
      state.pendingItem = PendingItem::WholeSymbol;
      setPrompt(window, kMoveSymbolPrompt);
      break;
  }
  return true;
}

std::int32_t pickTolerance(std::int32_t spacing) {
  return roundHalfEven(spacing / 2.0);
}

bool deleteSegmentAt(SegmentKind kind, FormPosition cursor, WorkingSymbol& working,
                     std::int32_t spacing, Messages& messages, const SegmentPainter& paint) {
  const std::int32_t t = pickTolerance(spacing);
  const std::int16_t code = actionCode(kind);
  // The start point has no segment before it, so segments end in slot 2 at the earliest.
  for (int slot = kStartSlot + 1; slot <= lastDrawnSlot(working); ++slot) {
    WorkingAction& action = working.slots[slot];
    const WorkingAction& previous = working.slots[slot - 1];
    if (action.type != code || !nearSegment(cursor, previous, action, t)) continue;
    if (paint) paint(previous, action, kCandidateColour);
    const Answer answer =
        messages.ask(Message{std::string(kDeleteLineTitle), std::string(kDeleteLineQuestion),
                             Buttons::YesNo, Icon::Question});
    if (answer == Answer::Yes) {
      makePenUpMove(action);
      return true;
    }
    if (paint) paint(previous, action, kDeclinedColour);
  }
  messages.tell(std::string(notFoundText(kind)));
  return false;
}

bool deleteTappingPointAt(FormPosition cursor, WorkingSymbol& working, std::int32_t spacing,
                          Messages& messages) {
  const std::int32_t t = pickTolerance(spacing);
  int nearest = 0;
  std::int64_t nearestDistance = 0;
  for (int slot = kStartSlot + 1; slot <= lastDrawnSlot(working); ++slot) {
    const WorkingAction& action = working.slots[slot];
    const std::int64_t dx = action.x - cursor.x;
    const std::int64_t dy = action.y - cursor.y;
    if (action.type != kTappingPoint || std::abs(dx) >= t || std::abs(dy) >= t) continue;
    const std::int64_t distance = dx * dx + dy * dy;
    if (nearest == 0 || distance < nearestDistance) {
      nearest = slot;
      nearestDistance = distance;
    }
  }
  if (nearest == 0) {
    messages.tell(std::string(kTappingPointNotFound));
    return false;
  }
  makePenUpMove(working.slots[nearest]);
  if (working.tappingCount > 0) --working.tappingCount;
  return true;
}

void deleteSpindlePoint(EditorState& state) {
  state.spindlePointPlaced = false;
}

bool moveStartPoint(FormPosition to, WorkingSymbol& working, const GridFrame& grid,
                    Messages& messages) {
  if (to.x < kGridLeft || to.y > grid.bottomY()) {
    messages.tell(std::string(kSymbolDoesNotFit));
    return false;
  }
  working.slots[kStartSlot].x = to.x;
  working.slots[kStartSlot].y = to.y;
  return true;
}

void moveEndPoint(FormPosition to, EditorState& state, WorkingSymbol& working) {
  working.slots[kEndSlot] = WorkingAction{kWorkingEndPoint, to.x, to.y, false};
  state.endPointPlaced = true;
}

void moveSpindlePoint(FormPosition to, WorkingSymbol& working) {
  working.slots[kSpindleSlot] = WorkingAction{kSpindlePoint, to.x, to.y, false};
}

bool deleteAtCursor(EditorState& state, WorkingSymbol& working, const GridFrame& grid,
                    Messages& messages, const SegmentPainter& paint) {
  bool changed = false;
  if (state.lineDeletionArmed) {
    changed = deleteSegmentAt(SegmentKind::Line, state.cursorPoint, working, grid.spacing, messages,
                              paint);
  } else if (const auto kind = segmentKindOf(state.pendingItem)) {
    changed = deleteSegmentAt(*kind, state.cursorPoint, working, grid.spacing, messages, paint);
  } else if (state.pendingItem == PendingItem::TappingPoint) {
    changed = deleteTappingPointAt(state.cursorPoint, working, grid.spacing, messages);
  } else if (state.pendingItem == PendingItem::SpindlePoint && state.spindlePointPlaced) {
    deleteSpindlePoint(state);
    changed = true;
  }
  if (changed) state.symbolPending = true;
  return changed;
}

bool moveAtCursor(EditorState& state, WorkingSymbol& working, const GridFrame& grid,
                  Messages& messages) {
  bool changed = false;
  switch (state.pendingItem) {
    case PendingItem::StartPoint:
      changed = moveStartPoint(state.cursorPoint, working, grid, messages);
      break;
    case PendingItem::EndPoint:
      moveEndPoint(state.cursorPoint, state, working);
      changed = true;
      break;
    case PendingItem::SpindlePoint:
      if (state.spindlePointPlaced) {
        moveSpindlePoint(state.cursorPoint, working);
        changed = true;
      }
      break;
    case PendingItem::WholeSymbol:
      changed = moveSymbolTo(state.cursorPoint, state, working, grid, messages);
      break;
    default:
      break;
  }
  if (changed) state.symbolPending = true;
  return changed;
}

}  // namespace quorn
