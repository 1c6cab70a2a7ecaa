#pragma once
// Every text that laying the grid out can give, in one place.

#include <string>

namespace quorn {

enum class GridSide { Width, Height };

/// The screen leaves nothing (or less) for the grid once its margins are taken off.
std::string screenLeavesNoRoomText(GridSide side, double screenSize, long long available);
/// The scale length and the grid division give no whole division (sizes in tenths of a mm).
std::string noGridDivisionsText(double pitch, double hsize);
/// The scale length and the grid division give more divisions than the grid can count.
std::string tooManyGridDivisionsText(double pitch, double hsize);
/// The width left for the grid cannot hold one form unit per division.
std::string divisionsDoNotFitText(long long availableWidth, long long divisions);
/// The height left for the grid cannot hold one division.
std::string noGridRowText(long long availableHeight, long long spacing);
/// The grid would be larger than its 16-bit fields can hold.
std::string gridTooLargeText(GridSide side, long long size);

}  // namespace quorn
