#include "display/grid_geometry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "display/grid_texts.h"
#include "model/symbol_record.h"

namespace quorn {
namespace {

using ::testing::HasSubstr;

// HSIZE 300 and PITCH 5 in the file, as held.
constexpr double kPitch = 50;
constexpr double kHsize = 3000;

GridGeometry laidOut(double pitch, double hsize, ScreenSize screen) {
  const GridLayout layout = layOutGrid(pitch, hsize, screen);
  EXPECT_TRUE(layout.geometry) << layout.problem;
  EXPECT_EQ(layout.problem, "");
  return layout.geometry.value_or(GridGeometry{});
}

TEST(GridLayout, FitsWholeDivisionsBetweenTheMargins) {
  const GridGeometry grid = laidOut(kPitch, kHsize, {15360, 11520});
  EXPECT_EQ(grid.divisions, 60);
  EXPECT_EQ(grid.spacing, 233);  // 14010 available across
  EXPECT_EQ(grid.gridWidth, 13980);
  EXPECT_EQ(grid.rows, 41);  // 9620 available down
  EXPECT_EQ(grid.gridHeight, 41 * 233);
  EXPECT_FLOAT_EQ(grid.unitsPerMm, 46.6f);

  // The configuration's defaults: the same divisions, a tenth of the size each.
  Configuration config;
  const GridLayout defaults = layOutGrid(config, {15360, 11520});
  ASSERT_TRUE(defaults.geometry);
  EXPECT_EQ(defaults.geometry->divisions, 60);
  EXPECT_EQ(defaults.geometry->spacing, 233);
  EXPECT_FLOAT_EQ(defaults.geometry->unitsPerMm, 466.0f);
}

TEST(GridLayout, TakesScreensAbove30000AtHalfTheirSize) {
  EXPECT_EQ(laidOut(kPitch, kHsize, {30720, 11520}), laidOut(kPitch, kHsize, {15360, 11520}));
  EXPECT_EQ(laidOut(kPitch, kHsize, {15360, 30720}).rows, 57);  // 13460 / 233

  const GridGeometry exactly = laidOut(kPitch, kHsize, {30000, 30000});
  EXPECT_EQ(exactly.spacing, 477);  // 28650 / 60
  EXPECT_EQ(exactly.gridWidth, 28620);
  EXPECT_EQ(exactly.rows, 58);  // 28100 / 477
  EXPECT_EQ(exactly.gridHeight, 58 * 477);

  EXPECT_EQ(laidOut(kPitch, kHsize, {30002, 30002}).spacing, 227);  // 13651 / 60
}

TEST(GridLayout, RoundsDivisionsAndAvailableSizesHalfToEven) {
  EXPECT_EQ(laidOut(10, 25, {15360, 11520}).divisions, 2);
  EXPECT_EQ(laidOut(10, 35, {15360, 11520}).divisions, 4);
  EXPECT_EQ(laidOut(10, 34.9, {15360, 11520}).divisions, 3);
  // One division: the spacing is the whole available width, 15000.5 - 1350 and 15001.5 - 1350.
  EXPECT_EQ(laidOut(50, 50, {30001, 30000}).spacing, 13650);
  EXPECT_EQ(laidOut(50, 50, {30003, 30000}).spacing, 13652);
}

TEST(GridLayout, AScreenOrSizesThatCannotHoldAGridGiveAProblem) {
  struct Case {
    double pitch, hsize;
    ScreenSize screen;
    std::string problem;
  };
  const Case cases[] = {
      {kPitch, kHsize, {1350, 11520}, screenLeavesNoRoomText(GridSide::Width, 1350, 0)},
      {kPitch, kHsize, {900, 11520}, screenLeavesNoRoomText(GridSide::Width, 900, -450)},
      {kPitch, kHsize, {15360, 1900}, screenLeavesNoRoomText(GridSide::Height, 1900, 0)},
      {kPitch, 0, {15360, 11520}, noGridDivisionsText(kPitch, 0)},
      {0, kHsize, {15360, 11520}, noGridDivisionsText(0, kHsize)},
      {-50, -3000, {15360, 11520}, noGridDivisionsText(-50, -3000)},
      {7000, kHsize, {15360, 11520}, noGridDivisionsText(7000, kHsize)},
      {0.05, kHsize, {15360, 11520}, tooManyGridDivisionsText(0.05, kHsize)},
      {kPitch, kHsize, {1400, 11520}, divisionsDoNotFitText(50, 60)},
      {kPitch, kHsize, {15360, 2000}, noGridRowText(100, 233)},
      {kPitch, kHsize, {15360, 80000}, gridTooLargeText(GridSide::Height, 163 * 233)},
      {50, 50, {100000, 11520}, gridTooLargeText(GridSide::Width, 48650)},
  };
  for (const Case& c : cases) {
    const GridLayout layout = layOutGrid(c.pitch, c.hsize, c.screen);
    EXPECT_FALSE(layout.geometry) << c.problem;
    EXPECT_EQ(layout.problem, c.problem);
  }
}

TEST(GridLayout, ProblemTextsNameTheirValues) {
  EXPECT_EQ(screenLeavesNoRoomText(GridSide::Width, 1000, -350),
            "The screen is too small for the drawing grid: a screen width of 1000 form units "
            "leaves -350 for the grid.");
  EXPECT_THAT(noGridDivisionsText(kPitch, 0),
              HasSubstr("a scale length (HSIZE) of 0 mm and a grid division (PITCH) of 5 mm"));
  EXPECT_THAT(tooManyGridDivisionsText(0.03, 3000), HasSubstr("(PITCH) of 0.003 mm"));
  EXPECT_THAT(noGridRowText(100, 233), HasSubstr("height of 100 form units"));
  EXPECT_THAT(gridTooLargeText(GridSide::Height, 37979), HasSubstr("grid height of 37979"));
}

TEST(GridRectangle, HoldsItsEdgesAndNothingBeyond) {
  const GridGeometry grid = laidOut(kPitch, kHsize, {15360, 11520});
  const double right = 1100 + 13980;
  const double bottom = 500 + 9553;
  EXPECT_TRUE(withinGrid(1100, 500, grid));
  EXPECT_TRUE(withinGrid(right, bottom, grid));
  EXPECT_TRUE(withinGrid(5000, 3000, grid));
  EXPECT_FALSE(withinGrid(1099.5, 3000, grid));
  EXPECT_FALSE(withinGrid(right + 0.5, 3000, grid));
  EXPECT_FALSE(withinGrid(5000, 499, grid));
  EXPECT_FALSE(withinGrid(5000, bottom + 1, grid));

  const GridPlacement placement = gridPlacement(grid);
  EXPECT_EQ(placement.unitsPerMm, grid.unitsPerMm);
  EXPECT_EQ(placement.gridHeight, grid.gridHeight);
}

TEST(FormPointOfStored, StartsAtTheBottomLeftCornerWithYUp) {
  const GridGeometry grid = laidOut(kPitch, kHsize, {15360, 11520});
  const int bottom = 500 + grid.gridHeight;
  EXPECT_EQ(formPointOfStored(0, 0, grid), (FormPosition{1100, bottom}));
  EXPECT_EQ(formPointOfStored(1000, 500, grid), (FormPosition{1100 + 466, bottom - 233}));
  // 1 mm is 46.6 form units: the smallest whole distance that stores as 100 or more is 47.
  EXPECT_EQ(formPointOfStored(100, 100, grid), (FormPosition{1100 + 47, bottom - 47}));
  // A grid that was never laid out puts everything at its corner rather than dividing by 0.
  EXPECT_EQ(formPointOfStored(100, 100, GridGeometry{}), (FormPosition{1100, 500}));
}

TEST(FormPointOfStored, APointStoredFromTheScreenComesBackWhereItWasDrawn) {
  const GridGeometry grid = laidOut(kPitch, kHsize, {15360, 11520});
  const GridPlacement placement = gridPlacement(grid);
  const int bottom = 500 + grid.gridHeight;
  for (int distance = 0; distance <= grid.gridHeight; ++distance) {
    const FormPosition drawn{1100 + distance, bottom - distance};
    const SymbolAction stored = storedAction(kLine, drawn.x, drawn.y, placement);
    ASSERT_EQ(formPointOfStored(stored.x, stored.y, grid), drawn) << distance;
  }
}

TEST(FormPointOfStored, OnAFineGridAnyStoredPointStoresAgainUnchanged) {
  // A 0.1 mm division: 2330 form units per millimetre, so 23.3 per stored unit.
  const GridGeometry grid = laidOut(1, 60, {15360, 11520});
  ASSERT_FLOAT_EQ(grid.unitsPerMm, 2330.0f);
  const GridPlacement placement = gridPlacement(grid);
  for (std::int16_t value = 0; value <= 600; ++value) {
    const FormPosition form = formPointOfStored(value, value, grid);
    ASSERT_EQ(storedAction(kLine, form.x, form.y, placement), (SymbolAction{kLine, value, value}))
        << value;
  }
}

TEST(FormPointOfStored, IsTheNearestPointToTheCornerThatStoresAsTheValueOrMore) {
  // Factors where single precision puts the exact quotient one unit too far or too near.
  for (const float unitsPerMm : {10.0f, static_cast<float>(10.0 / 7), 46.6f, 2330.0f}) {
    const GridGeometry grid{60, 1, 60, 100, 100, unitsPerMm};
    const GridPlacement placement = gridPlacement(grid);
    for (std::int16_t value = 0; value <= 2000; ++value) {
      const FormPosition form = formPointOfStored(value, value, grid);
      const SymbolAction stored = storedAction(kLine, form.x, form.y, placement);
      const SymbolAction nearer = storedAction(kLine, form.x - 1, form.y + 1, placement);
      ASSERT_GE(stored.x, value) << unitsPerMm << " " << value;
      ASSERT_GE(stored.y, value) << unitsPerMm << " " << value;
      ASSERT_LT(nearer.x, value) << unitsPerMm << " " << value;
      ASSERT_LT(nearer.y, value) << unitsPerMm << " " << value;
    }
  }
}

}  // namespace
}  // namespace quorn
