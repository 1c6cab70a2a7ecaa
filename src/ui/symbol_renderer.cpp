#include "ui/symbol_renderer.h"

#include <QFileInfo>
#include <QFont>
#include <QImage>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <algorithm>
#include <functional>
#include <optional>

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

// Fits the grid's form area into `target` and paints the grid with the symbol on it, as the
// drawing surface paints it but in the printed sheet's mode. The device units per form unit.
double paintGridAndSymbol(QPainter& painter, const QRectF& target, const WorkingSymbol& working,
                          const PlacedPoints& placed, View view, const Configuration& config,
                          const GridGeometry& grid, std::optional<double> paperDotsPerPixel) {
  const QRectF area = formArea(grid);
  const double scale = std::min(target.width() / area.width(), target.height() / area.height());
  painter.save();
  painter.setClipRect(target, Qt::IntersectClip);
  QTransform transform;
  transform.translate(target.center().x(), target.center().y());
  transform.scale(scale, scale);
  transform.translate(-area.center().x(), -area.center().y());
  painter.setTransform(transform, true);
  painter.setRenderHint(QPainter::Antialiasing);
  PainterCanvas canvas(painter, area, paperDotsPerPixel);
  redrawGrid(canvas, grid, config);
  drawWorkingSymbol(canvas, working, placed, SymbolStyle{ViewMode::Mode1, 0, view}, config);
  painter.restore();
  return scale;
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
  WorkingSymbol working;
  EditorState state;
  if (symbol.symbol) loadWorkingSymbol(*symbol.symbol, grid, working, state);
  paintGridAndSymbol(painter, drawing, working,
                     PlacedPoints{state.endPointPlaced, state.spindlePointPlaced},
                     View::Orthographic, config, grid, std::nullopt);
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

namespace {

// The symbol sheet's proportions, as parts of the area inside the margins: text sizes in
// hundredths of its height, the grid's share of its width.
constexpr double kHeadingSize = 4.2;
constexpr double kFileSize = 2.6;
constexpr double kSectionSize = 3.2;
constexpr double kTextSize = 2.5;
constexpr double kDrawingShare = 0.62;
constexpr double kColumnGap = 0.03;
constexpr double kCaptionShare = 0.45;
constexpr double kLegendSampleWidth = 9;  // hundredths of the height
// A screen pixel is a 96th of an inch.
constexpr double kScreenDotsPerInch = 96;
constexpr double kTwipsPerInch = 1440;
// A4 landscape at 150 dots to the inch, for sheets written as pictures.
constexpr int kSheetPictureWidth = 1754;
constexpr int kSheetPictureHeight = 1240;
constexpr int kSheetPictureDotsPerInch = 150;
constexpr int kSheetPdfDotsPerInch = 300;

QFont sheetFont(const QPainter& painter, double pixels, bool bold) {
  QFont font = painter.font();
  font.setPixelSize(std::max(1, static_cast<int>(pixels)));
  font.setBold(bold);
  return font;
}

// Writes `text` into the top of `box`, wrapping at words; the height it took.
double drawWrapped(QPainter& painter, const QRectF& box, const QFont& font, const std::string& text,
                   int alignment = Qt::AlignLeft) {
  painter.setFont(font);
  const int flags = alignment | Qt::AlignTop | Qt::TextWordWrap;
  const QString shown = QString::fromStdString(text);
  const QRectF needed = painter.boundingRect(box, flags, shown);
  painter.drawText(box, flags, shown);
  return needed.height();
}

// A section heading, then each row's caption and value side by side; the height it took.
double drawRows(QPainter& painter, const QRectF& column, double unit, const std::string& heading,
                const std::vector<SheetRow>& rows) {
  double y = column.top();
  y += drawWrapped(painter, QRectF(column.left(), y, column.width(), column.height()),
                   sheetFont(painter, kSectionSize * unit, true), heading);
  y += unit * 0.6;
  const QFont caption = sheetFont(painter, kTextSize * unit, false);
  const QFont value = sheetFont(painter, kTextSize * unit, true);
  const double captionWidth = column.width() * kCaptionShare;
  for (const SheetRow& row : rows) {
    const double left =
        drawWrapped(painter, QRectF(column.left(), y, captionWidth - unit, column.bottom() - y),
                    caption, row.caption);
    const double right = drawWrapped(
        painter,
        QRectF(column.left() + captionWidth, y, column.width() - captionWidth, column.bottom() - y),
        value, row.value);
    y += std::max(left, right) + unit * 0.5;
  }
  return y - column.top();
}

// The legend: each item drawn by the symbol drawing code at the grid's scale, its label beside.
double drawLegend(QPainter& painter, const QRectF& column, double unit, double formScale,
                  double pixelScale, const SymbolSheet& sheet, const Configuration& config) {
  double y = column.top();
  y += drawWrapped(painter, QRectF(column.left(), y, column.width(), column.height()),
                   sheetFont(painter, kSectionSize * unit, true), sheet.legendHeading);
  y += unit * 0.6;
  const double sampleWidth = kLegendSampleWidth * unit;
  const int largestRadius =
      std::max({config.startRadius, config.endRadius, config.spindleRadius, config.teeRadius});
  const double rowHeight = std::max(kTextSize * unit * 1.6, 2 * largestRadius * formScale + unit);
  const QFont label = sheetFont(painter, kTextSize * unit, false);
  for (const SheetLegendEntry& entry : sheet.legend) {
    const QPointF centre(column.left() + sampleWidth / 2, y + rowHeight / 2);
    const LegendSample sample =
        legendSample(entry.item, static_cast<int>(sampleWidth * 0.8 / formScale));
    painter.save();
    painter.translate(centre);
    painter.scale(formScale, formScale);
    painter.setRenderHint(QPainter::Antialiasing);
    PainterCanvas canvas(painter, QRectF(), pixelScale);
    drawAction(canvas, sample.symbol, sample.slot,
               SymbolStyle{ViewMode::Mode1, 0, View::Orthographic}, config);
    painter.restore();
    painter.setFont(label);
    painter.setPen(Qt::black);
    painter.drawText(QRectF(column.left() + sampleWidth + unit, y,
                            column.width() - sampleWidth - unit, rowHeight),
                     Qt::AlignLeft | Qt::AlignVCenter, QString::fromStdString(entry.label));
    y += rowHeight;
  }
  return y - column.top();
}

// Paints one page into a .png or .svg picture or a .pdf document, by the suffix of `path`.
std::string paintSheetPicture(const std::string& path,
                              const std::function<void(QPainter&)>& paint) {
  const QString suffix = QFileInfo(QString::fromStdString(path)).suffix().toLower();
  const QString file = QString::fromStdString(path);
  if (suffix == "png") {
    QImage image(kSheetPictureWidth, kSheetPictureHeight, QImage::Format_RGB32);
    image.setDotsPerMeterX(static_cast<int>(kSheetPictureDotsPerInch / 0.0254));
    image.setDotsPerMeterY(static_cast<int>(kSheetPictureDotsPerInch / 0.0254));
    image.fill(Qt::white);
    QPainter painter(&image);
    paint(painter);
    painter.end();
    return image.save(file) ? "" : "the picture cannot be written";
  }
  if (suffix == "svg") {
    QSvgGenerator generator;
    generator.setFileName(file);
    generator.setSize(QSize(kSheetPictureWidth, kSheetPictureHeight));
    generator.setViewBox(QRect(0, 0, kSheetPictureWidth, kSheetPictureHeight));
    generator.setResolution(kSheetPictureDotsPerInch);
    generator.setTitle(QStringLiteral("Symbol"));
    QPainter painter;
    if (!painter.begin(&generator)) return "the picture cannot be written";
    painter.fillRect(QRect(0, 0, kSheetPictureWidth, kSheetPictureHeight), Qt::white);
    paint(painter);
    painter.end();
    return "";
  }
  if (suffix == "pdf") {
    QPdfWriter writer(file);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageOrientation(QPageLayout::Landscape);
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    writer.setResolution(kSheetPdfDotsPerInch);
    QPainter painter;
    if (!painter.begin(&writer)) return "the document cannot be written";
    paint(painter);
    painter.end();
    return "";
  }
  return "the output must end in .svg, .png or .pdf";
}

}  // namespace

QRectF sheetArea(const QRectF& paper, double dotsPerInch, const Configuration& config) {
  const double left = std::max<double>(0, config.leftMargin) * dotsPerInch / kTwipsPerInch;
  const double top = std::max<double>(0, config.topMargin) * dotsPerInch / kTwipsPerInch;
  // Margins that leave no paper are dropped rather than painting nothing.
  if (2 * left >= paper.width() || 2 * top >= paper.height()) return paper;
  return paper.adjusted(left, top, -left, -top);
}

void paintSymbolSheet(QPainter& painter, const QRectF& page, double dotsPerInch,
                      const SymbolSheet& sheet, const SheetSymbol& symbol,
                      const Configuration& config, const GridGeometry& grid) {
  const double unit = page.height() / 100;
  const double pixelScale = dotsPerInch / kScreenDotsPerInch;
  painter.save();
  painter.setPen(Qt::black);

  // The heading, the file's name on the right, and a rule under them.
  const double headingHeight = kHeadingSize * unit * 1.5;
  painter.setFont(sheetFont(painter, kHeadingSize * unit, true));
  painter.drawText(QRectF(page.left(), page.top(), page.width(), headingHeight),
                   Qt::AlignLeft | Qt::AlignVCenter, QString::fromStdString(sheet.heading));
  painter.setFont(sheetFont(painter, kFileSize * unit, false));
  painter.drawText(QRectF(page.left(), page.top(), page.width(), headingHeight),
                   Qt::AlignRight | Qt::AlignVCenter, QString::fromStdString(sheet.fileLine));
  QPen rule(Qt::black);
  rule.setWidthF(pixelScale);
  painter.setPen(rule);
  painter.drawLine(QPointF(page.left(), page.top() + headingHeight),
                   QPointF(page.right(), page.top() + headingHeight));

  // The grid's sizes at the foot.
  const double footHeight = kTextSize * unit * 1.8;
  painter.setPen(Qt::black);
  painter.setFont(sheetFont(painter, kTextSize * unit, false));
  painter.drawText(QRectF(page.left(), page.bottom() - footHeight, page.width(), footHeight),
                   Qt::AlignLeft | Qt::AlignBottom, QString::fromStdString(sheet.gridLine));

  const double bodyTop = page.top() + headingHeight + 2 * unit;
  const double bodyBottom = page.bottom() - footHeight - unit;
  const QRectF drawing(page.left(), bodyTop, page.width() * kDrawingShare, bodyBottom - bodyTop);
  WorkingSymbol blank;
  const double formScale =
      paintGridAndSymbol(painter, drawing, symbol.symbol ? *symbol.symbol : blank, symbol.placed,
                         symbol.view, config, grid, pixelScale);

  const double columnLeft = drawing.right() + page.width() * kColumnGap;
  QRectF column(columnLeft, bodyTop, page.right() - columnLeft, bodyBottom - bodyTop);
  painter.setPen(Qt::black);
  column.setTop(column.top() + drawRows(painter, column, unit, sheet.keysHeading, sheet.keys) +
                2 * unit);
  column.setTop(column.top() +
                drawRows(painter, column, unit, sheet.attributesHeading, sheet.attributes) +
                2 * unit);
  drawLegend(painter, column, unit, formScale, pixelScale, sheet, config);
  painter.restore();
}

std::string renderSymbolSheet(const SymbolSheet& sheet, const SheetSymbol& symbol,
                              const Configuration& config, const GridGeometry& grid,
                              const std::string& path) {
  return paintSheetPicture(path, [&](QPainter& painter) {
    const double dotsPerInch = painter.device()->logicalDpiY();
    const QRectF paper(0, 0, painter.device()->width(), painter.device()->height());
    paintSymbolSheet(painter, sheetArea(paper, dotsPerInch, config), dotsPerInch, sheet, symbol,
                     config, grid);
  });
}

}  // namespace quorn::ui
