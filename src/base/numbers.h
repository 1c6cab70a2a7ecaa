#pragma once
// Numbers as the files and messages of this system write them.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quorn {

/// The value of the number at the start of `text`: optional blanks, sign, digits, a decimal
/// point and an exponent; text that does not start with a number gives 0.
double leadingNumber(std::string_view text);

/// Rounds halves to even; nothing when the result does not fit a 16-bit signed integer.
std::optional<std::int16_t> roundToInt16(double value);

/// Rounds halves to even into a 32-bit integer (values beyond it are clamped).
std::int32_t roundHalfEven(double value);

/// An integer as messages show it: a leading blank when not negative (" 5", "-5").
std::string messageNumber(long long value);

}  // namespace quorn
