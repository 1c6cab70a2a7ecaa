#include "files/spindle_reader.h"

#include <gtest/gtest.h>

#include "support/recording_messages.h"
#include "support/temp_directory.h"

namespace quorn {
namespace {

SpindleTable parse(const std::string& content, test::RecordingMessages& messages) {
  return parseSpindles(content, "SPINDLES.DEF", messages);
}

TEST(SpindleReader, ReadsNamesAndSegmentsInFileOrder) {
  test::RecordingMessages messages;
  const SpindleTable table =
      parse("  HWSP  \r\n0,10 20,10\r\n\r\n10,0 10,20\r\nGWSP\r\n-5,3 7.9,-2.9\r\n", messages);
  ASSERT_EQ(table.count(), 2);
  EXPECT_EQ(table.spindles[1].name, "HWSP");
  EXPECT_EQ(table.spindles[1].segments,
            (std::vector<SpindleSegment>{{0, 10, 20, 10}, {10, 0, 10, 20}}));
  EXPECT_EQ(table.spindles[2].name, "GWSP");
  // Each field keeps the whole part of its number.
  EXPECT_EQ(table.spindles[2].segments, (std::vector<SpindleSegment>{{-5, 3, 7, -2}}));
  EXPECT_TRUE(messages.shown().empty());
}

TEST(SpindleReader, SegmentsBeforeTheFirstNameBelongToSpindleZero) {
  test::RecordingMessages messages;
  const SpindleTable table = parse("1,2 3,4\nHWSP\n", messages);
  EXPECT_EQ(table.count(), 1);
  EXPECT_EQ(table.spindles[0].segments, (std::vector<SpindleSegment>{{1, 2, 3, 4}}));
  EXPECT_TRUE(table.spindles[1].segments.empty());
}

TEST(SpindleReader, TheSeparatorAlternatesBetweenCommaAndBlank) {
  test::RecordingMessages messages;
  // Blanks before the comma's turn are part of a number; after the last separator comes y2.
  const SpindleTable table = parse("XXSP\n  4,5  6,7  \n8,9\n", messages);
  EXPECT_EQ(table.spindles[1].segments, (std::vector<SpindleSegment>{{4, 5, 6, 7}, {8, 0, 0, 9}}));
}

TEST(SpindleReader, KeepsFifteenSpindlesAndFiftySegments) {
  test::RecordingMessages messages;
  std::string content;
  for (int spindle = 1; spindle <= 16; ++spindle) {
    content += "S" + std::to_string(spindle % 10) + "SP\n";
    for (int segment = 0; segment < (spindle == 1 ? 52 : 1); ++segment) content += "0,0 1,1\n";
  }
  const SpindleTable table = parse(content, messages);
  EXPECT_EQ(table.count(), 15);
  EXPECT_EQ(table.spindles[1].segments.size(), 50u);
  // One message for the refused segments of the first spindle; none for the 16th spindle.
  ASSERT_EQ(messages.texts().size(), 1u);
  EXPECT_NE(messages.texts()[0].find("SPINDLES.DEF, line 52: "), std::string::npos);
}

TEST(SpindleReader, AValueBeyondSixteenBitsLeavesOutItsSegmentWithAMessage) {
  test::RecordingMessages messages;
  const SpindleTable table = parse("HWSP\n0,0 40000,1\n1,1 2,2\n", messages);
  EXPECT_EQ(table.spindles[1].segments, (std::vector<SpindleSegment>{{1, 1, 2, 2}}));
  ASSERT_EQ(messages.texts().size(), 1u);
  EXPECT_NE(messages.texts()[0].find("SPINDLES.DEF, line 2: the value 40000"), std::string::npos);
}

TEST(SpindleReader, ABinaryFileIsReportedWithItsLineAndGivesNoSpindles) {
  test::RecordingMessages messages;
  const SpindleTable table = parse("HWSP\n0,0 1,1\n" + std::string("\x7f\0\x01", 3), messages);
  EXPECT_EQ(table.count(), 0);
  ASSERT_EQ(messages.texts().size(), 1u);
  EXPECT_EQ(messages.texts()[0].rfind("SPINDLES.DEF, line 3: ", 0), 0u) << messages.texts()[0];
}

TEST(SpindleReader, AMissingFileIsReportedAndLeavesNoSpindles) {
  test::TempDirectory temp;
  test::RecordingMessages messages;
  SpindleTable table = parse("HWSP\n", messages);
  readSpindles(WorkingDirectory(temp.path()), table, messages);
  EXPECT_EQ(table.count(), 0);
  ASSERT_EQ(messages.texts().size(), 1u);
  EXPECT_EQ(messages.texts()[0], "SPINDLES.DEF not found in the " + temp.path().string() +
                                     "\ndirectory. Please load this file \nand try again. See "
                                     "READMESY.TXT for File Format");
  temp.write("spindles.def", "HWSP\r\n0,1 2,3\r\n");
  readSpindles(WorkingDirectory(temp.path()), table, messages);
  EXPECT_EQ(table.count(), 1);
}

}  // namespace
}  // namespace quorn
