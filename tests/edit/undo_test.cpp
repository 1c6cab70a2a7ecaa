#include "edit/undo.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/recording_messages.h"

namespace quorn {
namespace {

using test::RecordingMessages;

const std::string kErasePrompt = "Select New Symbol or use Show to view and edit Current Symbols.";

/// The editor as the drawing steps leave it: each step appends its action (the start point in
/// slot 1) and its kind to the history. Spindle and end points go to their own slots.
struct Drawn {
  EditorState state;
  WorkingSymbol working;
  EditWindowState window;

  Drawn& step(StepKind kind, std::int32_t x, std::int32_t y) {
    const FormPosition point{x, y};
    switch (kind) {
      case StepKind::SpindlePoint:
        working.slots[kSpindleSlot] = {kSpindlePoint, x, y};
        state.spindlePointPlaced = true;
        break;
      case StepKind::EndPoint:
        working.slots[kEndSlot] = {kWorkingEndPoint, x, y};
        state.endPointPlaced = true;
        break;
      default: {
        const std::int16_t code =
            kind == StepKind::StartPoint ? std::int16_t{kMove} : static_cast<std::int16_t>(kind);
        working.slots[++working.actionCount] = {code, x, y};
        if (kind == StepKind::TappingPoint) ++working.tappingCount;
        state.lastPoint = point;
        if (kind == StepKind::StartPoint || kind == StepKind::PenUpMove) state.strokeStart = point;
      }
    }
    state.undoHistory.push_back(kind);
    return *this;
  }
};

TEST(Undo, ALineThatBeganAStrokeGoesWithItsPenUpMove) {
  Drawn drawn;
  drawn.step(StepKind::StartPoint, 1100, 1000)
      .step(StepKind::Line, 1200, 1000)
      .step(StepKind::PenUpMove, 1300, 1100)
      .step(StepKind::Line, 1400, 1100);
  EXPECT_TRUE(undoLastStep(drawn.state, drawn.working, drawn.window));
  EXPECT_EQ(drawn.working.actionCount, 2);
  EXPECT_EQ(drawn.state.undoHistory, (std::vector<StepKind>{StepKind::StartPoint, StepKind::Line}));
  // The polyline was under way: it goes on from the point before the line taken back.
  EXPECT_EQ(drawn.state.lastPoint, (FormPosition{1300, 1100}));
  EXPECT_EQ(drawn.window.prompt, "Select End point and Draw Line. Right Button > Move Mode.");
  EXPECT_TRUE(drawn.state.symbolPending);
  EXPECT_EQ(drawn.working.slots[3], WorkingAction{});
}

TEST(Undo, TappingSpindleAndEndPointsAreTakenBackByTheirOwnRules) {
  Drawn drawn;
  drawn.step(StepKind::StartPoint, 1100, 1000)
      .step(StepKind::Line, 1200, 1000)
      .step(StepKind::TappingPoint, 1250, 1000)
      .step(StepKind::SpindlePoint, 1300, 900)
      .step(StepKind::EndPoint, 1500, 1000);
  drawn.state.newStrokePending = true;  // no polyline under way: the prompt stays
  drawn.window.prompt = "before";

  undoLastStep(drawn.state, drawn.working, drawn.window);
  EXPECT_FALSE(drawn.state.endPointPlaced);
  EXPECT_EQ(drawn.state.lastPoint, (FormPosition{1500, 1000}));
  EXPECT_EQ(drawn.state.strokeStart, (FormPosition{1500, 1000}));
  EXPECT_EQ(drawn.working.actionCount, 3);

  undoLastStep(drawn.state, drawn.working, drawn.window);
  EXPECT_FALSE(drawn.state.spindlePointPlaced);
  EXPECT_EQ(drawn.state.lastPoint, (FormPosition{1300, 900}));
  EXPECT_EQ(drawn.working.actionCount, 3);

  undoLastStep(drawn.state, drawn.working, drawn.window);
  EXPECT_EQ(drawn.working.tappingCount, 0);
  EXPECT_EQ(drawn.working.actionCount, 2);
  EXPECT_EQ(drawn.window.prompt, "before");
}

TEST(Undo, DropsEveryPenUpMoveLeftAtTheEnd) {
  Drawn drawn;
  drawn.step(StepKind::StartPoint, 1100, 1000)
      .step(StepKind::Insulation, 1200, 1000)
      .step(StepKind::PenUpMove, 1300, 1000)
      .step(StepKind::PenUpMove, 1400, 1000)
      .step(StepKind::TappingPoint, 1400, 1000);
  undoLastStep(drawn.state, drawn.working, drawn.window);
  EXPECT_EQ(drawn.working.actionCount, 2);
  EXPECT_EQ(drawn.working.tappingCount, 0);
  EXPECT_EQ(drawn.state.undoHistory,
            (std::vector<StepKind>{StepKind::StartPoint, StepKind::Insulation}));
}

TEST(Undo, NeverRemovesTheStartPointForAPenUpMove) {
  // A symbol shown from the Current Set has actions that no history entry stands for.
  Drawn drawn;
  drawn.working.slots[1] = {kMove, 1100, 1000};
  drawn.working.actionCount = 1;
  drawn.state.undoHistory = {StepKind::PenUpMove, StepKind::Line};
  undoLastStep(drawn.state, drawn.working, drawn.window);
  EXPECT_EQ(drawn.working.actionCount, 1);
  EXPECT_EQ(drawn.working.slots[1], (WorkingAction{kMove, 1100, 1000}));
  EXPECT_TRUE(drawn.state.undoHistory.empty());
}

TEST(Undo, TakingBackTheStartPointLeavesAnEmptySymbolWaitingForANewOne) {
  Drawn drawn;
  drawn.step(StepKind::StartPoint, 1100, 1000);
  drawn.working.oldKey = "VBSW";
  drawn.state.snapOn = false;
  drawn.state.snapSuspended = true;
  drawn.state.operation = EditOperation::Delete;
  drawn.state.endPointPlaced = true;
  EXPECT_TRUE(undoLastStep(drawn.state, drawn.working, drawn.window));
  EXPECT_EQ(drawn.working.actionCount, 0);
  EXPECT_EQ(drawn.working.slots[1], WorkingAction{});
  EXPECT_EQ(drawn.working.oldKey, "VBSW");
  EXPECT_TRUE(drawn.state.undoHistory.empty());
  EXPECT_FALSE(drawn.state.endPointPlaced);
  EXPECT_EQ(drawn.state.pendingItem, PendingItem::StartPoint);
  EXPECT_EQ(drawn.state.operation, EditOperation::Draw);
  EXPECT_TRUE(drawn.state.snapOn);
  EXPECT_EQ(drawn.window.snapLabel, "Snap is On");
  EXPECT_EQ(drawn.state.lastPoint, FormPosition{});
  EXPECT_EQ(drawn.window.prompt, "Move to Start Point for Symbol and Select with Left Button");
}

TEST(Undo, AnEmptyHistoryDoesNothing) {
  Drawn drawn;
  drawn.working.slots[1] = {kMove, 1100, 1000};
  drawn.working.slots[2] = {kLine, 1200, 1000};
  drawn.working.actionCount = 2;
  drawn.state.lastPoint = {1200, 1000};
  drawn.window.prompt = "before";
  const WorkingSymbol before = drawn.working;
  EXPECT_FALSE(undoLastStep(drawn.state, drawn.working, drawn.window));
  EXPECT_EQ(drawn.working.slots, before.slots);
  EXPECT_EQ(drawn.working.actionCount, 2);
  EXPECT_EQ(drawn.state.lastPoint, (FormPosition{1200, 1000}));
  EXPECT_EQ(drawn.window.prompt, "before");
  EXPECT_FALSE(drawn.state.symbolPending);
}

TEST(Erase, APendingSymbolIsDroppedOnlyAfterYes) {
  Drawn drawn;
  drawn.step(StepKind::StartPoint, 1100, 1000).step(StepKind::Line, 1200, 1000);
  drawn.state.symbolPending = true;
  drawn.state.symbolOnSurface = true;
  CurrentSet set;
  set.append();
  set.append();
  RecordingMessages messages;
  messages.queue(Answer::No);
  EXPECT_FALSE(eraseSymbol(drawn.state, drawn.working, set, drawn.window, messages));
  ASSERT_EQ(messages.shown().size(), 1u);
  EXPECT_EQ(messages.shown()[0].title, "Quorn Symbols Editor");
  EXPECT_EQ(messages.shown()[0].text,
            "Erasing the Symbol will lose all work done since it was last Shown. Do you really "
            "wish to erase the current symbol?");
  EXPECT_EQ(messages.shown()[0].buttons, Buttons::YesNo);
  EXPECT_EQ(drawn.working.actionCount, 2);
  EXPECT_TRUE(drawn.state.symbolOnSurface);

  messages.queue(Answer::Yes);
  EXPECT_TRUE(eraseSymbol(drawn.state, drawn.working, set, drawn.window, messages));
  EXPECT_EQ(drawn.working.actionCount, 0);
  EXPECT_TRUE(drawn.state.undoHistory.empty());
  EXPECT_FALSE(drawn.state.symbolOnSurface);
  EXPECT_FALSE(drawn.state.symbolPending);
  EXPECT_EQ(drawn.state.operation, EditOperation::Draw);
  EXPECT_TRUE(drawn.window.moveMenuVisible);
  EXPECT_EQ(drawn.window.prompt, kErasePrompt);
  EXPECT_EQ(drawn.window.statusText, " 2 Symbols Loaded");
  EXPECT_EQ(set.count(), 2);
}

TEST(Erase, AnUnchangedSymbolGoesWithoutAQuestion) {
  Drawn drawn;
  drawn.step(StepKind::StartPoint, 1100, 1000);
  drawn.state.undoHistory.clear();
  drawn.state.operation = EditOperation::Move;
  drawn.state.pendingItem = PendingItem::WholeSymbol;
  CurrentSet set;
  RecordingMessages messages;
  EXPECT_TRUE(eraseSymbol(drawn.state, drawn.working, set, drawn.window, messages));
  EXPECT_TRUE(messages.shown().empty());
  EXPECT_EQ(drawn.state.operation, EditOperation::Draw);
  EXPECT_EQ(drawn.state.pendingItem, PendingItem::Line);
  EXPECT_EQ(drawn.window.prompt, "Select New Symbol.");
  EXPECT_EQ(drawn.window.statusText, " 0 Symbols Loaded");
}

TEST(DeleteSymbolFromSet, AsksByTheSymbolsKeyAndRemovesItOnYes) {
  CurrentSet set;
  for (const char* key : {"VBSW", "FLWN", "TEBW"}) set.append().oldKey = key;
  EditorState state;
  state.symbolNumber = 2;
  EditWindowState window;
  RecordingMessages messages;
  messages.queue(Answer::No);
  EXPECT_FALSE(deleteSymbolFromSet(state, set, window, messages));
  ASSERT_EQ(messages.shown().size(), 1u);
  EXPECT_EQ(messages.shown()[0].title, "User Defined Symbols Editor");
  EXPECT_EQ(messages.shown()[0].text,
            "Are you sure you wish to permanently delete Symbol FLWN from this set?");
  EXPECT_EQ(set.count(), 3);
  EXPECT_FALSE(set.changed);

  messages.queue(Answer::Yes);
  EXPECT_TRUE(deleteSymbolFromSet(state, set, window, messages));
  ASSERT_EQ(set.count(), 2);
  EXPECT_EQ(set.symbol(2).oldKey, "TEBW");
  EXPECT_TRUE(set.changed);
  EXPECT_EQ(window.statusText, " 2 Symbols Loaded");
  // A later Done must not overwrite TEBW, which moved up into the deleted place.
  EXPECT_EQ(state.symbolNumber, 3);
}

TEST(DeleteSymbolFromSet, ASymbolNotYetInTheSetAsksNothing) {
  CurrentSet set;
  set.append().oldKey = "VBSW";
  EditorState state;
  state.symbolNumber = 2;
  EditWindowState window;
  RecordingMessages messages;
  EXPECT_FALSE(deleteSymbolFromSet(state, set, window, messages));
  EXPECT_TRUE(messages.shown().empty());
  EXPECT_EQ(set.count(), 1);
}

}  // namespace
}  // namespace quorn
