#pragma once
// A fresh directory for one test, removed with its contents afterwards.

#include <filesystem>
#include <string>
#include <string_view>

namespace quorn::test {

class TempDirectory {
 public:
  TempDirectory();
  ~TempDirectory();
  TempDirectory(const TempDirectory&) = delete;
  TempDirectory& operator=(const TempDirectory&) = delete;

  const std::filesystem::path& path() const { return path_; }
  /// Writes `content` byte for byte into `name` and returns its path.
  std::filesystem::path write(std::string_view name, std::string_view content) const;
  std::string read(std::string_view name) const;
  /// Copies every file of `source` (not its folders) into the directory.
  void copyFilesFrom(const std::filesystem::path& source) const;

 private:
  std::filesystem::path path_;
};

}  // namespace quorn::test
