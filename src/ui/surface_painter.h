#pragma once
// Paints the drawing surface's display list onto any paint device, antialiased. The editor
// draws the whole surface again after each change (grid, symbol, then the rubber band), but
// most of it is what the last paint showed: the grid changes only with a new layout, size or
// colours, and the symbol only when it is edited. So two pictures are kept: the grid, and the
// grid with the calls drawn over it that the last two paints shared. A paint copies the second
// and draws only what follows it, such as the rubber band or a line just added.

#include <QImage>
#include <QPainter>
#include <QRectF>
#include <QSize>
#include <QTransform>
#include <cstddef>
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
  /// Brings the kept drawing up to the calls over the grid that this paint shares with the
  /// last one; the number of calls over the grid it then holds.
  std::size_t keepSteadyCalls(QSize size, const DisplayList& drawing, const QRectF& formArea);

  QImage grid_;
  std::vector<DrawCall> gridCalls_;
  QRectF gridFormArea_;
  /// The grid with `keptCalls_` drawn over it.
  QImage kept_;
  std::vector<DrawCall> keptCalls_;
  /// The calls over the grid at the last paint.
  std::vector<DrawCall> lastCalls_;
};

}  // namespace quorn::ui
