#pragma once
// A canvas that keeps what has been drawn since it was last cleared, so that it can be
// painted again: the window repaints it whenever it is exposed, and scripts print it.
//
// It also keeps where the grid ends: the calls before the grid-complete mark form a layer that
// stays the same until the next clear, which the window paints once and keeps as a picture.

#include <cstddef>
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
  void clear() override;
  void line(double x1, double y1, double x2, double y2, const Pen& pen) override;
  void circle(double cx, double cy, double radius, const Pen& pen) override;
  void gridComplete() override;

  const std::vector<DrawCall>& calls() const { return calls_; }
  /// Whether the grid has been marked complete since the last clear.
  bool hasGrid() const { return hasGrid_; }
  /// How many of the first calls form the grid: 0 while no grid has been marked.
  std::size_t gridCallCount() const { return gridCalls_; }

  /// Draws everything kept onto `canvas`, in order (without clearing it), with the grid mark
  /// in its place.
  void paintOn(Canvas& canvas) const;
  /// Draws the grid's calls and its mark, when there is a grid.
  void paintGrid(Canvas& canvas) const;
  /// Draws the calls after the grid: all of them when there is no grid.
  void paintOverGrid(Canvas& canvas) const;
  /// Draws calls `first` up to `end` (not included), in order.
  void paintCalls(Canvas& canvas, std::size_t first, std::size_t end) const;

 private:
  std::vector<DrawCall> calls_;
  std::size_t gridCalls_ = 0;
  bool hasGrid_ = false;
};

}  // namespace quorn
