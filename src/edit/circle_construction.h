#pragma once
// A circle from two left clicks (centre, edge point), built as a closed polyline whose points
// are each computed from the centre.

#include <cstdint>
#include <vector>

#include "edit/construction_outcome.h"
#include "edit/form_point.h"
#include "edit/grid_frame.h"

namespace quorn {

/// Whether the square centre ± radius lies on the grid (its width and height from the
/// top-left corner); touching the grid's edge is allowed.
bool circleFits(FormPoint centre, std::int32_t radius, const GridFrame& grid);

/// The circle's points: the first at angle 0 (straight right of the centre), then one angle
/// step of 2 pi / segments at a time towards +y, and last the first point again, so there are
/// segments + 1. Each offset from the centre is rounded halves to even. Stops early when
/// `freeSlots` points have been given; nothing for no room or no segments.
std::vector<FormPoint> circlePoints(FormPoint centre, std::int32_t radius, std::int16_t segments,
                                    int freeSlots);

/// The circle's outcome once its edge is picked. Refused with its message when there are no
/// segments, when it does not fit on the grid, or when its segments would bring the actions
/// past the limit (the same rule as an arc's); otherwise its points, of which the first
/// becomes LastPoint. Finished either way.
ConstructionOutcome buildCircle(FormPoint centre, std::int32_t radius, std::int16_t segments,
                                const GridFrame& grid, SymbolRoom room);

/// The clicks of one circle. Holds only the centre once it is picked; after the second click
/// it is ready for the next circle.
class CircleConstruction {
 public:
  /// A left click at `cursor`: the first picks the centre, the second the edge point, which
  /// fixes the radius (rounded halves to even) and builds the circle (see buildCircle) with
  /// `segments` from NOOFSEGMENTS.
  ConstructionOutcome click(FormPoint cursor, std::int16_t segments, const GridFrame& grid,
                            SymbolRoom room);
  /// The right button: the centre is dropped.
  void cancel() { centrePicked_ = false; }
  bool centrePicked() const { return centrePicked_; }

 private:
  bool centrePicked_ = false;
  FormPoint centre_;
};

}  // namespace quorn
