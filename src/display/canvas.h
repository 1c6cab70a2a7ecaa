#pragma once
// The drawing surface as the core sees it. The edit window, the printer and the picture
// renderers implement it, so one piece of painting code serves them all.
//
// Coordinates are form units (twips, 1440 to the inch) on the edit window's drawing surface:
// x to the right, y downward, the grid's top-left corner at (1100, 500). A renderer scales
// them to its own device.

namespace quorn {

enum class PenStyle { Solid, Dotted, Dashed };

struct Pen {
  int colour = 0;  // palette index 0 to 15
  PenStyle style = PenStyle::Solid;
  int width = 1;  // in device pixels, as a screen pen is set
  friend bool operator==(const Pen&, const Pen&) = default;
};

class Canvas {
 public:
  virtual ~Canvas() = default;
  /// Wipes the whole surface to its background.
  virtual void clear() = 0;
  virtual void line(double x1, double y1, double x2, double y2, const Pen& pen) = 0;
  /// An unfilled circle.
  virtual void circle(double cx, double cy, double radius, const Pen& pen) = 0;
  /// Marks that everything drawn since the last clear is the grid with its scale, which stays
  /// unchanged until the next clear, so a surface may keep it painted. Draws nothing.
  virtual void gridComplete() {}
};

}  // namespace quorn
