#include "config/configuration_line.h"

#include "base/numbers.h"
#include "base/text.h"
#include "config/palette.h"

namespace quorn {

bool isSkippedConfigurationLine(std::string_view line) {
  const std::string_view text = trimmed(line);
  return text.empty() || text.front() == '!';
}

ConfigurationLine parseConfigurationLine(std::string_view line) {
  ConfigurationLine parsed;
  bool inValue = false;
  for (const char c : trimmed(line)) {
    if (c == ' ') continue;
    if (c == '=') {
      inValue = true;  // the first "=" switches; any later one is dropped
      continue;
    }
    (inValue ? parsed.valueText : parsed.keyword) += c;
  }
  if (upperCase(rightPart(parsed.keyword, 6)) == "COLOUR") {
    parsed.colour = colourIndex(upperCase(parsed.valueText)).value_or(0);
  } else {
    parsed.number = leadingNumber(parsed.valueText);
  }
  return parsed;
}

}  // namespace quorn
