#include "app/script_words.h"

namespace quorn {

std::optional<std::vector<std::string>> scriptWords(std::string_view line) {
  std::vector<std::string> words;
  std::size_t i = 0;
  while (i < line.size()) {
    const char c = line[i];
    if (c == ' ' || c == '\t' || c == '\r') {
      ++i;
    } else if (c == '#') {
      break;
    } else if (c == '"') {
      std::string word;
      ++i;
      bool closed = false;
      while (i < line.size()) {
        const char d = line[i++];
        if (d == '"') {
          closed = true;
          break;
        }
        if (d == '\\' && i < line.size()) {
          const char escaped = line[i++];
          word += escaped == 'n' ? '\n' : escaped == 'r' ? '\r' : escaped;
        } else {
          word += d;
        }
      }
      if (!closed) return std::nullopt;
      words.push_back(std::move(word));
    } else {
      const std::size_t end = line.find_first_of(" \t\r", i);
      words.emplace_back(line.substr(i, end == std::string_view::npos ? end : end - i));
      i = end == std::string_view::npos ? line.size() : end;
    }
  }
  return words;
}

std::string quotedScriptText(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    switch (c) {
      case '\n':
        quoted += "\\n";
        break;
      case '\r':
        quoted += "\\r";
        break;
      case '"':
        quoted += "\\\"";
        break;
      case '\\':
        quoted += "\\\\";
        break;
      default:
        quoted += c;
    }
  }
  return quoted + "\"";
}

}  // namespace quorn
