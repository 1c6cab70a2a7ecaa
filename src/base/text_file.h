#pragma once
// Whole text files read at once and walked line by line.

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorn {

enum class LineEnding { CrLf, Lf };

/// A text file's lines, without their line ends. A final line end does not make an empty
/// line after it; an empty line before the end is a line like any other.
class TextFile {
 public:
  /// Splits `content` at LF, dropping a CR that stands before it.
  static TextFile fromContent(std::string content);

  std::size_t lineCount() const { return lines_.size(); }
  /// 0-based.
  std::string_view line(std::size_t index) const { return lines_[index]; }
  const std::vector<std::string_view>& lines() const { return lines_; }
  /// CRLF when the first line end is CRLF (and for a file without any line end).
  LineEnding lineEnding() const { return lineEnding_; }
  /// The 1-based number of the first line that holds a NUL byte, or 0.
  std::size_t firstLineWithNul() const;
  std::string_view content() const { return *content_; }

 private:
  std::unique_ptr<std::string> content_;  // held by pointer so the views survive a move
  std::vector<std::string_view> lines_;
  LineEnding lineEnding_ = LineEnding::CrLf;
};

/// Why a file could not be read.
struct ReadFailure {
  std::string reason;
};

/// Reads the whole file; nothing when it cannot be opened or read.
std::optional<TextFile> readTextFile(const std::filesystem::path& path,
                                     ReadFailure* failure = nullptr);

/// Walks lines the way the system's loops do: `read` takes the next line and `atEnd` turns
/// true as soon as the last line has been read. A loop that reads, then tests `atEnd` before
/// looking at the line, never looks at the last line; several readers rely on that.
class LineCursor {
 public:
  explicit LineCursor(const TextFile& file) : file_(&file) {}

  bool atEnd() const { return next_ >= file_->lineCount(); }
  /// The next line; an empty line when every line has been read.
  std::string_view read();
  /// The 1-based number of the line last read (0 before the first read).
  std::size_t lineNumber() const { return next_; }

 private:
  const TextFile* file_;
  std::size_t next_ = 0;
};

}  // namespace quorn
