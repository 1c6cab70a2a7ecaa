#pragma once
// Paints the drawing surface's display list onto any paint device: the grid from a picture it
// keeps, then everything drawn over the grid, antialiased. The grid changes only on a clear
// with a new layout, a new size or new colours, while the symbol and the rubber band are drawn
// again on every mouse move; keeping the grid painted makes a repaint cost the symbol alone.

#include <QImage>
#include <QPainter>
#include <QRectF>
#include <QSize>
#include <QTransform>
#include <vector>

#include "display/display_list.h"
#include "display/grid_geometry.h"

namespace quorn::ui {

class SurfacePainter {
 public:
  /// Paints `drawing` over a white background onto `painter`'s device, `size` logical pixels
  /// at `pixelRatio` device pixels each, with `formArea` (form units) scaled to fit, centred.
  void paint(QPainter& painter, QSize size, qreal pixelRatio, const DisplayList& drawing,
             const QRectF& formArea);

  /// Forgets the kept grid, so the next paint draws it afresh.
  void forgetGrid();

  /// The part of the form shown for `grid`: the grid with the bands the layout keeps free
  /// around it, in form units.
  static QRectF formArea(const GridGeometry& grid);

  /// The transform from form units to the logical pixels of a device of `size`.
  static QTransform formToDevice(QSize size, const QRectF& formArea);

 private:
  bool gridStillFits(QSize pixels, const DisplayList& drawing, const QRectF& formArea) const;
  void paintGridPicture(QSize size, qreal pixelRatio, const DisplayList& drawing,
                        const QRectF& formArea);

  QImage grid_;
  std::vector<DrawCall> gridCalls_;
  QRectF gridFormArea_;
};

}  // namespace quorn::ui
