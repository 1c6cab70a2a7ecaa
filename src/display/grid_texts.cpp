#include "display/grid_texts.h"

#include <cstdio>

namespace quorn {

namespace {

std::string number(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.10g", value);
  return text;
}

std::string sideName(GridSide side) {
  return side == GridSide::Width ? "width" : "height";
}

std::string sizesGiven(double pitch, double hsize) {
  return "a scale length (HSIZE) of " + number(hsize / 10) + " mm and a grid division (PITCH) of " +
         number(pitch / 10) + " mm give ";
}

}  // namespace

std::string screenLeavesNoRoomText(GridSide side, double screenSize, long long available) {
  return "The screen is too small for the drawing grid: a screen " + sideName(side) + " of " +
         number(screenSize) + " form units leaves " + std::to_string(available) + " for the grid.";
}

std::string noGridDivisionsText(double pitch, double hsize) {
  return "The drawing grid cannot be laid out: " + sizesGiven(pitch, hsize) + "no divisions.";
}

std::string tooManyGridDivisionsText(double pitch, double hsize) {
  return "The drawing grid cannot be laid out: " + sizesGiven(pitch, hsize) +
         "more than 32767 divisions.";
}

std::string divisionsDoNotFitText(long long availableWidth, long long divisions) {
  return "The screen is too small for the drawing grid: the width of " +
         std::to_string(availableWidth) + " form units left for the grid cannot hold " +
         std::to_string(divisions) + " divisions.";
}

std::string noGridRowText(long long availableHeight, long long spacing) {
  return "The screen is too small for the drawing grid: the height of " +
         std::to_string(availableHeight) +
         " form units left for the grid cannot hold a division of " + std::to_string(spacing) +
         " form units.";
}

std::string gridTooLargeText(GridSide side, long long size) {
  return "The screen is too large for the drawing grid: a grid " + sideName(side) + " of " +
         std::to_string(size) + " form units is more than 32767.";
}

}  // namespace quorn
