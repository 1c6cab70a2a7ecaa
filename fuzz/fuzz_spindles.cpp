// Feeds arbitrary text to the SPINDLES.DEF reader.

#include "files/spindle_reader.h"
#include "fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  quorn::fuzz::SilentMessages messages;
  quorn::parseSpindles(std::string_view(reinterpret_cast<const char*>(data), size), "SPINDLES.DEF",
                       messages);
  return 0;
}
