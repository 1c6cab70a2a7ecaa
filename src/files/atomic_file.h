#pragma once
// An output written to a temporary file beside its target and renamed over it only when every
// byte has been written and flushed, so that a failed save never leaves a half-written file.

#include <cstdio>
#include <filesystem>
#include <string>

#include "files/output_file.h"

namespace quorn {

class AtomicFile : public OutputFile {
 public:
  /// Creates the temporary file at once; a failure shows in `problem` and in every `write`.
  explicit AtomicFile(std::filesystem::path target);
  /// Removes the temporary file unless it has been committed.
  ~AtomicFile() override;
  AtomicFile(const AtomicFile&) = delete;
  AtomicFile& operator=(const AtomicFile&) = delete;

  bool write(std::string_view bytes) override;
  bool finish() override;
  bool commit() override;
  const std::string& problem() const override { return problem_; }

  const std::filesystem::path& temporaryPath() const { return temporary_; }

 private:
  void fail(std::string problem);

  std::filesystem::path target_;
  std::filesystem::path temporary_;
  std::FILE* file_ = nullptr;
  bool failed_ = false;
  bool finished_ = false;
  bool committed_ = false;
  std::string problem_;
};

}  // namespace quorn
