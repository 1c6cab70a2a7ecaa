#include "edit/arc_construction.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

#include "edit/construction_geometry.h"

namespace quorn {
namespace {

constexpr std::int16_t kFullTurn = 32;  // SEGMENTSIN180ARC 16, held doubled
constexpr SymbolRoom kRoom{0, 200};
constexpr double kPiExact = std::numbers::pi;

double distance(FormPoint a, FormPoint b) {
  return std::hypot(a.x - b.x, a.y - b.y);
}

// Angle in form axes from +x towards +y, in (-pi, pi].
double polarAngle(FormPoint centre, FormPoint p) {
  return std::atan2(static_cast<double>(p.y - centre.y), static_cast<double>(p.x - centre.x));
}

double wrapped(double angle) {
  return std::remainder(angle, 2 * kPiExact);
}

FormPoint onCircle(FormPoint centre, double radius, double angle) {
  return {centre.x + static_cast<std::int32_t>(std::lround(radius * std::cos(angle))),
          centre.y + static_cast<std::int32_t>(std::lround(radius * std::sin(angle)))};
}

ConstructionOutcome arcByClicks(FormPoint centre, FormPoint startEdge, FormPoint end,
                                SymbolRoom room = kRoom) {
  ArcConstruction arc;
  arc.click(centre, kFullTurn, room);
  arc.click(startEdge, kFullTurn, room);
  return arc.click(end, kFullTurn, room);
}

TEST(ArcAngle, IsMeasuredAQuarterTurnBehindTheRadius) {
  const FormPoint c{2000, 1500};
  EXPECT_NEAR(angleAbout(c, {2000, 1600}), 0.0, 1e-6);               // below
  EXPECT_NEAR(angleAbout(c, {1900, 1500}), kPiExact / 2, 1e-6);      // left
  EXPECT_NEAR(angleAbout(c, {2000, 1400}), kPiExact, 1e-6);          // above
  EXPECT_NEAR(angleAbout(c, {2100, 1500}), 3 * kPiExact / 2, 1e-6);  // right
  EXPECT_NEAR(angleAbout(c, {1900, 1600}), kPiExact / 4, 1e-6);
  EXPECT_NEAR(angleAbout(c, {2100, 1400}), 5 * kPiExact / 4, 1e-6);
  EXPECT_NEAR(angleAbout(c, {2100, 1600}), 7 * kPiExact / 4, 1e-6);
  EXPECT_NEAR(angleAbout(c, {2001, 1600}), 2 * kPiExact - 0.01, 1e-6);
  EXPECT_EQ(angleAbout(c, c), static_cast<float>(kHalfPi));
}

TEST(ArcAngle, QuadrantsFollowTheProgramsLimits) {
  EXPECT_EQ(quadrantOf(0.0f), 1);
  EXPECT_EQ(quadrantOf(1.57f), 1);
  EXPECT_EQ(quadrantOf(1.58f), 2);
  EXPECT_EQ(quadrantOf(3.14f), 2);
  EXPECT_EQ(quadrantOf(3.15f), 3);
  EXPECT_EQ(quadrantOf(4.71f), 3);
  EXPECT_EQ(quadrantOf(4.72f), 4);
  EXPECT_EQ(quadrantOf(6.28f), 4);
  // A point straight left or above lands just inside the quadrant below: the single-precision
  // angle falls short of the double-precision limit.
  EXPECT_EQ(quadrantOf(angleAbout({0, 0}, {-5, 0})), 1);
  EXPECT_EQ(quadrantOf(angleAbout({0, 0}, {0, -5})), 2);
  EXPECT_EQ(quadrantOf(angleAbout({0, 0}, {5, 0})), 4);
}

TEST(ArcConstruction, ClicksPromptThenBuild) {
  ArcConstruction arc;
  const FormPoint centre{2000, 1500};
  ConstructionOutcome first = arc.click(centre, kFullTurn, kRoom);
  EXPECT_EQ(first.prompt,
            "Select Edge Point for Start of Arc with Left Button. Right Button = Cancel");
  EXPECT_EQ(first.lastPoint, centre);
  EXPECT_EQ(first.strokeStart, centre);
  EXPECT_TRUE(first.points.empty());
  EXPECT_FALSE(first.finished);

  ConstructionOutcome second = arc.click({2400, 1500}, kFullTurn, kRoom);
  EXPECT_EQ(second.prompt, "Select Point for End of Arc with Left Button. Right Button = Cancel");
  EXPECT_FALSE(second.lastPoint);
  EXPECT_FALSE(second.finished);
  EXPECT_EQ(arc.pointsPicked(), 2);

  ConstructionOutcome built = arc.click({2000, 1100}, kFullTurn, kRoom);
  EXPECT_TRUE(built.finished);
  EXPECT_TRUE(built.message.empty());
  EXPECT_EQ(built.prompt, "Move without Drawing. Right Button > Draw Mode");
  ASSERT_FALSE(built.points.empty());
  EXPECT_EQ(built.lastPoint, built.points.back());
  EXPECT_FALSE(built.strokeStart);
  EXPECT_EQ(arc.pointsPicked(), 0);
}

TEST(ArcConstruction, CancelDropsThePointsPicked) {
  ArcConstruction arc;
  arc.click({2000, 1500}, kFullTurn, kRoom);
  arc.click({2400, 1500}, kFullTurn, kRoom);
  arc.cancel();
  EXPECT_EQ(arc.pointsPicked(), 0);
  // The next click picks a centre again.
  ConstructionOutcome next = arc.click({3000, 1500}, kFullTurn, kRoom);
  EXPECT_EQ(next.lastPoint, (FormPoint{3000, 1500}));
  EXPECT_FALSE(next.finished);
}

TEST(ArcConstruction, QuarterCircleFollowsTheCircleTowardsTheEndPoint) {
  const FormPoint centre{2000, 1500};
  const FormPoint startEdge{2400, 1500};
  const FormPoint end{2000, 1100};
  const ConstructionOutcome arc = arcByClicks(centre, startEdge, end);
  ASSERT_EQ(arc.points.size(), 9u);  // one move and eight lines
  EXPECT_EQ(arc.points.front(), startEdge);
  const double chords = 8;
  for (std::size_t i = 0; i < arc.points.size(); ++i) {
    EXPECT_NEAR(distance(centre, arc.points[i]), 400.0, chords) << "point " << i;
    if (i > 0) {
      EXPECT_LT(distance(arc.points[i], end), distance(arc.points[i - 1], end)) << "point " << i;
      EXPECT_GT(distance(arc.points[i], startEdge), distance(arc.points[i - 1], startEdge));
    }
  }
  EXPECT_LE(distance(arc.points.back(), end), chords);
}

TEST(ArcConstruction, SegmentsFollowTheFullTurnCount) {
  EXPECT_EQ(arcSegments(32, static_cast<float>(kHalfPi)), 8);
  EXPECT_EQ(arcSegments(32, kPiSingle), 16);
  EXPECT_EQ(arcSegments(24, static_cast<float>(kHalfPi)), 6);
  const FormPoint centre{2000, 1500};
  ArcConstruction arc;
  arc.click(centre, 24, kRoom);
  arc.click({2400, 1500}, 24, kRoom);
  EXPECT_EQ(arc.click({2000, 1100}, 24, kRoom).points.size(), 7u);
}

// Every pair of picks on a circle gives an arc the shorter way round between them, whichever
// order they are picked in; this runs each row of the exchange table.
TEST(ArcConstruction, TakesTheShorterWayForEveryPairOfQuadrants) {
  const FormPoint centre{3000, 2000};
  const double radius = 600;
  int built = 0;
  for (int a = 0; a < 360; a += 15) {
    for (int b = 0; b < 360; b += 15) {
      const double delta = wrapped((b - a) * kPiExact / 180);
      if (std::fabs(delta) < 0.6 || std::fabs(std::fabs(delta) - kPiExact) < 0.01) continue;
      const FormPoint p = onCircle(centre, radius, a * kPiExact / 180);
      const FormPoint q = onCircle(centre, radius, b * kPiExact / 180);
      const ConstructionOutcome arc = arcByClicks(centre, p, q);
      SCOPED_TRACE(testing::Message() << "from " << a << " to " << b);
      ASSERT_GE(arc.points.size(), 3u);
      const double chords = static_cast<double>(arc.points.size() - 1);
      const bool fromP = arc.points.front() == p;
      EXPECT_TRUE(fromP || arc.points.front() == q);
      EXPECT_LE(distance(arc.points.back(), fromP ? q : p), chords);
      const double from = fromP ? a * kPiExact / 180 : b * kPiExact / 180;
      const double sweep = fromP ? delta : -delta;
      for (const FormPoint& point : arc.points) {
        EXPECT_NEAR(distance(centre, point), radius, chords);
        // How far along the shorter arc the point lies, as a share of it.
        const double along = wrapped(polarAngle(centre, point) - from) / sweep;
        EXPECT_GE(along, -0.01);
        EXPECT_LE(along, 1.01);
      }
      const ConstructionOutcome reversed = arcByClicks(centre, q, p);
      EXPECT_EQ(reversed.points, arc.points);
      ++built;
    }
  }
  EXPECT_GT(built, 400);
}

TEST(ArcConstruction, HalfCircleIsChosenByTheExchangeTable) {
  const FormPoint centre{3000, 2000};
  const FormPoint left{2500, 2000};
  const FormPoint right{3500, 2000};
  const ConstructionOutcome across = arcByClicks(centre, left, right);
  ASSERT_EQ(across.points.size(), 17u);
  EXPECT_EQ(across.points.front(), left);
  for (const FormPoint& p : across.points) EXPECT_GE(p.y, centre.y - 16);
  EXPECT_GT(across.points[8].y, centre.y + 450);  // the lower half on the screen
  EXPECT_EQ(arcByClicks(centre, right, left).points, across.points);

  const FormPoint above{3000, 1500};
  const FormPoint below{3000, 2500};
  const ConstructionOutcome upright = arcByClicks(centre, below, above);
  ASSERT_EQ(upright.points.size(), 17u);
  EXPECT_EQ(upright.points.front(), above);
  for (const FormPoint& p : upright.points) EXPECT_LE(p.x, centre.x + 16);
  EXPECT_LT(upright.points[8].x, centre.x - 450);  // the left half
  EXPECT_EQ(arcByClicks(centre, above, below).points, upright.points);

  // Across a diagonal the single-precision sweep is exactly the program's pi.
  const FormPoint lowerLeft{2600, 2400};
  const FormPoint upperRight{3400, 1600};
  const ConstructionOutcome slanted = arcByClicks(centre, lowerLeft, upperRight);
  ASSERT_EQ(slanted.points.size(), 17u);
  EXPECT_EQ(slanted.points.front(), upperRight);
  for (const FormPoint& p : slanted.points) EXPECT_LE(p.x + p.y, centre.x + centre.y + 16);
  EXPECT_LT(slanted.points[8].x + slanted.points[8].y, centre.x + centre.y - 600);
  EXPECT_EQ(arcByClicks(centre, upperRight, lowerLeft).points, slanted.points);
}

TEST(ArcConstruction, TooSmallASweepIsRefused) {
  const FormPoint centre{2000, 1500};
  const ConstructionOutcome refused = arcByClicks(centre, {2400, 1500}, {2400, 1490});
  EXPECT_EQ(refused.message,
            "Selected Quadrant is too small for an arc. Please use a line or reselect.");
  EXPECT_TRUE(refused.points.empty());
  EXPECT_FALSE(refused.lastPoint);
  EXPECT_TRUE(refused.finished);
  EXPECT_TRUE(arcByClicks(centre, {2400, 1500}, {2400, 1500}).points.empty());
  // A sixteenth of a turn is two segments: the least arc drawn.
  const ConstructionOutcome least =
      arcByClicks(centre, {2400, 1500}, onCircle(centre, 400, -kPiExact / 8));
  EXPECT_TRUE(least.message.empty());
  EXPECT_EQ(least.points.size(), 3u);
}

TEST(ArcConstruction, OnlyTheEndPointsAngleCounts) {
  const FormPoint centre{2000, 1500};
  const FormPoint startEdge{2400, 1500};
  const ConstructionOutcome onTheCircle = arcByClicks(centre, startEdge, {2000, 1100});
  EXPECT_EQ(arcByClicks(centre, startEdge, {2000, 1450}).points, onTheCircle.points);
  EXPECT_EQ(arcByClicks(centre, startEdge, {2000, 520}).points, onTheCircle.points);
  // The radius comes from the start edge point alone.
  const ConstructionOutcome wider = arcByClicks(centre, {2600, 1500}, {2000, 1450});
  EXPECT_NEAR(distance(centre, wider.points.back()), 600, 8);
}

TEST(ArcConstruction, RefusedWhenTheActionsWouldReach201) {
  const FormPoint centre{2000, 1500};
  const FormPoint startEdge{2400, 1500};
  const FormPoint end{2000, 1100};
  EXPECT_EQ(arcByClicks(centre, startEdge, end, {192, 200}).points.size(), 9u);
  const ConstructionOutcome refused = arcByClicks(centre, startEdge, end, {193, 200});
  EXPECT_EQ(refused.message,
            "Construction of this Arc would exceed the maximum allowable number number of "
            "actions in a Symbol (200). Operation terminated.");
  EXPECT_TRUE(refused.points.empty());
  EXPECT_TRUE(refused.finished);
}

TEST(ArcConstruction, WalkStopsWhenTheSlotsRunOut) {
  const FormPoint centre{2000, 1500};
  const ConstructionOutcome full = arcByClicks(centre, {2400, 1500}, {2000, 1100});
  const ConstructionOutcome cut = arcByClicks(centre, {2400, 1500}, {2000, 1100}, {0, 4});
  ASSERT_EQ(cut.points.size(), 4u);
  EXPECT_TRUE(std::equal(cut.points.begin(), cut.points.end(), full.points.begin()));
  EXPECT_EQ(cut.lastPoint, cut.points.back());
  const ConstructionOutcome none = arcByClicks(centre, {2400, 1500}, {2000, 1100}, {0, 0});
  EXPECT_TRUE(none.points.empty());
  EXPECT_FALSE(none.lastPoint);
}

// Each chord is rounded by itself and added to the point before it, so the arc does not end
// where points computed from the centre would put it.
TEST(ArcConstruction, ChordRoundingAddsUpAlongTheArc) {
  const FormPoint centre{2000, 1500};
  const FormPoint startEdge{2400, 1500};
  const FormPoint end{2000, 1100};
  const ConstructionOutcome arc = arcByClicks(centre, startEdge, end);

  const int segments = 8;
  const double halfStep = kPiExact / 2 / segments / 2;
  const double chord = 2 * 400 * std::sin(halfStep);
  // Upward from the right-hand point: the start heads a quarter turn back from its radius.
  std::vector<FormPoint> walked{startEdge};
  std::vector<FormPoint> fromCentre{startEdge};
  for (int i = 1; i <= segments; ++i) {
    const double heading = -kPiExact / 2 - (2 * i - 1) * halfStep;
    FormPoint next = walked.back();
    next.x += static_cast<std::int32_t>(std::nearbyint(chord * std::cos(heading)));
    next.y += static_cast<std::int32_t>(std::nearbyint(chord * std::sin(heading)));
    walked.push_back(next);
    fromCentre.push_back(onCircle(centre, 400, -2 * i * halfStep));
  }
  EXPECT_EQ(arc.points, walked);
  EXPECT_NE(arc.points, fromCentre);
  EXPECT_EQ(fromCentre.back(), end);
  EXPECT_NE(arc.points.back(), end);
}

}  // namespace
}  // namespace quorn
