// The edit window's view of start-up and of the testing aids, through the editor.

#include <gtest/gtest.h>

#include <string>

#include "app/editor.h"
#include "display/display_list.h"
#include "support/fake_environment.h"
#include "support/recording_messages.h"
#include "support/scripted_file_chooser.h"
#include "support/temp_directory.h"

namespace quorn {
namespace {

/// An editor over a copy of the sample working directory.
class EditorWindowTest : public ::testing::Test {
 protected:
  EditorWindowTest() : editor(messages, chooser, environment, canvas) {
    temp.copyFilesFrom(QUORN_SAMPLE_DIR);
    environment.current = temp.path();
  }

  /// SYMBOLS.INI with the testing switch, which only counts between the first and last lines.
  void enableTesting() {
    std::string settings = temp.read("SYMBOLS.INI");
    const auto end = settings.rfind("[End]");
    ASSERT_NE(end, std::string::npos);
    settings.insert(end, "[Enable Testing]\n");
    temp.write("SYMBOLS.INI", settings);
  }

  std::string path(const char* name) const { return (temp.path() / name).string(); }

  test::TempDirectory temp;
  test::FakeEnvironment environment;
  test::RecordingMessages messages;
  test::ScriptedFileChooser chooser;
  DisplayList canvas;
  Editor editor;
};

TEST_F(EditorWindowTest, TheWindowAndItsTipsAreShownBeforeTheCommandLineFileIsLookedFor) {
  std::vector<std::string> seen;
  ASSERT_FALSE(editor.startFirstStage("MISSING.SYM"));
  ASSERT_FALSE(editor.startSecondStage([&] {
    seen.push_back(std::string(editor.window().tipsDialogVisible ? "tips" : "window") + " after " +
                   std::to_string(messages.shown().size()) + " messages, grid " +
                   std::to_string(editor.grid().divisions));
  }));
  EXPECT_EQ(seen, (std::vector<std::string>{"window after 0 messages, grid 60",
                                            "tips after 0 messages, grid 60"}));
  ASSERT_EQ(messages.texts(), std::vector<std::string>{"Can't find MISSING.SYM"});
}

TEST_F(EditorWindowTest, AFaultBeforeTheWindowNeverShowsIt) {
  std::filesystem::remove(temp.path() / "SYMBOLS.EXE");
  bool shown = false;
  ASSERT_FALSE(editor.startFirstStage(""));
  EXPECT_TRUE(editor.startSecondStage([&] { shown = true; }).has_value());
  EXPECT_FALSE(shown);
}

TEST_F(EditorWindowTest, TheValuesViewComesWithEachOpenWhileTestingAndCloses) {
  enableTesting();
  ASSERT_FALSE(editor.startFirstStage(""));
  ASSERT_FALSE(editor.startSecondStage());
  EXPECT_FALSE(editor.window().valuesViewVisible);
  chooser.queue(path("EXAMPLE.SYM"));
  editor.openFile();
  ASSERT_TRUE(editor.window().valuesViewVisible);
  EXPECT_NE(editor.window().valuesView.find(" 501 "), std::string::npos)
      << editor.window().valuesView;

  editor.closeValuesView();
  EXPECT_FALSE(editor.window().valuesViewVisible);
  chooser.queue(path("EXAMPLE.SYM"));
  editor.openFile();
  EXPECT_TRUE(editor.window().valuesViewVisible);
}

TEST_F(EditorWindowTest, WithoutTestingOpenShowsNoValuesView) {
  ASSERT_FALSE(editor.startFirstStage(""));
  ASSERT_FALSE(editor.startSecondStage());
  chooser.queue(path("EXAMPLE.SYM"));
  editor.openFile();
  EXPECT_GT(editor.currentSet().count(), 0);
  EXPECT_FALSE(editor.window().valuesViewVisible);
}

}  // namespace
}  // namespace quorn
