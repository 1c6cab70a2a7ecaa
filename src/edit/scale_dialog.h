#pragma once
// The Scale dialog: its two entries and the range rules of "&Rescale Symbol".

#include <cstdint>
#include <optional>
#include <string>

namespace quorn {

/// The entries as the user typed them, in millimetres.
struct ScaleDialogState {
  std::string gridDivision;
  std::string scaleLength;
};

/// A new grid division (`PITCH`) and horizontal scale length (`HSIZE`), in tenths of a
/// millimetre as the configuration holds them.
struct GridScale {
  double pitch = 0;  // fraction kept
  std::int16_t hsize = 0;
  friend bool operator==(const GridScale&, const GridScale&) = default;
};

/// The dialog opened on the grid in use: each entry shows its value in millimetres.
ScaleDialogState openScaleDialog(double pitch, std::int16_t hsize);

/// "&Rescale Symbol": a grid division below 0.1 or above 2.0 mm puts "0.1" or "2.0" into its
/// entry and nothing else happens; then a scale length, held in tenths rounded halves to even,
/// below 50 or above 750 puts "5" or "75" into its entry and nothing else happens. With both in
/// range, the new values for the caller to lay the grid out again; the entries stay as typed.
std::optional<GridScale> rescaleSymbol(ScaleDialogState& dialog);

}  // namespace quorn
