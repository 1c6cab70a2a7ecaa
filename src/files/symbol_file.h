#pragma once
// What a symbol file holds around its symbols, kept so that a save puts it back.

#include <string>
#include <vector>

#include "base/text_file.h"

namespace quorn {

struct SymbolFileText {
  /// The lines before the body: for a format with a test string, those before the test line.
  std::vector<std::string> headLines;
  /// A test-string format's test line and the format's lead lines after it; the lead lines of
  /// a format without a test string.
  std::vector<std::string> leadLines;
  /// The record lines as read (leading tabs and trailing blanks removed), for the values view:
  /// filled only when the reader is asked for them. A blank line between records keeps an
  /// empty slot.
  std::vector<std::string> bodyLines;
  /// Every line after the body.
  std::vector<std::string> tailLines;
  /// The line ends the file was read with; a new file gets CRLF.
  LineEnding lineEnding = LineEnding::CrLf;
};

}  // namespace quorn
