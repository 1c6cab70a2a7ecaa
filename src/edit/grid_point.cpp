#include "edit/grid_point.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "model/working_symbol.h"

namespace quorn {

namespace {

double unsnapped(float value) {
  return static_cast<double>(roundHalfEven(static_cast<double>(value)));
}

/// The coordinate on the nearest grid line from `origin`, in single precision as the mouse
/// gives it. Held in double so that a position far off the surface cannot overflow before it
/// is clamped.
double snapped(float value, std::int32_t origin, std::int32_t spacing) {
  if (spacing <= 0) return unsnapped(value);
  const float divisions = (value - static_cast<float>(origin)) / static_cast<float>(spacing);
  const float below = std::floor(divisions);
  const float past = divisions - below;
  return origin + (static_cast<double>(below) + (past >= 0.5f ? 1 : 0)) * spacing;
}

std::int32_t clamped(double value, std::int32_t low, std::int32_t size) {
  return static_cast<std::int32_t>(
      std::clamp(value, static_cast<double>(low), static_cast<double>(low) + size));
}

}  // namespace

FormPoint gridPointOf(float x, float y, bool snapOn, const GridGeometry& grid) {
  const double gridX = snapOn ? snapped(x, kGridLeft, grid.spacing) : unsnapped(x);
  const double gridY = snapOn ? snapped(y, kGridTop, grid.spacing) : unsnapped(y);
  return FormPoint{clamped(gridX, kGridLeft, grid.gridWidth),
                   clamped(gridY, kGridTop, grid.gridHeight)};
}

}  // namespace quorn
