#include "cli/workdir_option.h"

#include <cstdlib>
#include <filesystem>

namespace quorn::cli {

WorkingDirectory workingDirectoryFrom(const Arguments& arguments) {
  if (const auto given = arguments.option("workdir")) return WorkingDirectory(*given);
  const char* variable = std::getenv("VBRunDirectory");
  return WorkingDirectory::choose(variable ? std::optional<std::string>(variable) : std::nullopt,
                                  std::filesystem::current_path());
}

}  // namespace quorn::cli
