#include "files/atomic_file.h"

#include <atomic>
#include <cerrno>
#include <chrono>
#include <system_error>

#include "files/writer_texts.h"

namespace quorn {

namespace fs = std::filesystem;

namespace {

// The system's word for the last fault of the C library.
std::string lastReason() {
  const int code = errno;
  return code != 0 ? std::generic_category().message(code) : std::string("unknown fault");
}

// Names tried for the temporary file before giving up on finding a free one.
constexpr int kNameAttempts = 64;

// A number that differs between calls and, most likely, between processes.
std::string uniqueNumber() {
  static std::atomic<unsigned> counter{0};
  const auto clock = std::chrono::steady_clock::now().time_since_epoch().count();
  return std::to_string(static_cast<unsigned long long>(clock) % 1000000007ULL) + "-" +
         std::to_string(counter++);
}

}  // namespace

AtomicFile::AtomicFile(fs::path target) : target_(std::move(target)) {
  const fs::path folder = target_.parent_path();
  for (int attempt = 0; attempt < kNameAttempts && file_ == nullptr; ++attempt) {
    const fs::path candidate =
        folder / (target_.filename().string() + ".~" + uniqueNumber() + ".tmp");
    errno = 0;
    // "x": never reuse a file that someone else has just made.
    file_ = std::fopen(candidate.string().c_str(), "wbx");
    if (file_ != nullptr) {
      temporary_ = candidate;
    } else if (errno != EEXIST) {
      break;
    }
  }
  if (file_ == nullptr) fail(cannotCreateProblem(lastReason()));
}

AtomicFile::~AtomicFile() {
  if (file_ != nullptr) std::fclose(file_);
  if (!committed_ && !temporary_.empty()) {
    std::error_code ignored;
    fs::remove(temporary_, ignored);
  }
}

void AtomicFile::fail(std::string problem) {
  if (!failed_) problem_ = std::move(problem);
  failed_ = true;
}

bool AtomicFile::write(std::string_view bytes) {
  if (failed_ || file_ == nullptr) return false;
  errno = 0;
  if (std::fwrite(bytes.data(), 1, bytes.size(), file_) != bytes.size()) {
    fail(cannotWriteProblem(lastReason()));
  }
  return !failed_;
}

bool AtomicFile::finish() {
  if (failed_ || file_ == nullptr) return false;
  errno = 0;
  const bool flushed = std::fflush(file_) == 0 && std::ferror(file_) == 0;
  std::string reason = flushed ? std::string() : lastReason();
  errno = 0;
  const bool closed = std::fclose(file_) == 0;
  file_ = nullptr;
  if (flushed && !closed) reason = lastReason();
  if (!flushed || !closed) {
    fail(cannotWriteProblem(reason));
    return false;
  }
  finished_ = true;
  return true;
}

bool AtomicFile::commit() {
  if (failed_ || !finished_) return false;
  std::error_code error;
  // The new file takes the old one's permissions, as an overwrite in place would keep them.
  const fs::file_status old = fs::status(target_, error);
  if (!error && fs::exists(old)) {
    fs::permissions(temporary_, old.permissions(), fs::perm_options::replace, error);
  }
  fs::rename(temporary_, target_, error);
  if (error) {
    fail(cannotReplaceProblem(error.message()));
    return false;
  }
  committed_ = true;
  return true;
}

}  // namespace quorn
