#include "display/display_list.h"

namespace quorn {

void DisplayList::clear() {
  calls_.clear();
  gridCalls_ = 0;
  hasGrid_ = false;
}

void DisplayList::line(double x1, double y1, double x2, double y2, const Pen& pen) {
  calls_.push_back(DrawCall{DrawCall::Kind::Line, x1, y1, x2, y2, 0, pen});
}

void DisplayList::circle(double cx, double cy, double radius, const Pen& pen) {
  calls_.push_back(DrawCall{DrawCall::Kind::Circle, cx, cy, 0, 0, radius, pen});
}

void DisplayList::gridComplete() {
  gridCalls_ = calls_.size();
  hasGrid_ = true;
}

void DisplayList::paintCalls(Canvas& canvas, std::size_t first, std::size_t end) const {
  for (std::size_t i = first; i < end; ++i) {
    const DrawCall& call = calls_[i];
    if (call.kind == DrawCall::Kind::Line) {
      canvas.line(call.x1, call.y1, call.x2, call.y2, call.pen);
    } else {
      canvas.circle(call.x1, call.y1, call.radius, call.pen);
    }
  }
}

void DisplayList::paintGrid(Canvas& canvas) const {
  if (!hasGrid_) return;
  paintCalls(canvas, 0, gridCalls_);
  canvas.gridComplete();
}

void DisplayList::paintOverGrid(Canvas& canvas) const {
  paintCalls(canvas, gridCalls_, calls_.size());
}

void DisplayList::paintOn(Canvas& canvas) const {
  paintGrid(canvas);
  paintOverGrid(canvas);
}

}  // namespace quorn
