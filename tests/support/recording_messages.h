#pragma once
// A Messages fake: records every message and answers from a queue.

#include <deque>
#include <string>
#include <vector>

#include "base/messages.h"

namespace quorn::test {

class RecordingMessages : public Messages {
 public:
  /// Answers to give, in order; when none is queued the first button's answer is given.
  void queue(Answer answer) { answers_.push_back(answer); }
  Answer ask(const Message& message) override;

  const std::vector<Message>& shown() const { return shown_; }
  std::vector<std::string> texts() const;
  void clear() { shown_.clear(); }

 private:
  std::deque<Answer> answers_;
  std::vector<Message> shown_;
};

}  // namespace quorn::test
