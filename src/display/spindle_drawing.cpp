#include "display/spindle_drawing.h"

#include <algorithm>

namespace quorn {

namespace {

constexpr double kMargin = 0.1;

struct Extent {
  double minX, maxX, minY, maxY;
};

Extent extentOf(const std::vector<SpindleSegment>& segments) {
  const double x = segments.front().x1;
  const double y = segments.front().y1;
  Extent extent{x, x, y, y};
  const auto take = [&extent](double x, double y) {
    extent.minX = std::min(extent.minX, x);
    extent.maxX = std::max(extent.maxX, x);
    extent.minY = std::min(extent.minY, y);
    extent.maxY = std::max(extent.maxY, y);
  };
  for (const SpindleSegment& segment : segments) {
    take(segment.x1, segment.y1);
    take(segment.x2, segment.y2);
  }
  return extent;
}

/// The one factor that fits the extent into the box's inner part; a shape without width or
/// height is fitted by its other side, a single point keeps its size.
double scaleFor(const Extent& extent, const CanvasBox& box) {
  const double innerWidth = box.width * (1 - 2 * kMargin);
  const double innerHeight = box.height * (1 - 2 * kMargin);
  const double width = extent.maxX - extent.minX;
  const double height = extent.maxY - extent.minY;
  if (width <= 0 && height <= 0) return 1;
  if (width <= 0) return innerHeight / height;
  if (height <= 0) return innerWidth / width;
  return std::min(innerWidth / width, innerHeight / height);
}

}  // namespace

void drawSpindle(Canvas& canvas, const SpindleDefinition& spindle, const CanvasBox& box) {
  canvas.clear();
  if (spindle.segments.empty()) return;
  const Extent extent = extentOf(spindle.segments);
  const double scale = scaleFor(extent, box);
  const double middleX = (extent.minX + extent.maxX) / 2;
  const double middleY = (extent.minY + extent.maxY) / 2;
  const double centreX = box.left + box.width / 2;
  const double centreY = box.top + box.height / 2;
  const auto x = [&](double value) { return centreX + (value - middleX) * scale; };
  const auto y = [&](double value) { return centreY - (value - middleY) * scale; };
  for (const SpindleSegment& segment : spindle.segments) {
    canvas.line(x(segment.x1), y(segment.y1), x(segment.x2), y(segment.y2), kSpindlePen);
  }
}

}  // namespace quorn
