#pragma once
// The grid as the editing operations see it: how large it is, in form units, from its
// top-left corner (kGridLeft, kGridTop).

#include <cstdint>

#include "display/grid_geometry.h"
#include "model/working_symbol.h"

namespace quorn {

struct GridFrame {
  std::int32_t spacing = 0;  // one grid division
  std::int32_t width = 0;
  std::int32_t height = 0;

  /// The grid's bottom edge: the lowest y of the positive area.
  std::int32_t bottomY() const { return kGridTop + height; }
};

/// The frame of the grid as laid out: the one place the editing operations take it from.
inline GridFrame gridFrame(const GridGeometry& grid) {
  return GridFrame{grid.spacing, grid.gridWidth, grid.gridHeight};
}

}  // namespace quorn
