#pragma once
// A standard spindle's shape drawn on a canvas, as the Standard Spindles picker shows it in
// each spindle's frame.

#include "display/canvas.h"
#include "model/spindle_definition.h"

namespace quorn {

/// A rectangle of a canvas in its form units, y downward.
struct CanvasBox {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;
};

/// The pen of the spindle shapes.
inline constexpr Pen kSpindlePen{0, PenStyle::Solid, 1};

/// Clears `canvas` and draws the segments of `spindle` in `box`: the shape, whose y runs
/// upward as in SPINDLES.DEF, is turned the right way up, scaled by one factor on both axes to
/// fill the box inside a margin of a tenth on each side, and centred. A spindle without
/// segments leaves the canvas clear.
void drawSpindle(Canvas& canvas, const SpindleDefinition& spindle, const CanvasBox& box);

}  // namespace quorn
