// Feeds arbitrary text to the SYMBOLS.LIB reader, tied to a small set of SKEY groups, and
// checks that every group link it leaves names a symbol it kept.

#include <cstdlib>
#include <string_view>

#include "files/library_reader.h"
#include "fuzz_support.h"

namespace {

quorn::Configuration smallGroups() {
  quorn::Configuration config;
  config.groupCount = 2;
  config.groups.resize(3);
  config.groups[1].entries = {{"VB**", "Ball valve"}, {"FLWN", "Flange"}};
  config.groups[2].entries = {{"SP", "Spindle"}, {"RCBW", "Reducer"}};
  return config;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  quorn::fuzz::SilentMessages messages;
  quorn::Configuration config = smallGroups();
  quorn::SymbolLibrary library;
  const std::string_view content(reinterpret_cast<const char*>(data), size);
  const bool loaded = quorn::parseLibrary(content, "SYMBOLS.LIB", library, config, messages);
  if (loaded != library.loaded || library.count() > quorn::kLibraryCapacity) std::abort();
  for (const quorn::SkeyGroup& group : config.groups) {
    for (const quorn::GroupEntry& entry : group.entries) {
      if (entry.librarySymbol < 0 || entry.librarySymbol > library.count()) std::abort();
    }
  }
  for (int number = 0; number <= library.count(); ++number) {
    const quorn::SymbolRecord& symbol = library.symbol(number);
    if (symbol.actionCount() > quorn::kMaxActionsRead || symbol.tappingCount > 9) std::abort();
  }
  return 0;
}
