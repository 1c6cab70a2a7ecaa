#include "config/settings_reader.h"

#include <gtest/gtest.h>

#include <string>

#include "config/settings_parser.h"
#include "support/recording_messages.h"
#include "support/temp_directory.h"

namespace quorn {
namespace {

using test::RecordingMessages;
using test::TempDirectory;

constexpr std::string_view kShown = "DIR/SYMBOLS.INI";

Settings startup(std::string content) {
  Settings settings;
  parseStartupSettings(TextFile::fromContent(std::move(content)), settings);
  return settings;
}

Settings formats(std::string content) {
  Settings settings;
  EXPECT_FALSE(parseFormats(TextFile::fromContent(std::move(content)), kShown, settings));
  return settings;
}

std::optional<FormatStructure> structure(std::string content, std::string_view extension,
                                         RecordingMessages& messages, bool writeBin = true) {
  return parseFormatStructure(TextFile::fromContent(std::move(content)), kShown, extension,
                              writeBin, messages);
}

TEST(StartupSettings, VersionIsTheLineAfterTheVersionSectionButNeverTheLastLine) {
  EXPECT_EQ(startup("[VERSION]\n  V 2.1.4  \nend\n").version, "V 2.1.4");
  EXPECT_EQ(startup("  [version] of the editor\nV 3\nend").version, "V 3");
  EXPECT_EQ(startup("[VERSION]\nV 2.1.4\n").version, "No Version");
  EXPECT_EQ(startup("[VERSION]\n[VERSION]\nV 9\nend").version, "[VERSION]");
  Settings settings;
  settings.version = "old";
  parseStartupSettings(TextFile::fromContent(""), settings);
  EXPECT_EQ(settings.version, "No Version");
}

TEST(StartupSettings, TipsOnLooksOnlyAtTheFirstSixAndLastFourCharacters) {
  EXPECT_TRUE(startup("TIPSON=TRUE\nend").tipsOn);
  EXPECT_TRUE(startup("  tipson = true  \nend").tipsOn);
  EXPECT_TRUE(startup("TIPSON is not TRUE\nend").tipsOn);
  EXPECT_TRUE(startup("TIPSON=TRUE\nTIPSON=FALSE\nend").tipsOn);
  EXPECT_FALSE(startup("TIPSON=FALSE\nend").tipsOn);
  EXPECT_FALSE(startup("TIPS ON=TRUE\nend").tipsOn);
  EXPECT_FALSE(startup("end\nTIPSON=TRUE").tipsOn);
}

TEST(Formats, TestingSwitchSkipsTheFirstLineButTestsTheLast) {
  EXPECT_TRUE(formats("x\n[Enable Testing]").testingEnabled);
  EXPECT_TRUE(formats("x\n   [Enable Testing] now\ny").testingEnabled);
  EXPECT_FALSE(formats("[Enable Testing]\nx\ny").testingEnabled);
  EXPECT_FALSE(formats("x\n[enable testing]\ny").testingEnabled);
  EXPECT_FALSE(formats("x\n\t[Enable Testing]\ny").testingEnabled);
}

TEST(Formats, TableComesFromTheFormatSectionAndBuildsTheFilter) {
  const Settings settings = formats(
      "EXTENSION OUT, outside\n"
      "[File Formats]\n"
      "  extension \t SYM,   Symbol file\n"
      "ID Quorn_ASCII\n"
      "EXTENSION IDF, Formatted file\n"
      "[Other]\n"
      "EXTENSION NOT, closed section\n"
      "  [File Formats]\n"
      "EXTENSION NO2, still closed\n"
      "[File Formats] again\n"
      "EXTENSION LST, never read");
  ASSERT_EQ(settings.formats.size(), 2u);
  EXPECT_EQ(settings.formats[0].extension, "SYM");
  EXPECT_EQ(settings.formats[0].description, "Symbol file");
  EXPECT_EQ(settings.formats[1].extension, "IDF");
  EXPECT_EQ(settings.fileFilter, "Symbol file|*.SYM|Formatted file|*.IDF|All Files (*.*)|*.*");
  EXPECT_EQ(settings.defaultExtension, "None Specified");
  EXPECT_EQ(settings.defaultFilterIndex, 0);
  EXPECT_EQ(formats("").fileFilter, "All Files (*.*)|*.*");
}

TEST(Formats, LineWithoutCommaSplitsWhereThePreviousOneDid) {
  const Settings settings = formats(
      "[File Formats]\n"
      "EXTENSION XSYM First\n"
      "EXTENSION ABC,Second\n"
      "EXTENSION DEFG Third\n"
      "EXTENSION AB\n"
      "[End]");
  ASSERT_EQ(settings.formats.size(), 4u);
  EXPECT_EQ(settings.formats[0].extension, "");
  EXPECT_EQ(settings.formats[0].description, "SYM First");
  EXPECT_EQ(settings.formats[1].extension, "ABC");
  EXPECT_EQ(settings.formats[2].extension, "DEF");
  EXPECT_EQ(settings.formats[2].description, "Third");
  EXPECT_EQ(settings.formats[3].extension, "AB");
  EXPECT_EQ(settings.formats[3].description, "");
}

TEST(Formats, DefaultExtensionAndItsFilterIndex) {
  const std::string table = "[File Formats]\nEXTENSION sym, S\nEXTENSION IDF, I\n[End]\n";
  EXPECT_EQ(formats("[Default]\nEXTENSION\tSYM\t\n" + table).defaultFilterIndex, 1);
  EXPECT_EQ(formats("[Default]\n  EXTENSION IDF \n" + table).defaultExtension, "IDF");
  // A blank after the tabs stays and spoils the match.
  EXPECT_EQ(formats("[Default]\nEXTENSION\t IDF\n" + table).defaultExtension, " IDF");
  EXPECT_EQ(formats("[Default]\nEXTENSION\t IDF\n" + table).defaultFilterIndex, 0);
  EXPECT_EQ(formats("[Default]\nEXTENSION  \n" + table).defaultExtension, "None Specified");
  EXPECT_EQ(formats("[default]\nEXTENSION IDF\n" + table).defaultExtension, "None Specified");
  // The line after [Default] is treated as any other: here it opens the section.
  const Settings opened = formats("[Default]\n[File Formats]\nEXTENSION IDF, I\n[End]");
  EXPECT_EQ(opened.defaultExtension, "None Specified");
  ASSERT_EQ(opened.formats.size(), 1u);
  // Inside the section [Default] does not close it, so its line becomes a format too.
  const Settings inside = formats("[File Formats]\nEXTENSION SYM, S\n[Default]\nEXTENSION SYM\nx");
  EXPECT_EQ(inside.formats.size(), 2u);
  EXPECT_EQ(inside.defaultFilterIndex, 2);
}

TEST(Formats, EleventhFormatIsAFatalFaultNamingItsLine) {
  std::string content = "[File Formats]\n";
  for (int i = 0; i < 10; ++i) content += "EXTENSION E" + std::to_string(i) + ", F\n";
  EXPECT_EQ(formats(content + "[End]").formats.size(), 10u);
  EXPECT_EQ(formats(content + "EXTENSION LST, last line").formats.size(), 10u);
  Settings settings;
  const auto fatal =
      parseFormats(TextFile::fromContent(content + "EXTENSION E11, F\n[End]"), kShown, settings);
  ASSERT_TRUE(fatal);
  EXPECT_EQ(fatal->text.rfind("DIR/SYMBOLS.INI, line 12: ", 0), 0u) << fatal->text;
}

TEST(FormatStructure, FirstExtensionLineMatchingByPrefixAnywhereWins) {
  RecordingMessages messages;
  const std::string block = "ID Quorn_ASCII\nHeadlines 0\nLeadlines 0\n";
  const std::string file = "EXTENSION sym2, S\n" + block + "[File Formats]\nEXTENSION SYM, T\n" +
                           "ID X\nHeadlines 4\nLeadlines 5\n[End]";
  EXPECT_EQ(structure(file, "SY", messages)->headlines, 0);
  EXPECT_EQ(structure(file, "SYM2", messages)->id, "QUORN_ASCII");
  EXPECT_FALSE(structure(file, "SYM22", messages));
  EXPECT_EQ(structure("EXTENSION\t  abc, A\n" + block, "ABC", messages)->extension, "ABC");
  // A [Default] line naming the extension stands before its format and takes its place.
  EXPECT_FALSE(structure("[Default]\nEXTENSION SYM\n[File Formats]\nEXTENSION SYM, S\n" + block,
                         "SYM", messages));
  EXPECT_EQ(messages.texts().back(),
            "File Structure for .SYM files\n     is not valid in DIR/SYMBOLS.INI");
}

TEST(FormatStructure, FailuresAreToldWithTheirExactTexts) {
  RecordingMessages messages;
  EXPECT_FALSE(structure("EXTENSION SYM, S\nID A\nHeadlines 0\nLeadlines 0\n", "IDF", messages));
  EXPECT_FALSE(structure("EXTENSION SYM, S\nID A\nHeadlines 0\nLeadlines -1\n", "SYM", messages));
  EXPECT_FALSE(structure("EXTENSION SYM, S\nID A\nHeadlines 0\nx\nLeadlines 0", "SYM", messages));
  EXPECT_FALSE(structure("EXTENSION SYM, S\nID A\nleadlines 0\nHeadlines 1\n", "SYM", messages));
  EXPECT_FALSE(structure("EXTENSION SYM, S\nLeadlines 0\nID A\nHeadlines -0.6\n", "SYM", messages));
  const std::string notValid =
      "File Structure for .SYM files\n     is not valid in DIR/SYMBOLS.INI";
  EXPECT_EQ(messages.texts(),
            (std::vector<std::string>{
                "File Structure for .IDF files\n  is not defined in DIR/SYMBOLS.INI", notValid,
                notValid, notValid, notValid}));
  EXPECT_EQ(messages.shown()[0].title, kAppTitle);
  EXPECT_EQ(messages.shown()[0].buttons, Buttons::Ok);
}

TEST(FormatStructure, ValuesAreRoundedAndTheIdDecidesBinaryOutput) {
  RecordingMessages messages;
  auto ascii = structure("EXTENSION SYM, S\nHeadlines 2.5\nID\tQuorn_ASCII\t \nLeadlines\t3.5\n",
                         "SYM", messages);
  ASSERT_TRUE(ascii);
  EXPECT_EQ(ascii->id, "QUORN_ASCII");
  EXPECT_EQ(ascii->headlines, 2);
  EXPECT_EQ(ascii->leadlines, 4);
  EXPECT_TRUE(ascii->writeBinary);
  EXPECT_FALSE(structure("EXTENSION SYM, S\nID Quorn_ASCII\nHeadlines 0\nLeadlines -0.5\n", "SYM",
                         messages, false)
                   ->writeBinary);
  const auto idf =
      structure("EXTENSION IDF, I\nID IDF_Formatted\nHeadlines 0\nLeadlines 0\n", "IDF", messages);
  EXPECT_EQ(idf->id, "IDF_FORMATTED");
  EXPECT_FALSE(idf->writeBinary);
  EXPECT_EQ(structure("EXTENSION T, I\nId x\nHeadlines 1\nLeadlines 1\n", "T", messages)->id, "");
  EXPECT_TRUE(messages.texts().empty());
}

TEST(FormatStructure, UndefinedRunTimeFaultsAreToldWithFileAndLine) {
  RecordingMessages messages;
  EXPECT_FALSE(structure("x\nEXTENSION SYM, S\nLeadlines 0\nHeadlines 0", "SYM", messages));
  EXPECT_FALSE(structure("EXTENSION SYM, S\nID A\nLeadlines 40000\nHeadlines 0", "SYM", messages));
  ASSERT_EQ(messages.texts().size(), 2u);
  EXPECT_EQ(messages.texts()[0].rfind("DIR/SYMBOLS.INI, line 2: ", 0), 0u);
  EXPECT_EQ(messages.texts()[1].rfind("DIR/SYMBOLS.INI, line 3: ", 0), 0u);
}

TEST(SettingsFile, MissingFileEndsStartUpButOnlyFailsTheStructureLoad) {
  TempDirectory temp;
  const WorkingDirectory directory(temp.path());
  const std::string missing = missingFileText("SYMBOLS.INI", directory.shown());
  Settings settings;
  EXPECT_EQ(readStartupSettings(directory, settings)->text, missing);
  EXPECT_EQ(readFormats(directory, settings)->text, missing);
  RecordingMessages messages;
  EXPECT_FALSE(loadFormatStructure(directory, "SYM", true, messages));
  EXPECT_EQ(messages.texts(), std::vector<std::string>{missing});

  temp.write("symbols.ini", "EXTENSION SYM, S\nID A\nHeadlines 1\nLeadlines 2\n");
  EXPECT_EQ(loadFormatStructure(directory, "SYM", true, messages)->leadlines, 2);
  EXPECT_FALSE(loadFormatStructure(directory, "PSY", true, messages));
  EXPECT_EQ(messages.texts().back(), "File Structure for .PSY files\n  is not defined in " +
                                         directory.shownPath("SYMBOLS.INI"));
}

TEST(SettingsFile, SampleFileGivesItsThreeFormats) {
  const WorkingDirectory directory(QUORN_SAMPLE_DIR);
  Settings settings;
  ASSERT_FALSE(readStartupSettings(directory, settings));
  ASSERT_FALSE(readFormats(directory, settings));
  EXPECT_EQ(settings.version, "V 2.1.4");
  EXPECT_TRUE(settings.tipsOn);
  EXPECT_FALSE(settings.testingEnabled);
  EXPECT_EQ(settings.defaultFilterIndex, 1);
  EXPECT_EQ(settings.fileFilter,
            "Quorn ASCII symbol file|*.SYM|IDF formatted symbol file|*.IDF|"
            "Plant symbol exchange file|*.PSY|All Files (*.*)|*.*");
  RecordingMessages messages;
  const auto sym = loadFormatStructure(directory, "SYM", true, messages);
  const auto idf = loadFormatStructure(directory, "IDF", true, messages);
  const auto psy = loadFormatStructure(directory, "PSY", true, messages);
  ASSERT_TRUE(sym && idf && psy) << ::testing::PrintToString(messages.texts());
  EXPECT_EQ(sym->id, "QUORN_ASCII");
  EXPECT_TRUE(sym->writeBinary);
  EXPECT_EQ(idf->id, "IDF_FORMATTED");
  EXPECT_EQ(psy->id, "*PLANT-SYMBOLS");
  EXPECT_EQ(psy->headlines, 0);
  EXPECT_EQ(psy->leadlines, 1);
}

}  // namespace
}  // namespace quorn
