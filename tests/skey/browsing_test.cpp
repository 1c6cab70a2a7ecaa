#include "skey/browsing.h"

#include <gtest/gtest.h>

#include "display/grid_geometry.h"
#include "support/recording_canvas.h"
#include "support/recording_messages.h"

namespace quorn {
namespace {

SymbolRecord valve() {
  SymbolRecord symbol;
  symbol.oldKeyRaw = "VT";
  symbol.oldKey = "VT**";
  symbol.spindleKey = "01SP";
  symbol.actions = {{kMove, 0, 1000},
                    {kLine, 1000, 1000},
                    {kTappingPoint, 500, 1500},
                    {kSpindlePoint, 500, 1000},
                    {kMove, 2000, 1000}};
  symbol.tappingCount = 1;
  return symbol;
}

/// Two groups, a library with the valve, a Current Set of two symbols.
class BrowsingTest : public ::testing::Test {
 protected:
  BrowsingTest() {
    config.groupCount = 2;
    config.groups.resize(3);
    config.groups[1].entries = {{"FLWN", "Weld neck flange"}, {"VT**", "Gate valve", {}, 1}};
    config.groups[2].entries = {{"ANCH", "Anchor"}};
    library.append(valve());
    set.append(valve());
    SymbolRecord flange;
    flange.oldKey = flange.oldKeyRaw = "FLWN";
    flange.newKey = flange.newKeyRaw = "FLXX";
    flange.actions = {{kMove, 0, 0}, {kMove, 500, 0}};
    set.append(flange);
    grid = *layOutGrid(config, ScreenSize{15360, 11520}).geometry;
  }

  BrowseContext context() {
    return BrowseContext{config, set,    library, browse, working,
                         state,  window, grid,    canvas, messages};
  }

  Configuration config;
  SymbolLibrary library;
  CurrentSet set;
  BrowseState browse;
  WorkingSymbol working;
  EditorState state;
  EditWindowState window;
  GridGeometry grid;
  test::RecordingCanvas canvas;
  test::RecordingMessages messages;
};

TEST_F(BrowsingTest, TheTwoListLabelFormsDiffer) {
  EXPECT_EQ(libraryListLabel(valve(), config.groups[1].entries[1]),
            "Old SKEY: VT** Gate valve  Spindle SKEY: 01SP");
  SymbolText plain;
  plain.oldKey = "FLWN";
  EXPECT_EQ(libraryListLabel(plain, config.groups[1].entries[0]),
            "Old SKEY: FLWN Weld neck flange");

  auto ctx = context();
  refreshSymbolList(ctx, true);
  EXPECT_EQ(window.symbolList.rows,
            (std::vector<std::string>{"Old SKEY: FLWN Weld neck flange",
                                      "Old SKEY: VT** Gate valve  Spindle SKEY: 01SP"}));
  EXPECT_EQ(window.prompt,
            "Open Symbol File, Select Standard Symbol to View, Select Symbol/New, or View/Current");
  chooseGroup(ctx, 1);
  EXPECT_EQ(browse.currentGroup, 2);
  EXPECT_EQ(window.symbolList.rows, (std::vector<std::string>{"Old SKEY: ANCH Anchor"}));

  browse.view = ListView::CurrentSet;
  refreshSymbolList(ctx);
  EXPECT_EQ(window.symbolList.rows[1], "Old SKEY: FLWN   New SKEY: FLXX");
}

TEST_F(BrowsingTest, ShowingASymbolLoadsItsPointsIntoTheirSlots) {
  browse.view = ListView::CurrentSet;
  browse.currentGroup = 2;
  auto ctx = context();
  ASSERT_TRUE(showSymbol(ctx, 1));
  EXPECT_EQ(working.oldKey, "VT**");
  EXPECT_EQ(working.actionCount, 3);
  EXPECT_EQ(working.slots[1].type, kMove);
  EXPECT_EQ(working.slots[3].type, kTappingPoint);
  EXPECT_EQ(working.slots[kSpindleSlot].type, kSpindlePoint);
  EXPECT_EQ(working.slots[kEndSlot].type, kWorkingEndPoint);
  EXPECT_TRUE(state.endPointPlaced);
  EXPECT_TRUE(state.spindlePointPlaced);
  EXPECT_EQ(state.undoHistory,
            (std::vector<StepKind>{StepKind::StartPoint, StepKind::Line, StepKind::TappingPoint,
                                   StepKind::SpindlePoint, StepKind::EndPoint}));
  // Stored points come back where they would be stored from.
  const SymbolRecord again = recordFromWorkingSymbol(working, true, gridPlacement(grid));
  EXPECT_EQ(again.actions, valve().actions);
  // The Old SKEY put the group chooser on the group that holds it.
  EXPECT_EQ(browse.currentGroup, 1);
  EXPECT_EQ(browse.currentEntry, 2);
  EXPECT_EQ(window.groupChooser.selected, 0);
  EXPECT_EQ(window.prompt, "Select Symbol/Edit to Edit the Symbol Displayed.");
  EXPECT_EQ(canvas.count(test::CallKind::Circle, config.spindleColour), 1);
}

TEST_F(BrowsingTest, RefusalsLeaveTheGridAsItWas) {
  auto ctx = context();
  state.symbolInProgress = true;
  EXPECT_FALSE(showSymbol(ctx, 1));
  state.symbolInProgress = false;
  EXPECT_FALSE(showSymbol(ctx, 3));
  EXPECT_FALSE(showSymbol(ctx, -1));
  EXPECT_EQ(messages.texts(),
            (std::vector<std::string>{
                "Erase current Symbol or Press Done to Save it, before viewing others.",
                "Symbol Number  3 does not exist", "Symbol Number -1 does not exist"}));
  EXPECT_TRUE(canvas.calls().empty());
  CurrentSet empty;
  BrowseContext emptyContext{config, empty,  library, browse, working,
                             state,  window, grid,    canvas, messages};
  EXPECT_FALSE(showSymbol(emptyContext, 0));
  EXPECT_EQ(messages.texts().size(), 3u);
}

TEST_F(BrowsingTest, ARowChosenByCreationIsIgnoredOnce) {
  browse.view = ListView::CurrentSet;
  browse.selectedByCreation = true;
  auto ctx = context();
  chooseSymbol(ctx, 1);
  EXPECT_EQ(browse.shownSymbol, 0);
  chooseSymbol(ctx, 1);
  EXPECT_EQ(browse.shownSymbol, 2);
  EXPECT_EQ(window.symbolList.selected, 1);
}

TEST_F(BrowsingTest, AStandardRowShowsTheLibrarySymbolOfItsEntry) {
  auto ctx = context();
  refreshSymbolList(ctx);
  chooseSymbol(ctx, 1);
  EXPECT_EQ(browse.currentEntry, 2);
  EXPECT_EQ(working.oldKey, "VT**");
  EXPECT_EQ(window.statusText, "Old SKEY: VT** Gate valve  Spindle SKEY: 01SP");
  EXPECT_FALSE(state.symbolOnSurface) << "a library symbol is only looked at";
}

}  // namespace
}  // namespace quorn
