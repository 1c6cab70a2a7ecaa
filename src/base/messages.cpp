#include "base/messages.h"

namespace quorn {

std::string_view buttonsName(Buttons buttons) {
  switch (buttons) {
    case Buttons::Ok:
      return "OK";
    case Buttons::OkCancel:
      return "OK Cancel";
    case Buttons::YesNo:
      return "Yes No";
    case Buttons::YesNoCancel:
      return "Yes No Cancel";
  }
  return "";
}

std::string_view iconName(Icon icon) {
  switch (icon) {
    case Icon::None:
      return "none";
    case Icon::Critical:
      return "critical";
    case Icon::Question:
      return "question";
    case Icon::Exclamation:
      return "exclamation";
    case Icon::Information:
      return "information";
  }
  return "";
}

std::string_view answerName(Answer answer) {
  switch (answer) {
    case Answer::Ok:
      return "OK";
    case Answer::Cancel:
      return "Cancel";
    case Answer::Yes:
      return "Yes";
    case Answer::No:
      return "No";
  }
  return "";
}

}  // namespace quorn

namespace quorn {

std::string missingFileText(std::string_view fileName, std::string_view directoryShown) {
  std::string text(fileName);
  text += " not found in the ";
  text += directoryShown;
  text += "\ndirectory. Please load this file \nand try again. See READMESY.TXT for File Format";
  return text;
}

}  // namespace quorn

namespace quorn {

std::string faultInFileText(std::string_view fileShown, std::size_t line,
                            std::string_view problem) {
  std::string text(fileShown);
  text += ", line ";
  text += std::to_string(line);
  text += ": ";
  text += problem;
  return text;
}

}  // namespace quorn
