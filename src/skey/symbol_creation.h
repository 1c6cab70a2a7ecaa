#pragma once
// Beginning a symbol: opening the new-symbol dialog for a new symbol or for editing the symbol
// shown, and its Create and Cancel buttons. Create hands the symbol to the editing modes,
// waiting for the start point of a blank symbol or showing a copied one.
//
// While a symbol is in progress (from a successful Create until Done or Erase) the edit
// window's `menusEnabled` is off: it stands for the menu entries that must wait for Done,
// File › New, File › Open and Symbol › Edit. Symbol › New stays enabled so that it can say
// why it refuses; Save, Save As and Exit stay enabled because they ask about the unfinished
// symbol themselves; the Delete and Move menus are what the symbol is drawn with.

#include <optional>

#include "skey/browsing.h"
#include "skey/new_symbol_dialog.h"
#include "skey/pickers.h"

namespace quorn {

/// The new-symbol dialog and the picker open over it, as the editor holds them.
struct SymbolDialogs {
  NewSymbolDialog dialog;
  bool dialogOpen = false;
  std::optional<PickerState> picker;
};

/// What opening, Create and Cancel read and change; the editor owns all of it.
struct CreationContext {
  BrowseContext browse;
  SymbolDialogs& dialogs;
};

/// The dialog's field handlers' view of the editor: the current group and entry are browsing's.
DialogContext dialogContext(CreationContext& context);

/// Symbol › New: refused with its message when the Current Set is full or a symbol is in
/// progress; otherwise the dialog is reset for a blank symbol, the editing flag cleared and the
/// dialog opened. True when it opened.
bool openForNewSymbol(CreationContext& context);

/// Symbol › Edit for the Current Set symbol on the grid: the menu entries and the group
/// chooser are disabled, the editing flag set, and the dialog opened filled from the symbol;
/// the Move menu is shown. Does nothing, returning false, when no Current Set symbol is on the
/// grid, a symbol is in progress or the menu entries are disabled.
bool openForEditing(CreationContext& context);

/// How Create ended.
enum class CreateOutcome {
  Refused,    // a key rule failed, or the symbol to copy was not found and No was answered
  Edited,     // the edited symbol is shown again with its new keys and attributes
  Copied,     // the symbol on the screen, or one found in the Current Set or library
  BlankImage  // waiting for the start point
};

/// Create: validates the keys, stores the attributes into the working symbol and begins the
/// symbol by the dialog's choices. The dialog stays open after a refusal.
CreateOutcome createSymbol(CreationContext& context);

/// Cancel: closes the dialog (and any picker), restores the pointer, the menu entries and the
/// group chooser, and clears the editing flag. Nothing of the symbol changes.
void cancelDialog(CreationContext& context);

/// A group chosen in the edit window while the dialog is open: the Select Existing Symbol
/// picker closes, and a dialog for a blank symbol takes the new group's Spindle SKEY rule.
void groupChosenUnderDialog(SymbolDialogs& dialogs, int group);

/// The key a copy is searched for: the special pair's key (FLOW with a flow arrow, WW with
/// WWA) or the Old SKEY, a "**" end cut off ("VB**" is searched as "VB").
std::string copySearchKey(std::string_view oldKey, std::string_view newKey);

/// The first symbol of the Current Set that a copy under `searchKey` starts from: its Old SKEY
/// is the search key, or the key's type when the key has four characters, and it has no New
/// SKEY. A stored "**" end counts as the bare type. 0 when none.
int findCurrentSetCopySource(const CurrentSet& set, std::string_view searchKey);

}  // namespace quorn
