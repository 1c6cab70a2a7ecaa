#include <gtest/gtest.h>

#include "app/help_file.h"
#include "app/tips_file.h"
#include "support/recording_messages.h"
#include "support/temp_directory.h"

namespace quorn {
namespace {

Tips tipsOf(const std::string& content, test::RecordingMessages& messages) {
  return parseTips(TextFile::fromContent(content), messages);
}

TEST(TipsFile, ReadsHeadingsTextsAndLineBreaks) {
  test::RecordingMessages messages;
  const Tips tips = tipsOf(
      "Tips for the symbols editor\r\n[2 TIPS]\r\nTIP 1 Snap\r\nSnap keeps points \r\n"
      "on the grid.\r\n\r\n[NEWLINE]\r\nPress Snap.\r\ntip 2 Undo\r\nUndo takes\r\n back.\r\n",
      messages);
  ASSERT_TRUE(tips.loaded) << (messages.texts().empty() ? "" : messages.texts()[0]);
  EXPECT_EQ(tips.count, 2);
  EXPECT_EQ(tips.headings[1], "TIP 1 Snap");
  EXPECT_EQ(tips.texts[1], "Snap keeps points on the grid.\nPress Snap.");
  EXPECT_EQ(tips.headings[2], "tip 2 Undo");
  // The last line is never treated as a tip line: it ends the last tip's text as read.
  EXPECT_EQ(tips.texts[2], "Undo takes back.");
  EXPECT_EQ(tips.texts[0], "[2 TIPS]");
  EXPECT_TRUE(messages.shown().empty());
}

TEST(TipsFile, ACountThatDoesNotMatchIsCorrupt) {
  test::RecordingMessages messages;
  const std::string corrupt =
      "TIPS.TXT Appears to be Corrupt.\nUser Tips will not be available at Start Up. Please "
      "reload this file to restore User Tips.";
  EXPECT_FALSE(tipsOf("[3 TIPS]\nTIP 1\none\nTIP 2\ntwo\nend\n", messages).loaded);
  // A TIP line that is the file's last line is not counted.
  EXPECT_FALSE(tipsOf("[2 TIPS]\nTIP 1\none\nTIP 2\n", messages).loaded);
  // More tips than declared.
  EXPECT_FALSE(tipsOf("[1 TIPS]\nTIP 1\none\nTIP 2\ntwo\nend\n", messages).loaded);
  EXPECT_FALSE(tipsOf("no header at all\n", messages).loaded);
  EXPECT_EQ(messages.texts(), std::vector<std::string>(4, corrupt));
}

TEST(TipsFile, AMissingFileIsReported) {
  test::TempDirectory temp;
  test::RecordingMessages messages;
  EXPECT_FALSE(readTips(WorkingDirectory(temp.path()), messages).loaded);
  ASSERT_EQ(messages.texts().size(), 1u);
  EXPECT_EQ(messages.texts()[0], "TIPS.TXT not found in the " + temp.path().string() +
                                     "\ndirectory. User Tips will not be available at Start Up");
}

TEST(TipsFile, ChoosesATipFromOneToTheCount) {
  Tips tips;
  tips.count = 4;
  EXPECT_EQ(chooseTip(tips, 0.0), 1);
  EXPECT_EQ(chooseTip(tips, 0.2499), 1);
  EXPECT_EQ(chooseTip(tips, 0.25), 2);
  EXPECT_EQ(chooseTip(tips, 0.9999), 4);
}

TEST(HelpFile, TakesLinesOneToEightAndSkipsComments) {
  const HelpTexts texts = parseHelpTexts(TextFile::fromContent(
      "! help lines\r\n1 Draw with the left button \r\n  8 Last line\r\n9 ignored\r\nx no\r\n"
      "3 Third"));
  EXPECT_EQ(texts[1], "Draw with the left button");
  EXPECT_EQ(texts[8], "Last line");
  EXPECT_EQ(texts[3], "Third");
  EXPECT_EQ(texts[2], "");
}

TEST(HelpFile, MissingHelpAndReadMeFilesAreReported) {
  test::TempDirectory temp;
  test::RecordingMessages messages;
  const WorkingDirectory directory(temp.path());
  EXPECT_EQ(readHelpTexts(directory, messages)[1], "");
  EXPECT_FALSE(readReadMe(directory, messages).has_value());
  EXPECT_EQ(messages.texts(),
            (std::vector<std::string>{
                "SYMBOLS.HLP not found in the " + temp.path().string() +
                    "\ndirectory. Help text will not\nbe available on line. See READMESY.TXT for "
                    "further details.",
                "READMESY.TXT not found in the directory with\nSYMBOLS.EXE. Please load this "
                "file and try again."}));
  temp.write("readmesy.txt", "first\nsecond");
  EXPECT_EQ(readReadMe(directory, messages), "first\r\nsecond\r\n");
}

}  // namespace
}  // namespace quorn
