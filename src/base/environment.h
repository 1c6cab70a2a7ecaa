#pragma once
// What the editor asks of the machine it runs on.

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace quorn {

/// A size in form units (twips: 1440 to the inch).
struct ScreenSize {
  double width = 0;
  double height = 0;
};

class Environment {
 public:
  virtual ~Environment() = default;
  /// The value of an environment variable; nothing when it is not set.
  virtual std::optional<std::string> variable(std::string_view name) = 0;
  virtual std::filesystem::path currentDirectory() = 0;
  virtual ScreenSize screenSize() = 0;
  /// A uniform random number in [0, 1), from a generator seeded from the clock.
  virtual double random() = 0;
};

}  // namespace quorn
