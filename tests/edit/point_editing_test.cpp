#include "edit/point_editing.h"

#include <gtest/gtest.h>

#include <vector>

#include "edit/editing_texts.h"
#include "support/recording_messages.h"

namespace quorn {
namespace {

using test::RecordingMessages;

// Spacing 100: the picking tolerance is 50.
const GridFrame kGrid{100, 6000, 3000};
constexpr std::int32_t kBottom = 500 + 3000;

/// A start point and then `actions` in slots 2 upward.
WorkingSymbol symbolOf(std::vector<WorkingAction> actions) {
  WorkingSymbol working;
  working.slots[1] = {kMove, 1100, 1000};
  int slot = 1;
  for (const WorkingAction& action : actions) working.slots[++slot] = action;
  working.actionCount = static_cast<std::int16_t>(slot);
  return working;
}

struct PaintedSegment {
  WorkingAction from;
  WorkingAction to;
  int colour;
};

/// Records what line picking draws.
struct Painter {
  std::vector<PaintedSegment> painted;
  SegmentPainter callback() {
    return [this](const WorkingAction& from, const WorkingAction& to, int colour) {
      painted.push_back({from, to, colour});
    };
  }
};

TEST(DeleteMenu, SuspendsSnapOnlyWhenItWasOnAndArmsEachEntryWithItsPrompt) {
  EditorState state;
  EditWindowState window;
  RecordingMessages messages;
  state.pendingItem = PendingItem::Insulation;
  openDeleteMenu(state, window);
  EXPECT_EQ(state.operation, EditOperation::Delete);
  EXPECT_FALSE(state.snapOn);
  EXPECT_TRUE(state.snapSuspended);
  EXPECT_EQ(window.snapLabel, "Snap is Off");
  EXPECT_EQ(window.prompt, "Select type of item to delete. Right Mouse Button to cancel.");
  // Insulation drawing that was pending before the menu must not be deleted by the next click.
  EXPECT_EQ(state.pendingItem, PendingItem::Line);
  EXPECT_FALSE(state.lineDeletionArmed);

  EditorState snapWasOff;
  snapWasOff.snapOn = false;
  openDeleteMenu(snapWasOff, window);
  EXPECT_FALSE(snapWasOff.snapSuspended);

  EXPECT_TRUE(chooseDeleteEntry(DeleteEntry::Line, state, window, messages));
  EXPECT_TRUE(state.lineDeletionArmed);
  EXPECT_EQ(window.prompt,
            "Use Left Button to identify line to be deleted, Right Button to Cancel");
  EXPECT_TRUE(chooseDeleteEntry(DeleteEntry::Tracing, state, window, messages));
  EXPECT_FALSE(state.lineDeletionArmed);
  EXPECT_EQ(state.pendingItem, PendingItem::Tracing);
  EXPECT_EQ(window.prompt,
            "Use Left Button to identify either end of Tracing Line to be deleted, Right Button "
            "to Cancel");
  EXPECT_TRUE(chooseDeleteEntry(DeleteEntry::TappingPoint, state, window, messages));
  EXPECT_EQ(state.pendingItem, PendingItem::TappingPoint);
  EXPECT_TRUE(messages.shown().empty());
}

TEST(DeleteMenu, RefusesTheSpindlePointWhenNoneIsPlaced) {
  EditorState state;
  EditWindowState window;
  RecordingMessages messages;
  openDeleteMenu(state, window);
  EXPECT_FALSE(chooseDeleteEntry(DeleteEntry::SpindlePoint, state, window, messages));
  EXPECT_EQ(messages.texts(), std::vector<std::string>{"Spindle Point not set"});
  EXPECT_EQ(state.pendingItem, PendingItem::Line);
  EXPECT_EQ(window.prompt, "Select type of item to delete. Right Mouse Button to cancel.");

  state.spindlePointPlaced = true;
  EXPECT_TRUE(chooseDeleteEntry(DeleteEntry::SpindlePoint, state, window, messages));
  EXPECT_EQ(state.pendingItem, PendingItem::SpindlePoint);
  EXPECT_EQ(window.prompt, "Press Left Button to Delete Spindle Point, Right Button to Cancel");
}

TEST(MoveMenu, ArmsEachEntryAndRefusesAMissingSpindlePoint) {
  EditorState state;
  EditWindowState window;
  RecordingMessages messages;
  state.pendingItem = PendingItem::EndPoint;
  openMoveMenu(state, window);
  EXPECT_EQ(state.operation, EditOperation::Move);
  EXPECT_EQ(state.pendingItem, PendingItem::Line);
  EXPECT_TRUE(state.snapOn);
  EXPECT_EQ(window.prompt, "Select type of item to move. Right Mouse Button to cancel.");

  EXPECT_TRUE(chooseMoveEntry(MoveEntry::Symbol, state, window, messages));
  EXPECT_EQ(state.pendingItem, PendingItem::WholeSymbol);
  EXPECT_EQ(window.prompt,
            "Move to New Start Point for Symbol and Select with Left Button. Right Button = "
            "Cancel.");
  EXPECT_TRUE(chooseMoveEntry(MoveEntry::StartPoint, state, window, messages));
  EXPECT_EQ(state.pendingItem, PendingItem::StartPoint);
  EXPECT_FALSE(chooseMoveEntry(MoveEntry::SpindlePoint, state, window, messages));
  EXPECT_EQ(state.pendingItem, PendingItem::StartPoint);
  EXPECT_EQ(messages.texts(), std::vector<std::string>{"Spindle Point not set"});
}

TEST(PickTolerance, IsHalfTheSpacingRoundedHalfToEven) {
  EXPECT_EQ(pickTolerance(100), 50);
  EXPECT_EQ(pickTolerance(233), 116);
  EXPECT_EQ(pickTolerance(235), 118);
}

TEST(DeleteLine, DeletingAMiddleLineKeepsTheCountAndTheLaterPoints) {
  WorkingSymbol working = symbolOf(
      {{kLine, 1200, 1000}, {kLine, 1300, 1000, true}, {kLine, 1400, 1000}, {kLine, 1400, 900}});
  const WorkingSymbol before = working;
  RecordingMessages messages;
  messages.queue(Answer::Yes);
  Painter painter;

  EXPECT_TRUE(deleteSegmentAt(SegmentKind::Line, {1250, 1010}, working, kGrid.spacing, messages,
                              painter.callback()));

  ASSERT_EQ(messages.shown().size(), 1u);
  EXPECT_EQ(messages.shown()[0].title, "Delete Line");
  EXPECT_EQ(messages.shown()[0].text, "Delete This Line?");
  EXPECT_EQ(messages.shown()[0].buttons, Buttons::YesNo);
  ASSERT_EQ(painter.painted.size(), 1u);
  EXPECT_EQ(painter.painted[0].to, before.slots[3]);
  EXPECT_EQ(painter.painted[0].colour, 12);

  EXPECT_EQ(working.actionCount, before.actionCount);
  // The deleted character line no longer stores as a character line.
  EXPECT_EQ(working.slots[3], (WorkingAction{kMove, 1300, 1000, false}));
  for (int slot : {1, 2, 4, 5}) EXPECT_EQ(working.slots[slot], before.slots[slot]) << slot;
}

TEST(DeleteLine, AClickOnTheWidenedRectanglesEdgeDoesNotPick) {
  // One line from (1100, 1000) to (1200, 1000); widened by 50 it spans 1050..1250 x 950..1050.
  for (const FormPosition edge : {FormPosition{1250, 1000}, FormPosition{1050, 1000},
                                  FormPosition{1150, 1050}, FormPosition{1150, 950}}) {
    WorkingSymbol working = symbolOf({{kLine, 1200, 1000}});
    RecordingMessages messages;
    EXPECT_FALSE(deleteSegmentAt(SegmentKind::Line, edge, working, kGrid.spacing, messages, {}));
    EXPECT_EQ(messages.texts(), std::vector<std::string>{"Line not found."});
    EXPECT_EQ(working.slots[2].type, kLine);
  }
  for (const FormPosition inside : {FormPosition{1249, 1000}, FormPosition{1051, 1049}}) {
    WorkingSymbol working = symbolOf({{kLine, 1200, 1000}});
    RecordingMessages messages;
    messages.queue(Answer::Yes);
    EXPECT_TRUE(deleteSegmentAt(SegmentKind::Line, inside, working, kGrid.spacing, messages, {}));
    EXPECT_EQ(working.slots[2].type, kMove);
  }
}

TEST(DeleteLine, DecliningEveryCandidateRedrawsEachInBlackAndEndsWithNotFound) {
  // Two lines that both pass near (1150, 1000), and a pen-up move that is not a candidate.
  WorkingSymbol working = symbolOf({{kLine, 1200, 1000}, {kMove, 1100, 1100}, {kLine, 1200, 950}});
  const WorkingSymbol before = working;
  RecordingMessages messages;
  messages.queue(Answer::No);
  messages.queue(Answer::No);
  Painter painter;

  EXPECT_FALSE(deleteSegmentAt(SegmentKind::Line, {1150, 1000}, working, kGrid.spacing, messages,
                               painter.callback()));

  EXPECT_EQ(messages.texts(), (std::vector<std::string>{"Delete This Line?", "Delete This Line?",
                                                        "Line not found."}));
  ASSERT_EQ(painter.painted.size(), 4u);
  EXPECT_EQ(painter.painted[0].to, before.slots[2]);
  EXPECT_EQ(painter.painted[0].colour, 12);
  EXPECT_EQ(painter.painted[1].colour, 0);
  EXPECT_EQ(painter.painted[2].from, before.slots[3]);
  EXPECT_EQ(painter.painted[2].to, before.slots[4]);
  EXPECT_EQ(painter.painted[3].colour, 0);
  for (int slot = 1; slot <= 4; ++slot) EXPECT_EQ(working.slots[slot], before.slots[slot]);
}

TEST(DeleteLine, LooksOnlyForTheKindSoughtAndOffersTheSecondAfterTheFirstIsDeclined) {
  WorkingSymbol working = symbolOf({{kLine, 1200, 1000},
                                    {kInsulation, 1300, 1000},
                                    {kMove, 1200, 1000},
                                    {kInsulation, 1300, 1010}});
  RecordingMessages messages;
  EXPECT_FALSE(
      deleteSegmentAt(SegmentKind::Tracing, {1250, 1000}, working, kGrid.spacing, messages, {}));
  EXPECT_EQ(messages.texts(), std::vector<std::string>{"Tracing not found."});

  messages.clear();
  messages.queue(Answer::No);
  messages.queue(Answer::Yes);
  EXPECT_TRUE(
      deleteSegmentAt(SegmentKind::Insulation, {1250, 1000}, working, kGrid.spacing, messages, {}));
  EXPECT_EQ(working.slots[3].type, kInsulation);
  EXPECT_EQ(working.slots[5].type, kMove);
  EXPECT_EQ(working.slots[2].type, kLine);
  EXPECT_EQ(messages.shown().size(), 2u);
}

TEST(DeleteTappingPoint, TakesTheNearestWithinTheToleranceAndDropsTheCount) {
  WorkingSymbol working =
      symbolOf({{kTappingPoint, 1200, 1000}, {kLine, 1230, 1000}, {kTappingPoint, 1240, 1000}});
  working.tappingCount = 2;
  RecordingMessages messages;

  EXPECT_TRUE(deleteTappingPointAt({1225, 1000}, working, kGrid.spacing, messages));
  EXPECT_EQ(working.slots[4], (WorkingAction{kMove, 1240, 1000}));
  EXPECT_EQ(working.slots[2].type, kTappingPoint);
  EXPECT_EQ(working.tappingCount, 1);
  EXPECT_EQ(working.actionCount, 4);

  // Exactly the tolerance away is too far.
  EXPECT_FALSE(deleteTappingPointAt({1250, 1000}, working, kGrid.spacing, messages));
  EXPECT_EQ(messages.texts(), std::vector<std::string>{"Tapping Point not found."});
  EXPECT_EQ(working.tappingCount, 1);
}

TEST(MovePoints, TheStartPointMustStayInThePositiveArea) {
  WorkingSymbol working = symbolOf({{kLine, 1200, 1000}});
  RecordingMessages messages;
  EXPECT_TRUE(moveStartPoint({1100, kBottom}, working, kGrid, messages));
  EXPECT_EQ(working.slots[1], (WorkingAction{kMove, 1100, kBottom}));
  EXPECT_FALSE(moveStartPoint({1099, 1000}, working, kGrid, messages));
  EXPECT_FALSE(moveStartPoint({1200, kBottom + 1}, working, kGrid, messages));
  EXPECT_EQ(working.slots[1], (WorkingAction{kMove, 1100, kBottom}));
  EXPECT_EQ(messages.texts(), (std::vector<std::string>(
                                  2,
                                  "New Start Point can not be adopted as Symbol can not fit within "
                                  "the positive area of the grid")));
}

TEST(LeftClickInMove, MovesThePendingPointAndMarksTheSymbolPending) {
  WorkingSymbol working = symbolOf({{kLine, 1200, 1000}});
  EditorState state;
  EditWindowState window;
  RecordingMessages messages;
  openMoveMenu(state, window);
  EXPECT_FALSE(moveAtCursor(state, working, kGrid, messages));

  chooseMoveEntry(MoveEntry::EndPoint, state, window, messages);
  state.cursorPoint = {1500, 1200};
  EXPECT_TRUE(moveAtCursor(state, working, kGrid, messages));
  EXPECT_EQ(working.slots[kEndSlot], (WorkingAction{kWorkingEndPoint, 1500, 1200}));
  EXPECT_TRUE(state.endPointPlaced);
  EXPECT_TRUE(state.symbolPending);

  state.spindlePointPlaced = true;
  chooseMoveEntry(MoveEntry::SpindlePoint, state, window, messages);
  state.cursorPoint = {1300, 900};
  EXPECT_TRUE(moveAtCursor(state, working, kGrid, messages));
  EXPECT_EQ(working.slots[kSpindleSlot], (WorkingAction{kSpindlePoint, 1300, 900}));

  chooseMoveEntry(MoveEntry::Symbol, state, window, messages);
  state.cursorPoint = {1200, 1100};
  EXPECT_TRUE(moveAtCursor(state, working, kGrid, messages));
  EXPECT_EQ(working.slots[2], (WorkingAction{kLine, 1300, 1100}));
  EXPECT_EQ(working.slots[kEndSlot], (WorkingAction{kWorkingEndPoint, 1600, 1300}));
  EXPECT_TRUE(messages.shown().empty());
}

TEST(LeftClickInDelete, ActsOnWhatTheMenuArmed) {
  WorkingSymbol working = symbolOf({{kLine, 1200, 1000}, {kTappingPoint, 1300, 1000}});
  working.tappingCount = 1;
  EditorState state;
  EditWindowState window;
  RecordingMessages messages;
  state.spindlePointPlaced = true;
  openDeleteMenu(state, window);
  state.cursorPoint = {1150, 1000};
  // No entry chosen yet: the click does nothing.
  EXPECT_FALSE(deleteAtCursor(state, working, kGrid, messages, {}));
  EXPECT_TRUE(messages.shown().empty());

  chooseDeleteEntry(DeleteEntry::Line, state, window, messages);
  messages.queue(Answer::Yes);
  EXPECT_TRUE(deleteAtCursor(state, working, kGrid, messages, {}));
  EXPECT_EQ(working.slots[2].type, kMove);
  EXPECT_TRUE(state.symbolPending);

  chooseDeleteEntry(DeleteEntry::TappingPoint, state, window, messages);
  state.cursorPoint = {1310, 990};
  EXPECT_TRUE(deleteAtCursor(state, working, kGrid, messages, {}));
  EXPECT_EQ(working.tappingCount, 0);

  chooseDeleteEntry(DeleteEntry::SpindlePoint, state, window, messages);
  EXPECT_TRUE(deleteAtCursor(state, working, kGrid, messages, {}));
  EXPECT_FALSE(state.spindlePointPlaced);
  EXPECT_FALSE(deleteAtCursor(state, working, kGrid, messages, {}));
}

}  // namespace
}  // namespace quorn
