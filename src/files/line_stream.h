#pragma once
// The lines of a text file walked once from start to end, without holding the whole file:
// a large symbol file is read through one buffer of fixed size. Each line is checked for
// what no text file holds (a NUL byte, an overlong line) as it goes by.

#include <cstddef>
#include <cstring>
#include <istream>
#include <optional>
#include <string>
#include <string_view>

#include "base/text_file.h"

namespace quorn {

class LineStream {
 public:
  /// No line of a text file that this system reads is longer.
  static constexpr std::size_t kMaxLineLength = 4096;

  /// Reads `in` in chunks; `in` must outlive the stream.
  explicit LineStream(std::istream& in);
  /// Walks `content` in place; the lines are views into it.
  explicit LineStream(std::string_view content);
  LineStream(const LineStream&) = delete;
  LineStream& operator=(const LineStream&) = delete;

  /// The next line without its line end (LF, or CR LF), valid until the next call. Nothing at
  /// the end of the text or once a fault has been met. A final line end does not make an
  /// empty line after it.
  std::optional<std::string_view> next() {
    // Most lines are whole in the buffer, their end found at once.
    if (endingSeen_ && !fault_ && position_ != end_) {
      const char* begin = position_;
      if (const void* found = std::memchr(begin, '\n', static_cast<std::size_t>(end_ - begin))) {
        const char* end = static_cast<const char*>(found);
        const char* textEnd = end > begin && end[-1] == '\r' ? end - 1 : end;
        const auto length = static_cast<std::size_t>(textEnd - begin);
        if ((nul_ == nullptr || nul_ >= end) && length <= kMaxLineLength) {
          ++lineNumber_;
          position_ = end + 1;
          return std::string_view(begin, length);
        }
      }
    }
    return nextChecked();
  }

  /// The 1-based number of the line last returned, or of the line found faulty.
  std::size_t lineNumber() const { return lineNumber_; }
  /// What is wrong with line `lineNumber()`; reading has stopped there.
  const std::optional<std::string>& fault() const { return fault_; }
  /// CRLF when the first line end is CR LF, and for a text without any line end.
  LineEnding lineEnding() const { return lineEnding_; }

 private:
  std::optional<std::string_view> nextChecked();
  bool refill();
  std::optional<std::string_view> fail(std::string problem);
  std::optional<std::string_view> deliver(const char* begin, const char* end, bool ended);

  std::istream* in_ = nullptr;
  std::string buffer_;
  const char* position_ = nullptr;  // the first byte not yet returned
  const char* end_ = nullptr;       // the end of the bytes held
  const char* nul_ = nullptr;       // the first NUL byte held, if any
  bool atEndOfInput_ = false;
  bool endingSeen_ = false;
  std::size_t lineNumber_ = 0;
  std::optional<std::string> fault_;
  LineEnding lineEnding_ = LineEnding::CrLf;
};

}  // namespace quorn
