#include "files/reader_texts.h"

#include "base/numbers.h"

namespace quorn {

std::string symbolLimitText(int maxSymbols) {
  const std::string count = messageNumber(maxSymbols);
  return "This File contains more than " + count + " symbols which is the maximum number allowed." +
         " Only the first " + count + " have" +
         " been read. Please see READMESY.TXT for more details.";
}

std::string tappingLimitText(int symbol) {
  return "Symbol number " + messageNumber(symbol) + " contains more than " + "9" +
         " Tapping Points which is the maximum number allowed." + " Only the first " + "9" +
         " have" + " been read.";
}

std::string actionLimitText(int symbol) {
  return "Symbol number " + messageNumber(symbol) + " contains more than " + "200" +
         " Actions which is the maximum number allowed." + " Only the first " + "200" + " have" +
         " been read. Please see READMESY.TXT for more details.";
}

std::string testStringNotFoundText(std::string_view testString, std::string_view fileShown) {
  return "Test String '" + std::string(testString) + "' not found in " + std::string(fileShown);
}

std::string unreadableFileText(std::string_view fileShown, std::string_view problem) {
  return std::string(fileShown) + ": " + std::string(problem);
}

std::string cannotOpenProblem() {
  return "the file cannot be opened";
}

std::string cannotReadProblem() {
  return "the file cannot be read";
}

std::string emptyFileProblem() {
  return "the file is empty, it holds no line to read";
}

std::string nulByteProblem() {
  return "the line holds a NUL byte; this is not a text file";
}

std::string lineTooLongProblem(std::size_t maxLength) {
  return "the line is longer than " + std::to_string(maxLength) +
         " characters; this is not a symbol file";
}

std::string coordinateTooLargeProblem(std::string_view coordinate, int group,
                                      std::string_view field) {
  return "the " + std::string(coordinate) + " of action group " + std::to_string(group) + ", \"" +
         std::string(field) + "\", does not fit a 16-bit integer";
}

}  // namespace quorn
