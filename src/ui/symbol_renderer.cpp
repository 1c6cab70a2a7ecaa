#include "ui/symbol_renderer.h"

#include <QFileInfo>
#include <QImage>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <algorithm>

#include "display/redraw.h"
#include "skey/browsing.h"
#include "ui/painter_canvas.h"

namespace quorn::ui {

namespace {

// Pixels of one cell in a picture file, and how cells fill a page or picture.
constexpr int kCellWidth = 900;
constexpr int kCellHeight = 760;
constexpr int kColumns = 3;
constexpr int kRowsPerPage = 3;
constexpr int kLabelHeight = 60;
// Form units kept around the grid: room for the markers and the scale below it.
constexpr double kMargin = 300;
constexpr double kScaleRoom = 500;

QRectF formArea(const GridGeometry& grid) {
  return QRectF(kGridLeft - kMargin, kGridTop - kMargin, grid.gridWidth + 2 * kMargin,
                grid.gridHeight + kMargin + kScaleRoom);
}

int rowsFor(std::size_t count) {
  return static_cast<int>((count + kColumns - 1) / kColumns);
}

QRectF cellRect(std::size_t index, double cellWidth, double cellHeight) {
  const auto column = static_cast<double>(index % kColumns);
  const auto row = static_cast<double>((index / kColumns) % kRowsPerPage);
  return QRectF(column * cellWidth, row * cellHeight, cellWidth, cellHeight);
}

void paintCells(QPainter& painter, const std::vector<LabelledSymbol>& symbols,
                const Configuration& config, const GridGeometry& grid, double cellWidth,
                double cellHeight, std::size_t first, std::size_t count) {
  for (std::size_t i = 0; i < count && first + i < symbols.size(); ++i) {
    paintSymbolCell(painter, cellRect(i, cellWidth, cellHeight), symbols[first + i], config, grid);
  }
}

}  // namespace

void paintSymbolCell(QPainter& painter, const QRectF& cell, const LabelledSymbol& symbol,
                     const Configuration& config, const GridGeometry& grid) {
  painter.save();
  painter.setClipRect(cell);
  painter.fillRect(cell, Qt::white);
  const QRectF drawing = cell.adjusted(0, 0, 0, -kLabelHeight * cell.height() / kCellHeight);
  const QRectF area = formArea(grid);
  const double scale = std::min(drawing.width() / area.width(), drawing.height() / area.height());
  QTransform transform;
  transform.translate(drawing.center().x(), drawing.center().y());
  transform.scale(scale, scale);
  transform.translate(-area.center().x(), -area.center().y());
  painter.setTransform(transform, true);
  painter.setRenderHint(QPainter::Antialiasing);

  WorkingSymbol working;
  EditorState state;
  if (symbol.symbol) loadWorkingSymbol(*symbol.symbol, grid, working, state);
  PainterCanvas canvas(painter, area);
  redrawGrid(canvas, grid, config);
  drawWorkingSymbol(canvas, working, PlacedPoints{state.endPointPlaced, state.spindlePointPlaced},
                    SymbolStyle{ViewMode::Mode1, 0, View::Orthographic}, config);
  painter.setTransform(QTransform());
  painter.setClipping(false);
  painter.setPen(Qt::black);
  QFont font = painter.font();
  font.setPixelSize(std::max(8, static_cast<int>(cell.height() * 0.035)));
  painter.setFont(font);
  painter.drawText(
      QRectF(cell.left(), drawing.bottom(), cell.width(), cell.bottom() - drawing.bottom()),
      Qt::AlignCenter, QString::fromStdString(symbol.label));
  painter.restore();
}

std::string renderSymbols(const std::vector<LabelledSymbol>& symbols, const Configuration& config,
                          const GridGeometry& grid, const std::string& path) {
  const QString suffix = QFileInfo(QString::fromStdString(path)).suffix().toLower();
  const bool single = symbols.size() == 1;
  const int columns = single ? 1 : kColumns;
  const int rows = single ? 1 : rowsFor(symbols.size());
  if (suffix == "png") {
    QImage image(columns * kCellWidth, rows * kCellHeight, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    for (std::size_t first = 0; first < symbols.size(); first += kColumns * kRowsPerPage) {
      painter.save();
      painter.translate(0, static_cast<double>(first / kColumns) * kCellHeight);
      paintCells(painter, symbols, config, grid, kCellWidth, kCellHeight, first,
                 kColumns * kRowsPerPage);
      painter.restore();
    }
    painter.end();
    return image.save(QString::fromStdString(path)) ? "" : "the picture cannot be written";
  }
  if (suffix == "svg") {
    QSvgGenerator generator;
    generator.setFileName(QString::fromStdString(path));
    generator.setSize(QSize(columns * kCellWidth, rows * kCellHeight));
    generator.setViewBox(QRect(0, 0, columns * kCellWidth, rows * kCellHeight));
    generator.setTitle(QStringLiteral("Symbols"));
    QPainter painter;
    if (!painter.begin(&generator)) return "the picture cannot be written";
    for (std::size_t first = 0; first < symbols.size(); first += kColumns * kRowsPerPage) {
      painter.save();
      painter.translate(0, static_cast<double>(first / kColumns) * kCellHeight);
      paintCells(painter, symbols, config, grid, kCellWidth, kCellHeight, first,
                 kColumns * kRowsPerPage);
      painter.restore();
    }
    painter.end();
    return "";
  }
  if (suffix == "pdf") {
    QPdfWriter writer(QString::fromStdString(path));
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageOrientation(QPageLayout::Landscape);
    writer.setResolution(150);
    QPainter painter;
    if (!painter.begin(&writer)) return "the document cannot be written";
    const QRect page = painter.viewport();
    const std::size_t perPage = single ? 1 : kColumns * kRowsPerPage;
    const double cellWidth = static_cast<double>(page.width()) / columns;
    const double cellHeight = static_cast<double>(page.height()) / (single ? 1 : kRowsPerPage);
    for (std::size_t first = 0; first < symbols.size(); first += perPage) {
      if (first > 0) writer.newPage();
      paintCells(painter, symbols, config, grid, cellWidth, cellHeight, first, perPage);
    }
    painter.end();
    return "";
  }
  return "the output must end in .svg, .png or .pdf";
}

}  // namespace quorn::ui
