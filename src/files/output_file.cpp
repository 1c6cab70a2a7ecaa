#include "files/output_file.h"

#include "files/atomic_file.h"

namespace quorn {

bool FileSystem::exists(const std::filesystem::path& path) const {
  std::error_code error;
  return std::filesystem::exists(path, error);
}

std::unique_ptr<OutputFile> FileSystem::replace(const std::filesystem::path& target) {
  return std::make_unique<AtomicFile>(target);
}

FileSystem& diskFileSystem() {
  static FileSystem disk;
  return disk;
}

}  // namespace quorn
