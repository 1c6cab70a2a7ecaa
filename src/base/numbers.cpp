#include "base/numbers.h"

#include <cctype>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace quorn {

double leadingNumber(std::string_view text) {
  std::size_t i = 0;
  while (i < text.size() && (text[i] == ' ' || text[i] == '\t')) ++i;
  std::string number;
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) number += text[i++];
  bool digits = false;
  while (i < text.size() && std::isdigit(static_cast<unsigned char>(text[i]))) {
    number += text[i++];
    digits = true;
  }
  if (i < text.size() && text[i] == '.') {
    number += text[i++];
    while (i < text.size() && std::isdigit(static_cast<unsigned char>(text[i]))) {
      number += text[i++];
      digits = true;
    }
  }
  if (!digits) return 0.0;
  // An exponent counts only when digits follow it: "12E" is 12.
  if (i < text.size() && (text[i] == 'E' || text[i] == 'e' || text[i] == 'D' || text[i] == 'd')) {
    std::size_t j = i + 1;
    std::string exponent = "e";
    if (j < text.size() && (text[j] == '+' || text[j] == '-')) exponent += text[j++];
    bool exponentDigits = false;
    while (j < text.size() && std::isdigit(static_cast<unsigned char>(text[j]))) {
      exponent += text[j++];
      exponentDigits = true;
    }
    if (exponentDigits) number += exponent;
  }
  const double value = std::strtod(number.c_str(), nullptr);
  return std::isfinite(value) ? value : 0.0;
}

std::optional<std::int16_t> roundToInt16(double value) {
  if (!std::isfinite(value)) return std::nullopt;
  const double rounded = std::nearbyint(value);  // the default rounding mode is halves to even
  if (rounded < std::numeric_limits<std::int16_t>::min() ||
      rounded > std::numeric_limits<std::int16_t>::max()) {
    return std::nullopt;
  }
  return static_cast<std::int16_t>(rounded);
}

std::int32_t roundHalfEven(double value) {
  if (std::isnan(value)) return 0;
  const double rounded = std::nearbyint(value);
  if (rounded <= std::numeric_limits<std::int32_t>::min())
    return std::numeric_limits<std::int32_t>::min();
  if (rounded >= std::numeric_limits<std::int32_t>::max())
    return std::numeric_limits<std::int32_t>::max();
  return static_cast<std::int32_t>(rounded);
}

std::string messageNumber(long long value) {
  return value < 0 ? std::to_string(value) : " " + std::to_string(value);
}

}  // namespace quorn
