#include "ui/surface_points.h"

#include <QApplication>
#include <QMouseEvent>
#include <cmath>
#include <utility>

namespace quorn::test {

SurfacePoints::SurfacePoints(ui::DrawingSurface& surface) {
  const QPoint near(10, 10);
  const QPoint far(surface.width() - 10, surface.height() - 10);
  const QPointF formNear = formOf(surface, near);
  const QPointF formFar = formOf(surface, far);
  pixelOrigin_ = QPointF(near);
  formOrigin_ = formNear;
  pixelsPerUnit_ = QPointF((far.x() - near.x()) / (formFar.x() - formNear.x()),
                           (far.y() - near.y()) / (formFar.y() - formNear.y()));
}

QPointF SurfacePoints::formOf(ui::DrawingSurface& surface, QPoint pixel) {
  // The move goes through the surface's own event handler, but to a recorder in place of the
  // window's handler.
  QPointF reported(std::nan(""), std::nan(""));
  auto windowHandler =
      std::exchange(surface.onMove, [&reported](float x, float y) { reported = QPointF(x, y); });
  QMouseEvent move(QEvent::MouseMove, QPointF(pixel), surface.mapToGlobal(QPointF(pixel)),
                   Qt::NoButton, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(&surface, &move);
  surface.onMove = std::move(windowHandler);
  return reported;
}

bool SurfacePoints::valid() const {
  return std::isfinite(pixelsPerUnit_.x()) && std::isfinite(pixelsPerUnit_.y()) &&
         pixelsPerUnit_.x() > 0 && pixelsPerUnit_.y() > 0;
}

QPoint SurfacePoints::pixelAt(double x, double y) const {
  return QPoint(
      static_cast<int>(std::lround(pixelOrigin_.x() + (x - formOrigin_.x()) * pixelsPerUnit_.x())),
      static_cast<int>(std::lround(pixelOrigin_.y() + (y - formOrigin_.y()) * pixelsPerUnit_.y())));
}

}  // namespace quorn::test
