#include "display/display_list.h"

namespace quorn {

void DisplayList::line(double x1, double y1, double x2, double y2, const Pen& pen) {
  calls_.push_back(DrawCall{DrawCall::Kind::Line, x1, y1, x2, y2, 0, pen});
}

void DisplayList::circle(double cx, double cy, double radius, const Pen& pen) {
  calls_.push_back(DrawCall{DrawCall::Kind::Circle, cx, cy, 0, 0, radius, pen});
}

void DisplayList::paintOn(Canvas& canvas) const {
  for (const DrawCall& call : calls_) {
    if (call.kind == DrawCall::Kind::Line) {
      canvas.line(call.x1, call.y1, call.x2, call.y2, call.pen);
    } else {
      canvas.circle(call.x1, call.y1, call.radius, call.pen);
    }
  }
}

}  // namespace quorn
