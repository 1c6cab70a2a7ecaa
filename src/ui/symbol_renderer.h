#pragma once
// Symbols drawn on paper and in picture files, with the same painting code as the window:
// one symbol on its grid, or a catalogue sheet of labelled cells.

#include <QPainter>
#include <QRectF>
#include <string>
#include <vector>

#include "config/configuration.h"
#include "display/grid_geometry.h"
#include "model/symbol_record.h"

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

}  // namespace quorn::ui
