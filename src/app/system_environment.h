#pragma once
// The environment of a process run without a window: real variables and current directory,
// a clock-seeded random generator, and a screen of a fixed size.

#include <optional>
#include <random>
#include <string>

#include "base/environment.h"

namespace quorn {

class SystemEnvironment : public Environment {
 public:
  /// A 1024 by 768 screen at 15 form units a pixel: what a script's editor lays out for.
  static constexpr ScreenSize kHeadlessScreen{15360, 11520};

  /// `workingDirectory`, when given, stands in for VBRunDirectory.
  explicit SystemEnvironment(std::optional<std::string> workingDirectory = std::nullopt);

  std::optional<std::string> variable(std::string_view name) override;
  std::filesystem::path currentDirectory() override;
  ScreenSize screenSize() override { return kHeadlessScreen; }
  double random() override;

 private:
  std::optional<std::string> workingDirectory_;
  std::mt19937 generator_;
};

}  // namespace quorn
