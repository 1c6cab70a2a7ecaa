#include "skey/symbol_creation.h"

#include "base/text.h"
#include "display/redraw.h"
#include "display/window_texts.h"
#include "model/keys.h"
#include "skey/copy_sources.h"
#include "skey/creation_texts.h"
#include "skey/skey_rules.h"
#include "skey/skey_texts.h"
#include "skey/special_skeys.h"

namespace quorn {
namespace {

std::string comparedKey(std::string_view key) {
  return std::string(typeKeyOf(normalisedWord(key)));
}

int libraryNumberOf(const SymbolLibrary& library, const SymbolRecord* found) {
  for (int number = 1; number <= library.count(); ++number) {
    if (&library.symbol(number) == found) return number;
  }
  return 0;
}

void closeDialog(SymbolDialogs& dialogs) {
  dialogs.dialogOpen = false;
  dialogs.picker.reset();
}

/// The symbol is begun: it is on the surface until Done or Erase, and the menu entries that
/// must wait for Done are disabled.
void markInProgress(BrowseContext& browse) {
  browse.state.symbolOnSurface = true;
  browse.state.symbolInProgress = true;
  browse.window.menusEnabled = false;
}

/// A copy is a new symbol of the set: Done adds it behind the last symbol. The next left
/// click starts a new stroke rather than drawing on from the copy's last point.
void drawOnCopy(BrowseContext& browse) {
  EditorState& state = browse.state;
  state.operation = EditOperation::Draw;
  state.pendingItem = PendingItem::Line;
  state.newStrokePending = true;
  state.symbolNumber = browse.set.count() + 1;
  markInProgress(browse);
  browse.window.moveMenuVisible = true;
  browse.window.prompt = kCopiedSymbolPrompt;
}

CreateOutcome beginBlankSymbol(CreationContext& context) {
  BrowseContext& browse = context.browse;
  const int number = browse.set.count() + 1;
  const SymbolText attributes = browse.working;
  browse.working = WorkingSymbol{};
  static_cast<SymbolText&>(browse.working) = attributes;

  EditorState& state = browse.state;
  state.operation = EditOperation::Draw;
  state.pendingItem = PendingItem::StartPoint;
  state.newStrokePending = false;
  state.arcInProgress = false;
  state.circleInProgress = false;
  state.lineDeletionArmed = false;
  state.endPointPlaced = false;
  state.spindlePointPlaced = false;
  state.undoHistory.clear();
  state.symbolNumber = number;

  browse.window.countLabel = symbolsLoadedText(number);
  browse.window.prompt = kBlankSymbolPrompt;
  browse.window.statusText.clear();
  closeDialog(context.dialogs);
  redrawGrid(browse.canvas, browse.grid, browse.config);
  browse.window.pointer = Pointer::Crosshair;
  markInProgress(browse);
  return CreateOutcome::BlankImage;
}

CreateOutcome createEdited(CreationContext& context, const std::string& label) {
  BrowseContext& browse = context.browse;
  const int number = browse.state.editedSymbol;
  showSymbol(browse, number, ShowOptions{.keepGrid = false, .attributesSet = true});
  markInProgress(browse);
  ListState& list = browse.window.symbolList;
  // Only the Current Set view lists the edited symbol; the standard view lists the library.
  if (browse.browse.view == ListView::CurrentSet && number >= 1 &&
      number <= static_cast<int>(list.rows.size())) {
    list.rows[static_cast<std::size_t>(number - 1)] = label;
  }
  closeDialog(context.dialogs);
  browse.window.groupChooser.enabled = true;
  list.enabled = false;
  browse.window.prompt = kEditedSymbolPrompt;
  return CreateOutcome::Edited;
}

CreateOutcome copyFromScreen(CreationContext& context) {
  BrowseContext& browse = context.browse;
  // An empty grid has no start point to copy: the symbol starts blank instead.
  if (browse.working.actionCount < 1) return beginBlankSymbol(context);
  closeDialog(context.dialogs);
  if (const auto found = locateStoredOldSkey(browse.config, browse.working.oldKey)) {
    browse.browse.currentGroup = found->group;
    browse.browse.currentEntry = found->entry;
    browse.window.groupChooser.selected = found->group - 1;
  } else {
    browse.messages.tell(invalidStoredOldSkeyText());
  }
  drawOnCopy(browse);
  return CreateOutcome::Copied;
}

CreateOutcome copyFromSource(CreationContext& context, AttributeSource source,
                             const std::string& searchKey) {
  BrowseContext& browse = context.browse;
  const int number =
      source == AttributeSource::Library
          ? libraryNumberOf(browse.library, findLibrarySymbol(browse.library, searchKey))
          : findCurrentSetCopySource(browse.set, searchKey);
  if (number == 0) {
    const std::string_view sourceName =
        source == AttributeSource::Library ? kLibrarySourceName : kCurrentSetSourceName;
    const Answer answer = browse.messages.ask(Message{std::string(kNotFoundTitle),
                                                      notFoundQuestion(searchKey, sourceName),
                                                      Buttons::YesNo, Icon::Exclamation});
    if (answer != Answer::Yes) return CreateOutcome::Refused;
    return beginBlankSymbol(context);
  }
  closeDialog(context.dialogs);
  if (source == AttributeSource::Library) {
    const SymbolText attributes = browse.working;
    showLibrarySymbol(browse, number);
    static_cast<SymbolText&>(browse.working) = attributes;
  } else {
    showSymbol(browse, number, ShowOptions{.keepGrid = false, .attributesSet = true});
  }
  // Counted only once the copy is begun, so that a No above leaves the count as it was.
  browse.window.countLabel = symbolsLoadedText(browse.set.count() + 1);
  drawOnCopy(browse);
  return CreateOutcome::Copied;
}

}  // namespace

DialogContext dialogContext(CreationContext& context) {
  BrowseContext& browse = context.browse;
  return DialogContext{browse.config,
                       browse.set,
                       browse.library,
                       browse.browse.currentGroup,
                       browse.browse.currentEntry,
                       browse.messages};
}

bool openForNewSymbol(CreationContext& context) {
  BrowseContext& browse = context.browse;
  if (context.dialogs.dialogOpen) return false;
  if (browse.set.count() >= browse.set.capacity()) {
    browse.messages.tell(createLimitText(browse.set.capacity()));
    return false;
  }
  if (browse.state.symbolInProgress) {
    browse.messages.tell(std::string(kFinishCurrentSymbolText));
    return false;
  }
  context.dialogs.dialog.resetForBlankSymbol(dialogContext(context));
  browse.state.editing = false;
  browse.state.editedSymbol = 0;
  context.dialogs.picker.reset();
  context.dialogs.dialogOpen = true;
  return true;
}

bool openForEditing(CreationContext& context) {
  BrowseContext& browse = context.browse;
  EditorState& state = browse.state;
  const int number = state.symbolNumber;
  if (context.dialogs.dialogOpen || state.symbolInProgress || !state.symbolOnSurface ||
      number < 1 || number > browse.set.count()) {
    return false;
  }
  browse.window.menusEnabled = false;
  browse.window.groupChooser.enabled = false;
  state.editing = true;
  state.editedSymbol = number;
  context.dialogs.dialog.resetForEditing(browse.set.symbol(number), number,
                                         browse.browse.currentGroup);
  browse.window.moveMenuVisible = true;
  browse.window.eraseCaption = kEraseRetainCaption;
  context.dialogs.picker.reset();
  context.dialogs.dialogOpen = true;
  return true;
}

CreateOutcome createSymbol(CreationContext& context) {
  if (!context.dialogs.dialogOpen) return CreateOutcome::Refused;
  BrowseContext& browse = context.browse;
  const NewSymbolDialogState fields = context.dialogs.dialog.state();
  const KeysToValidate keys{fields.oldKey.text,     fields.newKey.text,
                            fields.spindleKey.text, fields.scaleFactor.text,
                            browse.state.editing,   browse.state.editedSymbol};
  const KeyValidation validation =
      validateKeys(browse.config, browse.set, browse.browse.currentGroup, keys);
  if (validation.failure) {
    browse.messages.tell(*validation.failure);
    return CreateOutcome::Refused;
  }
  browse.browse.currentEntry = validation.entry;

  const SymbolText attributes = context.dialogs.dialog.attributeTexts();
  static_cast<SymbolText&>(browse.working) = attributes;
  const std::string label = listLabel(attributes);
  browse.window.menusEnabled = false;
  refreshSymbolList(browse);

  if (browse.state.editing) return createEdited(context, label);
  if (!fields.copyTicked) return beginBlankSymbol(context);
  switch (fields.copyOption) {
    case CopyOption::Screen:
      return copyFromScreen(context);
    case CopyOption::CurrentSet:
      return copyFromSource(
          context, AttributeSource::CurrentSet,
          copySearchKey(normalisedWord(fields.oldKey.text), normalisedWord(fields.newKey.text)));
    case CopyOption::Library:
      break;
  }
  return copyFromSource(
      context, AttributeSource::Library,
      copySearchKey(normalisedWord(fields.oldKey.text), normalisedWord(fields.newKey.text)));
}

void cancelDialog(CreationContext& context) {
  BrowseContext& browse = context.browse;
  closeDialog(context.dialogs);
  browse.window.pointer = Pointer::Normal;
  browse.window.menusEnabled = !browse.state.symbolInProgress;
  browse.window.groupChooser.enabled = true;
  if (browse.state.editing) {
    browse.state.editing = false;
    browse.state.editedSymbol = 0;
  }
}

void groupChosenUnderDialog(SymbolDialogs& dialogs, int group) {
  if (!dialogs.dialogOpen) return;
  if (dialogs.picker && dialogs.picker->kind == PickerKind::ExistingSymbol) dialogs.picker.reset();
  const NewSymbolDialogState& fields = dialogs.dialog.state();
  if (!fields.editing && !fields.filledFromList) dialogs.dialog.enableSpindleForGroup(group);
}

std::string copySearchKey(std::string_view oldKey, std::string_view newKey) {
  const std::string key = lookUpKey(oldKey, newKey);
  return std::string(typeKeyOf(key));
}

int findCurrentSetCopySource(const CurrentSet& set, std::string_view searchKey) {
  const std::string wanted = comparedKey(searchKey);
  const std::string type = wanted.size() == 4 ? wanted.substr(0, 2) : wanted;
  for (int number = 1; number <= set.count(); ++number) {
    const SymbolRecord& symbol = set.symbol(number);
    // A symbol that adds a New SKEY is never the pattern of another.
    if (!trimmed(symbol.newKey).empty()) continue;
    const std::string held = comparedKey(symbol.oldKey);
    if (held == wanted || held == type) return number;
  }
  return 0;
}

}  // namespace quorn
