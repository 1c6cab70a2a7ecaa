#pragma once
// Every text the symbol readers show: the limit messages, the layout message and the faults
// that stop a read.

#include <cstddef>
#include <string>
#include <string_view>

namespace quorn {

/// The Current Set is full: "This File contains more than  100 symbols ...".
std::string symbolLimitText(int maxSymbols);
/// Symbol `symbol` has more than 9 tapping points.
std::string tappingLimitText(int symbol);
/// Symbol `symbol` has more than 200 actions.
std::string actionLimitText(int symbol);
/// The format's test string is on no line of the file.
std::string testStringNotFoundText(std::string_view testString, std::string_view fileShown);

/// A file that cannot be read at all: "FILE: PROBLEM".
std::string unreadableFileText(std::string_view fileShown, std::string_view problem);

/// Problems named, with the file and line, by faultInFileText or unreadableFileText.
std::string cannotOpenProblem();
std::string cannotReadProblem();
std::string emptyFileProblem();
std::string nulByteProblem();
std::string lineTooLongProblem(std::size_t maxLength);
/// `coordinate` is "x" or "y"; `group` counts the action groups of the line from 1.
std::string coordinateTooLargeProblem(std::string_view coordinate, int group,
                                      std::string_view field);

}  // namespace quorn
