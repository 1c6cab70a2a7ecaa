#include "edit/circle_construction.h"

#include <cmath>

#include "base/numbers.h"
#include "edit/construction_geometry.h"
#include "edit/construction_texts.h"
#include "model/working_symbol.h"

namespace quorn {

bool circleFits(FormPoint centre, std::int32_t radius, const GridFrame& grid) {
  const std::int64_t left = static_cast<std::int64_t>(centre.x) - radius;
  const std::int64_t right = static_cast<std::int64_t>(centre.x) + radius;
  const std::int64_t top = static_cast<std::int64_t>(centre.y) - radius;
  const std::int64_t bottom = static_cast<std::int64_t>(centre.y) + radius;
  return left >= kGridLeft && right <= static_cast<std::int64_t>(kGridLeft) + grid.width &&
         top >= kGridTop && bottom <= static_cast<std::int64_t>(kGridTop) + grid.height;
}

std::vector<FormPoint> circlePoints(FormPoint centre, std::int32_t radius, std::int16_t segments,
                                    int freeSlots) {
  std::vector<FormPoint> points;
  if (freeSlots <= 0 || segments < 1) return points;
  const float step = static_cast<float>(kTwoPi / segments);
  for (int k = 0; k < segments && static_cast<int>(points.size()) < freeSlots; ++k) {
    const double angle = static_cast<float>(k) * step;
    points.push_back({centre.x + roundHalfEven(radius * std::cos(angle)),
                      centre.y + roundHalfEven(radius * std::sin(angle))});
  }
  // The last line closes on the first point itself.
  if (static_cast<int>(points.size()) < freeSlots) points.push_back(points.front());
  return points;
}

ConstructionOutcome buildCircle(FormPoint centre, std::int32_t radius, std::int16_t segments,
                                const GridFrame& grid, SymbolRoom room) {
  ConstructionOutcome outcome;
  outcome.prompt = kConstructionDonePrompt;
  outcome.finished = true;
  if (segments < 1) {
    outcome.message = kCircleNoSegmentsText;
  } else if (!circleFits(centre, radius, grid)) {
    outcome.message = kCircleDoesNotFitText;
  } else if (room.actionCount + segments > kSymbolActionLimit) {
    outcome.message = kCircleTooManyActionsText;
  } else {
    outcome.points = circlePoints(centre, radius, segments, room.freeSlots);
    if (!outcome.points.empty()) outcome.lastPoint = outcome.points.front();
  }
  return outcome;
}

ConstructionOutcome CircleConstruction::click(FormPoint cursor, std::int16_t segments,
                                              const GridFrame& grid, SymbolRoom room) {
  if (!centrePicked_) {
    centre_ = cursor;
    centrePicked_ = true;
    ConstructionOutcome outcome;
    outcome.prompt = kCircleEdgePrompt;
    return outcome;
  }
  centrePicked_ = false;
  return buildCircle(centre_, radiusBetween(centre_, cursor), segments, grid, room);
}

}  // namespace quorn
