#include "edit/construction_geometry.h"

#include <cmath>

#include "base/numbers.h"

namespace quorn {

float angleAbout(FormPoint centre, FormPoint point) {
  // The offset turned a quarter turn back: the arctangent then gives the tangent's direction,
  // which is the heading the chord walk of an arc starts from.
  const double u = static_cast<double>(point.y) - centre.y;
  const double v = static_cast<double>(centre.x) - point.x;
  if (u == 0) return static_cast<float>(v < 0 ? kThreeHalfPi : kHalfPi);
  double angle = std::atan(v / u);
  if (u < 0) {
    angle += kPi;
  } else if (v < 0) {
    angle += kTwoPi;
  }
  return static_cast<float>(angle);
}

int quadrantOf(float angle) {
  const double a = angle;
  if (a < kHalfPi) return 1;
  if (a < kPi) return 2;
  if (a < kThreeHalfPi) return 3;
  return 4;
}

std::int32_t radiusBetween(FormPoint centre, FormPoint edge) {
  const double dx = static_cast<double>(edge.x) - centre.x;
  const double dy = static_cast<double>(edge.y) - centre.y;
  return roundHalfEven(std::sqrt(dx * dx + dy * dy));
}

}  // namespace quorn
