#include "app/script_drawing_verbs.h"

#include <array>
#include <charconv>
#include <utility>

#include "app/script_words.h"
#include "edit/action_buttons.h"
#include "edit/editing_texts.h"

namespace quorn {

namespace {

bool formUnits(const std::string& text, float& value) {
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  return !text.empty() && error == std::errc() && stop == end;
}

/// X and Y from `words` starting at `first`.
std::optional<std::pair<float, float>> position(const std::vector<std::string>& words,
                                                std::size_t first) {
  float x = 0;
  float y = 0;
  if (words.size() != first + 2 || !formUnits(words[first], x) || !formUnits(words[first + 1], y)) {
    return std::nullopt;
  }
  return std::pair{x, y};
}

std::optional<std::string> click(Editor& editor, const std::vector<std::string>& words) {
  const auto at = position(words, 1);
  if (words.empty() || (words[0] != "left" && words[0] != "right") || !at) {
    return "click takes left or right and the position X Y in form units";
  }
  editor.pressMouse(words[0] == "left" ? MouseButton::Left : MouseButton::Right, at->first,
                    at->second);
  return std::nullopt;
}

std::optional<std::string> moveTo(Editor& editor, const std::vector<std::string>& words) {
  const auto at = position(words, 0);
  if (!at) return "move takes the position X Y in form units";
  editor.moveMouse(at->first, at->second);
  return std::nullopt;
}

std::optional<std::string> button(Editor& editor, const std::vector<std::string>& words) {
  const auto pressed = words.size() == 1 ? buttonCaptioned(words[0]) : std::nullopt;
  if (!pressed) {
    return "button takes a caption: Char, Snap, End, SP, TP, Insul., Trace, Arc, Circle, Done, "
           "Undo, Erase, Flip, Iso, Ortho or Scale";
  }
  editor.pressButton(*pressed);
  return std::nullopt;
}

std::optional<std::string> flip(Editor& editor, const std::vector<std::string>& words) {
  if (words.size() != 1 || (words[0] != kHorizontalAxis && words[0] != kVerticalAxis)) {
    return "flip takes Horizontal or Vertical";
  }
  if (!editor.window().flipChoiceVisible) return "the flip choice is not shown (button Flip)";
  editor.chooseFlip(words[0] == kHorizontalAxis ? FlipAxis::Horizontal : FlipAxis::Vertical);
  return std::nullopt;
}

std::optional<std::string> scale(Editor& editor, const std::vector<std::string>& words,
                                 std::ostream& out) {
  if (words.size() != 2 && !(words.size() == 1 && words[0] == "close")) {
    return "scale takes the grid division and the scale length in mm, or close";
  }
  if (!editor.window().scaleDialogVisible) return "the Scale dialog is not open (button Scale)";
  if (words.size() == 1) {
    editor.closeScaleDialog();
    return std::nullopt;
  }
  editor.typeGridDivision(words[0]);
  editor.typeScaleLength(words[1]);
  editor.rescaleSymbol();
  out << "scale-entries " << quotedScriptText(editor.scaleDialog().gridDivision) << ' '
      << quotedScriptText(editor.scaleDialog().scaleLength) << '\n';
  return std::nullopt;
}

std::string_view yesNo(bool value) {
  return value ? "true" : "false";
}

int code(auto value) {
  return static_cast<int>(value);
}

void writeSymbol(const WorkingSymbol& working, const EditorState& state, std::ostream& out) {
  out << "keys old " << quotedScriptText(working.oldKey) << " new "
      << quotedScriptText(working.newKey) << " spindle " << quotedScriptText(working.spindleKey)
      << '\n';
  out << "attributes scale " << quotedScriptText(working.scaleFactor) << " mirror "
      << quotedScriptText(working.mirrorType) << " flow " << quotedScriptText(working.flowArrow)
      << " dimensions " << quotedScriptText(working.dimensions) << " orientation "
      << quotedScriptText(working.orientation) << '\n';
  out << "counts actions " << working.actionCount << " tapping " << working.tappingCount << '\n';
  out << "placed end " << yesNo(state.endPointPlaced) << " spindle "
      << yesNo(state.spindlePointPlaced) << '\n';
  const auto slot = [&](int number) {
    const WorkingAction& action = working.slots[static_cast<std::size_t>(number)];
    out << "slot " << number << ' ' << action.type << ' ' << action.x << ' ' << action.y << ' '
        << (action.character ? 1 : 0) << '\n';
  };
  for (int number = 1; number <= working.actionCount && number < kSpindleSlot; ++number) {
    slot(number);
  }
  if (state.spindlePointPlaced) slot(kSpindleSlot);
  if (state.endPointPlaced) slot(kEndSlot);
}

void writeState(const EditorState& state, std::ostream& out) {
  const auto point = [](FormPosition p) { return std::to_string(p.x) + ' ' + std::to_string(p.y); };
  std::string history;
  for (const StepKind step : state.undoHistory) {
    history += (history.empty() ? "" : " ") + std::to_string(code(step));
  }
  out << "operation " << code(state.operation) << '\n'
      << "pendingItem " << code(state.pendingItem) << '\n'
      << "newStrokePending " << yesNo(state.newStrokePending) << '\n'
      << "snapOn " << yesNo(state.snapOn) << '\n'
      << "charMode " << yesNo(state.charMode) << '\n'
      << "cursorPoint " << point(state.cursorPoint) << '\n'
      << "strokeStart " << point(state.strokeStart) << '\n'
      << "lastPoint " << point(state.lastPoint) << '\n'
      << "arcInProgress " << yesNo(state.arcInProgress) << '\n'
      << "circleInProgress " << yesNo(state.circleInProgress) << '\n'
      << "endPointPlaced " << yesNo(state.endPointPlaced) << '\n'
      << "spindlePointPlaced " << yesNo(state.spindlePointPlaced) << '\n'
      << "snapSuspended " << yesNo(state.snapSuspended) << '\n'
      << "lineDeletionArmed " << yesNo(state.lineDeletionArmed) << '\n'
      << "undoHistory " << history << '\n'
      << "lastButton " << code(state.lastButton) << '\n'
      << "symbolOnSurface " << yesNo(state.symbolOnSurface) << '\n'
      << "symbolInProgress " << yesNo(state.symbolInProgress) << '\n'
      << "symbolPending " << yesNo(state.symbolPending) << '\n'
      << "editing " << yesNo(state.editing) << '\n'
      << "editedSymbol " << state.editedSymbol << '\n'
      << "symbolNumber " << state.symbolNumber << '\n';
}

}  // namespace

bool isDrawingVerb(std::string_view verb) {
  return verb == "click" || verb == "move" || verb == "button" || verb == "flip" || verb == "scale";
}

std::optional<std::string> runDrawingVerb(Editor& editor, std::string_view verb,
                                          const std::vector<std::string>& words,
                                          std::ostream& out) {
  if (verb == "click") return click(editor, words);
  if (verb == "move") return moveTo(editor, words);
  if (verb == "button") return button(editor, words);
  if (verb == "flip") return flip(editor, words);
  if (verb == "scale") return scale(editor, words, out);
  return "'" + std::string(verb) + "' is not a drawing line";
}

bool isDrawingDump(std::string_view what) {
  return what == "symbol" || what == "state";
}

void writeDrawingDump(const Editor& editor, std::string_view what, std::ostream& out) {
  if (what == "symbol") {
    writeSymbol(editor.workingSymbol(), editor.state(), out);
  } else {
    writeState(editor.state(), out);
  }
}

}  // namespace quorn
