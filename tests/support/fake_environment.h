#pragma once
// An Environment with fixed answers.

#include <map>
#include <string>

#include "base/environment.h"

namespace quorn::test {

class FakeEnvironment : public Environment {
 public:
  std::map<std::string, std::string, std::less<>> variables;
  std::filesystem::path current = ".";
  ScreenSize screen{15360, 11520};
  double nextRandom = 0.5;

  std::optional<std::string> variable(std::string_view name) override {
    const auto found = variables.find(name);
    if (found == variables.end()) return std::nullopt;
    return found->second;
  }
  std::filesystem::path currentDirectory() override { return current; }
  ScreenSize screenSize() override { return screen; }
  double random() override { return nextRandom; }
};

}  // namespace quorn::test
