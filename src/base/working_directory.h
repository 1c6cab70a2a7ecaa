#pragma once
// The working directory that holds every file the editor reads, with the fixed file names
// found in any letter case (the files come from a case-insensitive system).

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace quorn {

class WorkingDirectory {
 public:
  explicit WorkingDirectory(std::filesystem::path directory);

  /// `VBRunDirectory` when it is set and not empty, else the current directory.
  static WorkingDirectory choose(const std::optional<std::string>& vbRunDirectory,
                                 const std::filesystem::path& currentDirectory);

  const std::filesystem::path& path() const { return directory_; }
  /// The directory as messages show it, without a trailing separator.
  const std::string& shown() const { return shown_; }
  /// `shown()`, the platform's separator and `name`: how messages name a file in it.
  std::string shownPath(std::string_view name) const;

  /// The file called `fixedName` in any letter case; an exact match is preferred. When none
  /// exists, the path it would have.
  std::filesystem::path locate(std::string_view fixedName) const;
  /// True when a regular file called `fixedName`, in any letter case, exists.
  bool has(std::string_view fixedName) const;

 private:
  std::optional<std::filesystem::path> find(std::string_view fixedName) const;

  std::filesystem::path directory_;
  std::string shown_;
};

/// Finds `path` itself, or a file in its folder whose name differs only in letter case.
std::optional<std::filesystem::path> findIgnoringCase(const std::filesystem::path& path);

}  // namespace quorn
