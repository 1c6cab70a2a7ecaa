#include "app/startup.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/fake_environment.h"
#include "support/recording_messages.h"
#include "support/temp_directory.h"

namespace quorn {
namespace {

namespace fs = std::filesystem;

/// A copy of the sample working directory.
class StartupTest : public ::testing::Test {
 protected:
  StartupTest() {
    temp.copyFilesFrom(QUORN_SAMPLE_DIR);
    environment.current = temp.path();
  }

  SecondStageSteps recordingSteps() {
    return SecondStageSteps{[this] {
                              steps.push_back("window");
                              return std::optional<std::string>();
                            },
                            [this] { steps.push_back("tips"); },
                            [this](const std::string& name) { steps.push_back("open " + name); }};
  }

  test::TempDirectory temp;
  test::FakeEnvironment environment;
  test::RecordingMessages messages;
  StartupData data;
  std::vector<std::string> steps;
};

TEST_F(StartupTest, TheSampleDirectoryStartsCleanWithATipAndTheLibrary) {
  environment.nextRandom = 0.99;
  ASSERT_FALSE(runFirstStage(data, "", environment, messages).has_value());
  EXPECT_EQ(data.versionText, programVersionText());
  EXPECT_EQ(data.startupCaption,
            programVersionText() + " (For use with KELVOR versions up to 8.13.0 )");
  EXPECT_TRUE(data.tips.loaded);
  EXPECT_EQ(data.chosenTip, data.tips.count);
  ASSERT_FALSE(runSecondStage(data, environment, messages, recordingSteps()).has_value());
  EXPECT_TRUE(messages.shown().empty()) << messages.texts()[0];
  EXPECT_TRUE(data.library.loaded);
  EXPECT_EQ(data.spindles.count(), 15);
  EXPECT_FALSE(data.helpTexts[8].empty());
  EXPECT_EQ(steps, (std::vector<std::string>{"window", "tips"}));
}

TEST_F(StartupTest, TheVariableWinsAndItsDirectoryMustHoldTheMarker) {
  test::TempDirectory elsewhere;
  fs::copy_file(temp.path() / "SYMBOLS.INI", elsewhere.path() / "SYMBOLS.INI");
  environment.variables["VBRunDirectory"] = elsewhere.path().string();
  ASSERT_FALSE(runFirstStage(data, "", environment, messages).has_value());
  const auto fatal = runSecondStage(data, environment, messages, recordingSteps());
  ASSERT_TRUE(fatal.has_value());
  EXPECT_EQ(fatal->text,
            "The Working Directory is set to " + elsewhere.path().string() +
                "\nThe Working Directory must point to the SYMBOLS.EXE file.\nPlease reset the "
                "Working Directory in the Properties\nfor the Options File Editor icon to point "
                "to the \ndirectory in which SYMBOLS.EXE was installed.");
  EXPECT_TRUE(steps.empty());
}

TEST_F(StartupTest, OptionalFilesOnlyWarnAndACorruptTipsFileShowsNoTips) {
  fs::remove(temp.path() / "SYMBOLS.LIB");
  fs::remove(temp.path() / "SPINDLES.DEF");
  temp.write("TIPS.TXT", "[3 TIPS]\nTIP 1\none\nTIP 2\ntwo\nend\n");
  ASSERT_FALSE(runFirstStage(data, "", environment, messages).has_value());
  ASSERT_FALSE(runSecondStage(data, environment, messages, recordingSteps()).has_value());
  ASSERT_EQ(messages.texts().size(), 3u);
  EXPECT_EQ(messages.texts()[0].rfind("TIPS.TXT Appears to be Corrupt.", 0), 0u);
  EXPECT_EQ(messages.texts()[1].rfind("SPINDLES.DEF not found in the ", 0), 0u);
  EXPECT_EQ(messages.texts()[2].rfind("SYMBOLS.LIB not found in the ", 0), 0u);
  EXPECT_FALSE(data.library.loaded);
  EXPECT_EQ(steps, (std::vector<std::string>{"window"}));
}

TEST_F(StartupTest, TheCommandLineFileOpensOrIsReportedAfterTheWindow) {
  const std::string missing = (temp.path() / "NOPE.SYM").string();
  ASSERT_FALSE(runFirstStage(data, missing, environment, messages).has_value());
  ASSERT_FALSE(runSecondStage(data, environment, messages, recordingSteps()).has_value());
  ASSERT_EQ(messages.shown().size(), 1u);
  EXPECT_EQ(messages.shown()[0].title, "Symbols Editor");
  EXPECT_EQ(messages.shown()[0].text, "Can't find " + missing);
  EXPECT_EQ(messages.shown()[0].icon, Icon::Exclamation);
  EXPECT_EQ(steps, (std::vector<std::string>{"window", "tips"}));

  steps.clear();
  const std::string present = (temp.path() / "EXAMPLE.SYM").string();
  ASSERT_FALSE(runFirstStage(data, present, environment, messages).has_value());
  ASSERT_FALSE(runSecondStage(data, environment, messages, recordingSteps()).has_value());
  EXPECT_EQ(steps, (std::vector<std::string>{"window", "tips", "open " + present}));
}

TEST_F(StartupTest, RequiredFilesEndTheProgram) {
  fs::remove(temp.path() / "SYMBOLS.INI");
  const auto noIni = runFirstStage(data, "", environment, messages);
  ASSERT_TRUE(noIni.has_value());
  EXPECT_EQ(noIni->text.rfind("SYMBOLS.INI not found in the ", 0), 0u);

  temp.write("SYMBOLS.INI", "[VERSION]\nV 1\nlast\n");
  fs::remove(temp.path() / "SYMBOLS.CFG");
  ASSERT_FALSE(runFirstStage(data, "", environment, messages).has_value());
  const auto noCfg = runSecondStage(data, environment, messages, recordingSteps());
  ASSERT_TRUE(noCfg.has_value());
  EXPECT_EQ(noCfg->text.rfind("SYMBOLS.CFG not found in the ", 0), 0u);
  EXPECT_TRUE(steps.empty());
}

}  // namespace
}  // namespace quorn
