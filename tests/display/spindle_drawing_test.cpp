#include "display/spindle_drawing.h"

#include <gtest/gtest.h>

#include "support/recording_canvas.h"

namespace quorn {
namespace {

using test::clearCall;
using test::lineCall;
using test::RecordingCanvas;

SpindleDefinition spindle(std::vector<SpindleSegment> segments) {
  return SpindleDefinition{"01SP", std::move(segments)};
}

TEST(SpindleDrawingTest, TheShapeIsTurnedUprightFittedByItsLongerSideAndCentred) {
  // 80 wide and 60 high: the width fills the 800 inside the margins, so the factor is 10.
  RecordingCanvas canvas;
  drawSpindle(canvas, spindle({{0, 0, 0, 60}, {-40, 60, 40, 60}}), CanvasBox{0, 0, 1000, 1000});
  EXPECT_EQ(canvas.calls(),
            (std::vector<test::CanvasCall>{clearCall(), lineCall(500, 800, 500, 200, kSpindlePen),
                                           lineCall(100, 200, 900, 200, kSpindlePen)}));
}

TEST(SpindleDrawingTest, TheBoxMayLieAnywhereAndBeNarrowerThanHigh) {
  // The 200-wide box limits the factor to 160 / 80 = 2 though the height would allow more.
  RecordingCanvas canvas;
  drawSpindle(canvas, spindle({{-40, 0, 40, 20}}), CanvasBox{300, 100, 200, 1000});
  EXPECT_EQ(canvas.sinceLastClear(),
            (std::vector<test::CanvasCall>{lineCall(320, 620, 480, 580, kSpindlePen)}));
}

TEST(SpindleDrawingTest, AShapeWithoutWidthIsFittedByItsHeightAndAPointKeepsItsSize) {
  RecordingCanvas upright;
  drawSpindle(upright, spindle({{5, 0, 5, 100}}), CanvasBox{0, 0, 1000, 1000});
  EXPECT_EQ(upright.sinceLastClear(),
            (std::vector<test::CanvasCall>{lineCall(500, 900, 500, 100, kSpindlePen)}));

  RecordingCanvas point;
  drawSpindle(point, spindle({{7, 7, 7, 7}}), CanvasBox{0, 0, 1000, 1000});
  EXPECT_EQ(point.sinceLastClear(),
            (std::vector<test::CanvasCall>{lineCall(500, 500, 500, 500, kSpindlePen)}));
}

TEST(SpindleDrawingTest, ASpindleWithoutSegmentsOnlyClears) {
  RecordingCanvas canvas;
  drawSpindle(canvas, spindle({}), CanvasBox{0, 0, 1000, 1000});
  EXPECT_EQ(canvas.calls(), std::vector<test::CanvasCall>{clearCall()});
}

}  // namespace
}  // namespace quorn
