// Feeds arbitrary bytes to the SYMBOLS.CFG reader as the file's content.

#include <cstddef>
#include <cstdint>
#include <string>

#include "config/configuration_reader.h"

namespace {

class SilentMessages : public quorn::Messages {
 public:
  quorn::Answer ask(const quorn::Message&) override { return quorn::Answer::Ok; }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const quorn::TextFile file =
      quorn::TextFile::fromContent(std::string(reinterpret_cast<const char*>(data), size));
  quorn::Configuration config;
  SilentMessages messages;
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
