// Feeds arbitrary bytes to the SYMBOLS.CFG reader as the file's content.

#include <cstddef>
#include <cstdint>

#include "config/configuration_reader.h"
#include "fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const quorn::TextFile file = quorn::fuzz::textFileOf(data, size);
  quorn::Configuration config;
  quorn::fuzz::SilentMessages messages;
  const auto fatal =
      quorn::readConfigurationText(file, quorn::WorkingDirectory("fuzz"), config, messages);
  if (!fatal) {
    // A file that was read leaves tables the rest of the editor indexes without checks.
    if (config.groups.size() != static_cast<std::size_t>(config.groupCount) + 1) __builtin_trap();
    if (config.groupList.size() != static_cast<std::size_t>(config.groupCount)) __builtin_trap();
    if (config.groupCount > quorn::kMaxGroups || config.maxSymbolsInFile == 0) __builtin_trap();
    for (const auto& group : config.groups) {
      if (group.entries.size() > static_cast<std::size_t>(quorn::kMaxEntriesPerGroup)) {
        __builtin_trap();
      }
    }
  }
  return 0;
}
