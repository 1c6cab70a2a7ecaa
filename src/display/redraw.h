#pragma once
// Painting the drawing surface: the grid with its scale, and the working symbol over it.
//
// The grid: every division line across the grid rectangle, solid and 1 wide, in GRIDCOLOUR;
// every tenth line in TENSCOLOUR, counted from the grid's left edge for the vertical lines and
// from its bottom edge for the horizontal ones (the corner where stored coordinates start), so
// the edges themselves are tens lines.
//
// The scale: a ruler of the horizontal scale length in SCALECOLOUR, its base line
// `kScaleOffset` below the grid and as wide as the grid, with a tick hanging from it under
// every vertical grid line: `kLongTick` long under the tens lines and at the right end,
// `kShortTick` long elsewhere.
//
// The symbol: the action slots 1 to the action count (never beyond slot 202), each segment
// drawn from the previous slot's point to its own:
//   code 2 line, and a character line (code 2 with the character flag, or code 7): solid, the
//     view mode's line width, the caller's line colour;
//   code 3 tapping point: a circle of TEERADIUS, solid, the standard width, TEECOLOUR (in
//     mode 1 the dark shade, TEECOLOUR - 8, when TEECOLOUR is above 8);
//   code 4 insulation: dotted, 1 wide, INSULATIONCOLOUR;
//   code 5 tracing: dashed, 1 wide, TRACINGCOLOUR;
//   every other code: nothing.
// Then the markers, solid at the standard width: the start point (slot 1), a circle of
// STARTRADIUS in STARTCOLOUR; the end point (slot 202) of ENDRADIUS in ENDCOLOUR when placed;
// the spindle point (slot 201) of SPINDLERADIUS in SPINDLECOLOUR when placed.
//
// The isometric view draws the symbol as if its drawing plane were turned to an isometric
// axis: seen from the start point, a point dx to the right and dy up is drawn
// kIsoAcross × dx to the right and dy + kIsoRise × dx up (that axis at 30 degrees, with
// ratios in place of trigonometry). Markers stay circles at their mapped centres. The grid
// and the rubber band are always drawn as they lie on the surface.

#include <cstdint>

#include "config/configuration.h"
#include "display/canvas.h"
#include "display/grid_geometry.h"
#include "model/editor_state.h"
#include "model/working_symbol.h"

namespace quorn {

/// Normal for the edit window; mode 1 for a light background such as a printed sheet, with
/// heavier lines and the dark shade of a light tapping-point colour.
enum class ViewMode { Normal, Mode1 };
enum class View { Orthographic, Isometric };

inline constexpr int kStandardWidth = 2;
inline constexpr int kNormalLineWidth = 1;
inline constexpr int kMode1LineWidth = 2;
inline constexpr int kGridLineWidth = 1;

inline constexpr double kScaleOffset = 150;
inline constexpr double kShortTick = 60;
inline constexpr double kLongTick = 150;

/// cos 30 degrees and sin 30 degrees, as ratios.
inline constexpr double kIsoAcross = 866.0 / 1000.0;
inline constexpr double kIsoRise = 1.0 / 2.0;

/// How the caller wants the symbol drawn.
struct SymbolStyle {
  ViewMode mode = ViewMode::Normal;
  int lineColour = 0;  // palette index for lines and character lines
  View view = View::Orthographic;
};

/// Which of the optional markers the symbol has.
struct PlacedPoints {
  bool endPoint = false;
  bool spindlePoint = false;
};

/// Clears the surface, draws the grid and its scale, and marks the grid complete. The caller
/// sets its grid-drawn flag.
void redrawGrid(Canvas& canvas, const GridGeometry& grid, const Configuration& config);

/// Draws the working symbol over the grid: the action walk, then the markers.
void drawWorkingSymbol(Canvas& canvas, const WorkingSymbol& symbol, const PlacedPoints& placed,
                       const SymbolStyle& style, const Configuration& config);

/// The whole redraw: the grid, then the working symbol.
void redraw(Canvas& canvas, const GridGeometry& grid, const WorkingSymbol& symbol,
            const PlacedPoints& placed, const SymbolStyle& style, const Configuration& config);

/// Draws what one slot adds as the symbol grows: the walk's drawing of that slot, or for slot
/// 1, 201 or 202 the start, spindle or end marker. Slot 0 and slots beyond 202 draw nothing.
void drawAction(Canvas& canvas, const WorkingSymbol& symbol, int slot, const SymbolStyle& style,
                const Configuration& config);

/// The rubber band from the last point drawn to the point under the mouse, with the pen of
/// the segment it would add (code 4 insulation, 5 tracing, anything else a line).
void drawRubberBand(Canvas& canvas, FormPosition lastPoint, FormPosition cursor,
                    std::int16_t segmentCode, const SymbolStyle& style,
                    const Configuration& config);

}  // namespace quorn
