#include "ui/drawing_surface.h"

#include <QMouseEvent>
#include <QPainter>

#include "ui/painter_canvas.h"

namespace quorn::ui {

namespace {

// The bands around the grid that the layout keeps free, in form units.
constexpr double kRightBand = 250;
constexpr double kFootBand = 1400;

}  // namespace

DrawingSurface::DrawingSurface() {
  setMinimumSize(480, 360);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
}

void DrawingSurface::clear() {
  drawing_.clear();
  update();
}

void DrawingSurface::line(double x1, double y1, double x2, double y2, const Pen& pen) {
  drawing_.line(x1, y1, x2, y2, pen);
  update();
}

void DrawingSurface::circle(double cx, double cy, double radius, const Pen& pen) {
  drawing_.circle(cx, cy, radius, pen);
  update();
}

void DrawingSurface::setGrid(const GridGeometry& grid) {
  formArea_ =
      QRectF(0, 0, kGridLeft + grid.gridWidth + kRightBand, kGridTop + grid.gridHeight + kFootBand);
  update();
}

QTransform DrawingSurface::formToWidget() const {
  const double scale = std::min(width() / formArea_.width(), height() / formArea_.height());
  QTransform transform;
  transform.translate((width() - formArea_.width() * scale) / 2,
                      (height() - formArea_.height() * scale) / 2);
  transform.scale(scale, scale);
  return transform;
}

void DrawingSurface::mousePressEvent(QMouseEvent* event) {
  const QPointF form = formToWidget().inverted().map(event->position());
  if (onPress)
    onPress(event->button() == Qt::LeftButton, static_cast<float>(form.x()),
            static_cast<float>(form.y()));
}

void DrawingSurface::mouseMoveEvent(QMouseEvent* event) {
  const QPointF form = formToWidget().inverted().map(event->position());
  const bool insideGrid = form.x() >= kGridLeft && form.x() <= formArea_.width() - kRightBand &&
                          form.y() >= kGridTop && form.y() <= formArea_.height() - kFootBand;
  setCursor(insideGrid ? Qt::CrossCursor : Qt::ArrowCursor);
  if (onMove) onMove(static_cast<float>(form.x()), static_cast<float>(form.y()));
}

void DrawingSurface::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(rect(), Qt::white);
  painter.setTransform(formToWidget());
  PainterCanvas canvas(painter, formArea_);
  drawing_.paintOn(canvas);
}

}  // namespace quorn::ui
