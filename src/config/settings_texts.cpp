#include "config/settings_texts.h"

#include "config/settings.h"

namespace quorn {

std::string structureNotDefinedText(std::string_view extension, std::string_view fileShown) {
  std::string text = "File Structure for .";
  text += extension;
  text += " files\n  is not defined in ";
  text += fileShown;
  return text;
}

std::string structureNotValidText(std::string_view extension, std::string_view fileShown) {
  std::string text = "File Structure for .";
  text += extension;
  text += " files\n     is not valid in ";
  text += fileShown;
  return text;
}

std::string settingsUnreadableText(std::string_view fileShown, std::string_view reason) {
  std::string text(fileShown);
  text += ' ';
  text += reason;
  text += '.';
  return text;
}

std::string tooManyFormatsProblem() {
  return "a file format beyond the " + std::to_string(kMaxFormats) + " that can be defined";
}

std::string structureCutShortProblem(std::string_view extension) {
  std::string text = "the file ends before the three structure lines of .";
  text += extension;
  return text;
}

std::string valueOutOfRangeProblem(std::string_view key) {
  std::string text = "the ";
  text += key;
  text += " value is out of range (-32768 to 32767)";
  return text;
}

}  // namespace quorn
