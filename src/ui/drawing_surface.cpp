#include "ui/drawing_surface.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPainter>
#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace quorn::ui {

namespace {

// Prints the wall-clock time in microseconds and ends the program.
void reportFirstPaint() {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  std::printf(
      "first-paint %lld\n",
      static_cast<long long>(std::chrono::duration_cast<std::chrono::microseconds>(now).count()));
  std::fflush(stdout);
  QCoreApplication::exit(0);
}

}  // namespace

DrawingSurface::DrawingSurface()
    : exitAfterFirstPaint_(std::getenv("QUORN_EXIT_AFTER_FIRST_PAINT") != nullptr) {
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

void DrawingSurface::gridComplete() {
  drawing_.gridComplete();
}

void DrawingSurface::setGrid(const GridGeometry& grid) {
  grid_ = grid;
  formArea_ = SurfacePainter::formArea(grid);
  update();
}

QTransform DrawingSurface::formToWidget() const {
  return SurfacePainter::formToDevice(size(), formArea_);
}

void DrawingSurface::mousePressEvent(QMouseEvent* event) {
  const QPointF form = formToWidget().inverted().map(event->position());
  if (onPress)
    onPress(event->button() == Qt::LeftButton, static_cast<float>(form.x()),
            static_cast<float>(form.y()));
}

void DrawingSurface::mouseMoveEvent(QMouseEvent* event) {
  const QPointF form = formToWidget().inverted().map(event->position());
  setCursor(withinGrid(form.x(), form.y(), grid_) ? Qt::CrossCursor : Qt::ArrowCursor);
  if (onMove) onMove(static_cast<float>(form.x()), static_cast<float>(form.y()));
}

void DrawingSurface::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter_.paint(painter, size(), devicePixelRatioF(), drawing_, formArea_);
  if (exitAfterFirstPaint_) {
    exitAfterFirstPaint_ = false;
    reportFirstPaint();
  }
}

}  // namespace quorn::ui
