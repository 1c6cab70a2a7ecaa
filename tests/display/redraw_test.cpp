#include "display/redraw.h"

#include <gtest/gtest.h>

#include "model/limits.h"
#include "model/symbol_record.h"
#include "support/recording_canvas.h"

namespace quorn {
namespace {

using test::CallKind;
using test::CanvasCall;
using test::circleCall;
using test::clearCall;
using test::lineCall;
using test::RecordingCanvas;

// Every role in its own colour, so a swapped colour shows.
Configuration colouredConfig() {
  Configuration config;
  config.gridColour = 1;
  config.scaleColour = 2;
  config.tensColour = 3;
  config.startColour = 4;
  config.endColour = 5;
  config.spindleColour = 6;
  config.teeColour = 14;
  config.insulationColour = 9;
  config.tracingColour = 10;
  return config;
}
constexpr int kLineColour = 11;

// 25 divisions of 100 across, 12 down: x 1100 to 3600, y 500 to 1700.
GridGeometry smallGrid() {
  return GridGeometry{25, 100, 2500, 12, 1200, 200.0f};
}

// A symbol with one action of every kind, walked in this order.
WorkingSymbol everyKind() {
  WorkingSymbol symbol;
  symbol.slots[1] = {kMove, 1100, 1700};
  symbol.slots[2] = {kLine, 1300, 1700};
  symbol.slots[3] = {kLine, 1300, 1500, true};
  symbol.slots[4] = {kCharacterLine, 1500, 1500};
  symbol.slots[5] = {kTappingPoint, 1400, 1400};
  symbol.slots[6] = {kMove, 1600, 1600};
  symbol.slots[7] = {kInsulation, 1800, 1600};
  symbol.slots[8] = {kTracing, 1800, 1400};
  symbol.slots[9] = {8, 2000, 1400};
  symbol.slots[10] = {kSpindlePoint, 2000, 1300};
  symbol.actionCount = 10;
  symbol.slots[kSpindleSlot] = {kSpindlePoint, 1500, 1300};
  symbol.slots[kEndSlot] = {kWorkingEndPoint, 2200, 1700};
  return symbol;
}

constexpr Pen kLinePen{kLineColour, PenStyle::Solid, kNormalLineWidth};

std::vector<CanvasCall> drawn(const WorkingSymbol& symbol, PlacedPoints placed, SymbolStyle style,
                              const Configuration& config = colouredConfig()) {
  RecordingCanvas canvas;
  drawWorkingSymbol(canvas, symbol, placed, style, config);
  return canvas.calls();
}

TEST(RedrawGrid, ClearsThenDrawsEveryDivisionLineWithTheTensCountedFromTheBottomLeft) {
  RecordingCanvas canvas;
  redrawGrid(canvas, smallGrid(), colouredConfig());
  ASSERT_FALSE(canvas.calls().empty());
  EXPECT_EQ(canvas.calls().front(), clearCall());
  EXPECT_EQ(canvas.count(CallKind::Clear), 1);
  EXPECT_EQ(canvas.count(CallKind::Circle), 0);

  const Pen tens{3, PenStyle::Solid, 1};
  EXPECT_EQ(canvas.ofKind(CallKind::Line, 3),
            (std::vector<CanvasCall>{
                lineCall(1100, 500, 1100, 1700, tens), lineCall(2100, 500, 2100, 1700, tens),
                lineCall(3100, 500, 3100, 1700, tens), lineCall(1100, 1700, 3600, 1700, tens),
                lineCall(1100, 700, 3600, 700, tens)}));
  // 26 vertical and 13 horizontal lines in all.
  EXPECT_EQ(canvas.count(CallKind::Line, 1), 26 + 13 - 5);
  for (const CanvasCall& line : canvas.ofKind(CallKind::Line, 1)) {
    const bool vertical = line.x1 == line.x2 && line.y1 == 500 && line.y2 == 1700;
    const bool horizontal = line.y1 == line.y2 && line.x1 == 1100 && line.x2 == 3600;
    EXPECT_TRUE(vertical || horizontal);
    EXPECT_EQ(line.pen, (Pen{1, PenStyle::Solid, 1}));
  }
}

TEST(RedrawGrid, DrawsTheScaleAsARulerBelowTheGrid) {
  RecordingCanvas canvas;
  redrawGrid(canvas, smallGrid(), colouredConfig());
  const std::vector<CanvasCall> scale = canvas.ofKind(CallKind::Line, 2);
  ASSERT_EQ(scale.size(), 1u + 26u);
  const Pen pen{2, PenStyle::Solid, 1};
  const double base = 1700 + kScaleOffset;
  EXPECT_EQ(scale[0], lineCall(1100, base, 3600, base, pen));
  std::vector<double> longTicks;
  for (std::size_t i = 1; i < scale.size(); ++i) {
    EXPECT_EQ(scale[i].x1, 1100 + 100.0 * static_cast<double>(i - 1));
    EXPECT_EQ(scale[i].x2, scale[i].x1);
    EXPECT_EQ(scale[i].y1, base);
    if (scale[i].y2 == base + kLongTick) {
      longTicks.push_back(scale[i].x1);
    } else {
      EXPECT_EQ(scale[i].y2, base + kShortTick);
    }
  }
  // Under the tens lines, and at the right end.
  EXPECT_EQ(longTicks, (std::vector<double>{1100, 2100, 3100, 3600}));
}

TEST(DrawWorkingSymbol, WalksTheActionsWithTheirPensThenDrawsTheMarkers) {
  const std::vector<CanvasCall> expected{
      lineCall(1100, 1700, 1300, 1700, kLinePen),
      lineCall(1300, 1700, 1300, 1500, kLinePen),  // character flag: still a line
      lineCall(1300, 1500, 1500, 1500, kLinePen),  // code 7 likewise
      circleCall(1400, 1400, 90, Pen{14, PenStyle::Solid, 2}),
      lineCall(1600, 1600, 1800, 1600, Pen{9, PenStyle::Dotted, 1}),
      lineCall(1800, 1600, 1800, 1400, Pen{10, PenStyle::Dashed, 1}),
      circleCall(1100, 1700, 60, Pen{4, PenStyle::Solid, 2}),
      circleCall(2200, 1700, 150, Pen{5, PenStyle::Solid, 2}),
      circleCall(1500, 1300, 120, Pen{6, PenStyle::Solid, 2}),
  };
  const SymbolStyle style{ViewMode::Normal, kLineColour};
  EXPECT_EQ(drawn(everyKind(), {true, true}, style), expected);

  // Slots past the action count are not walked, and the walk never goes beyond slot 202.
  WorkingSymbol shorter = everyKind();
  shorter.actionCount = 2;
  EXPECT_EQ(drawn(shorter, {}, style), (std::vector<CanvasCall>{expected[0], expected[6]}));
  WorkingSymbol overfull = everyKind();
  overfull.actionCount = 500;
  EXPECT_EQ(drawn(overfull, {true, true}, style), expected);
}

TEST(DrawWorkingSymbol, DrawsTheEndAndSpindleMarkersOnlyWhenPlaced) {
  const SymbolStyle style{ViewMode::Normal, kLineColour};
  auto circles = [&](PlacedPoints placed) {
    std::vector<int> colours;
    for (const CanvasCall& call : drawn(everyKind(), placed, style)) {
      if (call.kind == CallKind::Circle) colours.push_back(call.pen.colour);
    }
    return colours;
  };
  // Tapping point, start, then end and spindle as placed.
  EXPECT_EQ(circles({false, false}), (std::vector<int>{14, 4}));
  EXPECT_EQ(circles({true, false}), (std::vector<int>{14, 4, 5}));
  EXPECT_EQ(circles({false, true}), (std::vector<int>{14, 4, 6}));
}

TEST(DrawWorkingSymbol, ModeOneDrawsHeavierLinesAndTheDarkShadeOfALightTappingColour) {
  EXPECT_EQ(kStandardWidth, 2);
  EXPECT_NE(kMode1LineWidth, kNormalLineWidth);
  const std::vector<CanvasCall> mode1 =
      drawn(everyKind(), {true, true}, {ViewMode::Mode1, kLineColour});
  const std::vector<CanvasCall> normal =
      drawn(everyKind(), {true, true}, {ViewMode::Normal, kLineColour});
  ASSERT_EQ(mode1.size(), normal.size());
  EXPECT_EQ(mode1[0].pen, (Pen{kLineColour, PenStyle::Solid, kMode1LineWidth}));
  EXPECT_EQ(mode1[3], circleCall(1400, 1400, 90, Pen{6, PenStyle::Solid, 2}));
  // Insulation, tracing and the markers do not change with the mode.
  for (std::size_t i = 4; i < mode1.size(); ++i) EXPECT_EQ(mode1[i], normal[i]) << i;

  auto tappingColour = [](std::int16_t teeColour) {
    Configuration config = colouredConfig();
    config.teeColour = teeColour;
    return drawn(everyKind(), {}, {ViewMode::Mode1, kLineColour}, config)[3].pen.colour;
  };
  EXPECT_EQ(tappingColour(9), 1);
  EXPECT_EQ(tappingColour(15), 7);
  EXPECT_EQ(tappingColour(8), 8);
  EXPECT_EQ(tappingColour(5), 5);
}

TEST(DrawWorkingSymbol, TheIsometricViewTurnsTheSymbolAboutItsStartPoint) {
  const SymbolStyle iso{ViewMode::Normal, kLineColour, View::Isometric};
  const std::vector<CanvasCall> first = drawn(everyKind(), {true, true}, iso);
  EXPECT_EQ(drawn(everyKind(), {true, true}, iso), first);
  const std::vector<CanvasCall> ortho = drawn(everyKind(), {true, true}, {ViewMode::Normal, 11});
  ASSERT_EQ(first.size(), ortho.size());
  EXPECT_NE(first, ortho);

  // 200 to the right of the start point: 0.866 × 200 across and 100 up.
  EXPECT_DOUBLE_EQ(first[0].x1, 1100);
  EXPECT_DOUBLE_EQ(first[0].y1, 1700);
  EXPECT_DOUBLE_EQ(first[0].x2, 1100 + 173.2);
  EXPECT_DOUBLE_EQ(first[0].y2, 1700 - 100);
  // Then 200 straight up stays straight up.
  EXPECT_DOUBLE_EQ(first[1].x2, first[1].x1);
  EXPECT_DOUBLE_EQ(first[1].y2, first[1].y1 - 200);
  // Markers stay circles of their radii at the mapped points: the end point lies 1100 right.
  EXPECT_EQ(first[6], ortho[6]);
  EXPECT_EQ(first[7].kind, CallKind::Circle);
  EXPECT_DOUBLE_EQ(first[7].x1, 1100 + 952.6);
  EXPECT_DOUBLE_EQ(first[7].y1, 1700 - 550);
  EXPECT_EQ(first[7].radius, 150);
  for (std::size_t i = 0; i < first.size(); ++i) {
    EXPECT_EQ(first[i].kind, ortho[i].kind);
    EXPECT_EQ(first[i].pen, ortho[i].pen);
  }
}

TEST(DrawAction, DrawsWhatOneSlotAddsAndTheMarkersOfTheirSlots) {
  const Configuration config = colouredConfig();
  const SymbolStyle style{ViewMode::Normal, kLineColour};
  auto one = [&](int slot) {
    RecordingCanvas canvas;
    drawAction(canvas, everyKind(), slot, style, config);
    return canvas.calls();
  };
  EXPECT_EQ(one(1),
            (std::vector<CanvasCall>{circleCall(1100, 1700, 60, Pen{4, PenStyle::Solid, 2})}));
  EXPECT_EQ(one(2), (std::vector<CanvasCall>{lineCall(1100, 1700, 1300, 1700, kLinePen)}));
  EXPECT_EQ(one(5),
            (std::vector<CanvasCall>{circleCall(1400, 1400, 90, Pen{14, PenStyle::Solid, 2})}));
  EXPECT_EQ(
      one(8),
      (std::vector<CanvasCall>{lineCall(1800, 1600, 1800, 1400, Pen{10, PenStyle::Dashed, 1})}));
  EXPECT_EQ(one(kSpindleSlot),
            (std::vector<CanvasCall>{circleCall(1500, 1300, 120, Pen{6, PenStyle::Solid, 2})}));
  EXPECT_EQ(one(kEndSlot),
            (std::vector<CanvasCall>{circleCall(2200, 1700, 150, Pen{5, PenStyle::Solid, 2})}));
  EXPECT_TRUE(one(6).empty());
  EXPECT_TRUE(one(0).empty());
  EXPECT_TRUE(one(-1).empty());
  EXPECT_TRUE(one(kWorkingSlots).empty());
}

TEST(Redraw, DrawsTheGridThenTheSymbolOverIt) {
  const Configuration config = colouredConfig();
  const SymbolStyle style{ViewMode::Normal, kLineColour};
  RecordingCanvas canvas;
  redraw(canvas, smallGrid(), everyKind(), {true, false}, style, config);
  RecordingCanvas grid;
  redrawGrid(grid, smallGrid(), config);
  std::vector<CanvasCall> expected = grid.calls();
  const std::vector<CanvasCall> symbol = drawn(everyKind(), {true, false}, style);
  expected.insert(expected.end(), symbol.begin(), symbol.end());
  EXPECT_EQ(canvas.calls(), expected);
  EXPECT_EQ(canvas.sinceLastClear().size(), expected.size() - 1);
}

TEST(RubberBand, RunsFromTheLastPointToTheCursorWithThePenOfTheSegmentToCome) {
  const Configuration config = colouredConfig();
  auto band = [&](std::int16_t code, ViewMode mode) {
    RecordingCanvas canvas;
    drawRubberBand(canvas, {1200, 900}, {1450, 1000}, code, {mode, kLineColour}, config);
    EXPECT_EQ(canvas.calls().size(), 1u);
    return canvas.calls().at(0);
  };
  EXPECT_EQ(band(kLine, ViewMode::Normal), lineCall(1200, 900, 1450, 1000, kLinePen));
  EXPECT_EQ(band(0, ViewMode::Mode1),
            lineCall(1200, 900, 1450, 1000, Pen{kLineColour, PenStyle::Solid, kMode1LineWidth}));
  EXPECT_EQ(band(kInsulation, ViewMode::Normal).pen, (Pen{9, PenStyle::Dotted, 1}));
  EXPECT_EQ(band(kTracing, ViewMode::Normal).pen, (Pen{10, PenStyle::Dashed, 1}));
}

}  // namespace
}  // namespace quorn
