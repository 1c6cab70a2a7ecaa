#include "cli/key_check_input.h"

#include <charconv>
#include <string_view>
#include <vector>

#include "cli/console_messages.h"
#include "config/configuration_reader.h"
#include "config/settings_reader.h"
#include "files/file_names.h"
#include "files/symbol_file_reader.h"

namespace quorn::cli {

bool readKeyCheckInput(const WorkingDirectory& directory,
                       const std::optional<std::string>& symbolFile, KeyCheckInput& input,
                       std::ostream& err) {
  ConsoleMessages messages(err);
  if (const auto fatal = readConfiguration(directory, input.config, messages)) {
    err << fatal->text << '\n';
    return false;
  }
  input.set.reset(input.config.maxSymbolsInFile);
  if (!symbolFile) return true;
  const auto format =
      loadFormatStructure(directory, fileExtension(*symbolFile), input.config.writeBin, messages);
  if (!format) return false;
  SymbolFileText text;
  std::vector<std::string> labels;
  return readSymbolFile(*symbolFile, *format, input.set, text, labels, messages);
}

std::optional<int> wholeNumber(const std::string& text) {
  int value = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  if (text.empty() || error != std::errc() || stop != end) return std::nullopt;
  return value;
}

}  // namespace quorn::cli
