#include <array>
#include <optional>
#include <string>

#include "edit/action_buttons.h"
#include "edit/construction_texts.h"
#include "edit/drawing_engine.h"
#include "edit/drawing_steps.h"
#include "edit/drawing_texts.h"
#include "edit/editing_texts.h"
#include "edit/undo.h"

namespace quorn {

namespace {

/// The buttons that choose what the next left click places.
struct ItemButton {
  ActionButton button;
  PendingItem item;
  std::string_view prompt;
};

constexpr std::array<ItemButton, 7> kItemButtons = {{
    {ActionButton::End, PendingItem::EndPoint, kEndPointPrompt},
    {ActionButton::SpindlePoint, PendingItem::SpindlePoint, kSpindlePointPrompt},
    {ActionButton::TappingPoint, PendingItem::TappingPoint, kTappingPointPrompt},
    {ActionButton::Insulation, PendingItem::Insulation, kInsulationStartPrompt},
    {ActionButton::Tracing, PendingItem::Tracing, kTracingStartPrompt},
    {ActionButton::Arc, PendingItem::Arc, kArcCentrePrompt},
    {ActionButton::Circle, PendingItem::Circle, kCircleCentrePrompt},
}};

const ItemButton* itemButton(ActionButton button) {
  for (const ItemButton& item : kItemButtons) {
    if (item.button == button) return &item;
  }
  return nullptr;
}

/// The first of the button's checks that fails, in their order.
std::optional<std::string_view> itemRefusal(const DrawingContext& context, ActionButton button) {
  const EditorState& state = context.state;
  switch (button) {
    case ActionButton::End:
      if (state.endPointPlaced) return kOneEndPointText;
      break;
    case ActionButton::SpindlePoint:
      if (context.flags.noSpindle()) return kNoSpindlePointAllowedText;
      if (state.spindlePointPlaced) return kOneSpindlePointText;
      break;
    case ActionButton::TappingPoint:
      if (context.flags.noTappingPoints()) return kNoTappingPointsAllowedText;
      break;
    case ActionButton::Arc:
      if (state.arcInProgress) return kArcUnderWayText;
      break;
    case ActionButton::Circle:
      if (state.circleInProgress) return kCircleUnderWayText;
      break;
    default:
      break;
  }
  return std::nullopt;
}

bool symbolOnSurface(DrawingContext& context) {
  if (context.state.symbolOnSurface) return true;
  context.messages.tell(std::string(kInitiateNewSymbolText));
  return false;
}

void pressItemButton(DrawingContext& context, const ItemButton& item) {
  if (!symbolOnSurface(context)) return;
  if (const auto refusal = itemRefusal(context, item.button)) {
    context.messages.tell(std::string(*refusal));
    return;
  }
  EditorState& state = context.state;
  // A pending whole-symbol move, an armed deletion and any stroke are given up.
  returnToDraw(context);
  cancelConstructions(context);
  if (!hasStartPoint(context.working)) {
    awaitNewLine(context, kStartPointPrompt);
    return;
  }
  state.newStrokePending = true;
  state.pendingItem = item.item;
  if (item.item == PendingItem::Arc) state.arcInProgress = true;
  if (item.item == PendingItem::Circle) state.circleInProgress = true;
  setPrompt(context.window, item.prompt);
}

void toggleCharMode(DrawingContext& context) {
  context.state.charMode = !context.state.charMode;
  context.window.charLabel = std::string(context.state.charMode ? kCharOnLabel : kCharOffLabel);
}

void toggleSnap(DrawingContext& context) {
  EditorState& state = context.state;
  state.snapOn = !state.snapOn;
  // Set by hand, snap no longer waits for the right button to come back.
  state.snapSuspended = false;
  context.window.snapLabel = std::string(state.snapOn ? kSnapOnLabel : kSnapOffLabel);
}

void undo(DrawingContext& context) {
  if (!symbolOnSurface(context)) return;
  if (!undoLastStep(context.state, context.working, context.window)) return;
  if (!context.state.arcInProgress) context.session.arc.cancel();
  if (!context.state.circleInProgress) context.session.circle.cancel();
  redrawSurface(context);
}

void erase(DrawingContext& context) {
  if (!eraseSymbol(context.state, context.working, context.set, context.window, context.messages)) {
    return;
  }
  cancelConstructions(context);
  redrawSurface(context);
}

}  // namespace

ButtonFollowUp pressActionButton(DrawingContext& context, ActionButton button) {
  context.state.lastButton = button;
  context.window.hint = std::string(buttonHint(button));
  if (const ItemButton* item = itemButton(button)) {
    pressItemButton(context, *item);
    return ButtonFollowUp::None;
  }
  switch (button) {
    case ActionButton::Char:
      toggleCharMode(context);
      break;
    case ActionButton::Snap:
      toggleSnap(context);
      break;
    case ActionButton::Done:
      return finishSymbol(context) ? ButtonFollowUp::SymbolStored : ButtonFollowUp::None;
    case ActionButton::Undo:
      undo(context);
      break;
    case ActionButton::Erase:
      erase(context);
      break;
    case ActionButton::Flip:
      if (symbolOnSurface(context)) context.window.flipChoiceVisible = true;
      break;
    case ActionButton::IsoOrtho:
      toggleIsoView(context.window);
      redrawSurface(context);
      break;
    case ActionButton::Scale:
      return ButtonFollowUp::OpenScaleDialog;
    default:
      // Stepping to the previous or next symbol is browsing's.
      break;
  }
  return ButtonFollowUp::None;
}

}  // namespace quorn
