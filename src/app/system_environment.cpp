#include "app/system_environment.h"

#include <chrono>
#include <cstdlib>

namespace quorn {

SystemEnvironment::SystemEnvironment(std::optional<std::string> workingDirectory)
    : workingDirectory_(std::move(workingDirectory)),
      generator_(static_cast<std::mt19937::result_type>(
          std::chrono::system_clock::now().time_since_epoch().count())) {}

std::optional<std::string> SystemEnvironment::variable(std::string_view name) {
  if (workingDirectory_ && name == "VBRunDirectory") return workingDirectory_;
  const char* value = std::getenv(std::string(name).c_str());
  return value ? std::optional<std::string>(value) : std::nullopt;
}

std::filesystem::path SystemEnvironment::currentDirectory() {
  std::error_code error;
  auto current = std::filesystem::current_path(error);
  return error ? std::filesystem::path(".") : current;
}

double SystemEnvironment::random() {
  return std::uniform_real_distribution<double>(0.0, 1.0)(generator_);
}

}  // namespace quorn
