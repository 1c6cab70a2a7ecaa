#include "edit/scale_dialog.h"

#include <charconv>

#include "base/numbers.h"
#include "edit/editing_texts.h"

namespace quorn {

namespace {

constexpr double kSmallestDivisionMm = 0.1;
constexpr double kLargestDivisionMm = 2.0;
constexpr std::int32_t kShortestScaleTenths = 50;
constexpr std::int32_t kLongestScaleTenths = 750;

/// The shortest decimal text that reads back as `value`.
std::string millimetreText(double value) {
  char buffer[32];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
  return std::string(buffer, result.ptr);
}

}  // namespace

ScaleDialogState openScaleDialog(double pitch, std::int16_t hsize) {
  return ScaleDialogState{millimetreText(pitch / 10), millimetreText(hsize / 10.0)};
}

std::optional<GridScale> rescaleSymbol(ScaleDialogState& dialog) {
  const double division = leadingNumber(dialog.gridDivision);
  if (division < kSmallestDivisionMm) {
    dialog.gridDivision = std::string(kSmallestGridDivision);
    return std::nullopt;
  }
  if (division > kLargestDivisionMm) {
    dialog.gridDivision = std::string(kLargestGridDivision);
    return std::nullopt;
  }
  const std::int32_t length = roundHalfEven(leadingNumber(dialog.scaleLength) * 10);
  if (length < kShortestScaleTenths) {
    dialog.scaleLength = std::string(kShortestScaleLength);
    return std::nullopt;
  }
  if (length > kLongestScaleTenths) {
    dialog.scaleLength = std::string(kLongestScaleLength);
    return std::nullopt;
  }
  return GridScale{division * 10, static_cast<std::int16_t>(length)};
}

}  // namespace quorn
