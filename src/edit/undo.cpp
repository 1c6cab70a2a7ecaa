#include "edit/undo.h"

#include <string>

#include "edit/drawn_slots.h"
#include "display/window_texts.h"
#include "edit/editing_texts.h"

namespace quorn {

namespace {

FormPosition positionOf(const WorkingAction& action) {
  return FormPosition{action.x, action.y};
}

bool polylineUnderWay(const EditorState& state) {
  const bool polylineItem = state.pendingItem == PendingItem::Line ||
                            state.pendingItem == PendingItem::Insulation ||
                            state.pendingItem == PendingItem::Tracing;
  return state.operation == EditOperation::Draw && polylineItem && !state.newStrokePending;
}

/// Removes the newest drawn action; the start point always stays.
void removeLastAction(WorkingSymbol& working) {
  if (working.actionCount <= kStartSlot) return;
  working.slots[working.actionCount] = WorkingAction{};
  --working.actionCount;
}

void clearStroke(EditorState& state) {
  state.newStrokePending = false;
  state.strokeStart = FormPosition{};
  state.lastPoint = FormPosition{};
  state.arcInProgress = false;
  state.circleInProgress = false;
}

/// Back to drawing, with a snap that the Delete menu switched off switched on again.
void backToDraw(EditorState& state, EditWindowState& window) {
  state.operation = EditOperation::Draw;
  state.lineDeletionArmed = false;
  if (state.snapSuspended) {
    state.snapSuspended = false;
    state.snapOn = true;
    window.snapLabel = std::string(kSnapOnLabel);
  }
}

/// Taking back the start point leaves an empty symbol waiting for a new one.
void backToStartPoint(EditorState& state, WorkingSymbol& working, EditWindowState& window) {
  working.actionCount = 0;
  working.tappingCount = 0;
  working.slots = {};
  state.undoHistory.clear();
  clearStroke(state);
  state.endPointPlaced = false;
  state.spindlePointPlaced = false;
  backToDraw(state, window);
  state.pendingItem = PendingItem::StartPoint;
  window.prompt = std::string(kStartPointPrompt);
}

}  // namespace

bool undoLastStep(EditorState& state, WorkingSymbol& working, EditWindowState& window) {
  if (state.undoHistory.empty()) return false;
  if (polylineUnderWay(state)) {
    if (working.actionCount > kStartSlot) {
      state.lastPoint = positionOf(working.slots[working.actionCount - 1]);
    }
    window.prompt = std::string(kUndoLinePrompt);
  }
  const StepKind step = state.undoHistory.back();
  state.undoHistory.pop_back();
  switch (step) {
    case StepKind::PenUpMove:
    case StepKind::Line:
    case StepKind::Insulation:
    case StepKind::Tracing:
      removeLastAction(working);
      break;
    case StepKind::TappingPoint:
      if (working.tappingCount > 0) --working.tappingCount;
      removeLastAction(working);
      break;
    case StepKind::SpindlePoint:
      state.spindlePointPlaced = false;
      state.lastPoint = state.strokeStart = positionOf(working.slots[kSpindleSlot]);
      break;
    case StepKind::EndPoint:
      state.endPointPlaced = false;
      state.lastPoint = state.strokeStart = positionOf(working.slots[kEndSlot]);
      break;
    case StepKind::StartPoint:
      backToStartPoint(state, working, window);
      break;
  }
  // An undo never leaves a pen-up move dangling at the end of the symbol; the start point
  // stays even when no drawn action is left to take.
  while (!state.undoHistory.empty() && state.undoHistory.back() == StepKind::PenUpMove) {
    state.undoHistory.pop_back();
    removeLastAction(working);
  }
  state.symbolPending = true;
  return true;
}

bool eraseSymbol(EditorState& state, WorkingSymbol& working, const CurrentSet& set,
                 EditWindowState& window, Messages& messages) {
  if (state.symbolPending) {
    const Answer answer = messages.ask(Message{std::string(kAppTitle), std::string(kEraseQuestion),
                                               Buttons::YesNo, Icon::Question});
    if (answer != Answer::Yes) return false;
  }
  working = WorkingSymbol{};
  backToDraw(state, window);
  clearStroke(state);
  state.pendingItem = PendingItem::Line;
  state.endPointPlaced = false;
  state.spindlePointPlaced = false;
  state.undoHistory.clear();
  state.symbolOnSurface = false;
  state.symbolInProgress = false;
  state.symbolPending = false;
  state.editing = false;
  state.editedSymbol = 0;
  window.moveMenuVisible = true;
  window.flipChoiceVisible = false;
  window.menusEnabled = true;
  window.prompt = std::string(set.count() == 0 ? kErasedEmptySetPrompt : kErasedPrompt);
  window.statusText = symbolsLoadedText(set.count());
  return true;
}

bool deleteSymbolFromSet(EditorState& state, CurrentSet& set, EditWindowState& window,
                         Messages& messages) {
  const int number = state.symbolNumber;
  if (number < 1 || number > set.count()) return false;
  const Answer answer = messages.ask(Message{std::string(kDeleteSymbolTitle),
                                             deleteSymbolQuestion(set.symbol(number).oldKey),
                                             Buttons::YesNo, Icon::Question});
  if (answer != Answer::Yes) return false;
  set.remove(number);
  set.changed = true;
  // The symbol on the surface no longer has a place in the set: Done adds it behind the last
  // instead of over the symbol that moved up into its place.
  state.symbolNumber = set.count() + 1;
  if (state.editing && state.editedSymbol == number) {
    state.editing = false;
    state.editedSymbol = 0;
  } else if (state.editedSymbol > number) {
    --state.editedSymbol;
  }
  window.statusText = symbolsLoadedText(set.count());
  return true;
}

}  // namespace quorn
