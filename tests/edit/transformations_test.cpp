#include "edit/transformations.h"

#include <gtest/gtest.h>

#include <vector>

#include "edit/scale_dialog.h"
#include "support/recording_messages.h"

namespace quorn {
namespace {

using test::RecordingMessages;

const GridFrame kGrid{100, 6000, 3000};
constexpr std::int32_t kBottom = 500 + 3000;

const std::string kDoesNotFit =
    "New Start Point can not be adopted as Symbol can not fit within the positive area of the "
    "grid";

/// Start point (1300, 2000), a line left and up of it, a tapping point right of it, the
/// spindle point in slot 201 and the end point in slot 202 (placed or not as the state says).
WorkingSymbol sampleSymbol() {
  WorkingSymbol working;
  working.slots[1] = {kMove, 1300, 2000};
  working.slots[2] = {kLine, 1200, 1800};
  working.slots[3] = {kTappingPoint, 1500, 2100};
  working.actionCount = 3;
  working.slots[kSpindleSlot] = {kSpindlePoint, 1400, 1700};
  working.slots[kEndSlot] = {kWorkingEndPoint, 1600, 2000};
  return working;
}

EditorState placedState() {
  EditorState state;
  state.spindlePointPlaced = true;
  state.endPointPlaced = true;
  return state;
}

TEST(MoveSymbol, LandingExactlyOnTheLeftOrBottomEdgeIsAccepted) {
  WorkingSymbol working = sampleSymbol();
  const EditorState state = placedState();
  RecordingMessages messages;
  // The leftmost point (1200) lands on x = 1100; the lowest (2100) on the bottom edge.
  EXPECT_TRUE(moveSymbolTo({1200, 2000 + (kBottom - 2100)}, state, working, kGrid, messages));
  EXPECT_TRUE(messages.shown().empty());
  EXPECT_EQ(working.slots[2], (WorkingAction{kLine, 1100, 1800 + 1400}));
  EXPECT_EQ(working.slots[3], (WorkingAction{kTappingPoint, 1400, kBottom}));
  EXPECT_EQ(working.slots[kSpindleSlot], (WorkingAction{kSpindlePoint, 1300, 3100}));
  EXPECT_EQ(working.slots[kEndSlot], (WorkingAction{kWorkingEndPoint, 1500, 3400}));
}

TEST(MoveSymbol, OneUnitPastAnEdgeMovesNothing) {
  const EditorState state = placedState();
  for (const FormPosition start : {FormPosition{1199, 2000}, FormPosition{1300, 3401}}) {
    WorkingSymbol working = sampleSymbol();
    const WorkingSymbol before = working;
    RecordingMessages messages;
    EXPECT_FALSE(moveSymbolTo(start, state, working, kGrid, messages));
    EXPECT_EQ(messages.texts(), std::vector<std::string>{kDoesNotFit});
    EXPECT_EQ(working.slots, before.slots);
  }
}

TEST(MoveSymbol, SpindleAndEndPointsCountOnlyWhenPlaced) {
  WorkingSymbol working = sampleSymbol();
  working.slots[kEndSlot] = {kWorkingEndPoint, 1100, kBottom};  // would fail the move if placed
  EditorState state;
  state.spindlePointPlaced = true;
  RecordingMessages messages;
  EXPECT_TRUE(moveSymbolTo({1350, 2050}, state, working, kGrid, messages));
  EXPECT_EQ(working.slots[kEndSlot], (WorkingAction{kWorkingEndPoint, 1100, kBottom}));
  EXPECT_EQ(working.slots[kSpindleSlot], (WorkingAction{kSpindlePoint, 1450, 1750}));

  state.endPointPlaced = true;
  EXPECT_FALSE(moveSymbolTo({1400, 2100}, state, working, kGrid, messages));
  EXPECT_EQ(working.slots[1], (WorkingAction{kMove, 1350, 2050}));
}

TEST(FlipSymbol, HorizontalPutsTheFormerTopOnTheBottomEdgeAndTwiceRestoresTheShape) {
  WorkingSymbol working = sampleSymbol();
  EditorState state = placedState();
  flipSymbol(FlipAxis::Horizontal, state, working, kGrid);
  // The smallest y of the drawn actions is the line's 1800; the spindle point above it lands
  // below the bottom edge, as the flip is written.
  EXPECT_EQ(working.slots[1].y, kBottom - 200);
  EXPECT_EQ(working.slots[2].y, kBottom);
  EXPECT_EQ(working.slots[3].y, kBottom - 300);
  EXPECT_EQ(working.slots[kSpindleSlot].y, kBottom + 100);
  EXPECT_EQ(working.slots[kEndSlot].y, kBottom - 200);
  EXPECT_EQ(working.slots[3].x, 1500);
  EXPECT_TRUE(state.symbolPending);

  flipSymbol(FlipAxis::Horizontal, state, working, kGrid);
  // Back to its shape, with its lowest drawn point (the tapping point) on the bottom edge.
  const std::int32_t shift = kBottom - 2100;
  EXPECT_EQ(working.slots[1].y, 2000 + shift);
  EXPECT_EQ(working.slots[2].y, 1800 + shift);
  EXPECT_EQ(working.slots[3].y, kBottom);
  EXPECT_EQ(working.slots[kEndSlot].y, 2000 + shift);
}

TEST(FlipSymbol, HorizontalCountsTheStartPointInTheSmallestY) {
  WorkingSymbol working = sampleSymbol();
  working.slots[1].y = 1500;
  EditorState state;
  flipSymbol(FlipAxis::Horizontal, state, working, kGrid);
  EXPECT_EQ(working.slots[1].y, kBottom);
  EXPECT_EQ(working.slots[2].y, kBottom - 300);
}

TEST(FlipSymbol, VerticalPutsTheRightmostPointOnTheLeftEdgeAndTwiceRestoresTheShape) {
  WorkingSymbol working = sampleSymbol();
  EditorState state = placedState();
  flipSymbol(FlipAxis::Vertical, state, working, kGrid);
  // The end point (1600) is the rightmost.
  EXPECT_EQ(working.slots[kEndSlot].x, 1100);
  EXPECT_EQ(working.slots[1].x, 1400);
  EXPECT_EQ(working.slots[2].x, 1500);
  EXPECT_EQ(working.slots[3].x, 1200);
  EXPECT_EQ(working.slots[kSpindleSlot].x, 1300);
  EXPECT_EQ(working.slots[2].y, 1800);

  flipSymbol(FlipAxis::Vertical, state, working, kGrid);
  const std::int32_t shift = 1100 - 1200;  // the leftmost (the line's 1200) now on the edge
  EXPECT_EQ(working.slots[1].x, 1300 + shift);
  EXPECT_EQ(working.slots[2].x, 1100);
  EXPECT_EQ(working.slots[kEndSlot].x, 1600 + shift);

  // Without the end point placed, the tapping point (1500) is the rightmost.
  working = sampleSymbol();
  EditorState unplaced;
  flipSymbol(FlipAxis::Vertical, unplaced, working, kGrid);
  EXPECT_EQ(working.slots[3].x, 1100);
  EXPECT_EQ(working.slots[kEndSlot].x, 1600);
}

TEST(IsoView, TheCaptionNamesTheViewTheButtonSwitchesTo) {
  EditWindowState window;
  toggleIsoView(window);
  EXPECT_TRUE(window.isometric);
  EXPECT_EQ(window.isoCaption, "Ortho");
  toggleIsoView(window);
  EXPECT_FALSE(window.isometric);
  EXPECT_EQ(window.isoCaption, "Iso");
}

TEST(ScaleDialog, OpensOnTheGridInUseInMillimetres) {
  const ScaleDialogState dialog = openScaleDialog(5, 300);
  EXPECT_EQ(dialog.gridDivision, "0.5");
  EXPECT_EQ(dialog.scaleLength, "30");
  EXPECT_EQ(openScaleDialog(12.5, 305).gridDivision, "1.25");
  EXPECT_EQ(openScaleDialog(12.5, 305).scaleLength, "30.5");
}

TEST(ScaleDialog, TheBoundsThemselvesAreAccepted) {
  ScaleDialogState dialog{"0.1", "5"};
  EXPECT_EQ(rescaleSymbol(dialog), (GridScale{1, 50}));
  dialog = {"2.0", "75"};
  EXPECT_EQ(rescaleSymbol(dialog), (GridScale{20, 750}));
  EXPECT_EQ(dialog.gridDivision, "2.0");
  // The scale length is compared after rounding to tenths.
  dialog = {"0.5", "4.96"};
  EXPECT_EQ(rescaleSymbol(dialog), (GridScale{5, 50}));
  dialog = {"0.5", "75.04"};
  EXPECT_EQ(rescaleSymbol(dialog), (GridScale{5, 750}));
}

TEST(ScaleDialog, AnEntryOutOfRangeIsReplacedByItsBoundAndNothingElseHappens) {
  ScaleDialogState dialog{"0.09", "1000"};
  EXPECT_FALSE(rescaleSymbol(dialog).has_value());
  EXPECT_EQ(dialog.gridDivision, "0.1");
  EXPECT_EQ(dialog.scaleLength, "1000");  // not looked at while the division is out of range

  dialog = {"2.01", "30"};
  EXPECT_FALSE(rescaleSymbol(dialog).has_value());
  EXPECT_EQ(dialog.gridDivision, "2.0");

  dialog = {"0.5", "4.94"};
  EXPECT_FALSE(rescaleSymbol(dialog).has_value());
  EXPECT_EQ(dialog.scaleLength, "5");

  dialog = {"0.5", "75.06"};
  EXPECT_FALSE(rescaleSymbol(dialog).has_value());
  EXPECT_EQ(dialog.scaleLength, "75");
  EXPECT_EQ(dialog.gridDivision, "0.5");

  dialog = {"mm", "30"};  // no number reads as 0
  EXPECT_FALSE(rescaleSymbol(dialog).has_value());
  EXPECT_EQ(dialog.gridDivision, "0.1");
}

}  // namespace
}  // namespace quorn
