// Feeds arbitrary text to the symbol file reader. The first byte picks the layout and the
// symbol limit; the rest is the file. Checks what every read must leave behind.

#include <cstdlib>
#include <string_view>
#include <vector>

#include "files/symbol_file_reader.h"
#include "fuzz_support.h"
#include "model/limits.h"

namespace {

quorn::FormatStructure formatFor(std::uint8_t choice) {
  quorn::FormatStructure format;
  switch (choice % 4) {
    case 0:
      format.id = "QUORN_ASCII";
      break;
    case 1:
      format.id = "IDF_FORMATTED";
      break;
    case 2:
      format.id = "*PLANT-SYMBOLS";
      break;
    default:
      break;
  }
  format.headlines = static_cast<std::int16_t>((choice >> 2) % 3);
  format.leadlines = static_cast<std::int16_t>((choice >> 4) % 3);
  return format;
}

void check(bool condition) {
  if (!condition) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const quorn::FormatStructure format = formatFor(data[0]);
  const std::string_view content(reinterpret_cast<const char*>(data + 1), size - 1);
  quorn::fuzz::SilentMessages messages;
  quorn::CurrentSet set;
  set.reset(1 + data[0] % 7);
  quorn::SymbolFileText text;
  text.headLines = {"before"};
  std::vector<std::string> labels;
  if (!quorn::readSymbolText(content, "FUZZ.SYM", format, set, text, labels, messages,
                             quorn::ReadOptions{(data[0] & 1) != 0})) {
    check(set.count() == 0 && text.headLines.size() == 1 && labels.empty());
    return 0;
  }
  check(set.count() <= set.capacity());
  check(labels.size() == static_cast<std::size_t>(set.count()));
  for (int number = 0; number <= set.count(); ++number) {
    const quorn::SymbolRecord& symbol = set.symbol(number);
    check(symbol.actionCount() <= quorn::kMaxActionsRead);
    check(symbol.tappingCount <= quorn::kMaxTappingPoints);
    for (const quorn::SymbolAction& action : symbol.actions) {
      check(action.type >= 1 && action.type <= 9 && action.x >= 0 && action.y >= 0);
    }
  }
  return 0;
}
