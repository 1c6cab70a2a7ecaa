#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/compact_json.h"
#include "support/expected_skey_messages.h"
#include "support/run_command.h"
#include "support/temp_directory.h"

namespace quorn {
namespace {

using namespace test;  // the expected messages

using test::compactJson;
using test::runSymbols;

struct Keys {
  std::string newKey;
  std::string oldKey;
  std::string spindleKey;
  std::string scaleFactor;
};

std::string padded(std::string text, std::size_t width) {
  text.resize(width, ' ');
  return text;
}

std::string rightAligned(const std::string& text, std::size_t width) {
  return std::string(width - text.size(), ' ') + text;
}

// A symbol file of the ASCII layout: each symbol a start point and an end point.
std::string symbolFile(const std::vector<Keys>& symbols) {
  std::string zeros;
  for (int field = 0; field < 9; ++field) zeros += "       0";
  std::string text;
  for (const Keys& keys : symbols) {
    text += " 501  " + padded(keys.newKey, 4) + " " + padded(keys.oldKey, 4) + " " +
            padded(keys.spindleKey, 4) + rightAligned(keys.scaleFactor, 9) + zeros + "\r\n";
    text +=
        " 502         1       0    1500       1    3000    1500       0       0       0       0"
        "       0       0       0\r\n";
  }
  text += " 999" + zeros + zeros.substr(0, 32) + "\r\n";
  return text;
}

test::CommandResult checkKeys(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "check-keys");
  arguments.insert(arguments.end(), {"--workdir", QUORN_SAMPLE_DIR});
  return runSymbols(arguments);
}

test::CommandResult check(const std::string& file, bool json) {
  std::vector<std::string> arguments = {"check", file, "--workdir", QUORN_SAMPLE_DIR};
  if (json) arguments.push_back("--json");
  return runSymbols(arguments);
}

TEST(CheckKeysCommand, AcceptsKeysThatKeepTheRules) {
  for (const std::vector<std::string>& keys : std::vector<std::vector<std::string>>{
           {"--group", "2", "--old", " vbsw "},
           {"--group", "2", "--old", "VB**", "--new", "XYSW", "--spindle", "01sp"},
           {"--group", "2", "--old", "VBSW", "--new", "VBQQ", "--scale", "120"},
           {"--group", "9", "--old", "FLOW", "--new", "AR02"},
           {"--group", "6", "--old", "05SP", "--new", "16SP", "--spindle", "NONE"}}) {
    const auto result = checkKeys(keys);
    EXPECT_EQ(result.status, 0) << keys[3] << ' ' << result.out << result.err;
    EXPECT_EQ(result.out, "accepted\n");
    EXPECT_EQ(result.err, "");
  }
}

TEST(CheckKeysCommand, PrintsTheMessageOfTheFirstRuleThatFails) {
  const auto refused = [](std::vector<std::string> keys, const std::string& message) {
    const auto result = checkKeys(keys);
    EXPECT_EQ(result.status, 1) << message;
    EXPECT_EQ(result.out, message + "\n");
    EXPECT_EQ(result.err, "");
  };
  refused({"--group", "2", "--old", "  "}, "Original SKEY name must be defined");
  refused({"--group", "2", "--old", "vbxx"}, "VBXX is not a re-definable SKEY in this Group.");
  refused({"--group", "1", "--old", "VBSW"}, "VBSW is not a re-definable SKEY in this Group.");
  refused({"--group", "2", "--old", "VBSW", "--new", "BE**"}, kStandard);
  refused({"--group", "2", "--old", "VB**", "--new", "XYZZ"}, kNeedsEnd);
  refused({"--group", "2", "--old", "VBSW", "--new", "VBFL"}, kLooksStandard);
  refused({"--group", "2", "--old", "VBSW", "--spindle", "16SP"}, kSpindle);
  refused({"--group", "2", "--old", "VBSW", "--scale", "abc"}, kScale);
  refused({"--group", "2", "--old", "VBSW", "--new", "VBFL", "--scale", "0"}, kLooksStandard);
}

TEST(CheckKeysCommand, TakesTheCurrentSetFromAFile) {
  test::TempDirectory directory;
  const std::string set =
      directory
          .write("SET.SYM",
                 symbolFile({{"16SP", "05SP", "", "100"}, {"XYSW", "VBSW", "16SP", "100"}}))
          .string();
  const auto withSet = [&](std::vector<std::string> keys) {
    keys.insert(keys.end(), {"--set", set});
    return checkKeys(keys);
  };
  EXPECT_EQ(checkKeys({"--group", "2", "--old", "VBSW", "--spindle", "16SP"}).out, kSpindle + "\n");
  EXPECT_EQ(withSet({"--group", "2", "--old", "VBSW", "--spindle", "16SP"}).out, "accepted\n");
  const auto taken = withSet({"--group", "2", "--old", "VB**", "--new", "xysw"});
  EXPECT_EQ(taken.status, 1);
  EXPECT_EQ(taken.out, kInSet + "\n");
  EXPECT_EQ(withSet({"--group", "2", "--old", "VB**", "--new", "XYSW", "--editing", "2"}).out,
            "accepted\n");
  EXPECT_EQ(withSet({"--group", "2", "--old", "VB**", "--new", "XYSW", "--editing", "1"}).out,
            kInSet + "\n");
}

TEST(CheckKeysCommand, RefusesBadArgumentsAndUnreadableFiles) {
  test::TempDirectory directory;
  const std::string missing = (directory.path() / "MISSING.SYM").string();
  for (const std::vector<std::string>& keys : std::vector<std::vector<std::string>>{
           {"--old", "VBSW"},
           {"--group", "2"},
           {"--group", "2", "--old"},
           {"--group", "two", "--old", "VBSW"},
           {"--group", "0", "--old", "BE**"},
           {"--group", "10", "--old", "VBSW"},
           {"--group", "2", "--old", "VBSW", "extra"},
           {"--group", "2", "--old", "VBSW", "--editing", "1"},
           {"--group", "2", "--old", "VBSW", "--editing", "x", "--set", missing},
           {"--group", "2", "--old", "VBSW", "--set", missing}}) {
    const auto result = checkKeys(keys);
    EXPECT_EQ(result.status, 2) << result.out;
    EXPECT_EQ(result.out, "");
    EXPECT_NE(result.err, "");
  }
  const auto noConfig = runSymbols(
      {"check-keys", "--group", "2", "--old", "VBSW", "--workdir", directory.path().string()});
  EXPECT_EQ(noConfig.status, 2);
  EXPECT_NE(noConfig.err.find("SYMBOLS.CFG not found"), std::string::npos) << noConfig.err;
}

TEST(CheckCommand, ListsEverySymbolThatFailsWithItsMessage) {
  test::TempDirectory directory;
  const std::string file = directory
                               .write("CHECK.SYM", symbolFile({{"", "VBSW", "01SP", "100"},
                                                               {"16SP", "05SP", "", "100"},
                                                               {"XYBW", "VT", "16SP", "120"},
                                                               {"", "ZZZZ", "", "100"},
                                                               {"XYSW", "VB", "", "100"},
                                                               {"xysw", "VGFL", "", "0"},
                                                               {"", "VFFL", "", "abc"},
                                                               {"VBFL", "vbsw", "", "100"}}))
                               .string();
  const auto json = check(file, true);
  EXPECT_EQ(json.status, 1) << json.err;
  EXPECT_EQ(json.err, "");
  const std::string compact = compactJson(json.out);
  EXPECT_NE(compact.find("CHECK.SYM\",\"checked\":8,\"failures\":["), std::string::npos);
  const std::string failures =
      "{\"number\":4,\"oldKey\":\"ZZZZ\",\"newKey\":\"\",\"spindleKey\":\"\",\"message\":\"" +
      kInvalidStored +
      "\"},{\"number\":5,\"oldKey\":\"VB**\",\"newKey\":\"XYSW\",\"spindleKey\":\"\","
      "\"message\":\"" +
      kInSet +
      "\"},{\"number\":6,\"oldKey\":\"VGFL\",\"newKey\":\"XYSW\",\"spindleKey\":\"\","
      "\"message\":\"" +
      kInSet +
      "\"},{\"number\":7,\"oldKey\":\"VFFL\",\"newKey\":\"\",\"spindleKey\":\"\",\"message\":\"" +
      kScale +
      "\"},{\"number\":8,\"oldKey\":\"VBSW\",\"newKey\":\"VBFL\",\"spindleKey\":\"\","
      "\"message\":\"" +
      kLooksStandard + "\"}]}";
  EXPECT_TRUE(compact.ends_with(failures)) << compact;

  const auto text = check(file, false);
  EXPECT_EQ(text.status, 1);
  EXPECT_NE(text.out.find("Symbol 4: Old SKEY: ZZZZ\n    " + kInvalidStored + "\n"),
            std::string::npos)
      << text.out;
  EXPECT_NE(text.out.find("Symbol 5: Old SKEY: VB**   New SKEY: XYSW\n    " + kInSet + "\n"),
            std::string::npos)
      << text.out;
  EXPECT_TRUE(text.out.ends_with("\n5 of 8 symbols fail the key checks\n")) << text.out;
}

TEST(CheckCommand, PassesAFileWhoseSymbolsAllKeepTheRules) {
  test::TempDirectory directory;
  const std::string file = directory
                               .write("GOOD.SYM", symbolFile({{"", "VBSW", "01SP", "100"},
                                                              {"16SP", "05SP", "", "100"},
                                                              {"XYBW", "VT", "16SP", "120"},
                                                              {"AR02", "FLOW", "", "100"}}))
                               .string();
  const auto text = check(file, false);
  EXPECT_EQ(text.status, 0) << text.out << text.err;
  EXPECT_EQ(text.out, "All 4 symbols pass the key checks\n");
  const auto json = check(file, true);
  EXPECT_EQ(json.status, 0);
  EXPECT_TRUE(compactJson(json.out).ends_with("GOOD.SYM\",\"checked\":4,\"failures\":[]}"));
}

TEST(CheckCommand, EverySampleSymbolFilePassesTheKeyChecks) {
  for (const char* name : {"EXAMPLE.SYM", "EXAMPLE.IDF", "EXAMPLE.PSY"}) {
    const auto result = check((std::filesystem::path(QUORN_SAMPLE_DIR) / name).string(), true);
    EXPECT_EQ(result.status, 0) << name << "\n" << result.out << result.err;
    EXPECT_NE(compactJson(result.out).find("\"failures\":[]"), std::string::npos) << name;
  }
}

TEST(CheckCommand, RefusesBadArgumentsAndUnreadableFiles) {
  test::TempDirectory directory;
  for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>>{
           {"check"},
           {"check", "A.SYM", "B.SYM"},
           {"check", (directory.path() / "MISSING.SYM").string(), "--workdir", QUORN_SAMPLE_DIR},
           {"check", directory.write("EMPTY.SYM", "").string(), "--workdir", QUORN_SAMPLE_DIR}}) {
    const auto result = runSymbols(arguments);
    EXPECT_EQ(result.status, 2) << result.out;
    EXPECT_EQ(result.out, "");
    EXPECT_NE(result.err, "");
  }
}

}  // namespace
}  // namespace quorn
