#pragma once
// The angles and radii of arc and circle construction. The values of pi are this program's
// own, not the library's: at the limits they decide segment counts and exchanges.

#include <cstdint>

#include "edit/form_point.h"

namespace quorn {

inline constexpr double kPi = 3.1415926;
inline constexpr float kPiSingle = 3.1415925f;  // pi where a single-precision sweep is compared
inline constexpr double kTwoPi = 6.2831852;
inline constexpr double kHalfPi = 3.1415926 / 2;
inline constexpr double kThreeHalfPi = 9.4247778 / 2;

/// The angle of `point` about `centre`, 0 to 2 pi, in form axes (x right, y down; an angle
/// turns from +x towards +y). It is measured a quarter turn behind the radius: the angle is the
/// direction of the tangent at `point` that leads to smaller angles, so 0 is straight below
/// the centre and the angle grows through the left, the top and the right. Arctangent with
/// pi added in the second and third quadrants and 2 pi in the fourth; straight below or above
/// the centre gives 0 or pi, straight left or right pi/2 or 3pi/2; the centre itself pi/2.
float angleAbout(FormPoint centre, FormPoint point);

/// 1 below pi/2, 2 below pi, 3 below 3pi/2, else 4; the angle is compared in double
/// precision, so a single-precision pi/2 or pi falls just short of its limit.
int quadrantOf(float angle);

/// The distance between two points, rounded to whole form units (halves to even).
std::int32_t radiusBetween(FormPoint centre, FormPoint edge);

}  // namespace quorn
