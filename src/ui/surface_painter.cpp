#include "ui/surface_painter.h"

#include <algorithm>
#include <span>

#include "ui/painter_canvas.h"

namespace quorn::ui {

namespace {

// The bands right of and below the grid that the layout keeps free, in form units.
constexpr double kRightBand = 250;
constexpr double kFootBand = 1400;

/// Runs `paint` with a canvas that draws antialiased through `painter` in form units.
template <typename Paint>
void paintAntialiased(QPainter& painter, const QTransform& transform, const QRectF& formArea,
                      Paint paint) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setTransform(transform, true);
  PainterCanvas canvas(painter, formArea);
  paint(canvas);
  painter.restore();
}

/// How many calls the two runs share from their starts.
std::size_t sharedStart(std::span<const DrawCall> a, std::span<const DrawCall> b) {
  return static_cast<std::size_t>(std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first -
                                  a.begin());
}

std::span<const DrawCall> overGrid(const DisplayList& drawing) {
  return std::span<const DrawCall>(drawing.calls()).subspan(drawing.gridCallCount());
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
  kept_ = QImage();
  keptCalls_.clear();
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
  paintAntialiased(painter, formToDevice(size, formArea), formArea,
                   [&](Canvas& canvas) { drawing.paintGrid(canvas); });
  kept_ = QImage();
  keptCalls_.clear();
  const auto gridEnd =
      drawing.calls().begin() + static_cast<std::ptrdiff_t>(drawing.gridCallCount());
  gridCalls_.assign(drawing.calls().begin(), gridEnd);
  gridFormArea_ = formArea;
}

std::size_t SurfacePainter::keepSteadyCalls(QSize size, const DisplayList& drawing,
                                            const QRectF& formArea) {
  const std::span<const DrawCall> calls = overGrid(drawing);
  if (kept_.isNull() || sharedStart(calls, keptCalls_) < keptCalls_.size()) {
    kept_ = grid_;
    keptCalls_.clear();
  }
  const std::size_t steady = sharedStart(calls, lastCalls_);
  if (steady > keptCalls_.size()) {
    QPainter painter(&kept_);
    const std::size_t first = drawing.gridCallCount() + keptCalls_.size();
    paintAntialiased(painter, formToDevice(size, formArea), formArea, [&](Canvas& canvas) {
      drawing.paintCalls(canvas, first, drawing.gridCallCount() + steady);
    });
    keptCalls_.assign(calls.begin(), calls.begin() + static_cast<std::ptrdiff_t>(steady));
  }
  lastCalls_.assign(calls.begin(), calls.end());
  return keptCalls_.size();
}

void SurfacePainter::paint(QPainter& painter, QSize size, qreal pixelRatio,
                           const DisplayList& drawing, const QRectF& formArea) {
  if (!gridStillFits(size * pixelRatio, drawing, formArea)) {
    paintGridPicture(size, pixelRatio, drawing, formArea);
  }
  const std::size_t kept = keepSteadyCalls(size, drawing, formArea);
  // The picture is opaque and covers the device; Qt's blend of premultiplied pixels copies it
  // faster than its plain source mode does.
  painter.drawImage(QPointF(0, 0), kept_);
  paintAntialiased(painter, formToDevice(size, formArea), formArea, [&](Canvas& canvas) {
    drawing.paintCalls(canvas, drawing.gridCallCount() + kept, drawing.calls().size());
  });
}

}  // namespace quorn::ui
