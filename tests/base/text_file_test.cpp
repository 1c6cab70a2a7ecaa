#include "base/text_file.h"

#include <gtest/gtest.h>

#include "support/temp_directory.h"

namespace quorn {
namespace {

std::vector<std::string> linesOf(const TextFile& file) {
  return {file.lines().begin(), file.lines().end()};
}

TEST(TextFile, SplitsLfAndCrLfAlike) {
  EXPECT_EQ(linesOf(TextFile::fromContent("a\r\nb\r\nc\r\n")),
            (std::vector<std::string>{"a", "b", "c"}));
  EXPECT_EQ(linesOf(TextFile::fromContent("a\nb\nc")), (std::vector<std::string>{"a", "b", "c"}));
  EXPECT_EQ(linesOf(TextFile::fromContent("a\r\nb\nc")), (std::vector<std::string>{"a", "b", "c"}));
}

TEST(TextFile, AFinalLineEndMakesNoEmptyLineButAnEarlierEmptyLineCounts) {
  EXPECT_EQ(TextFile::fromContent("").lineCount(), 0u);
  EXPECT_EQ(linesOf(TextFile::fromContent("\n")), (std::vector<std::string>{""}));
  EXPECT_EQ(linesOf(TextFile::fromContent("a\n\n")), (std::vector<std::string>{"a", ""}));
  EXPECT_EQ(linesOf(TextFile::fromContent("a\r\n\r\nb")), (std::vector<std::string>{"a", "", "b"}));
}

TEST(TextFile, ALoneCarriageReturnStaysInsideItsLine) {
  EXPECT_EQ(linesOf(TextFile::fromContent("a\rb\n")), (std::vector<std::string>{"a\rb"}));
}

TEST(TextFile, RemembersTheLineEndsItWasWrittenWith) {
  EXPECT_EQ(TextFile::fromContent("a\nb\r\n").lineEnding(), LineEnding::Lf);
  EXPECT_EQ(TextFile::fromContent("a\r\nb\n").lineEnding(), LineEnding::CrLf);
  EXPECT_EQ(TextFile::fromContent("no line end").lineEnding(), LineEnding::CrLf);
}

TEST(TextFile, FindsTheFirstLineWithANulByte) {
  EXPECT_EQ(TextFile::fromContent("a\nb\n").firstLineWithNul(), 0u);
  EXPECT_EQ(TextFile::fromContent(std::string("a\nb\0c\nd\0", 8)).firstLineWithNul(), 2u);
}

TEST(TextFile, ViewsSurviveAMoveOfAShortFile) {
  TextFile original = TextFile::fromContent("ab\ncd");
  TextFile moved = std::move(original);
  EXPECT_EQ(moved.line(1), "cd");
}

TEST(TextFile, ReadsAFileFromDiskAndReportsAMissingOne) {
  test::TempDirectory directory;
  const auto path = directory.write("X.TXT", "one\r\ntwo\r\n");
  const auto file = readTextFile(path);
  ASSERT_TRUE(file.has_value());
  EXPECT_EQ(linesOf(*file), (std::vector<std::string>{"one", "two"}));
  ReadFailure failure;
  EXPECT_FALSE(readTextFile(directory.path() / "MISSING.TXT", &failure).has_value());
  EXPECT_FALSE(failure.reason.empty());
}

TEST(LineCursor, AReadThenTestEndLoopNeverLooksAtTheLastLine) {
  const TextFile file = TextFile::fromContent("first\nsecond\nlast\n");
  LineCursor cursor(file);
  std::vector<std::string> looked;
  std::string_view line = cursor.read();
  while (!cursor.atEnd()) {
    looked.emplace_back(line);
    line = cursor.read();
  }
  EXPECT_EQ(looked, (std::vector<std::string>{"first", "second"}));
  EXPECT_EQ(line, "last");
  EXPECT_EQ(cursor.lineNumber(), 3u);
}

TEST(LineCursor, ReadingPastTheEndGivesEmptyLines) {
  const TextFile file = TextFile::fromContent("only");
  LineCursor cursor(file);
  EXPECT_FALSE(cursor.atEnd());
  EXPECT_EQ(cursor.read(), "only");
  EXPECT_TRUE(cursor.atEnd());
  EXPECT_EQ(cursor.read(), "");
  EXPECT_TRUE(cursor.atEnd());
}

}  // namespace
}  // namespace quorn
