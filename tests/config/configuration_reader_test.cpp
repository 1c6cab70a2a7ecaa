#include "config/configuration_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "support/recording_messages.h"
#include "support/temp_directory.h"

namespace quorn {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

const std::string kCorrupt =
    "The SYMBOLS.CFG file in the wd appears to be corrupt. Please replace it with a clean "
    "version.";

struct Outcome {
  std::optional<FatalError> fatal;
  Configuration config;
  std::vector<std::string> messages;
};

Outcome readText(std::string content) {
  const TextFile file = TextFile::fromContent(std::move(content));
  Outcome outcome;
  test::RecordingMessages messages;
  outcome.fatal = readConfigurationText(file, WorkingDirectory("wd"), outcome.config, messages);
  outcome.messages = messages.texts();
  return outcome;
}

// A whole file: the three sections, with one line after the last header so it is read.
std::string cfg(const std::string& setup, const std::string& groups = "",
                const std::string& groupings = "\n") {
  return "[System Setup]\n" + setup + "[Groups]\n" + groups + "[Symbol Groupings]\n" + groupings;
}

Configuration readOk(const std::string& content) {
  Outcome outcome = readText(content);
  EXPECT_FALSE(outcome.fatal.has_value()) << outcome.fatal->text;
  EXPECT_THAT(outcome.messages, IsEmpty());
  return outcome.config;
}

std::string fatalText(const std::string& content) {
  const Outcome outcome = readText(content);
  EXPECT_TRUE(outcome.fatal.has_value());
  return outcome.fatal ? outcome.fatal->text : "(no fault)";
}

std::vector<int> flagsOf(const GroupEntry& entry) {
  std::vector<int> digits;
  for (int digit = 0; digit < 10; ++digit) {
    if (entry.flags[digit]) digits.push_back(digit);
  }
  return digits;
}

TEST(ConfigurationReader, DefaultsReplaceEarlierContentBeforeReading) {
  Configuration config;
  config.hsize = 7;
  config.writeBin = true;
  config.groupCount = 5;
  config.groupNames[4] = "Old";
  config.groupList = {"Redefining Old"};
  test::RecordingMessages messages;
  const TextFile file = TextFile::fromContent(cfg("ENDRADIUS = 5\n"));
  ASSERT_FALSE(readConfigurationText(file, WorkingDirectory("wd"), config, messages));
  EXPECT_EQ(config.hsize, 300);
  EXPECT_EQ(config.endRadius, 5);
  EXPECT_EQ(config.pitch, 5.0);
  EXPECT_EQ(config.segmentsIn180Arc, 32);
  EXPECT_FALSE(config.writeBin);
  EXPECT_EQ(config.maxSymbolsInFile, 100);
  EXPECT_EQ(config.groupCount, 0);
  EXPECT_EQ(config.groupNames[4], "");
  EXPECT_THAT(config.groupList, IsEmpty());
  ASSERT_EQ(config.groups.size(), 1u);
  EXPECT_THAT(config.groups[0].entries, IsEmpty());
  EXPECT_THAT(messages.texts(), IsEmpty());
}

TEST(ConfigurationReader, ScalesAndRoundsHalvesToEven) {
  const Configuration config = readOk(
      cfg("HSIZE = 12.25\nSEGMENTSIN180ARC = 12\nPITCH = 0.25\nSTARTRADIUS = 2.5\nENDRADIUS = 3.5\n"
          "SPINDLERADIUS = -2.5\nTEERADIUS = 1.2E2\nLEFTMARGIN = 1080.5001\n"
          "NOOFSEGMENTS = 24 segments\nBINFORMAT = 2\nBINFORMAT = 3\n"));
  EXPECT_EQ(config.hsize, 122);
  EXPECT_EQ(config.segmentsIn180Arc, 24);
  EXPECT_EQ(config.pitch, 2.5);
  EXPECT_EQ(config.startRadius, 2);
  EXPECT_EQ(config.endRadius, 4);
  EXPECT_EQ(config.spindleRadius, -2);
  EXPECT_EQ(config.teeRadius, 120);
  EXPECT_EQ(config.leftMargin, 1081);
  EXPECT_EQ(config.noOfSegments, 24);
  EXPECT_EQ(config.binFormat, 3);  // a key given twice keeps its last value
  EXPECT_EQ(readOk(cfg("MAXSYMBOLSINFILE = 0.4\n")).maxSymbolsInFile, 100);
  EXPECT_EQ(readOk(cfg("MAXSYMBOLSINFILE = 40\n")).maxSymbolsInFile, 40);
}

TEST(ConfigurationReader, LinesDropBlanksAndLaterEqualSignsAndIgnoreUnknownKeys) {
  const Configuration config =
      readOk(cfg("Grid Colour = Light Cyan\npitch=0.5\nLEFT MARGIN = 1 0 8 0\n"
                 "TOPMARGIN == 7 = 2\n  line scale   =   -3  \nENDCOLOURS = RED\n"
                 "PINKCOLOUR = RED\nFOO = 3\nTEERADIUS = abc\nHSIZE\n[System Setup]\n"));
  EXPECT_EQ(config.gridColour, 11);
  EXPECT_EQ(config.pitch, 5.0);
  EXPECT_EQ(config.leftMargin, 1080);
  EXPECT_EQ(config.topMargin, 72);
  EXPECT_EQ(config.lineScale, -3);
  EXPECT_EQ(config.endColour, 12);
  EXPECT_EQ(config.teeRadius, 0);
  EXPECT_EQ(config.hsize, 0);
}

TEST(ConfigurationReader, ColourNamesAreLookedUpAndUnknownOnesGiveBlack) {
  const Configuration config =
      readOk(cfg("SPINDLECOLOUR = bright white\nSTARTCOLOUR = PINK\nGRIDCOLOUR\nTEECOLOUR = 4\n"
                 "scalecolour=Yellow\n"));
  EXPECT_EQ(config.spindleColour, 15);
  EXPECT_EQ(config.startColour, 0);
  EXPECT_EQ(config.gridColour, 0);
  EXPECT_EQ(config.teeColour, 0);  // a number is not a colour name
  EXPECT_EQ(config.scaleColour, 6);
}

TEST(ConfigurationReader, WriteBinIsOnExactlyForOne) {
  EXPECT_TRUE(readOk(cfg("WRITEBIN = 1\n")).writeBin);
  EXPECT_TRUE(readOk(cfg("writebin = 1.0\n")).writeBin);
  EXPECT_FALSE(readOk(cfg("WRITEBIN = 2\n")).writeBin);
  EXPECT_FALSE(readOk(cfg("WRITEBIN = yes\n")).writeBin);
  EXPECT_FALSE(readOk(cfg("WRITEBIN = 1.4\n")).writeBin);
  EXPECT_FALSE(readOk(cfg("WRITEBIN = 1\nWRITEBIN = 0\n")).writeBin);
}

TEST(ConfigurationReader, CommentsBlankLinesAndLinesBeforeTheFirstSectionAreSkipped) {
  const Configuration config = readOk(
      "HSIZE = 99\n[Groups]\n1 Early\n[Symbol Groupings]\n"
      "  [System Setup]  \n  ! HSIZE = 77\n\n   \nENDRADIUS = 5\n"
      "[Groups]\n! 4 Commented\n\n2 Valves\n"
      "[Symbol Groupings]\n   ! VBSW 02 Commented ;1\n\nVTFL 02 Gate valve ;3\n");
  EXPECT_EQ(config.hsize, 300);
  EXPECT_EQ(config.endRadius, 5);
  EXPECT_EQ(config.groupCount, 2);
  EXPECT_EQ(config.groupNames[1], "");
  ASSERT_EQ(config.groups.size(), 3u);
  ASSERT_EQ(config.groups[2].entries.size(), 1u);
  EXPECT_EQ(config.groups[2].entries[0].skey, "VTFL");
}

TEST(ConfigurationReader, MissingOrLastLineHeadersEndTheProgram) {
  // Never seen: an empty message.
  EXPECT_EQ(fatalText(""), "");
  EXPECT_EQ(fatalText("HSIZE = 3\n"), "");
  EXPECT_EQ(fatalText("[system setup]\n[Groups]\n[Symbol Groupings]\n\n"), "");
  EXPECT_EQ(fatalText("! settings\n[System Setup]\n"), "");
  // Cut short inside [System Setup] or [Groups]; the last line is never looked at.
  EXPECT_EQ(fatalText("[System Setup]\nHSIZE = 3\n"), kCorrupt);
  EXPECT_EQ(fatalText("[System Setup]\n[Groups]\n"), kCorrupt);
  EXPECT_EQ(fatalText("[System Setup]\n[Groups]\n1 Valves\n"), kCorrupt);
  EXPECT_EQ(fatalText("[System Setup]\n[Groups]\n[Symbol Groupings]\n"), kCorrupt);
  EXPECT_EQ(fatalText("[System Setup]\n[Groups]\n[Symbol Groupings]"), kCorrupt);
  EXPECT_EQ(fatalText("[System Setup]\n[Symbol Groupings]\nVBSW 00 x\n"), kCorrupt);
  // One more line after the last header, even blank, makes the file whole.
  EXPECT_FALSE(readText("[System Setup]\n[Groups]\n[Symbol Groupings]\n\n").fatal);
  EXPECT_FALSE(readText("[System Setup]\r\n[Groups]\r\n[Symbol Groupings]\r\n \r\n").fatal);
}

TEST(ConfigurationReader, GroupNamesFollowTheDigitsOfTheirNumberAndFillTheGroupList) {
  const Configuration config =
      readOk(cfg("", "12 Reducers\n  3   Flanges  \n012 Odd\n5\n3 Flanges again\n1.6 Fraction\n"));
  EXPECT_EQ(config.groupCount, 12);
  EXPECT_EQ(config.groupNames[12], "2 Odd");  // '012' is read as 12 with two digits cut
  EXPECT_EQ(config.groupNames[3], "Flanges again");
  EXPECT_EQ(config.groupNames[5], "");
  EXPECT_EQ(config.groupNames[2], ".6 Fraction");
  ASSERT_EQ(config.groups.size(), 13u);
  EXPECT_EQ(config.groups[3].name, "Flanges again");
  EXPECT_EQ(config.groups[0].name, "");
  EXPECT_EQ(readOk(cfg("", "12 Reducers\n")).groupNames[12], "Reducers");
  EXPECT_EQ(readOk(cfg("", "21 Last\n")).groupCount, 21);
  EXPECT_THAT(readOk(cfg("", "4 Supports\n2 Valves\n")).groupList,
              ElementsAre(" ", "Redefining Valves", " ", "Redefining Supports"));
}

TEST(ConfigurationReader, BadGroupNumbersEndTheProgram) {
  EXPECT_EQ(fatalText(cfg("", "0 Misc\n")), kCorrupt);
  EXPECT_EQ(fatalText(cfg("", "0.5 Misc\n")), kCorrupt);
  EXPECT_EQ(fatalText(cfg("", "-1 Misc\n")), kCorrupt);
  EXPECT_EQ(fatalText(cfg("", "Valves\n")), kCorrupt);

  const std::string file = WorkingDirectory("wd").shownPath("SYMBOLS.CFG");
  const std::string above = fatalText(cfg("HSIZE = 1\n", "1 Valves\n22 Extra\n"));
  EXPECT_THAT(above, HasSubstr(file + ", line 5: "));
  EXPECT_THAT(above, HasSubstr("22"));
  EXPECT_THAT(fatalText(cfg("", "99999 Big\n")), HasSubstr("99999"));
}

TEST(ConfigurationReader, GroupingLinesGiveSkeyDescriptionAndFlags) {
  const Configuration config = readOk(cfg("", "3 Valves\n",
                                          "VBSW 03 Valve ; 0 2\n"
                                          "  vtfl 03   Gate valve, flanged  ;;9x 8;\n"
                                          "FLWN 00 Weld neck flange;\n"
                                          "RCBW 03;1\n"
                                          "AB12 03 Tee 4\n"));
  ASSERT_EQ(config.groups.size(), 4u);
  ASSERT_EQ(config.groups[0].entries.size(), 1u);
  const GroupEntry& flange = config.groups[0].entries[0];
  EXPECT_EQ(flange.skey, "FLWN");
  EXPECT_EQ(flange.description, "Weld neck flange");
  EXPECT_THAT(flagsOf(flange), IsEmpty());

  const auto& entries = config.groups[3].entries;
  ASSERT_EQ(entries.size(), 4u);
  EXPECT_EQ(entries[0].skey, "VBSW");
  EXPECT_EQ(entries[0].description, "Valve");
  EXPECT_THAT(flagsOf(entries[0]), ElementsAre(0, 2));
  EXPECT_EQ(entries[1].skey, "vtfl");  // kept as written
  EXPECT_EQ(entries[1].description, "Gate valve, flanged");
  EXPECT_THAT(flagsOf(entries[1]), ElementsAre(0, 8, 9));
  EXPECT_EQ(entries[2].skey, "RCBW");
  EXPECT_EQ(entries[2].description, "");
  EXPECT_THAT(flagsOf(entries[2]), ElementsAre(1));
  // Without a ";" the flags are read from just after the latest earlier ";" (position 8 of
  // 'RCBW 03;1'): here 'Tee 4'.
  EXPECT_EQ(entries[3].skey, "AB12");
  EXPECT_EQ(entries[3].description, "Tee 4");
  EXPECT_THAT(flagsOf(entries[3]), ElementsAre(0, 4));
}

TEST(ConfigurationReader, SemicolonPositionCarriesOverBetweenLines) {
  // No ";" yet: the flags are read from the first character.
  const Configuration first = readOk(cfg("", "1 Valves\n", "AB12 01 Valve 7\n"));
  EXPECT_EQ(first.groups[1].entries[0].description, "Valve 7");
  EXPECT_THAT(flagsOf(first.groups[1].entries[0]), ElementsAre(0, 1, 2, 7));

  // A ";" at position 14 carries over to the next line, which has none.
  const Configuration carried = readOk(cfg("", "1 Valves\n",
                                           "VBSW 01 Valve;3\n"
                                           "VTFL 01 Gate  5 6\n"
                                           "VGFL 01 Globe valve, flanged 4\n"
                                           "VC** 01 Check\n"));
  const auto& entries = carried.groups[1].entries;
  ASSERT_EQ(entries.size(), 4u);
  EXPECT_EQ(entries[1].description, "Gate  5 6");
  EXPECT_THAT(flagsOf(entries[1]), ElementsAre(0, 5, 6));
  EXPECT_EQ(entries[2].description, "Globe valve, flanged 4");
  EXPECT_THAT(flagsOf(entries[2]), ElementsAre(0, 4));
  EXPECT_THAT(flagsOf(entries[3]), IsEmpty());  // shorter than the carried position
}

TEST(ConfigurationReader, GroupingLineOutsideTheGroupsEndsTheProgram) {
  EXPECT_EQ(fatalText(cfg("", "3 Valves\n", "VBSW 04 Valve\n")),
            "Group 4 is not supported. SYMBOLS.CFG may be corrupt.");
  EXPECT_EQ(fatalText(cfg("", "3 Valves\n", "VBSW -1 Valve\n")),
            "Group -1 is not supported. SYMBOLS.CFG may be corrupt.");
  EXPECT_EQ(fatalText(cfg("", "", "VBSW 01 Valve\n")),
            "Group 1 is not supported. SYMBOLS.CFG may be corrupt.");
  EXPECT_FALSE(readText(cfg("", "3 Valves\n", "VBSW 03 Valve\nVTSW 00 Gate\n")).fatal);
}

TEST(ConfigurationReader, EightyFirstSkeyOfAGroupIsDroppedWithAWarning) {
  std::string groupings;
  for (int i = 0; i < 82; ++i) groupings += "K" + std::to_string(100 + i) + " 02 Key;1\n";
  groupings += "LAST 01 Other group;2\n";
  const Outcome outcome = readText(cfg("", "1 One\n2 Two\n", groupings));
  ASSERT_FALSE(outcome.fatal);
  EXPECT_THAT(outcome.messages, ElementsAre("Group 2 has more than the allowable 80 SKeys",
                                            "Group 2 has more than the allowable 80 SKeys"));
  const auto& kept = outcome.config.groups[2].entries;
  ASSERT_EQ(kept.size(), 80u);
  EXPECT_EQ(kept.front().skey, "K100");
  EXPECT_EQ(kept.back().skey, "K179");
  ASSERT_EQ(outcome.config.groups[1].entries.size(), 1u);
  EXPECT_EQ(outcome.config.groups[1].entries[0].skey, "LAST");
}

TEST(ConfigurationReader, ValuesBeyondSixteenBitsEndTheProgramNamingFileLineAndValue) {
  const std::string file = WorkingDirectory("wd").shownPath("SYMBOLS.CFG");
  EXPECT_EQ(readOk(cfg("HSIZE = 3276.7\n")).hsize, 32767);
  EXPECT_EQ(readOk(cfg("STARTRADIUS = -32768\n")).startRadius, -32768);

  const std::string hsize = fatalText(cfg("! sizes\nHSIZE = 3276.8\n"));
  EXPECT_THAT(hsize, HasSubstr(file + ", line 3: "));
  EXPECT_THAT(hsize, HasSubstr("3276.8"));
  EXPECT_THAT(hsize, HasSubstr("HSIZE"));
  EXPECT_THAT(fatalText(cfg("SEGMENTSIN180ARC = 16384\n")), HasSubstr("16384"));
  EXPECT_THAT(fatalText(cfg("STARTRADIUS = -32769\n")), HasSubstr("-32769"));
  EXPECT_THAT(fatalText(cfg("MAXSYMBOLSINFILE = 40000\n")), HasSubstr(file + ", line 2: "));
  EXPECT_THAT(fatalText(cfg("PITCH = 1e308\n")), HasSubstr("PITCH"));
}

TEST(ConfigurationReader, ReadsTheFileFromTheWorkingDirectory) {
  test::TempDirectory temp;
  const WorkingDirectory directory(temp.path());
  test::RecordingMessages messages;
  Configuration config;

  const auto missing = readConfiguration(directory, config, messages);
  ASSERT_TRUE(missing);
  EXPECT_EQ(missing->text, "SYMBOLS.CFG not found in the " + directory.shown() +
                               "\ndirectory. Please load this file \nand try again. See "
                               "READMESY.TXT for File Format");

  temp.write("symbols.cfg",
             "[System Setup]\r\nHSIZE = 40\r\n[Groups]\r\n1 Valves\r\n"
             "[Symbol Groupings]\r\nVBSW 01 Ball valve ;3 7\r\n");
  ASSERT_FALSE(readConfiguration(directory, config, messages));
  EXPECT_EQ(config.hsize, 400);
  EXPECT_EQ(config.groups[1].entries.at(0).description, "Ball valve");
  EXPECT_THAT(flagsOf(config.groups[1].entries.at(0)), ElementsAre(0, 3, 7));

  temp.write("symbols.cfg", "[System Setup]\n[Groups]\n");
  const auto corrupt = readConfiguration(directory, config, messages);
  ASSERT_TRUE(corrupt);
  EXPECT_EQ(corrupt->text, "The SYMBOLS.CFG file in the " + directory.shown() +
                               " appears to be corrupt. Please replace it with a clean version.");
  EXPECT_THAT(messages.texts(), IsEmpty());
}

TEST(ConfigurationReader, SampleConfigurationIsWholeAndConsistent) {
  test::RecordingMessages messages;
  Configuration config;
  ASSERT_FALSE(readConfiguration(WorkingDirectory(QUORN_SAMPLE_DIR), config, messages));
  EXPECT_THAT(messages.texts(), IsEmpty());
  EXPECT_EQ(config.pitch, 5.0);
  EXPECT_EQ(config.hsize, 300);
  EXPECT_EQ(config.maxSymbolsInFile, 100);
  EXPECT_FALSE(config.writeBin);
  EXPECT_GE(config.groupCount, 6);
  std::set<std::string> skeys;
  std::size_t count = 0;
  for (std::size_t group = 0; group < config.groups.size(); ++group) {
    if (group > 0) {
      EXPECT_FALSE(config.groups[group].name.empty()) << group;
    }
    for (const GroupEntry& entry : config.groups[group].entries) {
      ++count;
      EXPECT_EQ(entry.skey.size(), 4u) << entry.skey;
      EXPECT_TRUE(skeys.insert(entry.skey).second) << entry.skey << " twice";
      EXPECT_FALSE(entry.description.empty()) << entry.skey;
    }
  }
  EXPECT_GE(count, 30u);
  EXPECT_LE(count, 45u);
}

}  // namespace
}  // namespace quorn
