#include "ui/painter_canvas.h"

#include <cmath>

#include "config/palette.h"

namespace quorn::ui {

QColor PainterCanvas::colour(int index) {
  if (index < 0 || index >= static_cast<int>(kPalette.size())) return Qt::black;
  const PaletteColour& entry = kPalette[static_cast<std::size_t>(index)];
  return QColor(entry.red, entry.green, entry.blue);
}

void PainterCanvas::clear() {
  painter_.fillRect(background_, Qt::white);
}

void PainterCanvas::use(const Pen& pen) {
  QPen qpen(colour(pen.colour));
  if (paperDotsPerPixel_) {
    // The painter's transform shrinks or grows the pen with the drawing; undo its scale so
    // the page gets the intended number of dots.
    const double scale = std::sqrt(std::abs(painter_.worldTransform().determinant()));
    qpen.setWidthF(pen.width * *paperDotsPerPixel_ / (scale > 0 ? scale : 1));
  } else {
    // Widths are device pixels, as on the screen the editor was made for.
    qpen.setCosmetic(true);
    qpen.setWidth(pen.width);
  }
  switch (pen.style) {
    case PenStyle::Solid:
      qpen.setStyle(Qt::SolidLine);
      break;
    case PenStyle::Dotted:
      qpen.setStyle(Qt::DotLine);
      break;
    case PenStyle::Dashed:
      qpen.setStyle(Qt::DashLine);
      break;
  }
  painter_.setPen(qpen);
  painter_.setBrush(Qt::NoBrush);
}

void PainterCanvas::line(double x1, double y1, double x2, double y2, const Pen& pen) {
  use(pen);
  painter_.drawLine(QPointF(x1, y1), QPointF(x2, y2));
}

void PainterCanvas::circle(double cx, double cy, double radius, const Pen& pen) {
  use(pen);
  painter_.drawEllipse(QPointF(cx, cy), radius, radius);
}

}  // namespace quorn::ui
