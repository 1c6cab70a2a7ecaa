#pragma once
// The one way the core speaks to the user: modal messages and questions.

#include <cstddef>
#include <string>
#include <string_view>

namespace quorn {

enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
enum class Icon { None, Critical, Question, Exclamation, Information };
enum class Answer { Ok, Cancel, Yes, No };

/// The title of the editor's own messages and prompts.
inline constexpr std::string_view kAppTitle = "Quorn Symbols Editor";

struct Message {
  std::string title;
  std::string text;
  Buttons buttons = Buttons::Ok;
  Icon icon = Icon::None;
};

/// Shows a message and waits for the user's answer. The window layer shows a message box;
/// tests and scripts record the message and answer from a queue.
class Messages {
 public:
  virtual ~Messages() = default;
  virtual Answer ask(const Message& message) = 0;

  /// A message with only an OK button and the application's title.
  void tell(std::string text) { ask(Message{std::string(kAppTitle), std::move(text)}); }
};

/// A fault that ends the program: the caller shows `text` and ends.
struct FatalError {
  std::string text;
};

std::string_view buttonsName(Buttons buttons);
std::string_view iconName(Icon icon);
std::string_view answerName(Answer answer);

}  // namespace quorn

namespace quorn {

/// The shared shape of the missing-file messages: NAME not found in the DIR directory...
std::string missingFileText(std::string_view fileName, std::string_view directoryShown);

}  // namespace quorn

namespace quorn {

/// A clear message for a fault the files' own rules leave undefined: names the file, the
/// 1-based line and the problem, as "FILE, line N: PROBLEM".
std::string faultInFileText(std::string_view fileShown, std::size_t line, std::string_view problem);

}  // namespace quorn
