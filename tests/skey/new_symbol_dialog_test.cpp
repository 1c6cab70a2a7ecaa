#include "skey/new_symbol_dialog.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "model/keys.h"
#include "skey/group_entries.h"
#include "support/recording_messages.h"

namespace quorn {
namespace {

constexpr std::string_view kSymmetrical = "Symbol is Symmetrical";
constexpr std::string_view kMirrored = "Symbol will be Mirrored";

GroupEntry entry(std::string skey, std::initializer_list<int> flagDigits = {}) {
  GroupEntry result;
  result.skey = std::move(skey);
  for (const int digit : flagDigits) result.flags[static_cast<std::size_t>(digit)] = true;
  return result;
}

SymbolRecord symbol(std::string_view oldKey, std::string spindle, std::string scale,
                    std::string mirror, std::string arrow, std::string dimensions,
                    std::string orientation) {
  SymbolRecord result;
  setOldKey(result, oldKey);
  result.spindleKey = std::move(spindle);
  result.scaleFactor = std::move(scale);
  result.mirrorType = std::move(mirror);
  result.flowArrow = std::move(arrow);
  result.dimensions = std::move(dimensions);
  result.orientation = std::move(orientation);
  return result;
}

// Group 1 holds the flag cases, group 2 the keys with special look-ups.
class NewSymbolDialogTest : public ::testing::Test {
 protected:
  NewSymbolDialogTest() {
    config.groupCount = 2;
    config.groups.resize(3);
    config.groups[1].entries = {entry("TEBW"),         entry("VBSW", {3, 4}), entry("VB**", {6}),
                                entry("GA**", {1, 8}), entry("CABW", {5, 2}), entry("OL", {4, 7})};
    config.groups[2].entries = {entry("FLOW", {8}), entry("AR01"), entry("AR02", {6}),
                                entry("AR04", {5}), entry("WW"),   entry("WWA", {4})};
  }

  DialogContext context() {
    return DialogContext{config, set, library, group, currentEntry, messages};
  }

  Configuration config;
  CurrentSet set;
  SymbolLibrary library;
  test::RecordingMessages messages;
  int group = 1;
  int currentEntry = 0;
  NewSymbolDialog dialog;
};

TEST_F(NewSymbolDialogTest, GroupFlagsSetSpindleMirrorAndFlowArrow) {
  currentEntry = 1;  // no flags
  dialog.setText(DialogField::SpindleKey, "01SP");
  dialog.applyGroupFlags(context());
  const NewSymbolDialogState& state = dialog.state();
  EXPECT_EQ(state.spindleKey.text, "01SP");
  EXPECT_TRUE(state.spindleKey.enabled && state.spindleKey.captionEnabled &&
              state.spindleKey.pickerEnabled);
  EXPECT_EQ(state.mirrorType, kSymmetrical);
  EXPECT_EQ(state.arrow.position, 0);
  EXPECT_FALSE(state.arrow.enabled || state.arrow.captionEnabled);

  currentEntry = 2;  // 3 outranks 4
  dialog.applyGroupFlags(context());
  EXPECT_EQ(state.mirrorType, kSymmetrical);
  currentEntry = 3;  // 6 alone
  dialog.applyGroupFlags(context());
  EXPECT_EQ(state.mirrorType, kMirrored);

  currentEntry = 4;  // 1 and 8
  dialog.applyGroupFlags(context());
  EXPECT_EQ(state.spindleKey.text, "");
  EXPECT_FALSE(state.spindleKey.enabled || state.spindleKey.captionEnabled ||
               state.spindleKey.pickerEnabled);
  EXPECT_EQ(state.arrow.items[static_cast<std::size_t>(state.arrow.position)], "Flow Arrow On");
  EXPECT_TRUE(state.arrow.enabled && state.arrow.captionEnabled);

  currentEntry = 1;  // a later entry without flag 1 gives the spindle controls back
  dialog.applyGroupFlags(context());
  EXPECT_TRUE(state.spindleKey.enabled && state.spindleKey.pickerEnabled);
  EXPECT_FALSE(state.arrow.enabled);
  EXPECT_EQ(state.arrow.position, 0);
}

TEST_F(NewSymbolDialogTest, FlagsTwoAndSevenAreLeftForTheEditWindow) {
  EXPECT_TRUE(groupFlags(config, 1, 5).noTappingPoints());
  EXPECT_TRUE(groupFlags(config, 1, 6).spindlePointRequired());
  // Entries and groups that do not exist carry no flags.
  EXPECT_FALSE(groupFlags(config, 1, 7).mirrored());
  EXPECT_FALSE(groupFlags(config, 1, 0).noSpindle());
  EXPECT_FALSE(groupFlags(config, 9, 1).mayHaveFlowArrow());
}

TEST_F(NewSymbolDialogTest, ResetForABlankSymbolGivesTheSpindleToGroupsTwoToTwelveOnly) {
  for (const auto& [chosenGroup, spindle] : std::vector<std::pair<int, bool>>{
           {0, false}, {1, false}, {2, true}, {12, true}, {13, false}}) {
    group = chosenGroup;
    dialog.resetForBlankSymbol(context());
    const PickerField& field = dialog.state().spindleKey;
    EXPECT_EQ(field.enabled, spindle) << chosenGroup;
    EXPECT_EQ(field.captionEnabled, spindle) << chosenGroup;
    EXPECT_EQ(field.pickerEnabled, spindle) << chosenGroup;
  }
}

TEST_F(NewSymbolDialogTest, ResetForABlankSymbolClearsWhatAnEarlierFillLeft) {
  group = 2;
  dialog.resetFromGroupList(context(), 3);  // AR02: New SKEY fixed, Library ticked
  dialog.choose(AttributeList::Dimensions, 2);
  dialog.resetForBlankSymbol(context());
  const NewSymbolDialogState& state = dialog.state();
  EXPECT_EQ(state.title, "Add New Symbol");
  EXPECT_EQ(state.oldKey.text, "");
  EXPECT_TRUE(state.newKey.enabled && state.newKey.captionEnabled);
  EXPECT_EQ(state.scaleFactor.text, "100");
  EXPECT_EQ(state.dimension.position, 0);
  EXPECT_FALSE(state.copyTicked || state.filledFromList);
}

TEST_F(NewSymbolDialogTest, FlowArrowAndWwaEntriesFillTheirPairAndFixTheNewKey) {
  group = 2;
  library.append(symbol("AR02", "", "80", "-1", "2", "1", "7"));
  dialog.resetFromGroupList(context(), 3);
  const NewSymbolDialogState& state = dialog.state();
  EXPECT_EQ(currentEntry, 3);
  EXPECT_EQ(state.oldKey.text, "FLOW");
  EXPECT_EQ(state.newKey.text, "AR02");
  EXPECT_FALSE(state.newKey.enabled || state.newKey.captionEnabled);
  EXPECT_TRUE(state.copyTicked);
  EXPECT_EQ(state.copyOption, CopyOption::Library);
  // The library symbol's attributes replace what the flags gave.
  EXPECT_EQ(state.scaleFactor.text, "80");
  EXPECT_EQ(state.mirrorType, kSymmetrical);
  EXPECT_EQ(state.arrow.position, 2);
  EXPECT_EQ(state.dimension.position, 1);
  EXPECT_EQ(state.orientation.items[static_cast<std::size_t>(state.orientation.position)],
            "Heat Tracing Component");

  dialog.resetFromGroupList(context(), 6);  // WWA, not in the library: flags only
  EXPECT_EQ(state.oldKey.text, "WW");
  EXPECT_EQ(state.newKey.text, "WWA");
  EXPECT_FALSE(state.newKey.enabled);
  EXPECT_EQ(state.mirrorType, kMirrored);
  EXPECT_EQ(state.scaleFactor.text, "100");
}

TEST_F(NewSymbolDialogTest, AVariableEndEntryLooksUpItsTypeInTheChosenSource) {
  library.append(symbol("TEBW", "", "50", "0", "0", "0", "0"));
  library.append(symbol("VB", " 02SP ", " 120 ", "1", "0", "2", "3"));
  set.append(symbol("VB**", "NONE", "70", "0", "1", "1", "1"));

  dialog.resetFromGroupList(context(), 3);
  const NewSymbolDialogState& state = dialog.state();
  EXPECT_EQ(state.oldKey.text, "VB**");
  EXPECT_EQ(state.spindleKey.text, "02SP");
  EXPECT_EQ(state.scaleFactor.text, "120");
  EXPECT_EQ(state.mirrorType, kMirrored);
  EXPECT_EQ(state.dimension.position, 2);
  EXPECT_EQ(state.orientation.position, 3);

  dialog.fillFromGroupEntry(context(), 3, AttributeSource::CurrentSet);
  EXPECT_EQ(state.spindleKey.text, "NONE");
  EXPECT_EQ(state.scaleFactor.text, "70");
  EXPECT_EQ(state.mirrorType, kSymmetrical);

  // Nothing to copy: the attributes keep what the flags and the reset gave.
  dialog.resetForBlankSymbol(context());
  dialog.fillFromGroupEntry(context(), 2, AttributeSource::None);
  EXPECT_EQ(state.oldKey.text, "VBSW");
  EXPECT_EQ(state.scaleFactor.text, "100");
  EXPECT_EQ(state.mirrorType, kSymmetrical);
}

TEST_F(NewSymbolDialogTest, LibrarySymbolsHeldUnderATypeServeEveryEndOfIt) {
  library.append(symbol("TE", "", "40", "0", "0", "0", "0"));
  library.append(symbol("TEBW", "", "60", "0", "0", "0", "0"));
  dialog.resetFromGroupList(context(), 1);  // TEBW: the earlier TE symbol wins
  EXPECT_EQ(dialog.state().scaleFactor.text, "40");

  SymbolLibrary full;
  for (int number = 1; number <= 250; ++number) full.append(symbol("XX", "", "1", "", "", "", ""));
  full.append(symbol("GA", "", "999", "", "", "", ""));
  EXPECT_EQ(findLibrarySymbol(full, "GABW"), nullptr);  // only 250 symbols are searched
  EXPECT_EQ(findLibrarySymbol(full, "XX"), &full.symbol(1));
}

TEST_F(NewSymbolDialogTest, OldKeyLeftNormalisesAndRefusesAKeyTheGroupDoesNotHold) {
  currentEntry = 2;
  dialog.setText(DialogField::OldKey, "  vbxx ");
  dialog.setText(DialogField::SpindleKey, "01SP");
  dialog.leaveOldKey(context());
  EXPECT_EQ(dialog.state().oldKey.text, "VBXX");
  ASSERT_EQ(messages.shown().size(), 1u);
  EXPECT_EQ(messages.shown()[0].text, "VBXX is not a re-definable SKEY in this Group.");
  EXPECT_EQ(messages.shown()[0].title, "Quorn Symbols Editor");
  EXPECT_EQ(currentEntry, 2);
  EXPECT_EQ(dialog.state().spindleKey.text, "01SP");

  dialog.setText(DialogField::OldKey, "   ");
  dialog.leaveOldKey(context());
  EXPECT_EQ(dialog.state().oldKey.text, "");
  EXPECT_EQ(messages.shown().size(), 1u);
  EXPECT_EQ(currentEntry, 2);
}

TEST_F(NewSymbolDialogTest, OldKeyLeftAppliesTheMatchedEntryAndFillsFromTheTickedSource) {
  dialog.resetForBlankSymbol(context());
  dialog.setText(DialogField::OldKey, "gasw ");
  dialog.setText(DialogField::SpindleKey, "01SP");
  dialog.leaveOldKey(context());
  const NewSymbolDialogState& state = dialog.state();
  EXPECT_EQ(state.oldKey.text, "GASW");
  EXPECT_EQ(currentEntry, 4);
  EXPECT_EQ(state.spindleKey.text, "");
  EXPECT_TRUE(state.arrow.enabled);
  EXPECT_TRUE(messages.shown().empty());

  set.append(symbol("VBFL", "", "55", "0", "0", "0", "0"));
  set.append(symbol("VBSW", "03SP", "65", "1", "0", "1", "7"));
  set.append(symbol("VBSW", "04SP", "75", "0", "0", "0", "0"));
  library.append(symbol("VB", "05SP", "85", "0", "0", "2", "2"));
  dialog.setCopyTicked(context(), true);
  dialog.chooseCopyOption(context(), CopyOption::CurrentSet);
  dialog.setText(DialogField::OldKey, "VBSW");
  dialog.leaveOldKey(context());
  EXPECT_EQ(currentEntry, 2);
  EXPECT_EQ(state.scaleFactor.text, "65");
  EXPECT_EQ(state.spindleKey.text, "03SP");
  EXPECT_EQ(state.mirrorType, kMirrored);
  EXPECT_EQ(state.orientation.position, 4);

  dialog.chooseCopyOption(context(), CopyOption::Library);  // refills at once
  EXPECT_EQ(state.scaleFactor.text, "85");
  EXPECT_EQ(state.spindleKey.text, "05SP");
  EXPECT_EQ(state.dimension.position, 2);

  dialog.setText(DialogField::ScaleFactor, "42");
  dialog.chooseCopyOption(context(), CopyOption::Screen);  // flags only, nothing copied
  EXPECT_EQ(state.scaleFactor.text, "42");
  EXPECT_EQ(state.mirrorType, kSymmetrical);
  EXPECT_TRUE(messages.shown().empty());
}

TEST_F(NewSymbolDialogTest, WithoutTheTickTheFlowArrowPairTakesTheMirrorOfItsOwnEntry) {
  group = 2;
  dialog.setText(DialogField::OldKey, "flow");
  dialog.setText(DialogField::NewKey, "AR02");
  dialog.leaveOldKey(context());
  const NewSymbolDialogState& state = dialog.state();
  EXPECT_EQ(currentEntry, 3);
  EXPECT_EQ(state.mirrorType, kMirrored);  // AR02's flag 6
  EXPECT_TRUE(state.arrow.enabled);        // FLOW's flag 8 still stands

  dialog.setText(DialogField::NewKey, " ar04");
  dialog.leaveNewKey(context());
  EXPECT_EQ(state.newKey.text, "AR04");
  EXPECT_EQ(currentEntry, 4);
  EXPECT_EQ(state.mirrorType, kMirrored);

  dialog.setText(DialogField::NewKey, "ar01");
  dialog.leaveNewKey(context());
  EXPECT_EQ(currentEntry, 2);
  EXPECT_EQ(state.mirrorType, kSymmetrical);

  dialog.setText(DialogField::OldKey, "WW");
  dialog.setText(DialogField::NewKey, "wwa");
  dialog.leaveNewKey(context());
  EXPECT_EQ(currentEntry, 6);
  EXPECT_EQ(state.mirrorType, kMirrored);
}

TEST_F(NewSymbolDialogTest, NewKeyLeftCopiesTheArrowsAttributesOnlyForTheSpecialPairs) {
  group = 2;
  library.append(symbol("AR04", "", "20", "1", "0", "0", "7"));
  dialog.resetFromGroupList(context(), 1);  // FLOW, copied from the library
  dialog.setText(DialogField::NewKey, "ar04");
  dialog.leaveNewKey(context());
  const NewSymbolDialogState& state = dialog.state();
  EXPECT_EQ(state.scaleFactor.text, "20");
  EXPECT_EQ(state.orientation.position, 4);

  group = 1;
  currentEntry = 5;
  dialog.setText(DialogField::OldKey, "VBSW");
  dialog.setText(DialogField::NewKey, " vbqq ");
  dialog.leaveNewKey(context());
  EXPECT_EQ(state.newKey.text, "VBQQ");
  EXPECT_EQ(currentEntry, 5);
  EXPECT_EQ(state.scaleFactor.text, "20");
}

TEST_F(NewSymbolDialogTest, ClearingTheTickGoesBackToTheGroupFlags) {
  library.append(symbol("VBSW", "", "90", "1", "0", "0", "0"));
  dialog.setText(DialogField::OldKey, "VBSW");
  dialog.setCopyTicked(context(), true);
  dialog.chooseCopyOption(context(), CopyOption::Library);
  EXPECT_EQ(dialog.state().mirrorType, kMirrored);
  dialog.setCopyTicked(context(), false);
  EXPECT_EQ(dialog.state().mirrorType, kSymmetrical);  // VBSW's flags 3 and 4
  EXPECT_EQ(dialog.listChoiceSource(), AttributeSource::None);

  // With no Old SKEY the tick is only recorded.
  dialog.setText(DialogField::OldKey, "");
  dialog.setText(DialogField::ScaleFactor, "33");
  dialog.setCopyTicked(context(), true);
  EXPECT_EQ(dialog.state().scaleFactor.text, "33");
  EXPECT_EQ(dialog.listChoiceSource(), AttributeSource::Library);
  dialog.chooseCopyOption(context(), CopyOption::Screen);
  EXPECT_EQ(dialog.listChoiceSource(), AttributeSource::CurrentSet);
  EXPECT_TRUE(messages.shown().empty());
}

TEST_F(NewSymbolDialogTest, AttributeTextsAreTheNormalisedKeysAndTheCodes) {
  dialog.setText(DialogField::OldKey, " vbsw");
  dialog.setText(DialogField::NewKey, "xy ");
  dialog.setText(DialogField::SpindleKey, " 02sp ");
  dialog.setText(DialogField::ScaleFactor, " 150 ");
  EXPECT_TRUE(dialog.choose(AttributeList::Orientation, 4));
  EXPECT_TRUE(dialog.choose(AttributeList::FlowArrow, 1));
  EXPECT_FALSE(dialog.choose(AttributeList::Dimensions, 3));
  const SymbolText texts = dialog.attributeTexts();
  EXPECT_EQ(texts.oldKeyRaw, "VBSW");
  EXPECT_EQ(texts.oldKey, "VBSW");
  EXPECT_EQ(texts.newKeyRaw, "XY");
  EXPECT_EQ(texts.newKey, "XY**");
  EXPECT_EQ(texts.spindleKey, "02SP");
  EXPECT_EQ(texts.scaleFactor, "150");
  EXPECT_EQ(texts.mirrorType, "0");
  EXPECT_EQ(texts.flowArrow, "1");
  EXPECT_EQ(texts.dimensions, "0");
  EXPECT_EQ(texts.orientation, "7");
}

}  // namespace
}  // namespace quorn
