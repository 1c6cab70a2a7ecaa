#include "display/grid_geometry.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/numbers.h"
#include "display/grid_texts.h"

namespace quorn {

namespace {

// Screens reported above this size are taken at half their size.
constexpr double kLargeScreen = 30000;
// The surface keeps these bands free around the grid: its left margin and the grid's top
// corner, a strip at the right, and the band at the foot for the scale and prompt.
constexpr double kRightBand = 250;
constexpr double kFootBand = 1400;
constexpr long long kMaxField = std::numeric_limits<std::int16_t>::max();

double usableScreenSize(double size) {
  return size > kLargeScreen ? size / 2 : size;
}

GridLayout fault(std::string problem) {
  return GridLayout{std::nullopt, std::move(problem)};
}

// The smallest form distance whose stored value reaches `stored`. The exact quotient lands
// on it or next to it; the steps only make up for single precision, and are bounded so that
// a scale beyond single precision's reach settles for the exact quotient.
long long formDistance(std::int16_t stored, float unitsPerMm) {
  constexpr int kMaxSteps = 64;
  const float target = stored;
  constexpr double kFarBeyondTheSurface = 1e15;
  const double exact = std::ceil(static_cast<double>(stored) * unitsPerMm / 100.0);
  auto distance =
      static_cast<long long>(std::clamp(exact, -kFarBeyondTheSurface, kFarBeyondTheSurface));
  for (int step = 0; step < kMaxSteps && storedValue(distance, unitsPerMm) < target; ++step) {
    ++distance;
  }
  for (int step = 0; step < kMaxSteps && storedValue(distance - 1, unitsPerMm) >= target; ++step) {
    --distance;
  }
  return distance;
}

std::int32_t clampedInt32(long long value) {
  return static_cast<std::int32_t>(std::clamp<long long>(
      value, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()));
}

}  // namespace

GridLayout layOutGrid(double pitch, double hsize, ScreenSize screen) {
  // Sizes of zero or less would turn the grid inside out; they give no divisions.
  if (!(pitch > 0) || !(hsize > 0)) return fault(noGridDivisionsText(pitch, hsize));
  const std::optional<std::int16_t> rounded = roundToInt16(hsize / pitch);
  if (!rounded) return fault(tooManyGridDivisionsText(pitch, hsize));
  if (*rounded == 0) return fault(noGridDivisionsText(pitch, hsize));
  const long long divisions = *rounded;

  const long long availableWidth =
      roundHalfEven(usableScreenSize(screen.width) - kGridLeft - kRightBand);
  if (availableWidth <= 0) {
    return fault(screenLeavesNoRoomText(GridSide::Width, screen.width, availableWidth));
  }
  const long long availableHeight =
      roundHalfEven(usableScreenSize(screen.height) - kGridTop - kFootBand);
  if (availableHeight <= 0) {
    return fault(screenLeavesNoRoomText(GridSide::Height, screen.height, availableHeight));
  }

  const long long spacing = availableWidth / divisions;
  if (spacing == 0) return fault(divisionsDoNotFitText(availableWidth, divisions));
  const long long gridWidth = divisions * spacing;
  if (gridWidth > kMaxField) return fault(gridTooLargeText(GridSide::Width, gridWidth));
  const long long rows = availableHeight / spacing;
  if (rows == 0) return fault(noGridRowText(availableHeight, spacing));
  const long long gridHeight = rows * spacing;
  if (gridHeight > kMaxField) return fault(gridTooLargeText(GridSide::Height, gridHeight));

  GridGeometry grid;
  grid.divisions = static_cast<std::int16_t>(divisions);
  grid.spacing = static_cast<std::int16_t>(spacing);
  grid.gridWidth = static_cast<std::int16_t>(gridWidth);
  grid.rows = static_cast<std::int16_t>(rows);
  grid.gridHeight = static_cast<std::int16_t>(gridHeight);
  grid.unitsPerMm = static_cast<float>(static_cast<double>(spacing) * 10 / pitch);
  return GridLayout{grid, {}};
}

GridLayout layOutGrid(const Configuration& config, ScreenSize screen) {
  return layOutGrid(config.pitch, config.hsize, screen);
}

GridPlacement gridPlacement(const GridGeometry& grid) {
  return GridPlacement{grid.unitsPerMm, grid.gridHeight};
}

bool withinGrid(double x, double y, const GridGeometry& grid) {
  return x >= kGridLeft && x <= kGridLeft + grid.gridWidth && y >= kGridTop &&
         y <= kGridTop + grid.gridHeight;
}

FormPosition formPointOfStored(std::int16_t x, std::int16_t y, const GridGeometry& grid) {
  const std::int32_t bottom = kGridTop + grid.gridHeight;
  // A grid that was never laid out has no scale: everything sits at its corner.
  if (!(grid.unitsPerMm > 0) || !std::isfinite(grid.unitsPerMm)) return {kGridLeft, bottom};
  return {clampedInt32(kGridLeft + formDistance(x, grid.unitsPerMm)),
          clampedInt32(bottom - formDistance(y, grid.unitsPerMm))};
}

}  // namespace quorn
