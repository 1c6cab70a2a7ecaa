#pragma once
// Where the drawing grid lies on the surface and how big its divisions are, laid out from the
// grid division, the scale length and the screen size.

#include <cstdint>
#include <optional>
#include <string>

#include "base/environment.h"
#include "config/configuration.h"
#include "model/editor_state.h"
#include "model/working_symbol.h"

namespace quorn {

struct GridGeometry {
  std::int16_t divisions = 0;   // grid divisions across
  std::int16_t spacing = 0;     // one division, in form units
  std::int16_t gridWidth = 0;   // divisions × spacing
  std::int16_t rows = 0;        // grid divisions down
  std::int16_t gridHeight = 0;  // rows × spacing
  float unitsPerMm = 0;         // form units per millimetre of the full-size symbol
  friend bool operator==(const GridGeometry&, const GridGeometry&) = default;
};

/// The grid laid out, or why the screen or the sizes cannot hold one.
struct GridLayout {
  std::optional<GridGeometry> geometry;
  std::string problem;  // set exactly when there is no geometry
};

/// Lays the grid out for `pitch` and `hsize` (both in tenths of a millimetre) on a screen of
/// `screen` form units. Screens above 30000 form units in a direction count as half that.
/// A screen that leaves no room, a size that gives no division, or a grid too large for its
/// 16-bit fields gives a problem instead of a geometry.
GridLayout layOutGrid(double pitch, double hsize, ScreenSize screen);
/// The same from the configuration's `PITCH` and `HSIZE`.
GridLayout layOutGrid(const Configuration& config, ScreenSize screen);

/// What storing a form-unit point needs to know of the grid.
GridPlacement gridPlacement(const GridGeometry& grid);

/// Whether a form-unit point lies on the grid rectangle, its edges included.
bool withinGrid(double x, double y, const GridGeometry& grid);

/// The form-unit point of a stored point (hundredths of a millimetre from the grid's
/// bottom-left corner, y up). Each distance from that corner is the smallest whole number of
/// form units that stores as the given value or more. So below 100 form units per millimetre,
/// where a form unit spans more than a stored unit, a point stored from the screen comes back
/// where it was drawn; at 100 or more, any stored point stores again unchanged.
FormPosition formPointOfStored(std::int16_t x, std::int16_t y, const GridGeometry& grid);

}  // namespace quorn
