#pragma once
// The core's canvas painted with a QPainter: the one painting path of the window, the
// printer and the picture files.

#include <QPainter>

#include "display/canvas.h"

namespace quorn::ui {

class PainterCanvas : public Canvas {
 public:
  /// Paints through `painter`, whose transform maps form units onto its device; clearing
  /// fills `background`, in form units, with white. Pen widths, given in screen pixels, are
  /// multiplied by `pixelScale`, so a printer's fine dots draw lines as wide as the screen's.
  PainterCanvas(QPainter& painter, const QRectF& background, double pixelScale = 1)
      : painter_(painter), background_(background), pixelScale_(pixelScale) {}

  void clear() override;
  void line(double x1, double y1, double x2, double y2, const Pen& pen) override;
  void circle(double cx, double cy, double radius, const Pen& pen) override;

  /// The screen colour of a palette index.
  static QColor colour(int index);

 private:
  void use(const Pen& pen);

  QPainter& painter_;
  QRectF background_;
  double pixelScale_;
};

}  // namespace quorn::ui
