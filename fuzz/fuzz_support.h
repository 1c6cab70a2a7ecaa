#pragma once
// What every fuzz target shares: messages that are answered and forgotten, and the input as
// a text file.

#include <cstddef>
#include <cstdint>
#include <string>

#include "base/messages.h"
#include "base/text_file.h"

namespace quorn::fuzz {

class SilentMessages : public Messages {
 public:
  Answer ask(const Message& message) override {
    return message.buttons == Buttons::YesNo || message.buttons == Buttons::YesNoCancel
               ? Answer::Yes
               : Answer::Ok;
  }
};

inline TextFile textFileOf(const std::uint8_t* data, std::size_t size) {
  return TextFile::fromContent(std::string(reinterpret_cast<const char*>(data), size));
}

}  // namespace quorn::fuzz
