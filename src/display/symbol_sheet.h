#pragma once
// What a printed symbol sheet says besides the drawing: a heading, the symbol's keys and
// attributes in the new-symbol dialog's words, the grid's sizes, and a legend of the marker
// colours whose samples are drawn by the symbol's own drawing code.

#include <string>
#include <vector>

#include "config/configuration.h"
#include "model/working_symbol.h"

namespace quorn {

/// One line of the keys or the attributes: the caption and what the symbol holds.
struct SheetRow {
  std::string caption;
  std::string value;
  friend bool operator==(const SheetRow&, const SheetRow&) = default;
};

/// The legend's entries, in the order they are listed.
enum class LegendItem { StartPoint, EndPoint, SpindlePoint, TappingPoint, Insulation, Tracing };

struct SheetLegendEntry {
  LegendItem item = LegendItem::StartPoint;
  std::string label;
};

struct SymbolSheet {
  std::string heading;   // "User Defined Symbol" and the symbol's key
  std::string fileLine;  // the file's name, empty when the symbol belongs to no file
  std::string gridLine;  // grid division and scale length in millimetres
  std::string keysHeading;
  std::vector<SheetRow> keys;  // Old, New and Spindle SKEY, scale factor
  std::string attributesHeading;
  std::vector<SheetRow> attributes;  // mirror, flow arrow, dimensions, orientation
  std::string legendHeading;
  std::vector<SheetLegendEntry> legend;
};

/// The sheet of `symbol`; `fileName` is the open file's name (a path is cut to its last
/// part), empty for none.
SymbolSheet symbolSheet(const SymbolText& symbol, const std::string& fileName,
                        const Configuration& config);

/// The name a printed or written sheet is given: the symbol's key, else "symbol".
std::string sheetDocumentName(const SymbolText& symbol);
/// The PDF file a sheet is written to when there is no printer: the document name with every
/// character but letters, digits, "-" and "_" made "_", then ".pdf" ("VB**" gives "VB__.pdf").
std::string sheetFileName(const SymbolText& symbol);

/// A legend sample: a working symbol whose slot `slot` draws the item, as the drawing code
/// draws it on the grid (`drawAction`), centred on the point (0, 0) and `width` form units
/// long where the item is a line.
struct LegendSample {
  WorkingSymbol symbol;
  int slot = 1;
};
LegendSample legendSample(LegendItem item, int width);

}  // namespace quorn
