// A full redraw of the edit window's drawing at 1920 x 1080: the core redraws the grid and a
// symbol of 200 actions into the display list, and the surface's painter paints it into an
// image as it paints the window, with the symbol antialiased. The painter keeps the grid, and
// the grid with what the last paints shared, as pictures: a redraw of an unchanged symbol, or
// one with the rubber band moved, paints only what changed; a symbol that changed everywhere
// (moved, flipped) is painted whole over the kept grid; the cold case paints the grid afresh,
// and the uncached case paints as the surface did before it kept anything.

#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>
#include <cmath>
#include <initializer_list>
#include <numbers>
#include <random>
#include <string>
#include <utility>

#include "display/display_list.h"
#include "display/grid_geometry.h"
#include "display/redraw.h"
#include "model/symbol_record.h"
#include "ui/painter_canvas.h"
#include "ui/surface_painter.h"

namespace quorn {
namespace {

constexpr QSize kSurface(1920, 1080);
constexpr int kActions = 200;

// The grid of the default configuration on a 1920 x 1080 screen at 96 dots per inch.
GridGeometry screenGrid(const Configuration& config) {
  return *layOutGrid(config, ScreenSize{1920.0 * 15, 1080.0 * 15}).geometry;
}

// Adds one action after the last; slot 1 is the start point.
void add(WorkingSymbol& symbol, std::int16_t code, double x, double y) {
  ++symbol.actionCount;
  symbol.slots[static_cast<std::size_t>(symbol.actionCount)] = {
      code, static_cast<std::int32_t>(std::lround(x)), static_cast<std::int32_t>(std::lround(y))};
}

// A closed run of `segments` lines round (x, y), from `from` radians through `turn` radians.
void addRound(WorkingSymbol& symbol, double x, double y, double radius, double from, double turn,
              int segments) {
  add(symbol, kMove, x + radius * std::cos(from), y - radius * std::sin(from));
  for (int i = 1; i <= segments; ++i) {
    const double angle = from + turn * i / segments;
    add(symbol, kLine, x + radius * std::cos(angle), y - radius * std::sin(angle));
  }
}

// A symbol as the editor builds one, filling its 200 actions: six circles of 16 segments and
// four half arcs of 16, as the default configuration draws them, and 29 straight lines
// between points anywhere on the grid, one of them insulation and one tracing, with a
// tapping point. Lines run from a few pixels to most of the grid's width.
WorkingSymbol drawnSymbol(const GridGeometry& grid) {
  std::mt19937 random(2024);
  const double width = grid.gridWidth;
  auto point = [&](double margin) {
    std::uniform_real_distribution<double> across(kGridLeft + margin, kGridLeft + width - margin);
    std::uniform_real_distribution<double> down(kGridTop + margin,
                                                kGridTop + grid.gridHeight - margin);
    return std::pair{across(random), down(random)};
  };
  std::uniform_real_distribution<double> radius(width / 20, width / 8);
  WorkingSymbol symbol;
  const auto [startX, startY] = point(0);
  add(symbol, kMove, startX, startY);
  for (int circle = 0; circle < 6; ++circle) {
    const double r = radius(random);
    const auto [x, y] = point(r);
    addRound(symbol, x, y, r, 0, 2 * std::numbers::pi, 16);
  }
  for (int arc = 0; arc < 4; ++arc) {
    const double r = radius(random);
    const auto [x, y] = point(r);
    addRound(symbol, x, y, r, arc * std::numbers::pi / 2, std::numbers::pi, 16);
  }
  for (int line = 0; line < 29; ++line) {
    const auto [x, y] = point(0);
    add(symbol, line == 10 ? kInsulation : line == 20 ? kTracing : kLine, x, y);
  }
  add(symbol, kTappingPoint, startX, startY);
  return symbol;
}

// The worst case: 200 actions at random points anywhere on the grid, so every line is long
// (on average some 600 pixels at 1920 x 1080): lines, with moves, tapping points and runs
// of insulation and tracing among them.
WorkingSymbol longLineSymbol(const GridGeometry& grid) {
  std::mt19937 random(2024);
  std::uniform_int_distribution<std::int32_t> across(kGridLeft, kGridLeft + grid.gridWidth);
  std::uniform_int_distribution<std::int32_t> down(kGridTop, kGridTop + grid.gridHeight);
  WorkingSymbol symbol;
  for (int slot = 1; slot <= kActions; ++slot) {
    const std::int16_t code = slot == 1 || slot % 23 == 0 ? kMove
                              : slot % 31 == 0            ? kTappingPoint
                              : slot % 37 < 3             ? kInsulation
                              : slot % 41 < 3             ? kTracing
                                                          : kLine;
    symbol.slots[static_cast<std::size_t>(slot)] = {code, across(random), down(random)};
  }
  symbol.actionCount = kActions;
  return symbol;
}

enum SymbolKind { kDrawn, kLongLines };

struct Scene {
  explicit Scene(const benchmark::State& state)
      : symbol(state.range(0) == kDrawn ? drawnSymbol(grid) : longLineSymbol(grid)) {
    symbol.slots[kSpindleSlot] = {kSpindlePoint, kGridLeft + grid.gridWidth / 2,
                                  kGridTop + grid.gridHeight / 2};
    symbol.slots[kEndSlot] = {kWorkingEndPoint, kGridLeft + grid.gridWidth,
                              kGridTop + grid.gridHeight / 2};
  }

  void redrawInto(DisplayList& drawing) const {
    redraw(drawing, grid, symbol, PlacedPoints{true, true}, SymbolStyle{ViewMode::Normal, 0},
           config);
  }

  Configuration config;
  GridGeometry grid = screenGrid(config);
  WorkingSymbol symbol;
  QRectF formArea = ui::SurfacePainter::formArea(grid);
};

// The window's backing store is one of these two, by platform.
QImage::Format formatOf(const benchmark::State& state) {
  return state.range(1) == 0 ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
}

void label(benchmark::State& state) {
  state.SetLabel(std::string(state.range(0) == kDrawn ? "drawn symbol" : "long lines") + ", " +
                 (state.range(1) == 0 ? "ARGB32_Premultiplied" : "RGB32"));
}

// Qt spreads some image work over a thread pool: the CPU time counts every thread.
void cases(benchmark::internal::Benchmark* benchmark) {
  benchmark->ArgsProduct({{kDrawn, kLongLines}, {0, 1}})
      ->MeasureProcessCPUTime()
      ->UseRealTime()
      ->Unit(benchmark::kMicrosecond);
}

// Everything painted antialiased in one pass, as the surface painted before it kept the grid.
void paintUncached(QImage& image, const DisplayList& drawing, const QRectF& formArea) {
  QPainter device(&image);
  device.setRenderHint(QPainter::Antialiasing);
  device.fillRect(image.rect(), Qt::white);
  device.setTransform(ui::SurfacePainter::formToDevice(image.size(), formArea));
  ui::PainterCanvas canvas(device, formArea);
  drawing.paintOn(canvas);
}

// A faster paint is worth nothing if it paints something else: the kept grid with the symbol
// over it must give the very pixels of the one-pass paint.
void checkSamePixels(benchmark::State& state, const QImage& painted, const DisplayList& drawing,
                     const QRectF& formArea) {
  QImage reference(painted.size(), painted.format());
  paintUncached(reference, drawing, formArea);
  if (painted != reference) state.SkipWithError("the paint differs from the one-pass paint");
}

// The edit window's drawing surface as the benchmarks paint it.
struct Surface {
  explicit Surface(const benchmark::State& state) : image(kSurface, formatOf(state)) {}

  void paint(const QRectF& formArea) {
    QPainter device(&image);
    painter.paint(device, kSurface, 1.0, drawing, formArea);
  }

  QImage image;
  DisplayList drawing;
  ui::SurfacePainter painter;
};

// The core's redraw of an unchanged symbol (a refresh) and the surface's paint.
void BM_FullRedrawWarmGrid(benchmark::State& state) {
  const Scene scene(state);
  Surface surface(state);
  // The painter first keeps a grid of another colour, so the pixel check at the end also
  // catches a kept grid that outlives the drawing it came from.
  Scene recoloured(state);
  recoloured.config.gridColour = 12;
  for (const Scene* warming : std::initializer_list<const Scene*>{&recoloured, &scene}) {
    warming->redrawInto(surface.drawing);
    surface.paint(scene.formArea);
  }
  for (auto _ : state) {
    scene.redrawInto(surface.drawing);
    surface.paint(scene.formArea);
  }
  checkSamePixels(state, surface.image, surface.drawing, scene.formArea);
  label(state);
}
BENCHMARK(BM_FullRedrawWarmGrid)->Apply(cases);

// A mouse move while a line is drawn: the core redraws everything and the rubber band to the
// new cursor position.
void BM_RedrawRubberBand(benchmark::State& state) {
  const Scene scene(state);
  Surface surface(state);
  const Pen band{0, PenStyle::Solid, 1};
  int step = 0;
  for (auto _ : state) {
    scene.redrawInto(surface.drawing);
    const double across = kGridLeft + (step++ % 100) * scene.grid.gridWidth / 100.0;
    surface.drawing.line(kGridLeft, kGridTop, across, kGridTop + scene.grid.gridHeight, band);
    surface.paint(scene.formArea);
  }
  checkSamePixels(state, surface.image, surface.drawing, scene.formArea);
  label(state);
}
BENCHMARK(BM_RedrawRubberBand)->Apply(cases);

// A symbol that changed everywhere on every redraw, as a move or a flip changes it: only the
// grid is kept.
void BM_FullRedrawSymbolReplaced(benchmark::State& state) {
  const Scene scene(state);
  Scene moved(state);
  for (int slot = 1; slot <= moved.symbol.actionCount; ++slot) {
    moved.symbol.slots[static_cast<std::size_t>(slot)].x += 1;
  }
  Surface surface(state);
  bool flip = false;
  for (auto _ : state) {
    (flip ? moved : scene).redrawInto(surface.drawing);
    flip = !flip;
    surface.paint(scene.formArea);
  }
  checkSamePixels(state, surface.image, surface.drawing, scene.formArea);
  label(state);
}
BENCHMARK(BM_FullRedrawSymbolReplaced)->Apply(cases);

// The paint alone, the display list unchanged: a repaint on exposure.
void BM_RepaintWarmGrid(benchmark::State& state) {
  const Scene scene(state);
  Surface surface(state);
  scene.redrawInto(surface.drawing);
  for (auto _ : state) {
    surface.paint(scene.formArea);
  }
  label(state);
}
BENCHMARK(BM_RepaintWarmGrid)->Apply(cases);

// The first paint after a new layout or size: the grid's picture is painted again.
void BM_FullRedrawColdGrid(benchmark::State& state) {
  const Scene scene(state);
  Surface surface(state);
  for (auto _ : state) {
    surface.painter.forgetGrid();
    scene.redrawInto(surface.drawing);
    surface.paint(scene.formArea);
  }
  checkSamePixels(state, surface.image, surface.drawing, scene.formArea);
  label(state);
}
BENCHMARK(BM_FullRedrawColdGrid)->Apply(cases);

// The one-pass paint on every redraw, with no picture kept: for comparison.
void BM_FullRedrawUncached(benchmark::State& state) {
  const Scene scene(state);
  Surface surface(state);
  for (auto _ : state) {
    scene.redrawInto(surface.drawing);
    paintUncached(surface.image, surface.drawing, scene.formArea);
  }
  label(state);
}
BENCHMARK(BM_FullRedrawUncached)->Apply(cases);

}  // namespace
}  // namespace quorn

BENCHMARK_MAIN();
