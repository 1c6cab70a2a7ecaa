// Feeds arbitrary bytes to the three readings of SYMBOLS.INI and checks what they promise.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "base/text.h"
#include "config/settings_parser.h"
#include "config/settings_texts.h"

namespace {

class CountingMessages : public quorn::Messages {
 public:
  quorn::Answer ask(const quorn::Message&) override {
    ++count;
    return quorn::Answer::Ok;
  }
  int count = 0;
};

void check(bool promise) {
  if (!promise) std::abort();
}

void loadStructure(const quorn::TextFile& file, std::string_view extension) {
  CountingMessages messages;
  const auto structure =
      quorn::parseFormatStructure(file, "SYMBOLS.INI", extension, true, messages);
  if (!structure) {
    check(messages.count == 1);
    return;
  }
  check(messages.count == 0);
  check(structure->leadlines >= 0 && structure->headlines >= 0);
  check(!structure->writeBinary || structure->id == quorn::upperCase(quorn::kQuornAsciiId));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const quorn::TextFile file =
      quorn::TextFile::fromContent(std::string(reinterpret_cast<const char*>(data), size));

  quorn::Settings settings;
  quorn::parseStartupSettings(file, settings);

  if (!quorn::parseFormats(file, "SYMBOLS.INI", settings)) {
    check(settings.formats.size() <= static_cast<std::size_t>(quorn::kMaxFormats));
    check(settings.defaultFilterIndex >= 0 &&
          static_cast<std::size_t>(settings.defaultFilterIndex) <= settings.formats.size());
    check(settings.fileFilter.ends_with(quorn::kAllFilesFilter));
  }

  std::vector<std::string> extensions = {"", "SYM"};
  for (const quorn::FileFormat& format : settings.formats) {
    extensions.push_back(quorn::upperCase(format.extension));
  }
  for (const std::string& extension : extensions) loadStructure(file, extension);
  return 0;
}
