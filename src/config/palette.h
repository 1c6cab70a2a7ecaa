#pragma once
// The sixteen-colour palette: names as SYMBOLS.CFG writes them, and their screen colours.

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace quorn {

struct PaletteColour {
  std::string_view name;
  std::uint8_t red, green, blue;
};

inline constexpr std::array<PaletteColour, 16> kPalette = {{
    {"BLACK", 0, 0, 0},
    {"BLUE", 0, 0, 128},
    {"GREEN", 0, 128, 0},
    {"CYAN", 0, 128, 128},
    {"RED", 128, 0, 0},
    {"MAGENTA", 128, 0, 128},
    {"YELLOW", 128, 128, 0},
    {"WHITE", 192, 192, 192},
    {"GRAY", 128, 128, 128},
    {"LIGHTBLUE", 0, 0, 255},
    {"LIGHTGREEN", 0, 255, 0},
    {"LIGHTCYAN", 0, 255, 255},
    {"LIGHTRED", 255, 0, 0},
    {"LIGHTMAGENTA", 255, 0, 255},
    {"LIGHTYELLOW", 255, 255, 0},
    {"BRIGHTWHITE", 255, 255, 255},
}};

/// The index of a colour name written in capitals without blanks; nothing when unknown.
std::optional<std::int16_t> colourIndex(std::string_view upperCaseName);
/// The name of a palette index; "?" outside 0 to 15.
std::string_view colourName(int index);

}  // namespace quorn
