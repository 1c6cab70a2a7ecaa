#pragma once
// One line of SYMBOLS.CFG's [System Setup] section taken apart.

#include <cstdint>
#include <string>
#include <string_view>

namespace quorn {

/// True for a blank line and for a comment (first non-blank character "!"), which every
/// section of SYMBOLS.CFG skips.
bool isSkippedConfigurationLine(std::string_view line);

struct ConfigurationLine {
  std::string keyword;      // as written, blanks dropped
  std::string valueText;    // after the first "=", blanks and later "=" dropped
  std::int16_t colour = 0;  // palette index when the keyword ends in COLOUR; 0 when unknown
  double number = 0;        // the value's leading number otherwise
};

/// Takes a line that is not skipped apart. Blanks are dropped wherever they stand, so
/// 'Grid Colour = Light Cyan' gives the keyword "GridColour" and colour 11.
ConfigurationLine parseConfigurationLine(std::string_view line);

}  // namespace quorn
