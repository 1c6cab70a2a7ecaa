#include "files/file_names.h"

#include <filesystem>

#include "base/text.h"

namespace quorn {

namespace {

// Where the file's own name begins: after the last folder separator.
std::size_t nameStart(std::string_view fileName) {
  constexpr char separators[] = {'/', static_cast<char>(std::filesystem::path::preferred_separator),
                                 '\0'};
  const std::size_t last = fileName.find_last_of(separators);
  return last == std::string_view::npos ? 0 : last + 1;
}

// The position of the last "." of the file's own name, or npos.
std::size_t lastDot(std::string_view fileName) {
  const std::size_t dot = fileName.rfind('.');
  return dot != std::string_view::npos && dot >= nameStart(fileName) ? dot : std::string_view::npos;
}

}  // namespace

std::string fileExtension(std::string_view fileName) {
  const std::size_t dot = lastDot(fileName);
  return dot == std::string_view::npos ? std::string() : upperCase(fileName.substr(dot + 1));
}

std::string withExtension(std::string_view fileName, std::string_view extension) {
  const std::size_t dot = lastDot(fileName);
  std::string name(dot == std::string_view::npos ? fileName : fileName.substr(0, dot + 1));
  if (dot == std::string_view::npos) name += '.';
  name += extension;
  return name;
}

std::string backupFileName(std::string_view fileName) {
  return withExtension(fileName, "BAK");
}

std::string binaryFileName(std::string_view fileName) {
  return withExtension(fileName, "BIN");
}

}  // namespace quorn
