#include "skey/pickers.h"

#include <algorithm>

#include "base/text.h"
#include "skey/creation_texts.h"

namespace quorn {

std::optional<PickerState> openExistingSymbolPicker(const NewSymbolDialog& dialog,
                                                    const Configuration& config, int group) {
  if (!dialog.state().oldKey.pickerEnabled) return std::nullopt;
  PickerState picker;
  picker.kind = PickerKind::ExistingSymbol;
  picker.title = std::string(kExistingPickerTitle);
  if (group >= 0 && group < static_cast<int>(config.groups.size())) {
    const SkeyGroup& chosen = config.groups[static_cast<std::size_t>(group)];
    picker.caption = existingPickerCaption(chosen.name);
    for (const GroupEntry& entry : chosen.entries) picker.rows.emplace_back(trimmed(entry.skey));
  } else {
    picker.caption = existingPickerCaption("");
  }
  return picker;
}

std::optional<PickerState> openSpindlePicker(const NewSymbolDialog& dialog,
                                             const SpindleTable& spindles) {
  if (!dialog.state().spindleKey.pickerEnabled) return std::nullopt;
  PickerState picker;
  picker.kind = PickerKind::Spindle;
  picker.title = std::string(kSpindlePickerTitle);
  picker.caption = std::string(kSpindlePickerPrompt);
  // Index 0 of the table only collects segments met before the first name.
  for (int number = 1; number <= spindles.count(); ++number) {
    picker.rows.push_back(spindles.spindles[static_cast<std::size_t>(number)].name);
  }
  return picker;
}

bool chooseExistingSymbol(const PickerState& picker, NewSymbolDialog& dialog,
                          const DialogContext& context, int entry) {
  if (picker.kind != PickerKind::ExistingSymbol || entry < 1 ||
      entry > static_cast<int>(picker.rows.size())) {
    return false;
  }
  dialog.fillFromGroupEntry(context, entry, dialog.listChoiceSource());
  return true;
}

bool chooseSpindle(const PickerState& picker, NewSymbolDialog& dialog, std::string_view skey) {
  if (picker.kind != PickerKind::Spindle ||
      std::find(picker.rows.begin(), picker.rows.end(), skey) == picker.rows.end()) {
    return false;
  }
  dialog.setText(DialogField::SpindleKey, std::string(skey));
  return true;
}

void closePicker(std::optional<PickerState>& picker, NewSymbolDialog& dialog) {
  if (picker && picker->kind == PickerKind::ExistingSymbol) dialog.setFocus(DialogField::OldKey);
  picker.reset();
}

}  // namespace quorn
