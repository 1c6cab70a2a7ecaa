#include "files/symbol_file_reader.h"

#include <fstream>
#include <optional>
#include <utility>

#include "files/line_stream.h"
#include "files/reader_texts.h"
#include "files/symbol_file_layout.h"
#include "files/symbol_records.h"
#include "model/keys.h"

namespace quorn {

namespace {

void moveLines(std::vector<std::string>& from, std::vector<std::string>& to) {
  for (std::string& line : from) to.push_back(std::move(line));
  from.clear();
}

// Builds the whole result aside and hands it over only when the read has succeeded, so that
// a refused file leaves the caller's state as it was.
bool readLines(LineStream& lines, std::string_view fileShown, const FormatStructure& format,
               CurrentSet& current, SymbolFileText& text, std::vector<std::string>& listLabels,
               Messages& messages, const ReadOptions& options) {
  SymbolCollection symbols(current.capacity());
  SymbolFileText read;
  std::vector<std::string> labels;
  RecordRules rules{
      symbolLimitText(current.capacity()),
      [&labels](int, const SymbolRecord& symbol) { labels.push_back(listLabel(symbol)); }};
  SymbolRecordParser parser(symbols, std::move(rules), messages);
  LayoutScanner scanner(format);
  std::vector<std::string> open;  // blank lines not yet known to be body or tail
  std::optional<std::string> problem;

  while (!problem) {
    const std::optional<std::string_view> line = lines.next();
    if (!line) break;
    switch (scanner.take(*line)) {
      case LineSection::Head:
        read.headLines.emplace_back(*line);
        break;
      case LineSection::Lead:
        read.leadLines.emplace_back(*line);
        break;
      case LineSection::Open:
        open.emplace_back(*line);
        break;
      case LineSection::Body: {
        // Blank lines between records keep their slots, left empty.
        if (options.keepBodyLines) read.bodyLines.resize(read.bodyLines.size() + open.size());
        open.clear();
        const std::string_view body = bodyText(*line);
        if (options.keepBodyLines) read.bodyLines.emplace_back(body);
        problem = parser.parse(body);
        break;
      }
      case LineSection::Tail:
        moveLines(open, read.tailLines);
        read.tailLines.emplace_back(*line);
        break;
    }
  }

  if (problem || lines.fault()) {
    messages.tell(
        faultInFileText(fileShown, lines.lineNumber(), problem ? *problem : *lines.fault()));
    return false;
  }
  if (lines.lineNumber() == 0) {
    messages.tell(unreadableFileText(fileShown, emptyFileProblem()));
    return false;
  }
  if (!scanner.found()) {
    messages.tell(testStringNotFoundText(format.id, fileShown));
    return false;
  }
  moveLines(open, read.tailLines);
  parser.finish();
  read.lineEnding = lines.lineEnding();

  static_cast<SymbolCollection&>(current) = std::move(symbols);
  text = std::move(read);
  listLabels = std::move(labels);
  return true;
}

}  // namespace

bool readSymbolFile(const std::filesystem::path& path, const FormatStructure& format,
                    CurrentSet& current, SymbolFileText& text, std::vector<std::string>& listLabels,
                    Messages& messages, const ReadOptions& options) {
  const std::string shown = std::filesystem::path(path).make_preferred().string();
  std::error_code error;
  std::ifstream in;
  if (!std::filesystem::is_directory(path, error)) in.open(path, std::ios::binary);
  if (!in.is_open()) {
    messages.tell(unreadableFileText(shown, cannotOpenProblem()));
    return false;
  }
  LineStream lines(in);
  return readLines(lines, shown, format, current, text, listLabels, messages, options);
}

bool readSymbolText(std::string_view content, std::string_view fileShown,
                    const FormatStructure& format, CurrentSet& current, SymbolFileText& text,
                    std::vector<std::string>& listLabels, Messages& messages,
                    const ReadOptions& options) {
  LineStream lines(content);
  return readLines(lines, fileShown, format, current, text, listLabels, messages, options);
}

}  // namespace quorn
