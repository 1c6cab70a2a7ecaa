#pragma once
// The core's canvas painted with a QPainter: the one painting path of the window, the
// printer and the picture files.

#include <QPainter>
#include <optional>

#include "display/canvas.h"

namespace quorn::ui {

class PainterCanvas : public Canvas {
 public:
  /// Paints through `painter`, whose transform maps form units onto its device; clearing
  /// fills `background`, in form units, with white. Pen widths are screen pixels: device
  /// pixels on a screen or a picture, or on paper `paperDotsPerPixel` of the device's dots
  /// each, drawn to scale so that a printer's fine dots and a shrunken print preview both
  /// show lines as wide as the screen's in proportion to the page.
  PainterCanvas(QPainter& painter, const QRectF& background,
                std::optional<double> paperDotsPerPixel = std::nullopt)
      : painter_(painter), background_(background), paperDotsPerPixel_(paperDotsPerPixel) {}

  void clear() override;
  void line(double x1, double y1, double x2, double y2, const Pen& pen) override;
  void circle(double cx, double cy, double radius, const Pen& pen) override;

  /// The screen colour of a palette index.
  static QColor colour(int index);

 private:
  void use(const Pen& pen);

  QPainter& painter_;
  QRectF background_;
  std::optional<double> paperDotsPerPixel_;
};

}  // namespace quorn::ui
