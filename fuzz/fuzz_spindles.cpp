// Feeds arbitrary text to the SPINDLES.DEF reader.

#include <cstddef>
#include <cstdint>
#include <string>

#include "files/spindle_reader.h"

namespace {

class SilentMessages : public quorn::Messages {
 public:
  quorn::Answer ask(const quorn::Message&) override { return quorn::Answer::Ok; }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  SilentMessages messages;
  const auto file =
      quorn::TextFile::fromContent(std::string(reinterpret_cast<const char*>(data), size));
  quorn::parseSpindles(file, "SPINDLES.DEF", messages);
  return 0;
}
