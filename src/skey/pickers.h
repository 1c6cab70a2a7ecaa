#pragma once
// The two pickers over the new-symbol dialog: the current group's SKEYs ("Select Existing
// Symbol", beside the Old SKEY field) and the standard spindles ("Standard Spindles", beside
// the Spindle SKEY field).

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "config/configuration.h"
#include "model/spindle_definition.h"
#include "skey/new_symbol_dialog.h"

namespace quorn {

enum class PickerKind { ExistingSymbol, Spindle };

/// What an open picker shows: its title, the label above its list, and the list.
struct PickerState {
  PickerKind kind = PickerKind::ExistingSymbol;
  std::string title;
  std::string caption;
  std::vector<std::string> rows;
};

/// The Select Existing Symbol picker for `group`: the group's entries in file order. Nothing
/// when the Old SKEY field's picker button is disabled.
std::optional<PickerState> openExistingSymbolPicker(const NewSymbolDialog& dialog,
                                                    const Configuration& config, int group);

/// The Standard Spindles picker: the SKEYs of the spindles of SPINDLES.DEF in file order.
/// Nothing when the Spindle SKEY field's picker button is disabled.
std::optional<PickerState> openSpindlePicker(const NewSymbolDialog& dialog,
                                             const SpindleTable& spindles);

/// Entry `entry` (1-based) of the Select Existing Symbol picker chosen: it becomes the current
/// entry and the dialog is filled from it, with attributes from the source that "Copy Symbol
/// from" names. The caller then closes the picker. False, changing nothing, when the picker
/// has no such row.
bool chooseExistingSymbol(const PickerState& picker, NewSymbolDialog& dialog,
                          const DialogContext& context, int entry);

/// A spindle of the Standard Spindles picker chosen by its SKEY: it goes into the Spindle SKEY
/// field and the picker stays open. False, changing nothing, when the picker has no such row.
bool chooseSpindle(const PickerState& picker, NewSymbolDialog& dialog, std::string_view skey);

/// The picker's Cancel or close button: after the Select Existing Symbol picker the input
/// focus goes back to the Old SKEY field.
void closePicker(std::optional<PickerState>& picker, NewSymbolDialog& dialog);

}  // namespace quorn
