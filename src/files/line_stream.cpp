#include "files/line_stream.h"

#include <cstring>

#include "files/reader_texts.h"

namespace quorn {

namespace {

// Large enough to make the reads few, small enough to stay in the processor's cache.
constexpr std::size_t kChunkSize = std::size_t{1} << 17;

const char* findNul(const char* begin, const char* end) {
  return static_cast<const char*>(std::memchr(begin, '\0', static_cast<std::size_t>(end - begin)));
}

}  // namespace

LineStream::LineStream(std::istream& in) : in_(&in) {
  buffer_.resize(kChunkSize + kMaxLineLength + 2);
  position_ = end_ = buffer_.data();
}

LineStream::LineStream(std::string_view content)
    : position_(content.data()), end_(content.data() + content.size()), atEndOfInput_(true) {
  nul_ = findNul(position_, end_);
}

std::optional<std::string_view> LineStream::nextChecked() {
  if (fault_) return std::nullopt;
  for (;;) {
    const auto held = static_cast<std::size_t>(end_ - position_);
    if (const void* found = std::memchr(position_, '\n', held)) {
      return deliver(position_, static_cast<const char*>(found), true);
    }
    if (atEndOfInput_ || !refill()) {
      if (fault_) return std::nullopt;
      if (position_ == end_) return std::nullopt;
      return deliver(position_, end_, false);
    }
  }
}

std::optional<std::string_view> LineStream::deliver(const char* begin, const char* end,
                                                    bool ended) {
  ++lineNumber_;
  const char* textEnd = end;
  if (ended && textEnd > begin && textEnd[-1] == '\r') --textEnd;
  if (ended && !endingSeen_) {
    lineEnding_ = textEnd < end ? LineEnding::CrLf : LineEnding::Lf;
    endingSeen_ = true;
  }
  position_ = ended ? end + 1 : end;
  if (nul_ != nullptr && nul_ < end) return fail(nulByteProblem());
  const auto length = static_cast<std::size_t>(textEnd - begin);
  if (length > kMaxLineLength) return fail(lineTooLongProblem(kMaxLineLength));
  return std::string_view(begin, length);
}

bool LineStream::refill() {
  const auto kept = static_cast<std::size_t>(end_ - position_);
  // A line that has no end within the longest allowed length (and its CR) is faulty already.
  if (kept > kMaxLineLength + 1) {
    ++lineNumber_;
    fail(lineTooLongProblem(kMaxLineLength));
    return false;
  }
  char* start = buffer_.data();
  const std::ptrdiff_t shift = position_ - start;
  std::memmove(start, position_, kept);
  if (nul_ != nullptr) nul_ -= shift;
  position_ = start;
  end_ = start + kept;
  in_->read(start + kept, static_cast<std::streamsize>(buffer_.size() - kept));
  const auto got = static_cast<std::size_t>(in_->gcount());
  if (in_->bad()) {
    ++lineNumber_;
    fail(cannotReadProblem());
    return false;
  }
  if (nul_ == nullptr) nul_ = findNul(end_, end_ + got);
  end_ += got;
  if (got == 0 || in_->eof()) atEndOfInput_ = true;
  return got > 0;
}

std::optional<std::string_view> LineStream::fail(std::string problem) {
  fault_ = std::move(problem);
  return std::nullopt;
}

}  // namespace quorn
