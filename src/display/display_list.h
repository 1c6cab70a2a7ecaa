#pragma once
// A canvas that keeps what has been drawn since it was last cleared, so that it can be
// painted again: the window repaints it whenever it is exposed, and scripts print it.

#include <vector>

#include "display/canvas.h"

namespace quorn {

struct DrawCall {
  enum class Kind { Line, Circle };
  Kind kind = Kind::Line;
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;  // a circle's centre is (x1, y1)
  double radius = 0;
  Pen pen;
  friend bool operator==(const DrawCall&, const DrawCall&) = default;
};

class DisplayList : public Canvas {
 public:
  void clear() override { calls_.clear(); }
  void line(double x1, double y1, double x2, double y2, const Pen& pen) override;
  void circle(double cx, double cy, double radius, const Pen& pen) override;

  const std::vector<DrawCall>& calls() const { return calls_; }
  /// Draws everything kept onto `canvas`, in order (without clearing it).
  void paintOn(Canvas& canvas) const;

 private:
  std::vector<DrawCall> calls_;
};

}  // namespace quorn
