#include "edit/drawing_engine.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "edit/action_buttons.h"
#include "edit/grid_point.h"
#include "support/recording_canvas.h"
#include "support/recording_messages.h"

namespace quorn {
namespace {

using test::CallKind;
using test::RecordingCanvas;
using test::RecordingMessages;

// 60 divisions of 100 form units across, 30 down: x 1100 to 7100, y 500 to 3500.
const GridGeometry kGrid{60, 100, 6000, 30, 3000, 200.0f};

const std::string kLimitText =
    "Unable to add this action to the current symbol as you have reached the limit of 200 "
    "actions.";

/// The editor's drawing surface with a blank symbol on it, waiting for its start point.
struct Surface {
  Configuration config;
  GridGeometry grid = kGrid;
  GroupFlags flags;
  CurrentSet set;
  WorkingSymbol working;
  EditorState state;
  EditWindowState window;
  DrawingSession session;
  RecordingCanvas canvas;
  RecordingMessages messages;

  Surface() {
    state.symbolOnSurface = true;
    state.symbolInProgress = true;
    state.pendingItem = PendingItem::StartPoint;
    state.symbolNumber = 1;
  }

  DrawingContext context() {
    return DrawingContext{config, grid,   flags,   set,    working,
                          state,  window, session, canvas, messages};
  }
  Surface& click(float x, float y) {
    auto drawing = context();
    pressMouse(drawing, MouseButton::Left, x, y);
    return *this;
  }
  Surface& rightClick(float x = 2000, float y = 2000) {
    auto drawing = context();
    pressMouse(drawing, MouseButton::Right, x, y);
    return *this;
  }
  Surface& move(float x, float y) {
    auto drawing = context();
    moveMouse(drawing, x, y);
    return *this;
  }
  ButtonFollowUp press(ActionButton button) {
    auto drawing = context();
    return pressActionButton(drawing, button);
  }
  std::vector<std::int16_t> codes() const {
    std::vector<std::int16_t> result;
    for (int slot = 1; slot <= working.actionCount; ++slot)
      result.push_back(working.slots[slot].type);
    return result;
  }
  std::vector<bool> characterFlags() const {
    std::vector<bool> result;
    for (int slot = 1; slot <= working.actionCount; ++slot) {
      result.push_back(working.slots[slot].character);
    }
    return result;
  }
  const WorkingAction& slot(int number) const { return working.slots[number]; }
};

TEST(GridPoint, ClampsToTheGridAndSnapsHalvesUpward) {
  // Snap off: whole form units, halves to even, held to the grid rectangle.
  EXPECT_EQ(gridPointOf(300.0f, 1000.0f, false, kGrid), (FormPoint{1100, 1000}));
  EXPECT_EQ(gridPointOf(9000.0f, 1000.0f, false, kGrid), (FormPoint{7100, 1000}));
  EXPECT_EQ(gridPointOf(2000.0f, 100.0f, false, kGrid), (FormPoint{2000, 500}));
  EXPECT_EQ(gridPointOf(2000.0f, 5000.0f, false, kGrid), (FormPoint{2000, 3500}));
  EXPECT_EQ(gridPointOf(1234.5f, 1235.5f, false, kGrid), (FormPoint{1234, 1236}));

  // Snap on: half-way goes to the upper line, just short of it to the lower.
  EXPECT_EQ(gridPointOf(1350.0f, 650.0f, true, kGrid), (FormPoint{1400, 700}));
  EXPECT_EQ(gridPointOf(1349.9f, 649.9f, true, kGrid), (FormPoint{1300, 600}));
  EXPECT_EQ(gridPointOf(50.0f, 9000.0f, true, kGrid), (FormPoint{1100, 3500}));

  // A spacing that does not divide evenly: 116.5 past a line of a 233 grid is exactly half.
  GridGeometry odd = kGrid;
  odd.spacing = 233;
  odd.gridWidth = 233 * 60;
  odd.gridHeight = 233 * 30;
  EXPECT_EQ(gridPointOf(1100 + 699 + 116.5f, 500 + 116.4f, true, odd),
            (FormPoint{1100 + 932, 500}));
}

TEST(DrawingEngine, ClicksOutsideTheGridActAtItsEdge) {
  Surface surface;
  surface.state.snapOn = false;
  surface.click(2000, 2000).click(200, 2000);
  EXPECT_EQ(surface.slot(2).x, 1100);
  surface.click(20000, 2000);
  EXPECT_EQ(surface.slot(3).x, 7100);
  EXPECT_EQ(surface.state.cursorPoint, (FormPoint{7100, 2000}));
}

TEST(DrawingEngine, StartPointThenStrokesWithPenUpMovesAfterTheRightButton) {
  Surface surface;
  surface.click(1310, 1020);
  EXPECT_EQ(surface.working.actionCount, 1);
  EXPECT_EQ(surface.slot(1), (WorkingAction{kMove, 1300, 1000, false}));
  EXPECT_EQ(surface.state.undoHistory, std::vector<StepKind>{StepKind::StartPoint});
  EXPECT_EQ(surface.state.pendingItem, PendingItem::Line);
  EXPECT_EQ(surface.window.prompt, "Select End point and Draw Line. Right Button = Move Mode.");
  EXPECT_EQ(surface.canvas.count(CallKind::Circle, surface.config.startColour), 1);

  surface.click(1500, 1000).click(1500, 1200);
  EXPECT_EQ(surface.codes(), (std::vector<std::int16_t>{kMove, kLine, kLine}));
  EXPECT_EQ(surface.state.lastPoint, (FormPoint{1500, 1200}));
  const auto lines = surface.canvas.ofKind(CallKind::Line);
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines.back().x1, 1500);
  EXPECT_EQ(lines.back().y1, 1000);
  EXPECT_EQ(lines.back().y2, 1200);

  surface.rightClick();
  EXPECT_TRUE(surface.state.newStrokePending);
  EXPECT_EQ(surface.state.pendingItem, PendingItem::Line);
  EXPECT_EQ(surface.window.prompt,
            "Left Button = Select Start Point for Line. Right Button = Refresh Screen.");
  EXPECT_EQ(surface.canvas.calls().back().kind, CallKind::Circle) << "the symbol was redrawn";

  surface.click(2000, 2000).click(2100, 2000);
  EXPECT_EQ(surface.codes(), (std::vector<std::int16_t>{kMove, kLine, kLine, kMove, kLine}));
  EXPECT_EQ(surface.state.strokeStart, (FormPoint{2000, 2000}));
  EXPECT_EQ(surface.state.undoHistory.size(), 5u);
  EXPECT_TRUE(surface.state.symbolPending);
}

TEST(DrawingEngine, TheTwoHundredthStepIsTheLast) {
  Surface surface;
  surface.click(1200, 1000);
  for (int step = 2; step <= 199; ++step) surface.click(step % 2 ? 1200 : 1300, 1000);
  ASSERT_EQ(surface.state.undoHistory.size(), 199u);
  ASSERT_TRUE(surface.messages.shown().empty());

  surface.click(1700, 1000);
  EXPECT_EQ(surface.state.undoHistory.size(), 200u);
  EXPECT_EQ(surface.working.actionCount, 200);
  EXPECT_EQ(surface.slot(200).x, 1700);

  surface.click(1800, 1000);
  EXPECT_EQ(surface.messages.texts(), std::vector<std::string>{kLimitText});
  EXPECT_EQ(surface.working.actionCount, 200);
  EXPECT_EQ(surface.slot(201), WorkingAction{}) << "the spindle slot stays clear";
}

TEST(DrawingEngine, NineTappingPointsAndNoMore) {
  Surface surface;
  surface.click(1200, 1000);
  EXPECT_EQ(surface.press(ActionButton::TappingPoint), ButtonFollowUp::None);
  EXPECT_EQ(surface.state.pendingItem, PendingItem::TappingPoint);
  EXPECT_EQ(surface.window.prompt, "Select Tapping Point with Left Button. Right Button = Cancel.");
  for (int point = 1; point <= 9; ++point) surface.click(1200 + 100 * point, 2000);
  EXPECT_EQ(surface.working.tappingCount, 9);
  EXPECT_TRUE(surface.messages.shown().empty());

  surface.click(2500, 2500);
  EXPECT_EQ(surface.messages.texts(),
            std::vector<std::string>{"Only 9 Tapping Points are allowed on any one symbol."});
  EXPECT_EQ(surface.working.tappingCount, 9);
  EXPECT_EQ(surface.working.actionCount, 10);
  EXPECT_EQ(surface.canvas.count(CallKind::Circle, surface.config.teeColour), 9);
}

TEST(DrawingEngine, CharacterModeFlagsLinesOnly) {
  Surface surface;
  surface.click(1200, 1000);
  EXPECT_EQ(surface.press(ActionButton::Char), ButtonFollowUp::None);
  EXPECT_EQ(surface.window.charLabel, "Char is On");
  surface.click(1300, 1000);
  surface.press(ActionButton::Insulation);
  surface.click(1300, 1500).click(1400, 1500);
  surface.press(ActionButton::Tracing);
  surface.click(1300, 1700).click(1400, 1700);
  EXPECT_EQ(surface.codes(),
            (std::vector<std::int16_t>{kMove, kLine, kMove, kInsulation, kMove, kTracing}));
  EXPECT_EQ(surface.characterFlags(), (std::vector<bool>{false, true, false, false, false, false}));

  surface.press(ActionButton::Char);
  EXPECT_EQ(surface.window.charLabel, "Char is Off");
  EXPECT_FALSE(surface.state.charMode);
}

TEST(DrawingEngine, PolylinePromptsFollowTheItem) {
  Surface surface;
  surface.click(1200, 1000);
  surface.press(ActionButton::Insulation);
  EXPECT_EQ(surface.window.prompt, "Select Start Point for Insulation with Left Button");
  EXPECT_TRUE(surface.state.newStrokePending);
  surface.click(1500, 1500);
  EXPECT_EQ(surface.window.prompt, "Select End Point for Insulation. Right Button > Move Mode.");
  surface.press(ActionButton::Tracing);
  EXPECT_EQ(surface.window.prompt, "Select Start Point for Tracing with Left Button");
  surface.click(1500, 1500);
  EXPECT_EQ(surface.window.prompt, "Select End Point for Tracing. Right Button > Move Mode.");
}

TEST(DrawingEngine, ItemButtonsCheckInOrderAndRecordTheirHint) {
  Surface none;
  none.state.symbolOnSurface = false;
  none.press(ActionButton::End);
  EXPECT_EQ(none.messages.texts(), std::vector<std::string>{"Please Initiate New Symbol first"});
  EXPECT_EQ(none.state.pendingItem, PendingItem::StartPoint);
  EXPECT_EQ(none.state.lastButton, ActionButton::End);
  EXPECT_EQ(none.window.hint, "Add End Point");

  Surface surface;
  surface.click(1200, 1000);
  surface.flags.digit[1] = true;  // no spindle
  surface.flags.digit[2] = true;  // no tapping points
  surface.press(ActionButton::SpindlePoint);
  surface.press(ActionButton::TappingPoint);
  surface.press(ActionButton::End);
  surface.click(1500, 1000);
  surface.press(ActionButton::End);
  surface.press(ActionButton::Arc);
  surface.press(ActionButton::Arc);
  surface.press(ActionButton::Circle);
  surface.press(ActionButton::Circle);
  EXPECT_EQ(surface.messages.texts(),
            (std::vector<std::string>{"No Spindle Point is allowed on this Symbol",
                                      "No Tapping Points are allowed on this Symbol",
                                      "Only One End Point is allowed per Symbol",
                                      "Please complete current Arc first",
                                      "Please complete current circle first"}));
  EXPECT_EQ(surface.state.lastButton, ActionButton::Circle);
  EXPECT_EQ(surface.window.hint, "Draw Circle");
  EXPECT_FALSE(surface.state.arcInProgress) << "the Circle button gave up the arc";
  EXPECT_TRUE(surface.state.circleInProgress);

  surface.flags.digit[1] = false;
  surface.press(ActionButton::SpindlePoint);
  surface.click(1400, 1400);
  surface.press(ActionButton::SpindlePoint);
  EXPECT_EQ(surface.messages.texts().back(), "Only One Spindle Point is allowed per Symbol");
}

TEST(DrawingEngine, ItemButtonsGiveUpMovesDeletionsAndStrokes) {
  Surface surface;
  surface.click(1200, 1000).click(1300, 1000);
  auto context = surface.context();
  chooseMoveEntry(context, MoveEntry::Symbol);
  ASSERT_EQ(surface.state.operation, EditOperation::Move);
  surface.press(ActionButton::End);
  EXPECT_EQ(surface.state.operation, EditOperation::Draw);
  EXPECT_EQ(surface.state.pendingItem, PendingItem::EndPoint);
  EXPECT_EQ(surface.window.prompt, "Select End Point with Left Button");

  chooseDeleteEntry(context, DeleteEntry::Line);
  ASSERT_TRUE(surface.state.lineDeletionArmed);
  ASSERT_FALSE(surface.state.snapOn);
  surface.press(ActionButton::Insulation);
  EXPECT_FALSE(surface.state.lineDeletionArmed);
  EXPECT_EQ(surface.state.operation, EditOperation::Draw);
  EXPECT_TRUE(surface.state.snapOn) << "the Delete menu's suspension ends with it";
  EXPECT_TRUE(surface.state.newStrokePending);
}

TEST(DrawingEngine, SpindleAndEndPointsGoToTheirSlots) {
  Surface surface;
  surface.click(1200, 1000).click(1300, 1000);
  surface.press(ActionButton::SpindlePoint);
  surface.click(1250, 800);
  surface.press(ActionButton::End);
  surface.click(1600, 1000);
  EXPECT_EQ(surface.slot(kSpindleSlot), (WorkingAction{kSpindlePoint, 1300, 800, false}));
  EXPECT_EQ(surface.slot(kEndSlot), (WorkingAction{kWorkingEndPoint, 1600, 1000, false}));
  EXPECT_TRUE(surface.state.spindlePointPlaced);
  EXPECT_TRUE(surface.state.endPointPlaced);
  EXPECT_EQ(surface.working.actionCount, 2) << "the point slots are not drawn actions";
  EXPECT_EQ(surface.state.undoHistory,
            (std::vector<StepKind>{StepKind::StartPoint, StepKind::Line, StepKind::SpindlePoint,
                                   StepKind::EndPoint}));
  // Line drawing is pending again, with a new stroke.
  EXPECT_EQ(surface.state.pendingItem, PendingItem::Line);
  EXPECT_TRUE(surface.state.newStrokePending);
  EXPECT_EQ(surface.canvas.count(CallKind::Circle, surface.config.endColour), 1);
}

TEST(DrawingEngine, DoneChecksInOrderThenStoresTheSymbol) {
  Surface surface;
  surface.working.oldKey = surface.working.oldKeyRaw = "VBFL";
  surface.click(1300, 1000).click(1500, 1000);
  surface.press(ActionButton::Done);
  EXPECT_EQ(surface.messages.texts().back(), "Symbol Must Have an End Point before terminating.");

  // One form unit left of the start point is refused.
  surface.state.snapOn = false;
  surface.press(ActionButton::End);
  surface.click(1299, 2000);
  surface.press(ActionButton::Done);
  EXPECT_EQ(surface.messages.texts().back(),
            "The Symbol End Point has been placed to the Left of the Start Point. This is not "
            "allowed. Please re-position the Start Point and/or the End Point using the "
            "appropriate Move command in the menu.");
  EXPECT_EQ(surface.set.count(), 0);
  EXPECT_TRUE(surface.state.symbolOnSurface);

  // Directly above the start point is allowed.
  auto context = surface.context();
  chooseMoveEntry(context, MoveEntry::EndPoint);
  surface.click(1300, 2000);
  surface.messages.clear();
  EXPECT_EQ(surface.press(ActionButton::Done), ButtonFollowUp::SymbolStored);
  EXPECT_TRUE(surface.messages.shown().empty());
  ASSERT_EQ(surface.set.count(), 1);
  const SymbolRecord& stored = surface.set.symbol(1);
  EXPECT_EQ(stored.oldKey, "VBFL");
  // 200 form units per millimetre: (1300, 1000) is 1 mm right of and 12.5 mm above the corner.
  EXPECT_EQ(stored.actions,
            (std::vector<SymbolAction>{{kMove, 100, 1250}, {kLine, 200, 1250}, {kMove, 100, 750}}));
  EXPECT_TRUE(surface.set.changed);
  EXPECT_FALSE(surface.state.symbolOnSurface);
  EXPECT_FALSE(surface.state.symbolInProgress);
  EXPECT_FALSE(surface.state.symbolPending);
  EXPECT_EQ(surface.state.operation, EditOperation::Draw);
  EXPECT_EQ(surface.state.pendingItem, PendingItem::Line);
  EXPECT_TRUE(surface.window.moveMenuVisible);
  EXPECT_EQ(surface.window.prompt, "Show existing Symbol, Select New or Exit");
  EXPECT_EQ(surface.window.countLabel, " 1 Symbols Loaded");

  surface.press(ActionButton::Done);
  EXPECT_EQ(surface.messages.texts().back(), "Please Initiate New Symbol first");
  surface.rightClick();
  EXPECT_EQ(surface.window.prompt, "Select New Symbol");
}

/// A symbol with its start, a line and its end point right of the start.
Surface finishedDrawing(const std::string& spindleKey, bool required, bool spindlePoint) {
  Surface surface;
  surface.working.spindleKey = spindleKey;
  surface.flags.digit[7] = required;
  surface.click(1300, 1000).click(1500, 1000);
  if (spindlePoint) {
    surface.press(ActionButton::SpindlePoint);
    surface.click(1400, 1000);
  }
  surface.press(ActionButton::End);
  surface.click(1600, 1000);
  surface.press(ActionButton::Done);
  return surface;
}

TEST(DrawingEngine, DoneFollowsTheSpindleKeyAndTheRequiredSpindlePoint) {
  const Surface suppressed = finishedDrawing("none", true, false);
  EXPECT_TRUE(suppressed.messages.shown().empty());
  EXPECT_EQ(suppressed.set.count(), 1);

  const Surface named = finishedDrawing("01SP", false, false);
  EXPECT_EQ(named.messages.texts(),
            std::vector<std::string>{
                "Spindle SKEY has been specified but no Spindle Point has been Defined"});

  const Surface required = finishedDrawing("", true, false);
  ASSERT_EQ(required.messages.shown().size(), 1u);
  EXPECT_EQ(required.messages.texts()[0].rfind("A Spindle Point is required by default", 0), 0u);
  EXPECT_EQ(required.set.count(), 0);

  const Surface suppressedWithPoint = finishedDrawing("NONE", false, true);
  ASSERT_EQ(suppressedWithPoint.messages.shown().size(), 1u);
  EXPECT_NE(suppressedWithPoint.messages.texts()[0].find("specify a Spindle SKey and and then"),
            std::string::npos);

  const Surface withPoint = finishedDrawing("01SP", true, true);
  EXPECT_TRUE(withPoint.messages.shown().empty());
  ASSERT_EQ(withPoint.set.count(), 1);
  EXPECT_EQ(withPoint.set.symbol(1).actions.size(), 4u) << "start, line, spindle, end";
  EXPECT_EQ(withPoint.set.symbol(1).actions[2].type, kSpindlePoint);
}

TEST(DrawingEngine, ArcsAndCirclesAppendMovesAndLines) {
  Surface surface;
  surface.click(1200, 1000);
  surface.press(ActionButton::Char);
  surface.press(ActionButton::Arc);
  EXPECT_TRUE(surface.state.arcInProgress);
  EXPECT_EQ(surface.window.prompt, "Select Arc Centre Point with Left Button");
  surface.click(2000, 1500).click(2400, 1500);
  EXPECT_EQ(surface.working.actionCount, 1) << "nothing is added before the third click";
  surface.click(2000, 1100);
  // A quarter circle of 32 segments a turn: one move and eight lines, flagged in char mode.
  ASSERT_EQ(surface.working.actionCount, 10);
  EXPECT_EQ(surface.slot(2), (WorkingAction{kMove, 2400, 1500, false}));
  for (int slot = 3; slot <= 10; ++slot) {
    EXPECT_EQ(surface.slot(slot).type, kLine);
    EXPECT_TRUE(surface.slot(slot).character);
  }
  EXPECT_EQ(surface.state.undoHistory.size(), 10u);
  EXPECT_FALSE(surface.state.arcInProgress);
  EXPECT_EQ(surface.state.pendingItem, PendingItem::Line);
  EXPECT_TRUE(surface.state.newStrokePending);
  EXPECT_EQ(surface.window.prompt, "Move without Drawing. Right Button > Draw Mode");

  surface.press(ActionButton::Char);
  surface.press(ActionButton::Circle);
  surface.click(3000, 2000).click(3000, 2300);
  ASSERT_EQ(surface.working.actionCount, 27) << "one move and sixteen lines";
  EXPECT_EQ(surface.slot(11).type, kMove);
  EXPECT_EQ(surface.slot(27), (WorkingAction{kLine, surface.slot(11).x, surface.slot(11).y}));
  EXPECT_FALSE(surface.state.circleInProgress);

  surface.click(4000, 2000);
  EXPECT_EQ(surface.slot(28).type, kMove) << "the next click moves without drawing";
}

TEST(DrawingEngine, RightButtonGivesUpAnArcUnderWay) {
  Surface surface;
  surface.click(1200, 1000);
  surface.press(ActionButton::Arc);
  surface.click(2000, 1500).click(2400, 1500);
  surface.rightClick();
  EXPECT_FALSE(surface.state.arcInProgress);
  EXPECT_EQ(surface.state.pendingItem, PendingItem::Line);
  EXPECT_EQ(surface.session.arc.pointsPicked(), 0);
  EXPECT_EQ(surface.window.prompt,
            "Left Button = Select Start Point for Line. Right Button = Refresh Screen.");
  surface.press(ActionButton::Arc);
  EXPECT_TRUE(surface.messages.shown().empty()) << "a new arc may begin at once";
  EXPECT_EQ(surface.working.actionCount, 1);
}

TEST(DrawingEngine, RightButtonCancelsDeleteWithSnapBack) {
  Surface surface;
  surface.click(1200, 1000).click(1300, 1000);
  auto context = surface.context();
  chooseDeleteEntry(context, DeleteEntry::Insulation);
  EXPECT_EQ(surface.window.snapLabel, "Snap is Off");
  surface.rightClick();
  EXPECT_EQ(surface.state.operation, EditOperation::Draw);
  EXPECT_TRUE(surface.state.snapOn);
  EXPECT_EQ(surface.window.snapLabel, "Snap is On");
  EXPECT_EQ(surface.state.pendingItem, PendingItem::Line);
  EXPECT_TRUE(surface.state.newStrokePending);
  EXPECT_EQ(surface.window.prompt,
            "Left Button = Select Start Point for Line. Right Button = Refresh Screen. Or Select "
            "any Action Button.");
}

TEST(DrawingEngine, DeleteAndMoveClicksChangeTheSymbolAndRedraw) {
  Surface surface;
  surface.click(1200, 1000).click(1400, 1000).click(1400, 1200);
  auto context = surface.context();
  chooseDeleteEntry(context, DeleteEntry::Line);
  surface.messages.queue(Answer::Yes);
  surface.canvas.reset();
  surface.click(1300, 1010);
  EXPECT_EQ(surface.codes(), (std::vector<std::int16_t>{kMove, kMove, kLine}));
  EXPECT_EQ(surface.canvas.calls().front().pen.colour, 12) << "the candidate in light red";
  EXPECT_EQ(surface.canvas.count(CallKind::Clear), 1);

  chooseMoveEntry(context, MoveEntry::StartPoint);
  surface.click(1100, 900);
  EXPECT_EQ(surface.slot(1).x, 1100);
  EXPECT_EQ(surface.state.undoHistory.size(), 3u) << "moving adds no step";
}

TEST(DrawingEngine, MouseMoveShowsCrosshairAndRubberBand) {
  Surface surface;
  surface.window.hint = "Add Tracing";
  surface.move(600, 1000);
  EXPECT_EQ(surface.window.pointer, Pointer::Normal);
  EXPECT_TRUE(surface.window.hint.empty());
  EXPECT_TRUE(surface.canvas.calls().empty()) << "no stroke under way";

  surface.click(1200, 1000);
  surface.move(1420, 1290);
  EXPECT_EQ(surface.window.pointer, Pointer::Crosshair);
  EXPECT_EQ(surface.state.cursorPoint, (FormPoint{1400, 1300}));
  const auto drawn = surface.canvas.sinceLastClear();
  ASSERT_FALSE(drawn.empty());
  EXPECT_EQ(drawn.back(), test::lineCall(1200, 1000, 1400, 1300, Pen{0, PenStyle::Solid, 1}));
  const int clears = surface.canvas.count(CallKind::Clear);

  surface.rightClick();
  surface.move(1500, 1500);
  EXPECT_EQ(surface.canvas.count(CallKind::Clear), clears + 1) << "only the right button's refresh";
}

TEST(DrawingEngine, UndoFlipAndViewRedrawTheSymbol) {
  Surface surface;
  surface.click(1200, 1000).click(1400, 1000);
  surface.press(ActionButton::Undo);
  EXPECT_EQ(surface.working.actionCount, 1);
  surface.click(1300, 1000);
  surface.press(ActionButton::Flip);
  EXPECT_TRUE(surface.window.flipChoiceVisible);
  auto context = surface.context();
  chooseFlip(context, FlipAxis::Vertical);
  EXPECT_FALSE(surface.window.flipChoiceVisible);
  EXPECT_EQ(surface.slot(1).x, 1200);
  EXPECT_EQ(surface.slot(2).x, 1100);

  surface.press(ActionButton::IsoOrtho);
  EXPECT_EQ(surface.window.isoCaption, "Ortho");
  EXPECT_EQ(surface.canvas.calls().back().kind, CallKind::Circle);
  EXPECT_EQ(surface.press(ActionButton::Scale), ButtonFollowUp::OpenScaleDialog);
  EXPECT_EQ(surface.state.lastButton, ActionButton::Scale);
}

TEST(ActionButtons, CaptionsNameTheButtons) {
  EXPECT_EQ(buttonCaptioned("End"), ActionButton::End);
  EXPECT_EQ(buttonCaptioned("Insul."), ActionButton::Insulation);
  EXPECT_EQ(buttonCaptioned("Ortho"), ActionButton::IsoOrtho);
  EXPECT_EQ(buttonCaptioned("Iso"), ActionButton::IsoOrtho);
  EXPECT_FALSE(buttonCaptioned("E&nd"));
  EXPECT_EQ(buttonHint(ActionButton::Erase),
            "Erase Symbol from Screen but Retain in Current Symbol Set");
}

}  // namespace
}  // namespace quorn
