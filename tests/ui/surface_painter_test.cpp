// The surface's painter keeps pictures of what stays the same between paints; whatever it
// keeps, every paint must give the pixels of painting the whole drawing in one pass.

#include "ui/surface_painter.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <functional>

#include "ui/painter_canvas.h"

namespace quorn::ui {
namespace {

const QSize kSize(640, 400);
const QRectF kFormArea(0, 0, 9600, 6000);

/// A grid of `colour` with the given lines drawn over it.
void drawScene(DisplayList& drawing, int gridColour, const std::vector<DrawCall>& over) {
  drawing.clear();
  for (int i = 0; i <= 20; ++i) {
    drawing.line(1100 + i * 300, 500, 1100 + i * 300, 4100, Pen{gridColour, PenStyle::Solid, 1});
    if (i <= 12) {
      drawing.line(1100, 500 + i * 300, 7100, 500 + i * 300, Pen{gridColour, PenStyle::Solid, 1});
    }
  }
  drawing.gridComplete();
  for (const DrawCall& call : over) {
    if (call.kind == DrawCall::Kind::Line) {
      drawing.line(call.x1, call.y1, call.x2, call.y2, call.pen);
    } else {
      drawing.circle(call.x1, call.y1, call.radius, call.pen);
    }
  }
}

QImage paintedInOnePass(const DisplayList& drawing, QSize size) {
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setTransform(SurfacePainter::formToDevice(size, kFormArea));
  PainterCanvas canvas(painter, kFormArea);
  drawing.paintOn(canvas);
  return image;
}

DrawCall line(double x1, double y1, double x2, double y2, int colour = 0) {
  return DrawCall{DrawCall::Kind::Line, x1, y1, x2, y2, 0, Pen{colour, PenStyle::Solid, 1}};
}

TEST(SurfacePainter, EveryPaintGivesTheOnePassPixelsWhateverItKept) {
  std::vector<DrawCall> symbol = {
      line(1100, 2300, 4100, 2300), line(4100, 2300, 4100, 1100),
      DrawCall{DrawCall::Kind::Circle, 2600, 2300, 0, 0, 300, Pen{9, PenStyle::Solid, 2}},
      line(1400, 2600, 3800, 2600, 13)};
  const auto withBand = [&](double x) {
    std::vector<DrawCall> calls = symbol;
    calls.push_back(line(4100, 1100, x, 3500, 4));
    return calls;
  };
  struct Step {
    const char* what;
    std::function<void(DisplayList&)> draw;
    QSize size = kSize;
  };
  const std::vector<Step> steps = {
      {"the first paint", [&](DisplayList& d) { drawScene(d, 11, symbol); }},
      {"a repaint", [&](DisplayList& d) { drawScene(d, 11, symbol); }},
      {"the rubber band", [&](DisplayList& d) { drawScene(d, 11, withBand(5000)); }},
      {"the band moved", [&](DisplayList& d) { drawScene(d, 11, withBand(6000)); }},
      {"the band moved again", [&](DisplayList& d) { drawScene(d, 11, withBand(2000)); }},
      {"a line added",
       [&](DisplayList& d) {
         symbol.push_back(line(4100, 1100, 6000, 1100));
         drawScene(d, 11, symbol);
       }},
      {"the line undone",
       [&](DisplayList& d) {
         symbol.pop_back();
         drawScene(d, 11, symbol);
       }},
      {"the symbol moved",
       [&](DisplayList& d) {
         for (DrawCall& call : symbol) call.x1 += 300, call.x2 += 300;
         drawScene(d, 11, symbol);
       }},
      {"a grid of another colour", [&](DisplayList& d) { drawScene(d, 12, symbol); }},
      {"a larger surface", [&](DisplayList& d) { drawScene(d, 12, symbol); }, QSize(800, 500)},
      {"the symbol erased", [&](DisplayList& d) { drawScene(d, 12, {}); }, QSize(800, 500)},
  };
  SurfacePainter painter;
  DisplayList drawing;
  for (const Step& step : steps) {
    step.draw(drawing);
    QImage image(step.size, QImage::Format_ARGB32_Premultiplied);
    {
      QPainter device(&image);
      painter.paint(device, step.size, 1.0, drawing, kFormArea);
    }
    EXPECT_TRUE(image == paintedInOnePass(drawing, step.size)) << "after " << step.what;
  }
}

}  // namespace
}  // namespace quorn::ui
