#pragma once
// Where a symbol file's head, lead, body and tail lines lie, found one line at a time as
// the file is read from start to end.

#include <cstddef>
#include <string>
#include <string_view>

#include "config/settings.h"
#include "files/symbol_records.h"

namespace quorn {

/// The ID of the built-in layout that surrounds the records with head and tail lines only.
inline constexpr std::string_view kIdfFormattedId = "IDF_Formatted";

/// True for the IDs of the built-in layouts, in any letter case: their body starts at the
/// first header record; any other ID is a test string to be found in the file.
bool isBuiltInLayout(std::string_view id);

enum class LineSection {
  Head,  // before the body (for a test-string format, before the test line)
  Lead,  // the test line and the format's lead lines after it
  Body,  // a record line, or a blank line between record lines
  Tail,  // every line after the body
  Open,  // a blank line after a record line: body if a record follows, else tail
};

std::string_view trimmedBodyText(std::string_view line);

/// A line of the body with leading tabs and trailing blanks removed; the leading blank of a
/// record stays, so its columns stay where they are.
inline std::string_view bodyText(std::string_view line) {
  if (!line.empty() && line.front() != '\t' && line.back() != ' ') return line;
  return trimmedBodyText(line);
}

class LayoutScanner {
 public:
  explicit LayoutScanner(const FormatStructure& format);

  /// The section of the next line of the file.
  LineSection take(std::string_view line) {
    if (phase_ == Phase::Body && isWrittenRecord(line)) return LineSection::Body;
    return takeOther(line);
  }
  /// False while a test-string format's test line has not been met; after the last line
  /// this means the file does not have the format.
  bool found() const { return phase_ != Phase::Searching; }

 private:
  enum class Phase { Searching, BuiltInHead, Head, Lead, Body, Tail };

  LineSection takeOther(std::string_view line);
  LineSection bodyOrTail(std::string_view line);

  Phase phase_;
  std::string testString_;
  std::size_t headLeft_ = 0;  // head lines still to come, for a format without a test string
  std::size_t leadLeft_ = 0;  // lead lines still to come
};

}  // namespace quorn
