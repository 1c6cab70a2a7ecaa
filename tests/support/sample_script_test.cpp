#include "support/sample_script_test.h"

namespace quorn::test {

SampleScriptTest::SampleScriptTest() {
  temp.copyFilesFrom(QUORN_SAMPLE_DIR);
  environment.current = temp.path();
}

ScriptOutcome SampleScriptTest::attempt(std::string_view script) {
  output.str("");
  return runScript(script, temp.path(), environment, output);
}

std::string SampleScriptTest::run(std::string_view script) {
  const ScriptOutcome outcome = attempt(script);
  EXPECT_TRUE(outcome.ok) << outcome.error << "\n" << output.str();
  return output.str();
}

}  // namespace quorn::test
