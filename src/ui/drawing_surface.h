#pragma once
// The drawing surface of the edit window. The editor draws on it in form units; it keeps the
// drawing and paints it scaled to its size, so the window can be resized and works on any
// screen without a stored coordinate changing. The grid is kept painted between repaints, so
// a repaint costs the symbol and the rubber band alone.

#include <QWidget>
#include <functional>

#include "display/display_list.h"
#include "display/grid_geometry.h"
#include "ui/surface_painter.h"

namespace quorn::ui {

class DrawingSurface : public QWidget, public Canvas {
  Q_OBJECT

 public:
  DrawingSurface();

  void clear() override;
  void line(double x1, double y1, double x2, double y2, const Pen& pen) override;
  void circle(double cx, double cy, double radius, const Pen& pen) override;
  void gridComplete() override;

  /// The grid decides the part of the form that is shown.
  void setGrid(const GridGeometry& grid);

  /// Mouse presses and moves, in form units; `left` is false for any other button.
  std::function<void(bool left, float x, float y)> onPress;
  std::function<void(float x, float y)> onMove;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  /// The transform from form units to the widget's pixels.
  QTransform formToWidget() const;

  DisplayList drawing_;
  SurfacePainter painter_;
  GridGeometry grid_;
  QRectF formArea_{0, 0, 15360, 11520};
  /// Set by the start-up benchmark (QUORN_EXIT_AFTER_FIRST_PAINT): the first paint prints
  /// its time and ends the program.
  bool exitAfterFirstPaint_;
};

}  // namespace quorn::ui
