#include "skey/symbol_creation.h"

#include <gtest/gtest.h>

#include <array>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "display/grid_geometry.h"
#include "model/keys.h"
#include "support/recording_canvas.h"
#include "support/recording_messages.h"

namespace quorn {
namespace {

GroupEntry entry(std::string skey, std::initializer_list<int> flagDigits = {}) {
  GroupEntry result;
  result.skey = std::move(skey);
  for (const int digit : flagDigits) result.flags[static_cast<std::size_t>(digit)] = true;
  return result;
}

SymbolRecord symbol(std::string_view oldKey, std::string_view newKey,
                    std::vector<SymbolAction> actions) {
  SymbolRecord result;
  setOldKey(result, oldKey);
  setNewKey(result, newKey);
  result.scaleFactor = "100";
  result.mirrorType = "0";
  result.flowArrow = result.dimensions = result.orientation = "0";
  result.actions = std::move(actions);
  return result;
}

std::vector<SymbolAction> shape(std::int16_t width) {
  return {{kMove, 0, 1000}, {kLine, width, 1000}, {kMove, width, 1000}};
}

// Group 2 takes spindles, group 8 is the supports group, group 9 the flow arrows.
class SymbolCreationTest : public ::testing::Test {
 protected:
  SymbolCreationTest() {
    config.groupCount = 9;
    config.groups.resize(10);
    config.groups[2] = {"Valves", {entry("VB**", {3, 7}), entry("VT**", {3, 7})}};
    config.groups[8] = {"Pipe Supports", {entry("ANCH", {1, 2, 3})}};
    config.groups[9] = {"Flow Arrows", {entry("FLOW", {1}), entry("AR01"), entry("AR04")}};
    library.append(symbol("VB", "", shape(1000)));
    library.append(symbol("FLOW", "", shape(1500)));
    library.append(symbol("AR04", "", shape(2000)));
    set.reset(3);
    set.append(symbol("VBSW", "VBZZ", shape(500)));
    SymbolRecord edited = symbol("VB**", "", shape(700));
    edited.spindleKey = "02SP";
    edited.mirrorType = "1";
    edited.flowArrow = "2";
    edited.orientation = "7";
    set.append(edited);
    spindles.spindles.push_back({"01SP", {}});
    spindles.spindles.push_back({"02SP", {}});
    grid = *layOutGrid(config, ScreenSize{15360, 11520}).geometry;
    browse.currentGroup = 2;
  }

  CreationContext context() {
    return CreationContext{
        BrowseContext{config, set, library, browse, working, state, window, grid, canvas, messages},
        dialogs};
  }
  void open() { ASSERT_TRUE(openForNewSymbol(ctx)); }
  void type(DialogField field, std::string text) { dialogs.dialog.setText(field, std::move(text)); }
  void show(int number) {
    browse.view = ListView::CurrentSet;
    ASSERT_TRUE(showSymbol(ctx.browse, number));
    refreshSymbolList(ctx.browse);
  }
  /// The slots that showing `record` on the grid fills.
  std::array<WorkingAction, kWorkingSlots> slotsOf(const SymbolRecord& record) const {
    WorkingSymbol loaded;
    EditorState scratch;
    loadWorkingSymbol(record, grid, loaded, scratch);
    return loaded.slots;
  }

  Configuration config;
  SymbolLibrary library;
  CurrentSet set;
  SpindleTable spindles;
  BrowseState browse;
  WorkingSymbol working;
  EditorState state;
  EditWindowState window;
  GridGeometry grid;
  test::RecordingCanvas canvas;
  test::RecordingMessages messages;
  SymbolDialogs dialogs;
  CreationContext ctx = context();
};

TEST_F(SymbolCreationTest, OpeningChecksTheLimitThenTheSymbolInProgress) {
  set.append(symbol("VT**", "", shape(500)));
  EXPECT_FALSE(openForNewSymbol(ctx));
  set.remove(3);
  state.symbolInProgress = true;
  EXPECT_FALSE(openForNewSymbol(ctx));
  EXPECT_EQ(messages.texts(),
            (std::vector<std::string>{
                "Unable to Create Symbol as you have reached the limit of  3.",
                "Press Done to terminate current symbol before starting a new one."}));
  EXPECT_FALSE(dialogs.dialogOpen);

  state.symbolInProgress = false;
  state.editing = true;
  state.editedSymbol = 2;
  browse.currentGroup = 1;
  open();
  EXPECT_TRUE(dialogs.dialogOpen);
  EXPECT_FALSE(state.editing);
  EXPECT_EQ(state.editedSymbol, 0);
  EXPECT_EQ(dialogs.dialog.state().title, "Add New Symbol");
  EXPECT_FALSE(dialogs.dialog.state().spindleKey.enabled) << "only groups 2 to 12";
}

TEST_F(SymbolCreationTest, ABlankSymbolStoresTheAttributesAndWaitsForTheStartPoint) {
  show(1);
  open();
  type(DialogField::OldKey, " vbsw");
  type(DialogField::SpindleKey, "01sp ");
  type(DialogField::ScaleFactor, " 120 ");
  dialogs.dialog.choose(AttributeList::Orientation, 4);
  dialogs.dialog.choose(AttributeList::Dimensions, 2);
  EXPECT_EQ(createSymbol(ctx), CreateOutcome::BlankImage);

  EXPECT_EQ(working.oldKey, "VBSW");
  EXPECT_EQ(working.newKey, "");
  EXPECT_EQ(working.spindleKey, "01SP");
  EXPECT_EQ(working.scaleFactor, "120");
  EXPECT_EQ(working.orientation, "7");
  EXPECT_EQ(working.dimensions, "2");
  EXPECT_EQ(working.mirrorType, "0");
  EXPECT_EQ(working.actionCount, 0);
  EXPECT_TRUE(state.undoHistory.empty());
  EXPECT_FALSE(state.endPointPlaced);
  EXPECT_EQ(browse.currentEntry, 1) << "VBSW matched VB**";
  EXPECT_EQ(state.symbolNumber, 3);
  EXPECT_EQ(state.pendingItem, PendingItem::StartPoint);
  EXPECT_TRUE(state.symbolInProgress && state.symbolOnSurface);
  EXPECT_EQ(window.countLabel, " 3 Symbols Loaded");
  EXPECT_EQ(window.prompt, "Move to Start Point for Symbol and Select with Left Button");
  EXPECT_EQ(window.pointer, Pointer::Crosshair);
  EXPECT_FALSE(window.menusEnabled);
  EXPECT_FALSE(dialogs.dialogOpen);
  EXPECT_FALSE(canvas.sinceLastClear().empty()) << "the grid is drawn again";
  EXPECT_EQ(canvas.count(test::CallKind::Clear), 2);
  for (const test::CanvasCall& call : canvas.sinceLastClear()) {
    EXPECT_EQ(call.kind, test::CallKind::Line) << "no symbol markers on the cleared grid";
  }
}

TEST_F(SymbolCreationTest, AFailedRuleLeavesTheDialogOpenAndTheEditorAsItWas) {
  open();
  type(DialogField::OldKey, "VBXX");
  const WorkingSymbol before = working;
  EXPECT_EQ(createSymbol(ctx), CreateOutcome::Refused);
  EXPECT_EQ(messages.texts(),
            std::vector<std::string>{"VBXX is not a re-definable SKEY in this Group."});
  EXPECT_TRUE(dialogs.dialogOpen);
  EXPECT_EQ(working.oldKey, before.oldKey);
  EXPECT_FALSE(state.symbolInProgress);
  EXPECT_TRUE(window.menusEnabled);
}

TEST_F(SymbolCreationTest, LibraryCopiesSearchTheTypeOrTheFlowArrow) {
  EXPECT_EQ(copySearchKey("VB**", ""), "VB");
  EXPECT_EQ(copySearchKey("FLOW", "AR04"), "AR04");
  EXPECT_EQ(copySearchKey("WW", "WWA"), "WWA");
  EXPECT_EQ(copySearchKey("VBSW", "XYSW"), "VBSW");

  open();
  type(DialogField::OldKey, "VB**");
  dialogs.dialog.setCopyTicked(dialogContext(ctx), true);
  dialogs.dialog.chooseCopyOption(dialogContext(ctx), CopyOption::Library);
  EXPECT_EQ(createSymbol(ctx), CreateOutcome::Copied);
  EXPECT_EQ(working.oldKey, "VB**") << "the typed keys, not the library symbol's";
  EXPECT_EQ(working.spindleKey, "");
  EXPECT_EQ(working.slots, slotsOf(library.symbol(1)));
  EXPECT_EQ(state.symbolNumber, 3);
  EXPECT_EQ(window.countLabel, " 3 Symbols Loaded");
  EXPECT_EQ(window.prompt,
            "Left Button = Select start Point for Line. Right Button = Refresh Screen.");
  EXPECT_TRUE(state.newStrokePending);
  EXPECT_TRUE(state.symbolInProgress && state.symbolOnSurface && window.moveMenuVisible);
  EXPECT_TRUE(messages.texts().empty());

  state = EditorState{};
  browse.currentGroup = 9;
  open();
  type(DialogField::OldKey, "FLOW");
  type(DialogField::NewKey, "AR04");
  dialogs.dialog.setCopyTicked(dialogContext(ctx), true);
  dialogs.dialog.chooseCopyOption(dialogContext(ctx), CopyOption::Library);
  EXPECT_EQ(createSymbol(ctx), CreateOutcome::Copied);
  EXPECT_EQ(working.newKey, "AR04");
  EXPECT_EQ(working.slots, slotsOf(library.symbol(3)));
}

TEST_F(SymbolCreationTest, CurrentSetCopiesSkipSymbolsThatAddANewSkey) {
  EXPECT_EQ(findCurrentSetCopySource(set, "VBSW"), 2) << "symbol 1 adds VBZZ; VB** serves VBSW";
  EXPECT_EQ(findCurrentSetCopySource(set, "VB"), 2);
  EXPECT_EQ(findCurrentSetCopySource(set, "VT"), 0);

  open();
  type(DialogField::OldKey, "VBSW");
  dialogs.dialog.setCopyTicked(dialogContext(ctx), true);
  dialogs.dialog.chooseCopyOption(dialogContext(ctx), CopyOption::CurrentSet);
  type(DialogField::SpindleKey, "01SP");
  EXPECT_EQ(createSymbol(ctx), CreateOutcome::Copied);
  EXPECT_EQ(working.slots, slotsOf(set.symbol(2)));
  EXPECT_EQ(working.oldKey, "VBSW");
  EXPECT_EQ(working.spindleKey, "01SP") << "the copy keeps the dialog's attributes";
  EXPECT_EQ(state.symbolNumber, 3) << "a copy is added behind the last symbol";
}

TEST_F(SymbolCreationTest, NotFoundAsksAndNoKeepsTheDialogAsTyped) {
  open();
  type(DialogField::OldKey, "VT**");
  type(DialogField::ScaleFactor, "90");
  dialogs.dialog.setCopyTicked(dialogContext(ctx), true);
  dialogs.dialog.chooseCopyOption(dialogContext(ctx), CopyOption::Library);
  messages.queue(Answer::No);
  EXPECT_EQ(createSymbol(ctx), CreateOutcome::Refused);
  ASSERT_EQ(messages.shown().size(), 1u);
  const Message& question = messages.shown()[0];
  EXPECT_EQ(question.title, "Symbol Editor");
  EXPECT_EQ(question.text,
            "Symbol VT could not be found in Symbol Library.\rCreate a blank image?");
  EXPECT_EQ(question.buttons, Buttons::YesNo);
  EXPECT_EQ(question.icon, Icon::Exclamation);
  EXPECT_TRUE(dialogs.dialogOpen);
  EXPECT_EQ(dialogs.dialog.state().oldKey.text, "VT**");
  EXPECT_EQ(dialogs.dialog.state().scaleFactor.text, "90");
  EXPECT_TRUE(dialogs.dialog.state().copyTicked);
  EXPECT_FALSE(state.symbolInProgress);
  EXPECT_EQ(window.countLabel, "");

  dialogs.dialog.chooseCopyOption(dialogContext(ctx), CopyOption::CurrentSet);
  messages.queue(Answer::Yes);
  EXPECT_EQ(createSymbol(ctx), CreateOutcome::BlankImage);
  EXPECT_EQ(messages.shown().back().text,
            "Symbol VT could not be found in Current Symbol Set.\rCreate a blank image?");
  EXPECT_EQ(state.pendingItem, PendingItem::StartPoint);
}

TEST_F(SymbolCreationTest, ScreenCopiesKeepTheSymbolShown) {
  show(2);
  const auto shown = working.slots;
  open();
  type(DialogField::OldKey, "VT**");
  dialogs.dialog.setCopyTicked(dialogContext(ctx), true);
  EXPECT_EQ(dialogs.dialog.state().copyOption, CopyOption::Screen);
  EXPECT_EQ(createSymbol(ctx), CreateOutcome::Copied);
  EXPECT_EQ(working.slots, shown);
  EXPECT_EQ(working.oldKey, "VT**");
  EXPECT_EQ(browse.currentEntry, 2);
  EXPECT_EQ(state.symbolNumber, 3);
  EXPECT_TRUE(messages.texts().empty());

  // Located by exact comparison: VBSW matched VB** in the dialog, but no group lists VBSW.
  state = EditorState{};
  open();
  type(DialogField::OldKey, "VBSW");
  dialogs.dialog.setCopyTicked(dialogContext(ctx), true);
  EXPECT_EQ(createSymbol(ctx), CreateOutcome::Copied);
  EXPECT_EQ(messages.texts(),
            std::vector<std::string>{"The Old SKEY specified for this symbol is invalid.Please "
                                     "Edit the symbol and Specified a Valid Old SKEY."});

  // An empty grid gives nothing to copy.
  state = EditorState{};
  working = WorkingSymbol{};
  open();
  type(DialogField::OldKey, "VT**");
  dialogs.dialog.setCopyTicked(dialogContext(ctx), true);
  EXPECT_EQ(createSymbol(ctx), CreateOutcome::BlankImage);
}

TEST_F(SymbolCreationTest, EditingFillsFromTheShownSymbolAndKeepsItsActions) {
  EXPECT_FALSE(openForEditing(ctx)) << "nothing shown";
  show(2);
  const std::string row = window.symbolList.rows[1];
  ASSERT_TRUE(openForEditing(ctx));
  const NewSymbolDialogState& dialog = dialogs.dialog.state();
  EXPECT_EQ(dialog.title, "Edit Symbol");
  EXPECT_EQ(dialog.createCaption, "Edit Symbol");
  EXPECT_EQ(dialog.arrow.items[0], "Use the Old SKEY Setting");
  EXPECT_EQ(dialog.dimension.items[0], "Use the Old SKEY Setting");
  EXPECT_EQ(dialog.oldKey.text, "VB**");
  EXPECT_EQ(dialog.spindleKey.text, "02SP");
  EXPECT_EQ(dialog.mirrorType, "Symbol will be Mirrored");
  EXPECT_EQ(dialog.arrow.position, 2);
  EXPECT_EQ(dialog.orientation.position, 4) << "stored 7 is Heat Tracing Component";
  EXPECT_TRUE(dialog.spindleKey.enabled);
  EXPECT_TRUE(state.editing);
  EXPECT_EQ(state.editedSymbol, 2);
  EXPECT_FALSE(window.menusEnabled || window.groupChooser.enabled);

  EXPECT_EQ(createSymbol(ctx), CreateOutcome::Edited);
  EXPECT_EQ(window.symbolList.rows[1], row);
  EXPECT_FALSE(window.symbolList.enabled);
  EXPECT_EQ(window.prompt, "Use the various control buttons and menu items to modify the Symbol.");
  EXPECT_EQ(working.slots, slotsOf(set.symbol(2)));
  EXPECT_EQ(working.orientation, "7");
  EXPECT_EQ(state.symbolNumber, 2);
  EXPECT_TRUE(state.symbolInProgress && state.editing);
  EXPECT_FALSE(openForEditing(ctx)) << "a symbol is in progress";
}

TEST_F(SymbolCreationTest, EditingInTheSupportsGroupFixesTheSpindleAndCancelUndoesTheOpening) {
  set.append(symbol("ANCH", "", shape(300)));
  show(3);
  EXPECT_EQ(browse.currentGroup, 8);
  ASSERT_TRUE(openForEditing(ctx));
  const PickerField& spindle = dialogs.dialog.state().spindleKey;
  EXPECT_FALSE(spindle.enabled || spindle.captionEnabled);
  EXPECT_TRUE(spindle.pickerEnabled);

  window.pointer = Pointer::Crosshair;
  cancelDialog(ctx);
  EXPECT_FALSE(dialogs.dialogOpen);
  EXPECT_FALSE(state.editing);
  EXPECT_EQ(state.editedSymbol, 0);
  EXPECT_TRUE(window.menusEnabled && window.groupChooser.enabled);
  EXPECT_EQ(window.pointer, Pointer::Normal);
  EXPECT_EQ(working.oldKey, "ANCH");
}

TEST_F(SymbolCreationTest, TheExistingSymbolPickerFillsTheDialogFromTheChosenEntry) {
  open();
  auto picker = openExistingSymbolPicker(dialogs.dialog, config, browse.currentGroup);
  ASSERT_TRUE(picker);
  EXPECT_EQ(picker->title, "Select Existing Symbol");
  EXPECT_EQ(picker->caption,
            "Select a symbol from the list of Valves as the basis for the Re-Defined Symbol.");
  EXPECT_EQ(picker->rows, (std::vector<std::string>{"VB**", "VT**"}));
  EXPECT_FALSE(chooseExistingSymbol(*picker, dialogs.dialog, dialogContext(ctx), 3));

  dialogs.dialog.setCopyTicked(dialogContext(ctx), true);
  dialogs.dialog.chooseCopyOption(dialogContext(ctx), CopyOption::Library);
  ASSERT_TRUE(chooseExistingSymbol(*picker, dialogs.dialog, dialogContext(ctx), 1));
  EXPECT_EQ(browse.currentEntry, 1);
  EXPECT_EQ(dialogs.dialog.state().oldKey.text, "VB**");
  EXPECT_EQ(dialogs.dialog.state().mirrorType, "Symbol is Symmetrical");

  dialogs.dialog.setFocus(DialogField::ScaleFactor);
  closePicker(picker, dialogs.dialog);
  EXPECT_FALSE(picker);
  EXPECT_EQ(dialogs.dialog.state().focus, DialogField::OldKey);

  dialogs.dialogOpen = true;
  dialogs.picker = openExistingSymbolPicker(dialogs.dialog, config, 2);
  groupChosenUnderDialog(dialogs, 13);
  EXPECT_FALSE(dialogs.picker) << "choosing a group closes the picker";
  EXPECT_FALSE(dialogs.dialog.state().spindleKey.enabled) << "only groups 2 to 12";
  groupChosenUnderDialog(dialogs, 12);
  EXPECT_TRUE(dialogs.dialog.state().spindleKey.enabled);
}

TEST_F(SymbolCreationTest, TheSpindlePickerPutsTheChosenSkeyIntoTheField) {
  open();
  auto picker = openSpindlePicker(dialogs.dialog, spindles);
  ASSERT_TRUE(picker);
  EXPECT_EQ(picker->title, "Standard Spindles");
  EXPECT_EQ(picker->caption, "Click on Chosen Spindle to Select");
  EXPECT_EQ(picker->rows, (std::vector<std::string>{"01SP", "02SP"}));
  EXPECT_FALSE(chooseSpindle(*picker, dialogs.dialog, "16SP"));
  EXPECT_TRUE(chooseSpindle(*picker, dialogs.dialog, "02SP"));
  EXPECT_EQ(dialogs.dialog.state().spindleKey.text, "02SP");

  dialogs.dialog.enableSpindleForGroup(1);
  EXPECT_FALSE(openSpindlePicker(dialogs.dialog, spindles)) << "its button is disabled";
}

}  // namespace
}  // namespace quorn
