#pragma once
// What a symbol file holds around its symbols, kept so that a save puts it back.

#include <string>
#include <vector>

#include "base/text_file.h"

namespace quorn {

struct SymbolFileText {
  std::vector<std::string> headLines;
  std::vector<std::string> leadLines;
  std::vector<std::string> bodyLines;  // the record lines as read, for the values view
  std::vector<std::string> tailLines;
  /// The line ends the file was read with; a new file gets CRLF.
  LineEnding lineEnding = LineEnding::CrLf;
};

}  // namespace quorn
