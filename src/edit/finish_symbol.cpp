#include <optional>
#include <string>

#include "base/text.h"
#include "display/window_texts.h"
#include "edit/drawing_engine.h"
#include "edit/drawing_steps.h"
#include "edit/drawing_texts.h"
#include "edit/drawn_slots.h"

namespace quorn {

namespace {

/// The first of Done's checks that fails, in their order.
std::optional<std::string_view> doneRefusal(const DrawingContext& context) {
  const EditorState& state = context.state;
  if (!state.symbolOnSurface) return kInitiateNewSymbolText;
  if (!state.endPointPlaced) return kNoEndPointText;
  const std::string spindleKey = normalisedWord(context.working.spindleKey);
  const bool suppressed = spindleKey == kNoSpindleKey;
  const bool placed = state.spindlePointPlaced;
  if (!spindleKey.empty() && !suppressed && !placed) return kSpindleKeyWithoutPointText;
  if (context.flags.spindlePointRequired() && !suppressed && !placed) {
    return kSpindlePointRequiredText;
  }
  if (suppressed && placed) return kSpindleSuppressedText;
  if (context.working.slots[kEndSlot].x < context.working.slots[kStartSlot].x) {
    return kEndLeftOfStartText;
  }
  return std::nullopt;
}

/// The symbol is finished: nothing is pending or under way, and it is off the surface.
void resetAfterStore(DrawingContext& context) {
  EditorState& state = context.state;
  returnToDraw(context);
  cancelConstructions(context);
  state.pendingItem = PendingItem::Line;
  state.newStrokePending = false;
  state.strokeStart = state.lastPoint = FormPoint{};
  state.symbolOnSurface = false;
  state.symbolInProgress = false;
  state.symbolPending = false;
  state.editing = false;
  state.editedSymbol = 0;
  EditWindowState& window = context.window;
  window.moveMenuVisible = true;
  window.menusEnabled = true;
  window.symbolList.enabled = true;
  window.flipChoiceVisible = false;
  window.countLabel = symbolsLoadedText(context.set.count());
  setPrompt(window, kSymbolStoredPrompt);
}

}  // namespace

bool finishSymbol(DrawingContext& context) {
  if (const auto refusal = doneRefusal(context)) {
    context.messages.tell(std::string(*refusal));
    return false;
  }
  CurrentSet& set = context.set;
  int number = context.state.symbolNumber;
  if (number < 1 || number > set.count() + 1) number = set.count() + 1;
  if (!storeWorkingSymbol(context.working, context.state.spindlePointPlaced,
                          gridPlacement(context.grid), set, number)) {
    context.messages.tell(setFullText(set.capacity()));
    return false;
  }
  context.state.symbolNumber = number;
  resetAfterStore(context);
  return true;
}

}  // namespace quorn
