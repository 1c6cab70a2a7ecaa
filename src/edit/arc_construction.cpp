#include "edit/arc_construction.h"

#include <array>
#include <cmath>
#include <utility>

#include "base/numbers.h"
#include "edit/construction_geometry.h"
#include "edit/construction_texts.h"

namespace quorn {

namespace {

enum class Exchange { Never, Always, IfSweepAtMostPi, IfSweepAbovePi, IfStartBelowEnd };

// By the quadrant of the start edge point less that of the end point, from -3 to +3. It puts
// first the point from which the shorter way round runs towards smaller angles.
constexpr std::array<Exchange, 7> kExchangeByQuadrants = {
    Exchange::Never,            // -3
    Exchange::IfSweepAtMostPi,  // -2
    Exchange::Always,           // -1
    Exchange::IfStartBelowEnd,  //  0
    Exchange::Never,            // +1
    Exchange::IfSweepAbovePi,   // +2
    Exchange::Always,           // +3
};

bool exchanged(Exchange rule, const ArcSpan& span) {
  switch (rule) {
    case Exchange::Never:
      return false;
    case Exchange::Always:
      return true;
    case Exchange::IfSweepAtMostPi:
      return span.sweep <= kPiSingle;
    case Exchange::IfSweepAbovePi:
      return span.sweep > kPiSingle;
    case Exchange::IfStartBelowEnd:
      return span.startAngle < span.endAngle;
  }
  return false;
}

}  // namespace

ArcSpan arcSpan(FormPoint centre, FormPoint startEdge, FormPoint endPoint) {
  ArcSpan span{startEdge, endPoint, angleAbout(centre, startEdge), angleAbout(centre, endPoint)};
  span.sweep = std::fabs(span.startAngle - span.endAngle);
  const int difference = quadrantOf(span.startAngle) - quadrantOf(span.endAngle);
  if (exchanged(kExchangeByQuadrants[static_cast<std::size_t>(difference + 3)], span)) {
    std::swap(span.start, span.end);
    std::swap(span.startAngle, span.endAngle);
  }
  if (span.sweep > kPiSingle) span.sweep = static_cast<float>(kTwoPi - span.sweep);
  return span;
}

int arcSegments(std::int16_t fullTurnSegments, float sweep) {
  return roundHalfEven(fullTurnSegments * static_cast<double>(sweep) / kTwoPi);
}

std::vector<FormPoint> walkArc(FormPoint start, float startAngle, float sweep, int segments,
                               std::int32_t radius, int freeSlots) {
  std::vector<FormPoint> points;
  if (freeSlots <= 0 || segments < 1) return points;
  const float halfStep = sweep / static_cast<float>(segments) / 2.0f;
  const double chord = 2.0 * radius * std::sin(static_cast<double>(halfStep));
  FormPoint point = start;
  points.push_back(point);
  for (int i = 1; i <= segments && static_cast<int>(points.size()) < freeSlots; ++i) {
    const float heading = startAngle - static_cast<float>(2 * i - 1) * halfStep;
    point.x += roundHalfEven(chord * std::cos(static_cast<double>(heading)));
    point.y += roundHalfEven(chord * std::sin(static_cast<double>(heading)));
    points.push_back(point);
  }
  return points;
}

ConstructionOutcome buildArc(FormPoint centre, std::int32_t radius, FormPoint startEdge,
                             FormPoint endPoint, std::int16_t fullTurnSegments, SymbolRoom room) {
  ConstructionOutcome outcome;
  outcome.prompt = kConstructionDonePrompt;
  outcome.finished = true;
  const ArcSpan span = arcSpan(centre, startEdge, endPoint);
  const int segments = arcSegments(fullTurnSegments, span.sweep);
  if (segments < 2) {
    outcome.message = kArcTooSmallText;
    return outcome;
  }
  if (room.actionCount + segments > kSymbolActionLimit) {
    outcome.message = kArcTooManyActionsText;
    return outcome;
  }
  outcome.points =
      walkArc(span.start, span.startAngle, span.sweep, segments, radius, room.freeSlots);
  if (!outcome.points.empty()) outcome.lastPoint = outcome.points.back();
  return outcome;
}

ConstructionOutcome ArcConstruction::click(FormPoint cursor, std::int16_t fullTurnSegments,
                                           SymbolRoom room) {
  ConstructionOutcome outcome;
  switch (picked_) {
    case 0:
      centre_ = cursor;
      picked_ = 1;
      outcome.prompt = kArcStartEdgePrompt;
      outcome.lastPoint = cursor;
      outcome.strokeStart = cursor;
      return outcome;
    case 1:
      startEdge_ = cursor;
      radius_ = radiusBetween(centre_, cursor);
      picked_ = 2;
      outcome.prompt = kArcEndPrompt;
      return outcome;
    default:
      picked_ = 0;
      return buildArc(centre_, radius_, startEdge_, cursor, fullTurnSegments, room);
  }
}

}  // namespace quorn
