#include "files/binary_records.h"

#include <cmath>
#include <limits>
#include <string_view>

#include "base/numbers.h"
#include "base/text.h"

namespace quorn {

namespace {

using namespace std::string_view_literals;

// The bytes around the record data, by BINFORMAT.
struct BinaryFraming {
  std::string_view before;
  std::string_view after;
};

constexpr BinaryFraming kFramings[] = {
    {""sv, ""sv},
    {"\x38"sv, "\x38"sv},
    {"\x38\0\0\0"sv, "\x38\0\0\0"sv},
    {"\x3A\0\x03\0"sv, ""sv},
};

constexpr std::int16_t kHeaderCode = 501;
constexpr std::int16_t kActionCode = 502;
constexpr std::int16_t kEndCode = 999;
constexpr std::size_t kIntegerSize = 4;
constexpr std::size_t kKeySize = 4;
constexpr std::size_t kZeroFields = 5;

// A 4-byte little-endian integer whose upper two bytes are 0 and lower two hold the value.
std::size_t putInteger(BinaryRecord& record, std::size_t at, std::int16_t value) {
  const auto bits = static_cast<std::uint16_t>(value);
  record[at] = static_cast<std::uint8_t>(bits & 0xFF);
  record[at + 1] = static_cast<std::uint8_t>(bits >> 8);
  return at + kIntegerSize;
}

std::size_t putKey(BinaryRecord& record, std::size_t at, std::string_view key) {
  const std::string_view kept = leftPart(key, kKeySize);
  for (std::size_t i = 0; i < kKeySize; ++i) {
    record[at + i] = static_cast<std::uint8_t>(i < kept.size() ? kept[i] : ' ');
  }
  return at + kKeySize;
}

// Values beyond 16 bits have no binary form of their own; they are held at the nearest limit.
std::int16_t wholePart(std::string_view text) {
  const double whole = std::trunc(leadingNumber(text));
  constexpr double low = std::numeric_limits<std::int16_t>::min();
  constexpr double high = std::numeric_limits<std::int16_t>::max();
  return static_cast<std::int16_t>(whole < low ? low : whole > high ? high : whole);
}

}  // namespace

BinaryRecord binaryHeaderRecord(const SymbolText& symbol) {
  BinaryRecord record{};
  std::size_t at = putInteger(record, 0, kHeaderCode);
  at = putKey(record, at, symbol.newKeyRaw);
  at = putKey(record, at, symbol.oldKeyRaw);
  at = putKey(record, at, symbol.spindleKey);
  for (const std::string* field :
       {&symbol.scaleFactor, &symbol.mirrorType, &symbol.flowArrow, &symbol.dimensions}) {
    at = putInteger(record, at, wholePart(*field));
  }
  at += kZeroFields * kIntegerSize;
  putInteger(record, at, wholePart(symbol.orientation));
  return record;
}

BinaryRecord binaryActionRecord(std::span<const SymbolAction> groups) {
  BinaryRecord record{};
  std::size_t at = putInteger(record, 0, kActionCode);
  for (const SymbolAction& group : groups.first(std::min<std::size_t>(groups.size(), 4))) {
    at = putInteger(record, at, group.type);
    at = putInteger(record, at, group.x);
    at = putInteger(record, at, group.y);
  }
  return record;
}

BinaryRecord binaryEndRecord() {
  BinaryRecord record{};
  putInteger(record, 0, kEndCode);
  return record;
}

void appendBinaryBlock(std::string& bytes, const BinaryRecord& record, int binFormat) {
  const bool known = binFormat >= 0 && binFormat < static_cast<int>(std::size(kFramings));
  const BinaryFraming& framing = kFramings[known ? binFormat : 0];
  bytes += framing.before;
  bytes.append(reinterpret_cast<const char*>(record.data()), record.size());
  bytes += framing.after;
}

}  // namespace quorn
