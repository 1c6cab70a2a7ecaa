#pragma once
// Where a point of the form lies on the drawing surface, in the surface's pixels. The surface
// reports mouse positions in form units; two reported positions far apart give its transform,
// which is then used the other way round, so a click lands where the test means whatever the
// window's size.

#include <QPoint>
#include <QPointF>

#include "ui/drawing_surface.h"

namespace quorn::test {

class SurfacePoints {
 public:
  /// Learns the surface's transform from two mouse moves that the editor never sees.
  explicit SurfacePoints(ui::DrawingSurface& surface);

  /// The surface reported both moves, so the transform is known.
  bool valid() const;
  /// The pixel nearest to the form point (`x`, `y`).
  QPoint pixelAt(double x, double y) const;

 private:
  QPointF formOf(ui::DrawingSurface& surface, QPoint pixel);

  QPointF pixelOrigin_;
  QPointF formOrigin_;
  QPointF pixelsPerUnit_;
};

}  // namespace quorn::test
