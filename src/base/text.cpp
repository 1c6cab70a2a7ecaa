#include "base/text.h"

#include <algorithm>

namespace quorn {

std::string_view trimmedLeft(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  return first == std::string_view::npos ? std::string_view{} : text.substr(first);
}

std::string_view trimmedRight(std::string_view text) {
  const auto last = text.find_last_not_of(' ');
  return last == std::string_view::npos ? std::string_view{} : text.substr(0, last + 1);
}

std::string_view trimmed(std::string_view text) {
  return trimmedRight(trimmedLeft(text));
}

std::string_view withoutLeadingTabs(std::string_view text) {
  const auto first = text.find_first_not_of('\t');
  return first == std::string_view::npos ? std::string_view{} : text.substr(first);
}

std::string_view withoutLeadingBlanksAndTabs(std::string_view text) {
  const auto first = text.find_first_not_of(" \t");
  return first == std::string_view::npos ? std::string_view{} : text.substr(first);
}

static char upperChar(char c) {
  return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
}

std::string upperCase(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), upperChar);
  return result;
}

std::string withoutAccessKey(std::string_view caption) {
  std::string plain;
  for (const char c : caption) {
    if (c != '&') plain += c;
  }
  return plain;
}

std::string normalisedWord(std::string_view text) {
  return upperCase(trimmed(text));
}

std::string_view leftPart(std::string_view text, std::size_t count) {
  return text.substr(0, std::min(count, text.size()));
}

std::string_view rightPart(std::string_view text, std::size_t count) {
  return count >= text.size() ? text : text.substr(text.size() - count);
}

std::string_view midPart(std::string_view text, std::size_t position, std::size_t count) {
  if (position == 0 || position > text.size()) return {};
  return text.substr(position - 1, count);
}

bool equalsIgnoringCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
           return upperChar(x) == upperChar(y);
         });
}

}  // namespace quorn
