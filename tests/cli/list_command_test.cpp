#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "support/compact_json.h"
#include "support/run_command.h"
#include "support/temp_directory.h"

namespace quorn {
namespace {

using test::compactJson;
using test::runSymbols;

std::string sample(std::string_view name) {
  return (std::filesystem::path(QUORN_SAMPLE_DIR) / name).string();
}

std::string sampleText(std::string_view name) {
  std::ifstream in(sample(name), std::ios::binary);
  std::ostringstream content;
  content << in.rdbuf();
  return content.str();
}

bool contains(const std::string& text, std::string_view part) {
  return text.find(part) != std::string::npos;
}

TEST(ListCommand, ListsTheSampleFilesOfEachFormat) {
  const auto sym =
      runSymbols({"list", sample("EXAMPLE.SYM"), "--workdir", QUORN_SAMPLE_DIR, "--json"});
  ASSERT_EQ(sym.status, 0) << sym.err;
  EXPECT_EQ(sym.err, "");
  const std::string json = compactJson(sym.out);
  EXPECT_TRUE(contains(json,
                       "\"format\":{\"extension\":\"SYM\",\"id\":\"QUORN_ASCII\","
                       "\"headlines\":0,\"leadlines\":0}"));
  EXPECT_TRUE(contains(json, "\"head\":[],\"lead\":[],\"tail\":[\" 999         0"));
  EXPECT_TRUE(contains(json,
                       "{\"newKeyRaw\":\"\",\"newKey\":\"\",\"oldKeyRaw\":\"VT\","
                       "\"oldKey\":\"VT**\",\"spindleKey\":\"01SP\",\"scaleFactor\":\"100\""));
  // The spindle point stands last but one; the end point closes the symbol.
  EXPECT_TRUE(contains(json, "[6,1500,1000],[1,3000,1000]]"));
  EXPECT_TRUE(contains(json, "\"messages\":[]"));

  const auto psy =
      runSymbols({"list", sample("EXAMPLE.PSY"), "--workdir", QUORN_SAMPLE_DIR, "--json"});
  ASSERT_EQ(psy.status, 0) << psy.err;
  EXPECT_TRUE(
      contains(compactJson(psy.out), "\"lead\":[\"*PLANT-SYMBOLS\",\"REVISION B  30 MM GRID\"]"));

  const auto idf = runSymbols({"list", sample("EXAMPLE.IDF"), "--workdir", QUORN_SAMPLE_DIR});
  ASSERT_EQ(idf.status, 0) << idf.err;
  EXPECT_TRUE(contains(idf.out, "Head lines: 2\n"));
  EXPECT_TRUE(contains(idf.out, "Tail lines: 2\n"));
  EXPECT_TRUE(contains(idf.out, "\n4 Symbols Loaded\n"));
}

TEST(ListCommand, ShowsLimitMessagesAndRefusesFilesItCannotRead) {
  test::TempDirectory directory;
  directory.write("SYMBOLS.INI", sampleText("SYMBOLS.INI"));
  std::string cfg = sampleText("SYMBOLS.CFG");
  const std::string setting = "MAXSYMBOLSINFILE = 100";
  ASSERT_NE(cfg.find(setting), std::string::npos);
  cfg.replace(cfg.find(setting), setting.size(), "MAXSYMBOLSINFILE = 2");
  directory.write("SYMBOLS.CFG", cfg);
  const std::string workdir = directory.path().string();

  const auto limited = runSymbols({"list", sample("EXAMPLE.IDF"), "--workdir", workdir, "--json"});
  ASSERT_EQ(limited.status, 0) << limited.err;
  const std::string limit =
      "This File contains more than  2 symbols which is the maximum number allowed. Only the "
      "first  2 have been read. Please see READMESY.TXT for more details.";
  EXPECT_EQ(limited.err, limit + "\n");
  EXPECT_TRUE(contains(compactJson(limited.out), "\"messages\":[\"" + limit + "\"]"));

  // Read as the plant format, the ASCII sample lacks the test string.
  const auto wrongFormat = directory.write("COPY.PSY", sampleText("EXAMPLE.SYM"));
  const auto refused = runSymbols({"list", wrongFormat.string(), "--workdir", workdir, "--json"});
  EXPECT_EQ(refused.status, 2);
  EXPECT_EQ(refused.out, "");
  EXPECT_EQ(refused.err,
            "Test String '*PLANT-SYMBOLS' not found in " + wrongFormat.string() + "\n");

  const auto unknown = runSymbols({"list", sample("EXAMPLE.SYM"), "extra", "--workdir", workdir});
  EXPECT_EQ(unknown.status, 2);
  EXPECT_TRUE(contains(unknown.err, "usage: symbols list FILE"));
}

}  // namespace
}  // namespace quorn
