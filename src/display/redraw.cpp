#include "display/redraw.h"

#include <algorithm>
#include <optional>

#include "model/limits.h"
#include "model/symbol_record.h"

namespace quorn {

namespace {

struct Point {
  double x = 0;
  double y = 0;
};

Point formPoint(const WorkingAction& action) {
  return {static_cast<double>(action.x), static_cast<double>(action.y)};
}

// Turns the symbol's form-unit points into the points drawn in the chosen view.
class ViewMapping {
 public:
  ViewMapping(const WorkingSymbol& symbol, View view)
      : view_(view), anchor_(formPoint(symbol.slots[1])) {}

  Point operator()(const WorkingAction& action) const {
    const Point point = formPoint(action);
    if (view_ == View::Orthographic) return point;
    const double right = point.x - anchor_.x;
    const double up = anchor_.y - point.y;
    return {anchor_.x + kIsoAcross * right, anchor_.y - (up + kIsoRise * right)};
  }

 private:
  View view_;
  Point anchor_;
};

int lineWidth(ViewMode mode) {
  return mode == ViewMode::Mode1 ? kMode1LineWidth : kNormalLineWidth;
}

int tappingColour(ViewMode mode, const Configuration& config) {
  // The dark shade of a light palette colour lies eight places below it.
  if (mode == ViewMode::Mode1 && config.teeColour > 8) return config.teeColour - 8;
  return config.teeColour;
}

// The pen of a segment action; nothing for codes that draw no segment.
std::optional<Pen> segmentPen(std::int16_t code, const SymbolStyle& style,
                              const Configuration& config) {
  switch (code) {
    case kLine:
    case kCharacterLine:
      return Pen{style.lineColour, PenStyle::Solid, lineWidth(style.mode)};
    case kInsulation:
      return Pen{config.insulationColour, PenStyle::Dotted, 1};
    case kTracing:
      return Pen{config.tracingColour, PenStyle::Dashed, 1};
    default:
      return std::nullopt;
  }
}

void drawCircle(Canvas& canvas, Point centre, double radius, int colour) {
  canvas.circle(centre.x, centre.y, radius, Pen{colour, PenStyle::Solid, kStandardWidth});
}

// The walk's drawing of one slot from 1 to 202.
void drawWalkedSlot(Canvas& canvas, const WorkingSymbol& symbol, int slot, const ViewMapping& map,
                    const SymbolStyle& style, const Configuration& config) {
  const WorkingAction& action = symbol.slots[slot];
  if (action.type == kTappingPoint) {
    drawCircle(canvas, map(action), config.teeRadius, tappingColour(style.mode, config));
    return;
  }
  // A character line is drawn as the line it is; the flag matters only when it is stored.
  if (const std::optional<Pen> pen = segmentPen(action.type, style, config)) {
    const Point from = map(symbol.slots[slot - 1]);
    const Point to = map(action);
    canvas.line(from.x, from.y, to.x, to.y, *pen);
  }
}

void drawStartMarker(Canvas& canvas, const WorkingSymbol& symbol, const ViewMapping& map,
                     const Configuration& config) {
  drawCircle(canvas, map(symbol.slots[1]), config.startRadius, config.startColour);
}

void drawEndMarker(Canvas& canvas, const WorkingSymbol& symbol, const ViewMapping& map,
                   const Configuration& config) {
  drawCircle(canvas, map(symbol.slots[kEndSlot]), config.endRadius, config.endColour);
}

void drawSpindleMarker(Canvas& canvas, const WorkingSymbol& symbol, const ViewMapping& map,
                       const Configuration& config) {
  drawCircle(canvas, map(symbol.slots[kSpindleSlot]), config.spindleRadius, config.spindleColour);
}

void drawGridLines(Canvas& canvas, const GridGeometry& grid, const Configuration& config) {
  const double left = kGridLeft;
  const double right = kGridLeft + grid.gridWidth;
  const double top = kGridTop;
  const double bottom = kGridTop + grid.gridHeight;
  auto pen = [&](int line) {
    return Pen{line % 10 == 0 ? config.tensColour : config.gridColour, PenStyle::Solid,
               kGridLineWidth};
  };
  for (int column = 0; column <= grid.divisions; ++column) {
    const double x = left + column * grid.spacing;
    canvas.line(x, top, x, bottom, pen(column));
  }
  for (int row = 0; row <= grid.rows; ++row) {
    const double y = bottom - row * grid.spacing;
    canvas.line(left, y, right, y, pen(row));
  }
}

void drawScale(Canvas& canvas, const GridGeometry& grid, const Configuration& config) {
  const Pen pen{config.scaleColour, PenStyle::Solid, kGridLineWidth};
  const double base = kGridTop + grid.gridHeight + kScaleOffset;
  canvas.line(kGridLeft, base, kGridLeft + grid.gridWidth, base, pen);
  for (int tick = 0; tick <= grid.divisions; ++tick) {
    const double x = kGridLeft + tick * grid.spacing;
    const bool tens = tick % 10 == 0 || tick == grid.divisions;
    canvas.line(x, base, x, base + (tens ? kLongTick : kShortTick), pen);
  }
}

}  // namespace

void redrawGrid(Canvas& canvas, const GridGeometry& grid, const Configuration& config) {
  canvas.clear();
  drawGridLines(canvas, grid, config);
  drawScale(canvas, grid, config);
  canvas.gridComplete();
}

void drawWorkingSymbol(Canvas& canvas, const WorkingSymbol& symbol, const PlacedPoints& placed,
                       const SymbolStyle& style, const Configuration& config) {
  const ViewMapping map(symbol, style.view);
  const int last = std::min<int>(symbol.actionCount, kWorkingSlots - 1);
  for (int slot = 1; slot <= last; ++slot) drawWalkedSlot(canvas, symbol, slot, map, style, config);
  drawStartMarker(canvas, symbol, map, config);
  if (placed.endPoint) drawEndMarker(canvas, symbol, map, config);
  if (placed.spindlePoint) drawSpindleMarker(canvas, symbol, map, config);
}

void redraw(Canvas& canvas, const GridGeometry& grid, const WorkingSymbol& symbol,
            const PlacedPoints& placed, const SymbolStyle& style, const Configuration& config) {
  redrawGrid(canvas, grid, config);
  drawWorkingSymbol(canvas, symbol, placed, style, config);
}

void drawAction(Canvas& canvas, const WorkingSymbol& symbol, int slot, const SymbolStyle& style,
                const Configuration& config) {
  const ViewMapping map(symbol, style.view);
  if (slot == 1) {
    drawStartMarker(canvas, symbol, map, config);
  } else if (slot == kSpindleSlot) {
    drawSpindleMarker(canvas, symbol, map, config);
  } else if (slot == kEndSlot) {
    drawEndMarker(canvas, symbol, map, config);
  } else if (slot >= 2 && slot < kWorkingSlots) {
    drawWalkedSlot(canvas, symbol, slot, map, style, config);
  }
}

void drawRubberBand(Canvas& canvas, FormPosition lastPoint, FormPosition cursor,
                    std::int16_t segmentCode, const SymbolStyle& style,
                    const Configuration& config) {
  const std::int16_t code =
      segmentCode == kInsulation || segmentCode == kTracing ? segmentCode : std::int16_t{kLine};
  canvas.line(lastPoint.x, lastPoint.y, cursor.x, cursor.y, *segmentPen(code, style, config));
}

}  // namespace quorn
