#pragma once
// An arc from three left clicks (centre, start edge point, end point), built as a polyline by a
// walk of equal chords. Each chord is rounded by itself and added to the point before it, so
// the rounding adds up along the arc: its last point need not fall on the circle.

#include <cstdint>
#include <vector>

#include "edit/construction_outcome.h"
#include "edit/form_point.h"

namespace quorn {

/// The two picked points in walking order: the arc leaves `start` and turns through `sweep`
/// radians towards smaller angles (see angleAbout), the shorter way round to `end`.
struct ArcSpan {
  FormPoint start;
  FormPoint end;
  float startAngle = 0;
  float endAngle = 0;
  float sweep = 0;  // 0 to pi
};

/// Orders the start edge point and the end point by the exchange table of their quadrants and
/// folds a sweep beyond pi back to the shorter way.
ArcSpan arcSpan(FormPoint centre, FormPoint startEdge, FormPoint endPoint);

/// The segments of an arc of `sweep` radians: `fullTurnSegments` (segments in a whole turn, as
/// the configuration holds SEGMENTSIN180ARC doubled) times the sweep's share of a whole turn,
/// rounded halves to even.
int arcSegments(std::int16_t fullTurnSegments, float sweep);

/// The chord walk: `start`, then `segments` points each one chord of 2 × radius × sin(h) on
/// from the last, heading startAngle − (2i − 1) × h for chord i, where h is half a segment's
/// angle. Stops early when `freeSlots` points have been given; nothing for no room or segments.
std::vector<FormPoint> walkArc(FormPoint start, float startAngle, float sweep, int segments,
                               std::int32_t radius, int freeSlots);

/// The arc's outcome once its end point is picked: refused with its message when it gives
/// fewer than 2 segments or would bring the actions past the limit; otherwise the walk's
/// points, of which the last becomes LastPoint. Finished either way.
ConstructionOutcome buildArc(FormPoint centre, std::int32_t radius, FormPoint startEdge,
                             FormPoint endPoint, std::int16_t fullTurnSegments, SymbolRoom room);

/// The clicks of one arc. Holds only the points picked so far; after the third click it is
/// ready for the next arc.
class ArcConstruction {
 public:
  /// A left click at `cursor`. The first picks the centre, which becomes LastPoint and
  /// StrokeStart; the second the start edge point, which fixes the radius; the third the end
  /// point, which builds the arc (see buildArc).
  ConstructionOutcome click(FormPoint cursor, std::int16_t fullTurnSegments, SymbolRoom room);
  /// The right button: the points picked so far are dropped.
  void cancel() { picked_ = 0; }
  /// 0 before the centre, 1 after it, 2 after the start edge point.
  int pointsPicked() const { return picked_; }

 private:
  int picked_ = 0;
  FormPoint centre_;
  FormPoint startEdge_;
  std::int32_t radius_ = 0;
};

}  // namespace quorn
