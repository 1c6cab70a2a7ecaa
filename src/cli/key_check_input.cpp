#include "cli/key_check_input.h"

#include <charconv>
#include <string_view>
#include <vector>

#include "cli/configuration_input.h"
#include "cli/console_messages.h"
#include "files/open_symbol_file.h"

namespace quorn::cli {

bool readKeyCheckInput(const WorkingDirectory& directory,
                       const std::optional<std::string>& symbolFile, KeyCheckInput& input,
                       std::ostream& err) {
  ConsoleMessages messages(err);
  if (!readConfigurationFor(directory, input.config, input.set, messages, err)) return false;
  return !symbolFile ||
         openSymbolFile(directory, *symbolFile, input.config.writeBin, input.set, messages);
}

std::optional<int> wholeNumber(const std::string& text) {
  int value = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  if (text.empty() || error != std::errc() || stop != end) return std::nullopt;
  return value;
}

}  // namespace quorn::cli
