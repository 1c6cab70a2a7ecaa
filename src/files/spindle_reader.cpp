#include "files/spindle_reader.h"

#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <string>

#include "base/numbers.h"
#include "base/text.h"
#include "files/line_stream.h"
#include "model/limits.h"

namespace quorn {

namespace {

constexpr std::string_view kFileName = "SPINDLES.DEF";

std::string tooManySegmentsText(const std::string& spindle) {
  return "spindle " + spindle + " has more than " + std::to_string(kMaxSpindleSegments) +
         " segments; the segments from this line on are left out";
}

std::string outOfRangeText(const std::string& field) {
  return "the value " + field + " does not fit a 16-bit number; the segment is left out";
}

/// The whole part of a field's leading number, when it fits 16 bits.
std::optional<std::int16_t> fieldValue(std::string_view text) {
  const double whole = std::trunc(leadingNumber(text));
  if (whole < std::numeric_limits<std::int16_t>::min() ||
      whole > std::numeric_limits<std::int16_t>::max()) {
    return std::nullopt;
  }
  return static_cast<std::int16_t>(whole);
}

/// Splits "x1,y1 x2,y2": the separator alternates between "," and " ", starting with ",";
/// whatever follows the last separator is y2.
std::array<std::string, 4> segmentFields(std::string_view line) {
  std::array<std::string, 4> fields;
  std::size_t field = 0;
  std::string collected;
  char separator = ',';
  for (const char c : line) {
    if (c == separator) {
      fields[std::min<std::size_t>(field++, 3)] = collected;
      collected.clear();
      separator = separator == ',' ? ' ' : ',';
    } else {
      collected += c;
    }
  }
  fields[3] = collected;
  return fields;
}

bool isSpindleName(std::string_view trimmedLine) {
  return midPart(trimmedLine, 3, 2) == "SP";
}

}  // namespace

SpindleTable parseSpindles(std::string_view content, std::string_view fileShown,
                           Messages& messages) {
  SpindleTable table;
  bool refusalShown = false;
  LineStream lines(content);
  while (const auto line = lines.next()) {
    const std::size_t lineNumber = lines.lineNumber();
    // Trailing blanks would otherwise count as a last field of their own.
    const std::string_view text = trimmed(*line);
    if (text.empty()) continue;
    if (isSpindleName(text)) {
      if (table.count() == kMaxSpindles) break;
      table.spindles.push_back(SpindleDefinition{std::string(text), {}});
      refusalShown = false;
      continue;
    }
    SpindleDefinition& spindle = table.spindles.back();
    if (static_cast<int>(spindle.segments.size()) == kMaxSpindleSegments) {
      if (!refusalShown)
        messages.tell(faultInFileText(fileShown, lineNumber, tooManySegmentsText(spindle.name)));
      refusalShown = true;
      continue;
    }
    const auto fields = segmentFields(text);
    std::array<std::int16_t, 4> values{};
    bool fits = true;
    for (std::size_t i = 0; i < fields.size() && fits; ++i) {
      const auto value = fieldValue(fields[i]);
      if (!value) {
        messages.tell(faultInFileText(fileShown, lineNumber,
                                      outOfRangeText(std::string(trimmed(fields[i])))));
        fits = false;
      } else {
        values[i] = *value;
      }
    }
    if (fits) spindle.segments.push_back({values[0], values[1], values[2], values[3]});
  }
  if (lines.fault()) {
    messages.tell(faultInFileText(fileShown, lines.lineNumber(), *lines.fault()));
    return SpindleTable{};
  }
  return table;
}

void readSpindles(const WorkingDirectory& directory, SpindleTable& spindles, Messages& messages) {
  spindles = SpindleTable{};
  if (!directory.has(kFileName)) {
    messages.tell(missingFileText(kFileName, directory.shown()));
    return;
  }
  ReadFailure failure;
  const auto file = readTextFile(directory.locate(kFileName), &failure);
  if (!file) {
    messages.tell(directory.shownPath(kFileName) + " " + failure.reason);
    return;
  }
  spindles = parseSpindles(file->content(), directory.shownPath(kFileName), messages);
}

}  // namespace quorn
