#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "support/run_command.h"
#include "support/temp_directory.h"

namespace quorn {
namespace {

using test::runSymbols;

const std::string kHeader =
    " 501  VBSW VB             100       1       0       1       "
    "0       0       0       0       0       2";
const std::string kActions =
    " 502         1       0       0       2     500       0      "
    " 0       0       0       0       0       0       0";
const std::string kSpHeader =
    " 501       FLSP           100       0       0       0       "
    "0       0       0       0       0       0";
const std::string kEnd =
    " 999         0       0       0       0       0       0       0       0       0       0       0"
    "       0       0";

std::string sampleFile(const std::string& name) {
  std::ifstream in(std::filesystem::path(QUORN_SAMPLE_DIR) / name, std::ios::binary);
  std::ostringstream content;
  content << in.rdbuf();
  return content.str();
}

// A working directory with the sample settings, WRITEBIN as given, and IN.SYM.
struct Folder {
  test::TempDirectory temp;
  explicit Folder(int writeBin = 0) {
    temp.write("SYMBOLS.INI", sampleFile("SYMBOLS.INI"));
    std::string config = sampleFile("SYMBOLS.CFG");
    const std::string setting = "WRITEBIN         = 0";
    config.replace(config.find(setting), setting.size(),
                   "WRITEBIN         = " + std::to_string(writeBin));
    temp.write("SYMBOLS.CFG", config);
    temp.write("IN.SYM", "head\r\n" + kHeader + "\r\n" + kActions + "\r\n" + kSpHeader + "\r\n" +
                             kEnd + "\r\ntail\r\n");
  }
  std::string path(const char* name) const { return (temp.path() / name).string(); }
  test::CommandResult convert(const char* in, const char* out, bool force = false) const {
    std::vector<std::string> words = {"convert", path(in), path(out), "--workdir",
                                      temp.path().string()};
    if (force) words.push_back("--force");
    return runSymbols(words);
  }
};

TEST(ConvertCommand, WritesTheSetInTheFormatOfTheNewExtension) {
  const Folder folder;
  const auto result = folder.convert("IN.SYM", "OUT.IDF");
  ASSERT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(result.out, "2 symbols written to " + folder.path("OUT.IDF") + "\n");
  EXPECT_EQ(folder.temp.read("OUT.IDF"),
            "head\r\n" + kSpHeader + "\r\n" + kHeader + "\r\n" + kActions + "\r\ntail\r\n");
  EXPECT_FALSE(std::filesystem::exists(folder.path("OUT.BIN")));
}

TEST(ConvertCommand, RefusesAnExistingFileUnlessForced) {
  const Folder folder(1);
  folder.temp.write("OUT.SYM", "keep me");
  const auto refused = folder.convert("IN.SYM", "OUT.SYM");
  EXPECT_EQ(refused.status, 2);
  EXPECT_EQ(refused.err,
            folder.path("OUT.SYM") + " already exists.\nDo you wish to Overwrite it?\n");
  EXPECT_EQ(folder.temp.read("OUT.SYM"), "keep me");

  const auto forced = folder.convert("IN.SYM", "OUT.SYM", true);
  ASSERT_EQ(forced.status, 0) << forced.err;
  EXPECT_TRUE(folder.temp.read("OUT.SYM").starts_with("head\r\n" + kSpHeader));
  // WRITEBIN is on: three text records and the end record, 56 bytes each.
  EXPECT_EQ(folder.temp.read("OUT.BIN").size(), 4u * 56u);
}

TEST(ConvertCommand, ARefusedReadOrWriteEndsWithStatusTwo) {
  const Folder folder;
  const auto missing = folder.convert("NONE.SYM", "OUT.SYM");
  EXPECT_EQ(missing.status, 2);
  EXPECT_FALSE(missing.err.empty());

  const auto noFormat = folder.convert("IN.SYM", "OUT.XYZ");
  EXPECT_EQ(noFormat.status, 2);
  EXPECT_NE(noFormat.err.find("File Structure for .XYZ files"), std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(folder.path("OUT.XYZ")));

  EXPECT_EQ(runSymbols({"convert", folder.path("IN.SYM")}).status, 2);
}

}  // namespace
}  // namespace quorn
