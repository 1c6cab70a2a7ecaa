#pragma once
// Scripts run against a fresh copy of the sample working directory.

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <string_view>

#include "app/script_runner.h"
#include "support/fake_environment.h"
#include "support/temp_directory.h"

namespace quorn::test {

class SampleScriptTest : public ::testing::Test {
 protected:
  SampleScriptTest();

  /// Runs `script` in the copy; what it showed is left in `output`.
  ScriptOutcome attempt(std::string_view script);
  /// The output of a script that must run to its end.
  std::string run(std::string_view script);

  static bool holds(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
  }

  TempDirectory temp;
  FakeEnvironment environment;
  std::ostringstream output;
};

}  // namespace quorn::test
