#include "edit/drawing_steps.h"

#include <string>

#include "edit/drawn_slots.h"
#include "edit/editing_texts.h"

namespace quorn {

SymbolStyle surfaceStyle(const EditWindowState& window) {
  SymbolStyle style;
  style.view = window.isometric ? View::Isometric : View::Orthographic;
  return style;
}

bool hasStartPoint(const WorkingSymbol& working) {
  return working.actionCount >= kStartSlot;
}

bool appendAction(DrawingContext& context, std::int16_t code, FormPoint point, StepKind step,
                  bool character) {
  WorkingSymbol& working = context.working;
  // The drawn actions stop short of the spindle point's slot.
  if (working.actionCount < 0 || working.actionCount >= kSpindleSlot - 1) return false;
  ++working.actionCount;
  working.slots[working.actionCount] = WorkingAction{code, point.x, point.y, character};
  context.state.undoHistory.push_back(step);
  context.state.symbolPending = true;
  drawAction(context.canvas, working, working.actionCount, surfaceStyle(context.window),
             context.config);
  return true;
}

void returnToDraw(DrawingContext& context) {
  EditorState& state = context.state;
  state.operation = EditOperation::Draw;
  state.lineDeletionArmed = false;
  if (state.snapSuspended) {
    state.snapSuspended = false;
    state.snapOn = true;
    context.window.snapLabel = std::string(kSnapOnLabel);
  }
}

void cancelConstructions(DrawingContext& context) {
  context.session.arc.cancel();
  context.session.circle.cancel();
  context.state.arcInProgress = false;
  context.state.circleInProgress = false;
}

void awaitNewLine(DrawingContext& context, std::string_view prompt) {
  EditorState& state = context.state;
  state.newStrokePending = true;
  if (hasStartPoint(context.working)) {
    state.pendingItem = PendingItem::Line;
    setPrompt(context.window, prompt);
  } else {
    state.pendingItem = PendingItem::StartPoint;
    setPrompt(context.window, kStartPointPrompt);
  }
}

void setPrompt(EditWindowState& window, std::string_view prompt) {
  window.prompt = std::string(prompt);
}

}  // namespace quorn
