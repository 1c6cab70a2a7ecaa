#include <gtest/gtest.h>

#include "support/compact_json.h"
#include "support/run_command.h"
#include "support/temp_directory.h"

namespace quorn {
namespace {

using test::compactJson;
using test::runSymbols;

constexpr std::string_view kIni =
    "[VERSION]\r\nV 9.9.9\r\nTIPSON = true\r\n[Default]\r\nEXTENSION SYM\r\n"
    "[File Formats]\r\nEXTENSION sym, Symbol file\r\nID Quorn_ASCII\r\nHeadlines 0\r\n"
    "Leadlines 0\r\n[End]\r\n";

std::string cfgWith(std::string_view setup, std::string_view groups, std::string_view groupings) {
  return "[System Setup]\r\n" + std::string(setup) + "!\r\n[Groups]\r\n" + std::string(groups) +
         "!\r\n[Symbol Groupings]\r\n" + std::string(groupings);
}

TEST(ConfigCommand, PrintsTheSampleWorkingDirectory) {
  const auto result = runSymbols({"config", "--workdir", QUORN_SAMPLE_DIR, "--json"});
  ASSERT_EQ(result.status, 0) << result.err;
  const std::string json = compactJson(result.out);
  EXPECT_NE(json.find("\"PITCH\":5,"), std::string::npos);
  EXPECT_NE(json.find("\"HSIZE\":300,"), std::string::npos);
  EXPECT_NE(json.find("\"MAXSYMBOLSINFILE\":100,"), std::string::npos);
  EXPECT_NE(json.find("\"defaultExtension\":\"SYM\""), std::string::npos);
  EXPECT_NE(json.find("\"defaultFilterIndex\":1"), std::string::npos);
  EXPECT_NE(json.find("\"fileFilter\":\"Quorn ASCII symbol file|*.SYM|IDF formatted symbol "
                      "file|*.IDF|Plant symbol exchange file|*.PSY|All Files (*.*)|*.*\""),
            std::string::npos);
  EXPECT_NE(json.find("\"groupList\":[\"Redefining "), std::string::npos);

  const auto text = runSymbols({"config", "--workdir", QUORN_SAMPLE_DIR});
  ASSERT_EQ(text.status, 0) << text.err;
  EXPECT_NE(text.out.find("GRIDCOLOUR = "), std::string::npos);
}

TEST(ConfigCommand, ShowsScaledRoundedValuesFlagsAndGroups) {
  test::TempDirectory directory;
  directory.write("symbols.ini", kIni);
  directory.write(
      "Symbols.Cfg",
      cfgWith("HSIZE = 12.25\r\nPITCH=0.5\r\nSEGMENTSIN180ARC = 12\r\nWRITEBIN = 2\r\n"
              "Spindle Colour = bright white\r\nTEECOLOUR = PINK\r\n",
              "1 Valves\r\n3 Flanges\r\n", "VBSW 03 Valve ; 0 2\r\nVT** 01 Valve body;13\r\n"));
  const auto result = runSymbols({"config", "--workdir", directory.path().string(), "--json"});
  ASSERT_EQ(result.status, 0) << result.err;
  const std::string json = compactJson(result.out);
  for (const char* expected :
       {"\"HSIZE\":122,", "\"PITCH\":5,", "\"SEGMENTSIN180ARC\":24,", "\"WRITEBIN\":false,",
        "\"SPINDLECOLOUR\":15,", "\"TEECOLOUR\":0,", "\"MAXSYMBOLSINFILE\":100,",
        "\"groupCount\":3,",
        "{\"number\":1,\"name\":\"Valves\",\"entries\":[{\"skey\":\"VT**\",\"description\":"
        "\"Valve body\",\"flags\":[1,3]}]}",
        "{\"number\":2,\"name\":\"\",\"entries\":[]}",
        "{\"skey\":\"VBSW\",\"description\":\"Valve\",\"flags\":[0,2]}",
        "\"groupList\":[\"Redefining Valves\",\" \",\"Redefining Flanges\"]",
        "\"version\":\"V 9.9.9\",\"tipsOn\":true,\"testingEnabled\":false",
        "\"formats\":[{\"extension\":\"sym\",\"description\":\"Symbol file\"}]"}) {
    EXPECT_NE(json.find(expected), std::string::npos) << expected << "\n" << json;
  }
}

TEST(ConfigCommand, FaultsThatEndTheEditorExitWithStatusTwo) {
  test::TempDirectory directory;
  directory.write("SYMBOLS.INI", kIni);
  const auto missing = runSymbols({"config", "--workdir", directory.path().string()});
  EXPECT_EQ(missing.status, 2);
  EXPECT_NE(missing.err.find("SYMBOLS.CFG not found in the " + directory.path().string() +
                             "\ndirectory. Please load this file \nand try again. See "
                             "READMESY.TXT for File Format"),
            std::string::npos)
      << missing.err;

  directory.write("SYMBOLS.CFG", cfgWith("", "1 Valves\r\n", ""));
  const auto corrupt = runSymbols({"config", "--workdir", directory.path().string()});
  EXPECT_EQ(corrupt.status, 2);
  EXPECT_NE(corrupt.err.find("appears to be corrupt. Please replace it with a clean version."),
            std::string::npos)
      << corrupt.err;

  directory.write("SYMBOLS.CFG", cfgWith("", "22 Too many\r\n", "VBSW 01 Valve\r\n"));
  const auto tooHigh = runSymbols({"config", "--workdir", directory.path().string()});
  EXPECT_EQ(tooHigh.status, 2);
  EXPECT_NE(tooHigh.err.find("SYMBOLS.CFG, line "), std::string::npos) << tooHigh.err;
  EXPECT_NE(tooHigh.err.find("22"), std::string::npos) << tooHigh.err;

  directory.write("SYMBOLS.CFG", cfgWith("", "1 Valves\r\n", "VBSW 02 Valve\r\n"));
  const auto unsupported = runSymbols({"config", "--workdir", directory.path().string()});
  EXPECT_EQ(unsupported.status, 2);
  EXPECT_NE(unsupported.err.find("Group 2 is not supported. SYMBOLS.CFG may be corrupt."),
            std::string::npos)
      << unsupported.err;

  std::filesystem::remove(directory.path() / "SYMBOLS.INI");
  const auto noIni = runSymbols({"config", "--workdir", directory.path().string()});
  EXPECT_EQ(noIni.status, 2);
  EXPECT_NE(noIni.err.find("SYMBOLS.INI not found in the "), std::string::npos) << noIni.err;
}

TEST(ConfigCommand, WarningsGoToStandardErrorAndKeepStatusZero) {
  test::TempDirectory directory;
  directory.write("SYMBOLS.INI", kIni);
  std::string groupings;
  for (int i = 0; i < 81; ++i) groupings += "V" + std::to_string(100 + i) + " 01 Valve\r\n";
  directory.write("SYMBOLS.CFG", cfgWith("", "1 Valves\r\n", groupings));
  const auto result = runSymbols({"config", "--workdir", directory.path().string(), "--json"});
  EXPECT_EQ(result.status, 0);
  EXPECT_NE(result.err.find("Group 1 has more than the allowable 80 SKeys"), std::string::npos)
      << result.err;
  EXPECT_EQ(compactJson(result.out).find("V180"), std::string::npos);
}

TEST(ConfigCommand, RefusesUnknownWords) {
  EXPECT_EQ(runSymbols({"config", "extra"}).status, 2);
  EXPECT_EQ(runSymbols({"config", "--workdir"}).status, 2);
  EXPECT_EQ(runSymbols({"no-such-command"}).status, 2);
}

}  // namespace
}  // namespace quorn
