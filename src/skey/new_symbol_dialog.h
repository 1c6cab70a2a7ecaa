#pragma once
// The new-symbol dialog as the core holds it: everything the window shows, and the operations
// that fill it from an SKEY's group flags and from existing symbols. The window only mirrors
// the state and reports what the user does.

#include <string>
#include <vector>

#include "base/messages.h"
#include "config/configuration.h"
#include "model/symbol_collection.h"
#include "model/symbol_record.h"
#include "skey/attribute_codes.h"
#include "skey/copy_sources.h"

namespace quorn {

/// A text field with its caption.
struct TextField {
  std::string text;
  bool enabled = true;
  bool captionEnabled = true;
};

/// A text field with a picker button beside it (Old SKEY: the group's SKEYs; Spindle SKEY:
/// the standard spindles).
struct PickerField : TextField {
  bool pickerEnabled = true;
};

/// One of the attribute lists with its caption.
struct ChoiceList {
  std::vector<std::string> items;
  int position = 0;
  bool enabled = true;
  bool captionEnabled = true;
};

/// The text fields, which can also hold the input focus.
enum class DialogField { OldKey, NewKey, SpindleKey, ScaleFactor };

/// The options of "Copy Symbol from", in the order of `kCopyOptionCaptions`.
enum class CopyOption { Screen, CurrentSet, Library };

/// What the dialog window shows.
struct NewSymbolDialogState {
  std::string title;
  std::string createCaption;
  PickerField oldKey;
  TextField newKey;
  PickerField spindleKey;
  TextField scaleFactor;
  std::string mirrorType;  // one of kMirrorCaptions
  ChoiceList arrow;
  ChoiceList dimension;
  ChoiceList orientation;
  bool copyTicked = false;
  CopyOption copyOption = CopyOption::Screen;
  DialogField focus = DialogField::OldKey;
  bool filledFromList = false;  // opened from a group's list of SKEYs
  bool editing = false;         // edits the attributes of a Current Set symbol
  int editedSymbol = 0;         // its number, when editing
};

/// What the dialog's operations read, and the current entry that they set. The current entry
/// is the editor's, not the dialog's: the edit window's symbol list and the pickers set it too,
/// and the edit window reads its flags 2 and 7 after the dialog has closed.
struct DialogContext {
  const Configuration& config;
  const CurrentSet& set;
  const SymbolLibrary& library;
  int currentGroup = 0;
  int& currentEntry;  // 1-based entry of the current group
  Messages& messages;
};

class NewSymbolDialog {
 public:
  /// A dialog as it stands before it is first reset: empty, nothing disabled.
  NewSymbolDialog();

  const NewSymbolDialogState& state() const { return state_; }

  // What the user does in the window.
  void setText(DialogField field, std::string text);
  /// Selects an item of a list; false (and nothing changes) when `position` is not an item.
  bool choose(AttributeList list, int position);
  void setFocus(DialogField field) { state_.focus = field; }

  /// Reset dialog for a blank new symbol: the Spindle SKEY controls are enabled only in
  /// groups 2 to 12.
  void resetForBlankSymbol(const DialogContext& context);

  /// Reset dialog when it is opened from a group's list of SKEYs at `entry`: filled from the
  /// entry with attributes from the Symbol Library, and "Copy Symbol from" "Library" ticked.
  void resetFromGroupList(const DialogContext& context, int entry);

  /// Set up to edit the keys and attributes of Current Set symbol `number` (`symbol`): title
  /// and Create button "Edit Symbol", every list's first item "Use the Old SKEY Setting", the
  /// fields and lists filled from the symbol. In group 8 the Spindle SKEY field and its caption
  /// are disabled.
  void resetForEditing(const SymbolText& symbol, int number, int group);

  /// Enables the Spindle SKEY field, caption and picker in groups 2 to 12 and disables them in
  /// any other group, as for a blank symbol.
  void enableSpindleForGroup(int group);

  /// Apply group flags of (current group, current entry): flag 1 the Spindle SKEY controls,
  /// flags 3 to 6 the mirror caption, flag 8 the flow-arrow list.
  void applyGroupFlags(const DialogContext& context);

  /// Fill from group entry: makes `entry` the current entry, applies its flags, puts its keys
  /// into the key fields and copies the attributes of the first symbol of `source` found under
  /// its look-up key.
  void fillFromGroupEntry(const DialogContext& context, int entry, AttributeSource source);

  /// Copy attributes from a symbol: Spindle SKEY, scale factor, mirror caption and the three
  /// list positions.
  void copyAttributesFrom(const SymbolText& symbol);

  /// The Old SKEY field lost the focus: normalises it, matches it in the current group (telling
  /// the user when it is not re-definable) and fills the flags and attributes of the match.
  void leaveOldKey(const DialogContext& context);

  /// The New SKEY field lost the focus: the flow-arrow and WWA pairs take their own entry's
  /// flags or attributes; then the field is normalised.
  void leaveNewKey(const DialogContext& context);

  /// "Copy Symbol from" ticked or cleared, or one of its options chosen: recorded, and with an
  /// Old SKEY present the attributes are filled again as on leaving the Old SKEY field.
  void setCopyTicked(const DialogContext& context, bool ticked);
  void chooseCopyOption(const DialogContext& context, CopyOption option);

  /// Where attributes come from when an entry is chosen from the group's list: ticked with
  /// "Library", the library; ticked with another option, the Current Set; else none.
  AttributeSource listChoiceSource() const;

  /// The keys and attributes as the symbol stores them: keys stripped and upper-cased (the
  /// normalised form as keys.h gives it), scale factor stripped, and the codes of the mirror
  /// caption and list positions.
  SymbolText attributeTexts() const;

 private:
  /// The blank dialog with the lists in `style`.
  static NewSymbolDialogState freshState(CaptionStyle style);
  ChoiceList& list(AttributeList which);
  TextField& field(DialogField which);
  void setMirrorFromFlags(const DialogContext& context);
  /// The steps after a match of the Old SKEY `oldKey`: look-up key, then the group entry's
  /// mirror or the copy source's attributes.
  void refillFromOldKey(const DialogContext& context, const std::string& oldKey);
  /// Where attributes come from while the Old or New SKEY is typed: "Screen" copies none.
  AttributeSource tickedSource() const;

  NewSymbolDialogState state_;
};

}  // namespace quorn
