#pragma once
// The grid as the editing operations see it: where it lies on the drawing surface and how
// large it is, in form units.

#include <cstdint>

namespace quorn {

/// The grid's top-left corner on the drawing surface.
inline constexpr std::int32_t kGridLeftX = 1100;
inline constexpr std::int32_t kGridTopY = 500;

struct GridFrame {
  std::int32_t spacing = 0;  // one grid division
  std::int32_t width = 0;
  std::int32_t height = 0;

  /// The grid's bottom edge: the lowest y of the positive area.
  std::int32_t bottomY() const { return kGridTopY + height; }
};

}  // namespace quorn
