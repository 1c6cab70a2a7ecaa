// The Editor's events of the Symbol menu's New and Edit, the new-symbol dialog and its two
// pickers. The dialog is modal over the edit window and each picker is modal over the dialog,
// so an event of a control that is hidden or disabled changes nothing.

#include "app/editor.h"

namespace quorn {

CreationContext Editor::creationContext() {
  return CreationContext{browseContext(), dialogs_};
}

bool Editor::dialogTakesInput() const {
  return dialogs_.dialogOpen && !dialogs_.picker;
}

bool Editor::newSymbol() {
  auto context = creationContext();
  return openForNewSymbol(context);
}

bool Editor::editSymbol() {
  auto context = creationContext();
  return openForEditing(context);
}

bool Editor::typeInDialog(DialogField field, std::string text) {
  if (!dialogTakesInput()) return false;
  const NewSymbolDialogState& shown = dialogs_.dialog.state();
  const TextField* target = field == DialogField::OldKey       ? &shown.oldKey
                            : field == DialogField::NewKey     ? &shown.newKey
                            : field == DialogField::SpindleKey ? &shown.spindleKey
                                                               : &shown.scaleFactor;
  if (!target->enabled) return false;
  dialogs_.dialog.setFocus(field);
  dialogs_.dialog.setText(field, std::move(text));
  return true;
}

void Editor::leaveDialogField(DialogField field) {
  if (!dialogTakesInput()) return;
  auto context = creationContext();
  if (field == DialogField::OldKey) dialogs_.dialog.leaveOldKey(dialogContext(context));
  if (field == DialogField::NewKey) dialogs_.dialog.leaveNewKey(dialogContext(context));
}

void Editor::tickCopySymbol(bool ticked) {
  if (!dialogTakesInput()) return;
  auto context = creationContext();
  dialogs_.dialog.setCopyTicked(dialogContext(context), ticked);
}

void Editor::chooseCopyOption(CopyOption option) {
  if (!dialogTakesInput()) return;
  auto context = creationContext();
  dialogs_.dialog.chooseCopyOption(dialogContext(context), option);
}

bool Editor::chooseDialogList(AttributeList list, int position) {
  if (!dialogTakesInput()) return false;
  const NewSymbolDialogState& shown = dialogs_.dialog.state();
  const ChoiceList& target = list == AttributeList::FlowArrow    ? shown.arrow
                             : list == AttributeList::Dimensions ? shown.dimension
                                                                 : shown.orientation;
  return target.enabled && dialogs_.dialog.choose(list, position);
}

CreateOutcome Editor::pressCreate() {
  if (!dialogTakesInput()) return CreateOutcome::Refused;
  auto context = creationContext();
  return createSymbol(context);
}

void Editor::pressCancel() {
  if (!dialogTakesInput()) return;
  auto context = creationContext();
  cancelDialog(context);
}

bool Editor::openExistingSymbolPicker() {
  if (!dialogTakesInput()) return false;
  dialogs_.picker =
      quorn::openExistingSymbolPicker(dialogs_.dialog, startup_.config, browse_.currentGroup);
  return dialogs_.picker.has_value();
}

bool Editor::pickExistingSymbol(int entry) {
  if (!dialogs_.dialogOpen || !dialogs_.picker) return false;
  auto context = creationContext();
  if (!chooseExistingSymbol(*dialogs_.picker, dialogs_.dialog, dialogContext(context), entry)) {
    return false;
  }
  dialogs_.picker.reset();
  return true;
}

bool Editor::openSpindlePicker() {
  if (!dialogTakesInput()) return false;
  dialogs_.picker = quorn::openSpindlePicker(dialogs_.dialog, startup_.spindles);
  return dialogs_.picker.has_value();
}

bool Editor::pickSpindle(std::string_view skey) {
  if (!dialogs_.dialogOpen || !dialogs_.picker) return false;
  return chooseSpindle(*dialogs_.picker, dialogs_.dialog, skey);
}

void Editor::closePicker() {
  quorn::closePicker(dialogs_.picker, dialogs_.dialog);
}

}  // namespace quorn
