#include "app/file_commands.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "config/configuration_reader.h"
#include "config/settings_reader.h"
#include "support/recording_messages.h"
#include "support/scripted_file_chooser.h"
#include "support/temp_directory.h"

namespace quorn {
namespace {

namespace fs = std::filesystem;

const std::string kFlange =
    " 501       FLWN            100       0       0       0       0       0       0       0       0"
    "       0\r\n"
    " 502         1     500    1000       2    1500    1000       1    2500    1000       0       0"
    "       0       0\r\n";

/// A working directory copied from the sample, and everything the file commands touch.
class FileCommandsTest : public ::testing::Test {
 protected:
  FileCommandsTest() : directory(temp.path()) {
    for (const char* name : {"SYMBOLS.INI", "SYMBOLS.CFG"}) {
      fs::copy_file(fs::path(QUORN_SAMPLE_DIR) / name, temp.path() / name);
    }
    EXPECT_FALSE(readFormats(directory, settings).has_value());
    EXPECT_FALSE(readConfiguration(directory, config, messages).has_value());
    set.reset(config.maxSymbolsInFile);
  }

  FileCommandContext context() {
    return FileCommandContext{directory, config, settings, set,    fileText, openFileName,
                              working,   state,  grid,     window, messages, chooser};
  }

  std::string path(const char* name) const { return (temp.path() / name).string(); }

  test::TempDirectory temp;
  WorkingDirectory directory;
  Settings settings;
  Configuration config;
  CurrentSet set;
  SymbolFileText fileText;
  std::string openFileName;
  WorkingSymbol working;
  EditorState state;
  GridPlacement grid{46.6f, 6990};
  EditWindowState window;
  test::RecordingMessages messages;
  test::ScriptedFileChooser chooser;
};

TEST_F(FileCommandsTest, OpenReadsTheFileAndSetsCaptionListAndCount) {
  temp.write("ONE.SYM", kFlange);
  chooser.queue(path("ONE.SYM"));
  auto ctx = context();
  ASSERT_TRUE(openFile(ctx));
  EXPECT_EQ(set.count(), 1);
  EXPECT_EQ(openFileName, path("ONE.SYM"));
  EXPECT_EQ(window.caption, "User Defined Symbols Editor    " + path("ONE.SYM"));
  EXPECT_EQ(window.countLabel, " 1 Symbols Loaded");
  EXPECT_EQ(window.symbolList.selected, 0);
  ASSERT_EQ(chooser.shown().size(), 1u);
  EXPECT_EQ(chooser.shown()[0].request.filterIndex, 1);
  EXPECT_FALSE(window.valuesViewVisible);
}

TEST_F(FileCommandsTest, AnEmptyFileKeepsTheCountLabelAndAFailedReadKeepsTheSet) {
  window.countLabel = "before";
  temp.write("EMPTY.SYM", " 999         0\r\n");
  auto ctx = context();
  ASSERT_TRUE(openNamedFile(ctx, path("EMPTY.SYM")));
  EXPECT_EQ(set.count(), 0);
  EXPECT_EQ(window.countLabel, "before");

  temp.write("ONE.SYM", kFlange);
  ASSERT_TRUE(openNamedFile(ctx, path("ONE.SYM")));
  set.changed = true;
  temp.write("BAD.PSY", "no test string here\r\n");
  EXPECT_FALSE(openNamedFile(ctx, path("BAD.PSY")));
  EXPECT_EQ(set.count(), 1);
  EXPECT_FALSE(set.changed) << "Open clears the changed flag before it reads";
  EXPECT_EQ(openFileName, path("ONE.SYM"));
}

TEST_F(FileCommandsTest, SaveWithNothingChangedWritesNothing) {
  temp.write("ONE.SYM", kFlange);
  auto ctx = context();
  ASSERT_TRUE(openNamedFile(ctx, path("ONE.SYM")));
  saveFile(ctx);
  EXPECT_FALSE(fs::exists(temp.path() / "ONE.BAK"));
  set.changed = true;
  saveFile(ctx);
  EXPECT_TRUE(fs::exists(temp.path() / "ONE.BAK"));
  EXPECT_FALSE(set.changed);
  EXPECT_TRUE(messages.shown().empty());
}

TEST_F(FileCommandsTest, APendingSymbolWithoutAnEndPointStopsTheSave) {
  state.symbolPending = true;
  set.changed = true;
  messages.queue(Answer::Yes);
  auto ctx = context();
  saveFileAs(ctx);
  ASSERT_EQ(messages.shown().size(), 2u);
  EXPECT_EQ(messages.shown()[0].buttons, Buttons::YesNoCancel);
  EXPECT_EQ(messages.shown()[0].icon, Icon::Critical);
  EXPECT_EQ(messages.shown()[1].text, "Symbol Must Have an End Point before terminating.");
  EXPECT_TRUE(chooser.shown().empty());
}

TEST_F(FileCommandsTest, ExitAsksOnceAndCancelKeepsRunning) {
  auto ctx = context();
  messages.queue(Answer::Cancel);
  EXPECT_EQ(exitEditor(ctx, false), ExitDecision::KeepRunning);
  ASSERT_EQ(messages.shown().size(), 1u);
  EXPECT_EQ(messages.shown()[0].text,
            "              Select OK to quit\nor Cancel to Cancel this Action");
  EXPECT_EQ(messages.shown()[0].buttons, Buttons::OkCancel);
  EXPECT_EQ(exitEditor(ctx, true), ExitDecision::EndProgram);
  EXPECT_EQ(messages.shown().size(), 1u) << "closing the window asks nothing more";
}

TEST_F(FileCommandsTest, ClosingWithUnsavedWorkOffersOnlyYesAndNo) {
  set.changed = true;
  state.symbolPending = true;
  messages.queue(Answer::No);
  messages.queue(Answer::No);
  auto ctx = context();
  EXPECT_EQ(exitEditor(ctx, true), ExitDecision::EndProgram);
  ASSERT_EQ(messages.shown().size(), 2u);
  EXPECT_EQ(messages.shown()[0].text,
            "Current Symbol has not been Added to Current Set.\nAdd to Current Set (Yes), "
            "Abandon Changes (No)");
  EXPECT_EQ(messages.shown()[1].text,
            "New Symbols have not been saved.\nSave & Exit (Yes), Exit Without Saving (No)");
  for (const Message& shown : messages.shown()) EXPECT_EQ(shown.buttons, Buttons::YesNo);
}

TEST_F(FileCommandsTest, ExitYesStoresThePendingSymbolAndSavesThroughTheDialog) {
  state.symbolPending = true;
  state.endPointPlaced = true;
  state.symbolNumber = 1;
  working.oldKeyRaw = working.oldKey = "FLWN";
  working.slots[1] = {kMove, 1100, 500 + 6990};
  working.slots[kEndSlot] = {kWorkingEndPoint, 1100 + 466, 500 + 6990};
  working.actionCount = 1;
  messages.queue(Answer::Yes);
  messages.queue(Answer::Yes);
  chooser.queue(path("NEW.SYM"));
  auto ctx = context();
  EXPECT_EQ(exitEditor(ctx, false), ExitDecision::EndProgram);
  EXPECT_EQ(set.count(), 1);
  EXPECT_FALSE(set.changed);
  const std::string written = temp.read("NEW.SYM");
  EXPECT_EQ(written.substr(0, 15), " 501       FLWN");
  EXPECT_NE(written.find(" 502         1       0       0       1    1000       0"),
            std::string::npos)
      << written;

  set.changed = true;
  messages.queue(Answer::Yes);
  chooser.queue(std::nullopt);
  EXPECT_EQ(exitEditor(ctx, false), ExitDecision::KeepRunning)
      << "a cancelled save keeps the editor and the work";
}

TEST_F(FileCommandsTest, NewAsksToSaveThenEmptiesTheSet) {
  temp.write("ONE.SYM", kFlange);
  auto ctx = context();
  ASSERT_TRUE(openNamedFile(ctx, path("ONE.SYM")));
  set.changed = true;
  messages.queue(Answer::No);
  newFile(ctx);
  ASSERT_EQ(messages.shown().size(), 1u);
  EXPECT_EQ(messages.shown()[0].text,
            "New Symbols\n        have not been saved.\n                 Save Now?");
  EXPECT_EQ(set.count(), 0);
  EXPECT_FALSE(set.changed);
  EXPECT_EQ(openFileName, "");
  EXPECT_EQ(window.caption, "User Defined Symbols Editor");
  EXPECT_EQ(window.prompt, "Select New Symbol");
  EXPECT_TRUE(window.symbolList.rows.empty());
}

TEST_F(FileCommandsTest, TestingShowsTheValuesViewOfWhatWasRead) {
  settings.testingEnabled = true;
  temp.write("ONE.SYM", "head line\r\n" + kFlange);
  auto ctx = context();
  ASSERT_TRUE(openNamedFile(ctx, path("ONE.SYM")));
  EXPECT_TRUE(window.valuesViewVisible);
  EXPECT_EQ(window.valuesView.rfind("head line\n 501       FLWN", 0), 0u) << window.valuesView;
}

}  // namespace
}  // namespace quorn
