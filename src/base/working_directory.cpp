#include "base/working_directory.h"

#include "base/text.h"

namespace quorn {

namespace fs = std::filesystem;

WorkingDirectory::WorkingDirectory(fs::path directory) : directory_(std::move(directory)) {
  shown_ = directory_.string();
  while (shown_.size() > 1 && shown_.back() == fs::path::preferred_separator) shown_.pop_back();
}

WorkingDirectory WorkingDirectory::choose(const std::optional<std::string>& vbRunDirectory,
                                          const fs::path& currentDirectory) {
  if (vbRunDirectory && !vbRunDirectory->empty()) return WorkingDirectory(*vbRunDirectory);
  return WorkingDirectory(currentDirectory);
}

std::string WorkingDirectory::shownPath(std::string_view name) const {
  std::string result = shown_;
  if (result.empty() || result.back() != fs::path::preferred_separator) {
    result += static_cast<char>(fs::path::preferred_separator);
  }
  result += name;
  return result;
}

std::optional<fs::path> findIgnoringCase(const fs::path& path) {
  std::error_code error;
  if (fs::is_regular_file(path, error)) return path;
  const fs::path folder = path.has_parent_path() ? path.parent_path() : fs::path(".");
  const std::string wanted = path.filename().string();
  for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
    if (equalsIgnoringCase(it->path().filename().string(), wanted) && it->is_regular_file(error)) {
      return it->path();
    }
  }
  return std::nullopt;
}

std::optional<fs::path> WorkingDirectory::find(std::string_view fixedName) const {
  return findIgnoringCase(directory_ / fs::path(std::string(fixedName)));
}

fs::path WorkingDirectory::locate(std::string_view fixedName) const {
  if (auto found = find(fixedName)) return *found;
  return directory_ / fs::path(std::string(fixedName));
}

bool WorkingDirectory::has(std::string_view fixedName) const {
  return find(fixedName).has_value();
}

}  // namespace quorn
