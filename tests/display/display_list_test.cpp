#include "display/display_list.h"

#include <gtest/gtest.h>

#include "display/redraw.h"
#include "model/symbol_record.h"
#include "support/recording_canvas.h"

namespace quorn {
namespace {

using test::CallKind;
using test::RecordingCanvas;

// Records where the grid mark falls among the calls.
class MarkingCanvas : public RecordingCanvas {
 public:
  void gridComplete() override { marks.push_back(calls().size()); }
  std::vector<std::size_t> marks;
};

GridGeometry smallGrid() {
  return GridGeometry{25, 100, 2500, 12, 1200, 200.0f};
}

WorkingSymbol twoLines() {
  WorkingSymbol symbol;
  symbol.slots[1] = {kMove, 1100, 1700};
  symbol.slots[2] = {kLine, 1300, 1700};
  symbol.slots[3] = {kLine, 1300, 1500};
  symbol.actionCount = 3;
  return symbol;
}

const SymbolStyle kStyle{ViewMode::Normal, 11};

TEST(DisplayListGrid, TheRedrawMarksTheGridAfterItsLastCallAndBeforeTheSymbol) {
  MarkingCanvas direct;
  redraw(direct, smallGrid(), twoLines(), {}, kStyle, Configuration{});
  ASSERT_EQ(direct.marks.size(), 1u);
  // The clear, then the grid and scale: 26 + 13 grid lines, 1 + 26 for the scale.
  EXPECT_EQ(direct.marks[0], 1u + 26u + 13u + 27u);

  DisplayList list;
  redraw(list, smallGrid(), twoLines(), {}, kStyle, Configuration{});
  EXPECT_TRUE(list.hasGrid());
  EXPECT_EQ(list.gridCallCount(), 26u + 13u + 27u);
  // Two lines and the start marker come after it.
  ASSERT_EQ(list.calls().size(), list.gridCallCount() + 3u);
  EXPECT_EQ(list.calls()[list.gridCallCount()].kind, DrawCall::Kind::Line);

  // Drawing more without a clear leaves the grid where it was; a clear forgets it.
  drawRubberBand(list, {1300, 1500}, {1400, 1400}, kLine, kStyle, Configuration{});
  EXPECT_EQ(list.gridCallCount(), 26u + 13u + 27u);
  list.clear();
  EXPECT_FALSE(list.hasGrid());
  EXPECT_EQ(list.gridCallCount(), 0u);
  EXPECT_TRUE(list.calls().empty());
}

TEST(DisplayListGrid, PaintsTheGridAndWhatLiesOverItAsSeparateLayers) {
  DisplayList list;
  redraw(list, smallGrid(), twoLines(), {}, kStyle, Configuration{});

  MarkingCanvas grid;
  list.paintGrid(grid);
  EXPECT_EQ(grid.marks, (std::vector<std::size_t>{list.gridCallCount()}));
  EXPECT_EQ(grid.calls().size(), list.gridCallCount());
  EXPECT_EQ(grid.count(CallKind::Circle), 0);

  MarkingCanvas over;
  list.paintOverGrid(over);
  EXPECT_TRUE(over.marks.empty());
  ASSERT_EQ(over.calls().size(), 3u);
  EXPECT_EQ(over.calls()[0].x1, 1100);
  EXPECT_EQ(over.calls()[0].x2, 1300);
  EXPECT_EQ(over.calls()[2].kind, CallKind::Circle);

  // Painted onto another list, the drawing and its grid mark come over unchanged.
  DisplayList copy;
  list.paintOn(copy);
  EXPECT_EQ(copy.calls(), list.calls());
  EXPECT_EQ(copy.gridCallCount(), list.gridCallCount());
}

TEST(DisplayListGrid, WithoutAGridEverythingLiesOverIt) {
  DisplayList list;
  drawWorkingSymbol(list, twoLines(), {}, kStyle, Configuration{});
  EXPECT_FALSE(list.hasGrid());

  MarkingCanvas grid;
  list.paintGrid(grid);
  EXPECT_TRUE(grid.calls().empty());
  EXPECT_TRUE(grid.marks.empty());

  MarkingCanvas over;
  list.paintOverGrid(over);
  EXPECT_EQ(over.calls().size(), list.calls().size());

  DisplayList copy;
  list.paintOn(copy);
  EXPECT_FALSE(copy.hasGrid());
  EXPECT_EQ(copy.calls(), list.calls());
}

}  // namespace
}  // namespace quorn
