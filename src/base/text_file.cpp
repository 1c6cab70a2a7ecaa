#include "base/text_file.h"

#include <fstream>
#include <sstream>

namespace quorn {

TextFile TextFile::fromContent(std::string content) {
  TextFile file;
  file.content_ = std::make_unique<std::string>(std::move(content));
  const std::string_view all = *file.content_;
  bool endingSeen = false;
  std::size_t start = 0;
  while (start < all.size()) {
    std::size_t end = all.find('\n', start);
    const bool lastWithoutEnd = end == std::string_view::npos;
    if (lastWithoutEnd) end = all.size();
    std::size_t textEnd = end;
    if (!lastWithoutEnd && textEnd > start && all[textEnd - 1] == '\r') --textEnd;
    if (!lastWithoutEnd && !endingSeen) {
      file.lineEnding_ = textEnd < end ? LineEnding::CrLf : LineEnding::Lf;
      endingSeen = true;
    }
    file.lines_.push_back(all.substr(start, textEnd - start));
    start = end + 1;
  }
  return file;
}

std::size_t TextFile::firstLineWithNul() const {
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    if (lines_[i].find('\0') != std::string_view::npos) return i + 1;
  }
  return 0;
}

std::optional<TextFile> readTextFile(const std::filesystem::path& path, ReadFailure* failure) {
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    if (failure) failure->reason = "cannot be opened";
    return std::nullopt;
  }
  std::error_code error;
  const auto size = std::filesystem::file_size(path, error);
  std::string content;
  if (!error) {
    content.resize(static_cast<std::size_t>(size));
    in.read(content.data(), static_cast<std::streamsize>(size));
    content.resize(static_cast<std::size_t>(in.gcount()));
  } else {
    std::ostringstream buffer;
    buffer << in.rdbuf();
    content = buffer.str();
  }
  if (in.bad()) {
    if (failure) failure->reason = "cannot be read";
    return std::nullopt;
  }
  return TextFile::fromContent(std::move(content));
}

std::string_view LineCursor::read() {
  if (atEnd()) {
    ++next_;
    return {};
  }
  return file_->line(next_++);
}

}  // namespace quorn
