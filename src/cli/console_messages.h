#pragma once
// Messages of the core written to standard error, for the command-line tool.

#include <ostream>

#include "base/messages.h"

namespace quorn::cli {

/// Writes every message to `err` and answers it with its first button (OK or Yes).
class ConsoleMessages : public Messages {
 public:
  explicit ConsoleMessages(std::ostream& err) : err_(err) {}
  Answer ask(const Message& message) override;

 private:
  std::ostream& err_;
};

}  // namespace quorn::cli
