// A whole working session as a script: two symbols drawn and stored, saved, the file opened
// again, one symbol edited and saved over the open file. The file on disk is then opened by a
// second editor, as a user would reopen it the next day.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "app/editor.h"
#include "app/script_runner.h"
#include "display/display_list.h"
#include "support/fake_environment.h"
#include "support/recording_messages.h"
#include "support/scripted_file_chooser.h"
#include "support/temp_directory.h"

namespace quorn {
namespace {

namespace fs = std::filesystem;

std::string scriptText() {
  std::ifstream in(fs::path(QUORN_TEST_SCRIPTS_DIR) / "two_symbols.replay");
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

/// The 501 and 502 records of a text, in order, without line ends.
std::vector<std::string> symbolRecords(const std::string& text) {
  std::vector<std::string> records;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    std::erase(line, '\r');
    if (line.starts_with(" 501") || line.starts_with(" 502")) records.push_back(line);
  }
  return records;
}

std::size_t countOf(const SymbolRecord& symbol, std::int16_t code) {
  return static_cast<std::size_t>(
      std::count_if(symbol.actions.begin(), symbol.actions.end(),
                    [code](const SymbolAction& action) { return action.type == code; }));
}

/// What an editor started afresh holds after File › Open of `file`.
struct Reopened {
  CurrentSet set;
  GridGeometry grid;
  int circleSegments = 0;
};

Reopened reopen(Environment& environment, const fs::path& file) {
  test::RecordingMessages messages;
  test::ScriptedFileChooser chooser;
  DisplayList canvas;
  Editor editor(messages, chooser, environment, canvas);
  EXPECT_FALSE(editor.startFirstStage(""));
  EXPECT_FALSE(editor.startSecondStage());
  editor.closeTipsDialog();
  chooser.queue(file.string());
  editor.openFile();
  for (const Message& message : messages.shown()) ADD_FAILURE() << file << ": " << message.text;
  return Reopened{editor.currentSet(), editor.grid(), editor.startup().config.noOfSegments};
}

TEST(SessionScript, TwoSymbolsAreSavedReopenedEditedAndSavedAgain) {
  test::TempDirectory temp;
  temp.copyFilesFrom(QUORN_SAMPLE_DIR);
  test::FakeEnvironment environment;
  environment.current = temp.path();

  const std::string script = scriptText();
  ASSERT_FALSE(script.empty());
  std::ostringstream output;
  const ScriptOutcome outcome = runScript(script, temp.path(), environment, output);
  ASSERT_TRUE(outcome.ok) << outcome.error << "\n" << output.str();
  const std::string shown = output.str();

  // The tracing deletion asked its question and the session ended by the exit.
  EXPECT_NE(shown.find("message \"Delete Line\" \"Delete This Line?\" [Yes No] question -> Yes"),
            std::string::npos);
  EXPECT_TRUE(shown.ends_with("ends\n")) << shown;

  // What the last `dump set` printed is what the save wrote, record for record; the save
  // over the open file kept the first save as the backup.
  const auto lastDump = shown.rfind("set 2 symbols\n");
  ASSERT_NE(lastDump, std::string::npos) << shown;
  const std::vector<std::string> written = symbolRecords(temp.read("TWO.SYM"));
  EXPECT_EQ(written, symbolRecords(shown.substr(lastDump)));
  ASSERT_TRUE(fs::exists(temp.path() / "TWO.BAK"));
  const std::vector<std::string> firstSave = symbolRecords(temp.read("TWO.BAK"));
  ASSERT_FALSE(firstSave.empty());
  EXPECT_EQ(firstSave[0].substr(20, 9), "      100");
  EXPECT_EQ(written[0].substr(20, 9), "      150");

  // Opened again by another editor, both saves give back the symbols as they were left.
  const Reopened saved = reopen(environment, temp.path() / "TWO.SYM");
  fs::copy_file(temp.path() / "TWO.BAK", temp.path() / "FIRST.SYM");
  const Reopened backup = reopen(environment, temp.path() / "FIRST.SYM");
  ASSERT_EQ(saved.set.count(), 2);
  ASSERT_EQ(backup.set.count(), 2);

  const SymbolRecord& anchor = saved.set.symbol(1);
  EXPECT_EQ(anchor.oldKey, "ANCH");
  EXPECT_EQ(anchor.newKey, "ANC1");
  EXPECT_EQ(anchor.scaleFactor, "150");
  EXPECT_EQ(countOf(anchor, kInsulation), 1u);
  EXPECT_EQ(countOf(anchor, kTracing), 0u) << "the tracing was deleted";
  EXPECT_EQ(countOf(backup.set.symbol(1), kTracing), 1u);
  EXPECT_EQ(countOf(anchor, kLine), countOf(backup.set.symbol(1), kLine) + 1) << "one line added";
  // The end point moved one division to the right of where it was first placed.
  const SymbolAction& endBefore = backup.set.symbol(1).actions.back();
  const int division =
      static_cast<int>(std::lround(saved.grid.spacing * 100.0 / saved.grid.unitsPerMm));
  EXPECT_EQ(anchor.actions.back().x, endBefore.x + division);
  EXPECT_EQ(anchor.actions.back().y, endBefore.y);

  const SymbolRecord& tee = saved.set.symbol(2);
  EXPECT_EQ(tee.oldKey, "TEBW");
  EXPECT_EQ(tee.newKey, "TEB1");
  EXPECT_EQ(tee.tappingCount, 2);
  EXPECT_EQ(countOf(tee, kTappingPoint), 2u);
  EXPECT_EQ(countOf(tee, kCharacterLine), 0u) << "the character line was undone";
  // The circle is a run of as many lines as the configuration asks for.
  EXPECT_GE(countOf(tee, kLine), static_cast<std::size_t>(saved.circleSegments));
}

}  // namespace
}  // namespace quorn
