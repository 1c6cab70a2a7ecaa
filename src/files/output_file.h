#pragma once
// Files written whole or not at all, and the file operations a save needs.

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace quorn {

/// The bytes of one file being written. Nothing reaches the target before `commit`; an output
/// destroyed before that leaves the target as it was and leaves no trace of itself.
class OutputFile {
 public:
  virtual ~OutputFile() = default;
  /// Appends `bytes`; false once any write has failed (later writes are then ignored).
  virtual bool write(std::string_view bytes) = 0;
  /// Flushes and closes; false when any byte has not reached the disk.
  virtual bool finish() = 0;
  /// Puts the finished bytes in the target's place.
  virtual bool commit() = 0;
  /// Why the step that failed failed, e.g. "cannot be written (No space left on device)".
  virtual const std::string& problem() const = 0;
};

/// The file operations of a save, on the disk. Tests derive from it to make writes fail.
class FileSystem {
 public:
  virtual ~FileSystem() = default;
  virtual bool exists(const std::filesystem::path& path) const;
  /// An output that replaces `target` when committed; its failures show in its `problem`.
  virtual std::unique_ptr<OutputFile> replace(const std::filesystem::path& target);
};

/// The disk as every save outside the tests uses it.
FileSystem& diskFileSystem();

}  // namespace quorn
