#include "cli/console_messages.h"

namespace quorn::cli {

Answer ConsoleMessages::ask(const Message& message) {
  err_ << message.text << '\n';
  switch (message.buttons) {
    case Buttons::Ok:
    case Buttons::OkCancel:
      return Answer::Ok;
    case Buttons::YesNo:
    case Buttons::YesNoCancel:
      return Answer::Yes;
  }
  return Answer::Ok;
}

}  // namespace quorn::cli
