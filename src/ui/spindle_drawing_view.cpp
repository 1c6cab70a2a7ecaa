#include "ui/spindle_drawing_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "display/spindle_drawing.h"
#include "ui/painter_canvas.h"

namespace quorn::ui {

namespace {

/// The shorter side of the drawing in form units; the painter scales it to the widget.
constexpr double kSide = 1440;

}  // namespace

SpindleDrawingView::SpindleDrawingView(const SpindleDefinition& spindle,
                                       std::function<void()> clicked)
    : spindle_(spindle), clicked_(std::move(clicked)) {
  setCursor(Qt::PointingHandCursor);
  setMinimumSize(72, 72);
}

QSize SpindleDrawingView::sizeHint() const {
  return QSize(96, 96);
}

void SpindleDrawingView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  // One scale on both axes, so a frame that is not square does not distort the shape.
  const double perPixel = kSide / std::max(1, std::min(width(), height()));
  painter.scale(1 / perPixel, 1 / perPixel);
  const CanvasBox box{0, 0, width() * perPixel, height() * perPixel};
  PainterCanvas canvas(painter, QRectF(box.left, box.top, box.width, box.height));
  drawSpindle(canvas, spindle_, box);
}

void SpindleDrawingView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) clicked_();
}

}  // namespace quorn::ui
