#include "ui/surface_painter.h"

#include <algorithm>

#include "ui/painter_canvas.h"

namespace quorn::ui {

namespace {

// The bands right of and below the grid that the layout keeps free, in form units.
constexpr double kRightBand = 250;
constexpr double kFootBand = 1400;

void paintAntialiased(QPainter& painter, const QTransform& transform, const QRectF& formArea,
                      const DisplayList& drawing, void (DisplayList::*layer)(Canvas&) const) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setTransform(transform, true);
  PainterCanvas canvas(painter, formArea);
  (drawing.*layer)(canvas);
  painter.restore();
}

}  // namespace

QRectF SurfacePainter::formArea(const GridGeometry& grid) {
  return QRectF(0, 0, kGridLeft + grid.gridWidth + kRightBand,
                kGridTop + grid.gridHeight + kFootBand);
}

QTransform SurfacePainter::formToDevice(QSize size, const QRectF& formArea) {
  const double scale = std::min(size.width() / formArea.width(), size.height() / formArea.height());
  QTransform transform;
  transform.translate((size.width() - formArea.width() * scale) / 2,
                      (size.height() - formArea.height() * scale) / 2);
  transform.scale(scale, scale);
  return transform;
}

void SurfacePainter::forgetGrid() {
  grid_ = QImage();
  gridCalls_.clear();
}

bool SurfacePainter::gridStillFits(QSize pixels, const DisplayList& drawing,
                                   const QRectF& formArea) const {
  if (grid_.isNull() || grid_.size() != pixels || gridFormArea_ != formArea) return false;
  const std::vector<DrawCall>& calls = drawing.calls();
  const auto gridEnd = calls.begin() + static_cast<std::ptrdiff_t>(drawing.gridCallCount());
  return std::equal(calls.begin(), gridEnd, gridCalls_.begin(), gridCalls_.end());
}

void SurfacePainter::paintGridPicture(QSize size, qreal pixelRatio, const DisplayList& drawing,
                                      const QRectF& formArea) {
  grid_ = QImage(size * pixelRatio, QImage::Format_ARGB32_Premultiplied);
  grid_.setDevicePixelRatio(pixelRatio);
  grid_.fill(Qt::white);
  QPainter painter(&grid_);
  paintAntialiased(painter, formToDevice(size, formArea), formArea, drawing,
                   &DisplayList::paintGrid);
  const auto gridEnd =
      drawing.calls().begin() + static_cast<std::ptrdiff_t>(drawing.gridCallCount());
  gridCalls_.assign(drawing.calls().begin(), gridEnd);
  gridFormArea_ = formArea;
}

void SurfacePainter::paint(QPainter& painter, QSize size, qreal pixelRatio,
                           const DisplayList& drawing, const QRectF& formArea) {
  if (!gridStillFits(size * pixelRatio, drawing, formArea)) {
    paintGridPicture(size, pixelRatio, drawing, formArea);
  }
  // The picture is opaque and covers the device; Qt's blend of premultiplied pixels copies it
  // faster than its plain source mode does.
  painter.drawImage(QPointF(0, 0), grid_);
  paintAntialiased(painter, formToDevice(size, formArea), formArea, drawing,
                   &DisplayList::paintOverGrid);
}

}  // namespace quorn::ui
