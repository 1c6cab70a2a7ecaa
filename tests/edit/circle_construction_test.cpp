#include "edit/circle_construction.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <utility>

namespace quorn {
namespace {

const GridFrame kGrid{100, 4000, 3000};  // x 1100 to 5100, y 500 to 3500
constexpr SymbolRoom kRoom{0, 200};

ConstructionOutcome circleByClicks(FormPoint centre, FormPoint edge, std::int16_t segments = 16,
                                   SymbolRoom room = kRoom, const GridFrame& grid = kGrid) {
  CircleConstruction circle;
  circle.click(centre, segments, grid, room);
  return circle.click(edge, segments, grid, room);
}

TEST(CircleConstruction, ClicksPromptThenBuild) {
  CircleConstruction circle;
  const ConstructionOutcome first = circle.click({3000, 2000}, 16, kGrid, kRoom);
  EXPECT_EQ(first.prompt, "Select Edge Point with Left Button. Right Button = Cancel");
  EXPECT_TRUE(first.points.empty());
  EXPECT_FALSE(first.lastPoint);
  EXPECT_FALSE(first.finished);
  EXPECT_TRUE(circle.centrePicked());

  const ConstructionOutcome built = circle.click({3000, 2300}, 16, kGrid, kRoom);
  EXPECT_TRUE(built.finished);
  EXPECT_TRUE(built.message.empty());
  EXPECT_EQ(built.prompt, "Move without Drawing. Right Button > Draw Mode");
  ASSERT_EQ(built.points.size(), 17u);  // one move and sixteen lines
  EXPECT_EQ(built.lastPoint, built.points.front());
  EXPECT_FALSE(circle.centrePicked());

  circle.click({3000, 2000}, 16, kGrid, kRoom);
  circle.cancel();
  EXPECT_FALSE(circle.centrePicked());
}

TEST(CircleConstruction, PointsAreComputedFromTheCentreAndCloseTheCircle) {
  const FormPoint centre{3000, 2000};
  const ConstructionOutcome circle = circleByClicks(centre, {3000, 2300});
  ASSERT_EQ(circle.points.size(), 17u);
  EXPECT_EQ(circle.points.front(), (FormPoint{3300, 2000}));  // straight right of the centre
  EXPECT_EQ(circle.points[4], (FormPoint{3000, 2300}));       // a quarter on, towards +y
  EXPECT_EQ(circle.points[8], (FormPoint{2700, 2000}));
  EXPECT_EQ(circle.points[12], (FormPoint{3000, 1700}));
  EXPECT_EQ(circle.points.back(), circle.points.front());
  std::set<std::pair<int, int>> distinct;
  for (const FormPoint& p : circle.points) {
    // Each offset is rounded by itself, so no point strays more than half a unit each way.
    EXPECT_NEAR(std::hypot(p.x - centre.x, p.y - centre.y), 300.0, 0.71);
    distinct.insert({p.x, p.y});
  }
  EXPECT_EQ(distinct.size(), 16u);
  // Opposite points are mirror images through the centre.
  for (int k = 0; k < 8; ++k) {
    EXPECT_EQ(circle.points[k].x + circle.points[k + 8].x, 2 * centre.x) << k;
    EXPECT_EQ(circle.points[k].y + circle.points[k + 8].y, 2 * centre.y) << k;
  }
  EXPECT_EQ(circleByClicks(centre, {3000, 2300}, 6).points.size(), 7u);
}

TEST(CircleConstruction, RadiusIsRoundedToAWholeUnit) {
  const FormPoint centre{3000, 2000};
  EXPECT_EQ(circleByClicks(centre, {3002, 2002}).points.front(), (FormPoint{3003, 2000}));
  EXPECT_EQ(circleByClicks(centre, {3003, 2003}).points.front(), (FormPoint{3004, 2000}));
  EXPECT_EQ(circleByClicks(centre, {2993, 2000}).points.front(), (FormPoint{3007, 2000}));
}

TEST(CircleConstruction, MustFitOnTheGridWhichItMayTouch) {
  const std::string_view refusal =
      "The requested Circle can not fit within the Drawing Grid. Please press Circle again and "
      "re-specify with a new Centre Point and / or Radius, or use Move to relocate the Symbol "
      "on the Grid.";
  // Touching each edge of the grid.
  EXPECT_TRUE(circleFits({1400, 800}, 300, kGrid));
  EXPECT_TRUE(circleFits({4800, 3200}, 300, kGrid));
  EXPECT_TRUE(circleByClicks({1400, 800}, {1400, 1100}).message.empty());
  EXPECT_TRUE(circleFits({3100, 2000}, 1500, kGrid));
  // One unit over each edge.
  EXPECT_FALSE(circleFits({1399, 800}, 300, kGrid));
  EXPECT_FALSE(circleFits({1400, 799}, 300, kGrid));
  EXPECT_FALSE(circleFits({4801, 3200}, 300, kGrid));
  EXPECT_FALSE(circleFits({4800, 3201}, 300, kGrid));
  EXPECT_FALSE(circleFits({3100, 2000}, 1501, kGrid));

  const ConstructionOutcome refused = circleByClicks({1399, 800}, {1399, 1100});
  EXPECT_EQ(refused.message, refusal);
  EXPECT_TRUE(refused.points.empty());
  EXPECT_FALSE(refused.lastPoint);
  EXPECT_TRUE(refused.finished);
}

TEST(CircleConstruction, ItsSegmentsCountTowardsTheActionLimit) {
  const FormPoint centre{3000, 2000};
  const FormPoint edge{3000, 2300};
  EXPECT_EQ(circleByClicks(centre, edge, 16, {184, 200}).points.size(), 17u);
  const ConstructionOutcome refused = circleByClicks(centre, edge, 16, {185, 200});
  EXPECT_EQ(refused.message,
            "Construction of this Circle would exceed the maximum allowable number of actions "
            "in a Symbol (200). Operation terminated.");
  EXPECT_TRUE(refused.points.empty());
  EXPECT_TRUE(refused.finished);
}

TEST(CircleConstruction, StopsWhenTheSlotsRunOut) {
  const FormPoint centre{3000, 2000};
  const FormPoint edge{3000, 2300};
  const ConstructionOutcome full = circleByClicks(centre, edge);
  const ConstructionOutcome cut = circleByClicks(centre, edge, 16, {0, 5});
  ASSERT_EQ(cut.points.size(), 5u);
  EXPECT_TRUE(std::equal(cut.points.begin(), cut.points.end(), full.points.begin()));
  EXPECT_EQ(cut.lastPoint, full.points.front());
  // Room for all but the closing point.
  const ConstructionOutcome open = circleByClicks(centre, edge, 16, {0, 16});
  ASSERT_EQ(open.points.size(), 16u);
  EXPECT_NE(open.points.back(), open.points.front());
  EXPECT_TRUE(circleByClicks(centre, edge, 16, {0, 0}).points.empty());
}

TEST(CircleConstruction, NoSegmentsIsRefused) {
  for (std::int16_t segments : {0, -4}) {
    const ConstructionOutcome refused = circleByClicks({3000, 2000}, {3000, 2300}, segments);
    EXPECT_FALSE(refused.message.empty());
    EXPECT_TRUE(refused.points.empty());
    EXPECT_TRUE(refused.finished);
  }
}

}  // namespace
}  // namespace quorn
