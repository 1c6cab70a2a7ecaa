#pragma once
// Symbols drawn on paper and in picture files, with the same painting code as the window:
// one symbol on its grid, a catalogue sheet of labelled cells, or a symbol sheet with the
// symbol's keys, attributes and a legend of the marker colours.

#include <QPainter>
#include <QRectF>
#include <string>
#include <vector>

#include "config/configuration.h"
#include "display/grid_geometry.h"
#include "display/redraw.h"
#include "display/symbol_sheet.h"
#include "model/symbol_record.h"
#include "model/working_symbol.h"

namespace quorn::ui {

/// A symbol to draw and the caption under it.
struct LabelledSymbol {
  const SymbolRecord* symbol = nullptr;
  std::string label;
};

/// Paints the grid and `symbol` on it, fitted into `cell` of the painter's device, with the
/// label below.
void paintSymbolCell(QPainter& painter, const QRectF& cell, const LabelledSymbol& symbol,
                     const Configuration& config, const GridGeometry& grid);

/// Writes the symbols to `path`, a .svg, .png or .pdf file: one symbol fills the picture;
/// several make a catalogue of cells (a PDF gets as many pages as it needs). The problem
/// when the file cannot be written, else empty.
std::string renderSymbols(const std::vector<LabelledSymbol>& symbols, const Configuration& config,
                          const GridGeometry& grid, const std::string& path);

/// The symbol of a sheet as the editor holds it: in form units, with its placed markers and
/// the window's view.
struct SheetSymbol {
  const WorkingSymbol* symbol = nullptr;
  PlacedPoints placed;
  View view = View::Orthographic;
};

/// The part of `paper` (device units at `dotsPerInch`) inside the configured left and top
/// margins, kept on the right and at the foot too.
QRectF sheetArea(const QRectF& paper, double dotsPerInch, const Configuration& config);

/// Paints a symbol sheet into `page` of the painter's device: the heading, the grid with the
/// symbol on it, the keys and attributes, the legend and the grid's sizes. `dotsPerInch` is
/// the device's resolution, so lines keep their screen width on a printer.
void paintSymbolSheet(QPainter& painter, const QRectF& page, double dotsPerInch,
                      const SymbolSheet& sheet, const SheetSymbol& symbol,
                      const Configuration& config, const GridGeometry& grid);

/// Writes a symbol sheet to `path`: an A4 landscape page in a .pdf file, or a .png or .svg
/// picture of that shape. The problem when the file cannot be written, else empty.
std::string renderSymbolSheet(const SymbolSheet& sheet, const SheetSymbol& symbol,
                              const Configuration& config, const GridGeometry& grid,
                              const std::string& path);

}  // namespace quorn::ui
