#include "config/palette.h"

namespace quorn {

std::optional<std::int16_t> colourIndex(std::string_view upperCaseName) {
  for (std::size_t i = 0; i < kPalette.size(); ++i) {
    if (kPalette[i].name == upperCaseName) return static_cast<std::int16_t>(i);
  }
  return std::nullopt;
}

std::string_view colourName(int index) {
  return index >= 0 && index < static_cast<int>(kPalette.size()) ? kPalette[index].name : "?";
}

}  // namespace quorn
