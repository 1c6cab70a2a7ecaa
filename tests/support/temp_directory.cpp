#include "support/temp_directory.h"

#include <fstream>
#include <random>
#include <sstream>

namespace quorn::test {

TempDirectory::TempDirectory() {
  std::random_device seed;
  std::mt19937_64 random(seed());
  for (;;) {
    path_ = std::filesystem::temp_directory_path() / ("quorn-test-" + std::to_string(random()));
    if (std::filesystem::create_directory(path_)) break;
  }
}

TempDirectory::~TempDirectory() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::filesystem::path TempDirectory::write(std::string_view name, std::string_view content) const {
  const auto file = path_ / std::string(name);
  std::filesystem::create_directories(file.parent_path());
  std::ofstream out(file, std::ios::binary);
  out.write(content.data(), static_cast<std::streamsize>(content.size()));
  return file;
}

void TempDirectory::copyFilesFrom(const std::filesystem::path& source) const {
  for (const auto& entry : std::filesystem::directory_iterator(source)) {
    if (entry.is_regular_file()) {
      std::filesystem::copy_file(entry.path(), path_ / entry.path().filename());
    }
  }
}

std::string TempDirectory::read(std::string_view name) const {
  std::ifstream in(path_ / std::string(name), std::ios::binary);
  std::ostringstream content;
  content << in.rdbuf();
  return content.str();
}

}  // namespace quorn::test
