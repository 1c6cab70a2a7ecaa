#include "app/script_dialog_verbs.h"

#include <array>
#include <charconv>
#include <utility>

#include "app/script_words.h"
#include "base/text.h"
#include "skey/dialog_texts.h"

namespace quorn {

namespace {

struct FieldName {
  std::string_view caption;
  DialogField field;
};

constexpr std::array<FieldName, 4> kFields = {{
    {kOldKeyCaption, DialogField::OldKey},
    {kNewKeyCaption, DialogField::NewKey},
    {kSpindleKeyCaption, DialogField::SpindleKey},
    {kScaleFactorCaption, DialogField::ScaleFactor},
}};

struct ListName {
  std::string_view name;  // the control's name, as scripts write it
  AttributeList list;
};

constexpr std::array<ListName, 3> kLists = {{
    {"Arrow", AttributeList::FlowArrow},
    {"Dimension", AttributeList::Dimensions},
    {"Orientation", AttributeList::Orientation},
}};

constexpr std::array<std::string_view, 8> kVerbs = {"type",   "leave", "tick",   "option",
                                                    "choose", "press", "picker", "pick"};

/// What may happen while the dialog is open besides its own lines.
constexpr std::array<std::string_view, 4> kAllowedUnderDialog = {"answer", "file", "dump", "group"};

std::optional<int> wholeNumber(const std::string& text) {
  int value = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  if (text.empty() || error != std::errc() || stop != end) return std::nullopt;
  return value;
}

const FieldName* fieldNamed(std::string_view caption) {
  for (const FieldName& field : kFields) {
    if (field.caption == caption) return &field;
  }
  return nullptr;
}

std::string_view captionOf(DialogField which) {
  for (const FieldName& field : kFields) {
    if (field.field == which) return field.caption;
  }
  return "";
}

std::string fieldNames() {
  std::string names;
  for (const FieldName& field : kFields) {
    names += (names.empty() ? "" : ", ") + quotedScriptText(field.caption);
  }
  return names;
}

std::string_view enabledWord(bool enabled) {
  return enabled ? "enabled" : "disabled";
}

const ChoiceList& choiceList(const NewSymbolDialogState& dialog, AttributeList list) {
  switch (list) {
    case AttributeList::FlowArrow:
      return dialog.arrow;
    case AttributeList::Dimensions:
      return dialog.dimension;
    case AttributeList::Orientation:
      break;
  }
  return dialog.orientation;
}

const TextField& textField(const NewSymbolDialogState& dialog, DialogField field) {
  switch (field) {
    case DialogField::OldKey:
      return dialog.oldKey;
    case DialogField::NewKey:
      return dialog.newKey;
    case DialogField::SpindleKey:
      return dialog.spindleKey;
    case DialogField::ScaleFactor:
      break;
  }
  return dialog.scaleFactor;
}

std::optional<std::string> typeOrLeave(Editor& editor, std::string_view verb,
                                       const std::vector<std::string>& words) {
  const std::size_t wanted = verb == "type" ? 2 : 1;
  const FieldName* field = words.size() == wanted ? fieldNamed(words[0]) : nullptr;
  if (field == nullptr) {
    return std::string(verb) + (verb == "type" ? " takes a field and a text" : " takes a field") +
           "; the fields are " + fieldNames();
  }
  if (verb == "leave") {
    editor.leaveDialogField(field->field);
    return std::nullopt;
  }
  if (!editor.typeInDialog(field->field, words[1])) {
    return "the field " + quotedScriptText(field->caption) + " is disabled";
  }
  return std::nullopt;
}

std::optional<std::string> tick(Editor& editor, const std::vector<std::string>& words) {
  if (words.size() != 2 || words[0] != kCopySymbolFromCaption ||
      (words[1] != "on" && words[1] != "off")) {
    return "tick takes " + quotedScriptText(kCopySymbolFromCaption) + " and on or off";
  }
  editor.tickCopySymbol(words[1] == "on");
  return std::nullopt;
}

std::optional<std::string> option(Editor& editor, const std::vector<std::string>& words) {
  for (std::size_t index = 0; index < kCopyOptionCaptions.size(); ++index) {
    if (words.size() == 1 && words[0] == kCopyOptionCaptions[index]) {
      editor.chooseCopyOption(static_cast<CopyOption>(index));
      return std::nullopt;
    }
  }
  return "option takes Screen, \"Current Set\" or Library";
}

std::optional<std::string> choose(Editor& editor, const std::vector<std::string>& words) {
  const ListName* named = nullptr;
  for (const ListName& list : kLists) {
    if (words.size() == 2 && words[0] == list.name) named = &list;
  }
  const std::optional<int> position = named ? wholeNumber(words[1]) : std::nullopt;
  if (!position) return "choose takes Arrow, Dimension or Orientation and a position from 0";
  const ChoiceList& list = choiceList(editor.symbolDialogs().dialog.state(), named->list);
  if (!list.enabled) return "the " + std::string(named->name) + " list is disabled";
  if (!editor.chooseDialogList(named->list, *position)) {
    return "the " + std::string(named->name) + " list has positions 0 to " +
           std::to_string(list.items.size() - 1);
  }
  return std::nullopt;
}

std::optional<std::string> press(Editor& editor, const std::vector<std::string>& words) {
  const std::string create = withoutAccessKey(editor.symbolDialogs().dialog.state().createCaption);
  const std::string cancel = withoutAccessKey(kCancelCaption);
  if (words.size() == 1 && words[0] == create) {
    editor.pressCreate();
    return std::nullopt;
  }
  if (words.size() == 1 && words[0] == cancel) {
    editor.pressCancel();
    return std::nullopt;
  }
  return "the dialog's buttons are " + quotedScriptText(create) + " and " +
         quotedScriptText(cancel);
}

std::optional<std::string> openPicker(Editor& editor, const std::vector<std::string>& words) {
  if (words.size() != 1 || (words[0] != "existing" && words[0] != "spindle")) {
    return "picker takes existing, spindle or close";
  }
  const bool opened =
      words[0] == "existing" ? editor.openExistingSymbolPicker() : editor.openSpindlePicker();
  if (!opened) return "the " + words[0] + " picker's button is disabled";
  return std::nullopt;
}

std::optional<std::string> pick(Editor& editor, const std::vector<std::string>& words) {
  const PickerState& picker = *editor.symbolDialogs().picker;
  if (words.size() != 1) return "pick takes one row";
  if (picker.kind == PickerKind::Spindle) {
    if (!editor.pickSpindle(words[0])) return "no spindle " + quotedScriptText(words[0]);
    return std::nullopt;
  }
  const std::optional<int> entry = wholeNumber(words[0]);
  if (!entry || !editor.pickExistingSymbol(*entry)) {
    return "pick takes an entry from 1 to " + std::to_string(picker.rows.size());
  }
  return std::nullopt;
}

}  // namespace

bool isDialogVerb(std::string_view verb) {
  for (const std::string_view known : kVerbs) {
    if (verb == known) return true;
  }
  return false;
}

std::optional<std::string> runDialogVerb(Editor& editor, std::string_view verb,
                                         const std::vector<std::string>& words) {
  const SymbolDialogs& dialogs = editor.symbolDialogs();
  if (!dialogs.dialogOpen) return "the new-symbol dialog is not open";
  const bool pickerLine =
      verb == "pick" || (verb == "picker" && words.size() == 1 && words[0] == "close");
  if (pickerLine) {
    if (!dialogs.picker) return "no picker is open";
    if (verb == "pick") return pick(editor, words);
    editor.closePicker();
    return std::nullopt;
  }
  if (dialogs.picker) {
    return "the picker " + quotedScriptText(dialogs.picker->title) + " is open";
  }
  if (verb == "type" || verb == "leave") return typeOrLeave(editor, verb, words);
  if (verb == "tick") return tick(editor, words);
  if (verb == "option") return option(editor, words);
  if (verb == "choose") return choose(editor, words);
  if (verb == "press") return press(editor, words);
  return openPicker(editor, words);
}

std::optional<std::string> refusedUnderDialog(const Editor& editor, std::string_view verb) {
  const SymbolDialogs& dialogs = editor.symbolDialogs();
  if (!dialogs.dialogOpen || isDialogVerb(verb)) return std::nullopt;
  for (const std::string_view allowed : kAllowedUnderDialog) {
    if (verb == allowed) return std::nullopt;
  }
  return "the dialog " + quotedScriptText(dialogs.dialog.state().title) + " is open";
}

std::optional<std::string> writeDialogDump(const Editor& editor, std::ostream& out) {
  const SymbolDialogs& dialogs = editor.symbolDialogs();
  if (!dialogs.dialogOpen) return "the new-symbol dialog is not open";
  const NewSymbolDialogState& dialog = dialogs.dialog.state();
  out << "dialog " << quotedScriptText(dialog.title) << '\n';
  for (const FieldName& name : kFields) {
    const TextField& field = textField(dialog, name.field);
    out << "field " << quotedScriptText(name.caption) << ' ' << quotedScriptText(field.text) << ' '
        << enabledWord(field.enabled) << " caption-" << enabledWord(field.captionEnabled);
    if (name.field == DialogField::OldKey || name.field == DialogField::SpindleKey) {
      const PickerField& picked =
          name.field == DialogField::OldKey ? dialog.oldKey : dialog.spindleKey;
      out << " picker-" << enabledWord(picked.pickerEnabled);
    }
    out << '\n';
  }
  out << "mirror " << quotedScriptText(dialog.mirrorType) << '\n';
  for (const ListName& name : kLists) {
    const ChoiceList& list = choiceList(dialog, name.list);
    out << "list " << name.name << ' ' << list.position << ' ' << enabledWord(list.enabled)
        << " caption-" << enabledWord(list.captionEnabled) << '\n';
    for (std::size_t position = 0; position < list.items.size(); ++position) {
      out << "item " << name.name << ' ' << position << ' '
          << quotedScriptText(list.items[position]) << '\n';
    }
  }
  out << "tick " << quotedScriptText(kCopySymbolFromCaption) << ' '
      << (dialog.copyTicked ? "on" : "off") << '\n';
  out << "option "
      << quotedScriptText(kCopyOptionCaptions[static_cast<std::size_t>(dialog.copyOption)]) << '\n';
  out << "button " << quotedScriptText(withoutAccessKey(dialog.createCaption)) << '\n';
  out << "button " << quotedScriptText(withoutAccessKey(kCancelCaption)) << '\n';
  out << "focus " << quotedScriptText(captionOf(dialog.focus)) << '\n';
  return std::nullopt;
}

void DialogReport::report(const Editor& editor, std::ostream& out) {
  const SymbolDialogs& dialogs = editor.symbolDialogs();
  const std::optional<PickerKind> picker =
      dialogs.picker ? std::optional<PickerKind>(dialogs.picker->kind) : std::nullopt;
  if (picker_ && picker != picker_) out << "picker closed\n";
  if (dialogOpen_ && !dialogs.dialogOpen) out << "dialog closed\n";
  if (dialogs.dialogOpen && !dialogOpen_) {
    out << "dialog " << quotedScriptText(dialogs.dialog.state().title) << '\n';
  }
  if (picker && picker != picker_) {
    out << "picker " << quotedScriptText(dialogs.picker->title) << ' '
        << quotedScriptText(dialogs.picker->caption) << '\n';
    for (const std::string& row : dialogs.picker->rows) {
      out << "picker-row " << quotedScriptText(row) << '\n';
    }
  }
  dialogOpen_ = dialogs.dialogOpen;
  picker_ = picker;
}

}  // namespace quorn
