#include "files/symbol_file_layout.h"

#include "base/text.h"
#include "config/settings_texts.h"
#include "files/symbol_records.h"

namespace quorn {

namespace {

// Before the first header record of a built-in layout, a line that reads -6 makes it and
// every line after it tail lines.
constexpr std::int16_t kTailMark = -6;

std::size_t countOf(std::int16_t value) {
  return value > 0 ? static_cast<std::size_t>(value) : 0;
}

}  // namespace

bool isBuiltInLayout(std::string_view id) {
  return equalsIgnoringCase(id, kQuornAsciiId) || equalsIgnoringCase(id, kIdfFormattedId);
}

std::string_view trimmedBodyText(std::string_view line) {
  return withoutLeadingTabs(trimmedRight(line));
}

LayoutScanner::LayoutScanner(const FormatStructure& format) : testString_(format.id) {
  if (format.id.empty()) {
    headLeft_ = countOf(format.headlines);
    leadLeft_ = countOf(format.leadlines);
    phase_ = headLeft_ > 0 ? Phase::Head : leadLeft_ > 0 ? Phase::Lead : Phase::Body;
  } else if (isBuiltInLayout(format.id)) {
    phase_ = Phase::BuiltInHead;
  } else {
    leadLeft_ = countOf(format.leadlines);
    phase_ = Phase::Searching;
  }
}

LineSection LayoutScanner::takeOther(std::string_view line) {
  switch (phase_) {
    case Phase::Searching:
      if (!equalsIgnoringCase(leftPart(line, testString_.size()), testString_)) {
        return LineSection::Head;
      }
      phase_ = leadLeft_ > 0 ? Phase::Lead : Phase::Body;
      return LineSection::Lead;
    case Phase::BuiltInHead: {
      const int record = recordNumber(line);
      if (record == kHeaderRecord) {
        phase_ = Phase::Body;
        return LineSection::Body;
      }
      if (record == kTailMark) {
        phase_ = Phase::Tail;
        return LineSection::Tail;
      }
      return LineSection::Head;
    }
    case Phase::Head:
      if (--headLeft_ == 0) phase_ = leadLeft_ > 0 ? Phase::Lead : Phase::Body;
      return LineSection::Head;
    case Phase::Lead:
      if (--leadLeft_ == 0) phase_ = Phase::Body;
      return LineSection::Lead;
    case Phase::Body:
      return bodyOrTail(line);
    case Phase::Tail:
      break;
  }
  return LineSection::Tail;
}

LineSection LayoutScanner::bodyOrTail(std::string_view line) {
  const std::string_view text = withoutLeadingTabs(trimmed(line));
  if (text.empty()) return LineSection::Open;
  const int record = recordNumber(text);
  if (record == kHeaderRecord || record == kActionRecord) return LineSection::Body;
  phase_ = Phase::Tail;
  return LineSection::Tail;
}

}  // namespace quorn
