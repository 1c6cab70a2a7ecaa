#pragma once
// Turning a mouse position on the drawing surface into the grid point it acts at.

#include "display/grid_geometry.h"
#include "edit/form_point.h"

namespace quorn {

/// The grid point of the mouse position (`x`, `y`) in form units, as the mouse events give
/// it. With `snapOn` each coordinate goes to the nearest grid line, a position half-way or more
/// past a line going on to the next one; without it each is rounded to a whole form unit,
/// halves to even. Either way the point is then held to the grid rectangle, so a click
/// outside the grid acts at its nearest edge.
FormPoint gridPointOf(float x, float y, bool snapOn, const GridGeometry& grid);

}  // namespace quorn
