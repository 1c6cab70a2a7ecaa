#include "support/recording_messages.h"

namespace quorn::test {

Answer RecordingMessages::ask(const Message& message) {
  shown_.push_back(message);
  if (!answers_.empty()) {
    const Answer answer = answers_.front();
    answers_.pop_front();
    return answer;
  }
  switch (message.buttons) {
    case Buttons::YesNo:
    case Buttons::YesNoCancel:
      return Answer::Yes;
    default:
      return Answer::Ok;
  }
}

std::vector<std::string> RecordingMessages::texts() const {
  std::vector<std::string> result;
  for (const Message& message : shown_) result.push_back(message.text);
  return result;
}

}  // namespace quorn::test
