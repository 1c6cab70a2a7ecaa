#include "files/library_reader.h"

#include <gtest/gtest.h>

#include "support/recording_messages.h"
#include "support/temp_directory.h"

namespace quorn {
namespace {

std::string header(std::string_view oldKey) {
  std::string line = " 501       " + std::string(oldKey);
  line.resize(15, ' ');
  return line +
         "          100       0       0       0       0       0       0       0       0"
         "       0\r\n";
}

const std::string kActions =
    " 502         1     500    1000       6     900    1500       2    1500    1000"
    "       1    2500    1000       0\r\n";

Configuration groupsWith(std::vector<std::vector<std::string>> skeys) {
  Configuration config;
  config.groups.resize(skeys.size());
  for (std::size_t group = 0; group < skeys.size(); ++group) {
    for (const std::string& skey : skeys[group]) config.groups[group].entries.push_back({skey, ""});
  }
  config.groupCount = static_cast<std::int16_t>(skeys.size() - 1);
  return config;
}

TEST(LibraryReader, TiesEachSymbolToTheFirstEntryItDraws) {
  Configuration config = groupsWith({{"VB**"}, {"FLWN", "VB**"}, {"vb**", "RCBW"}});
  SymbolLibrary library;
  test::RecordingMessages messages;
  ASSERT_TRUE(parseLibrary(
      header("vb") + kActions + header("FLWN") + "comment line\r\n" + header("RCBW") + kActions,
      "SYMBOLS.LIB", library, config, messages));
  EXPECT_TRUE(library.loaded);
  ASSERT_EQ(library.count(), 3);
  EXPECT_TRUE(messages.shown().empty());
  // Group 0 is never searched; the first match from group 1 wins.
  EXPECT_EQ(config.groups[0].entries[0].librarySymbol, 0);
  EXPECT_EQ(config.groups[1].entries[0].librarySymbol, 2);
  EXPECT_EQ(config.groups[1].entries[1].librarySymbol, 1);
  EXPECT_EQ(config.groups[2].entries[0].librarySymbol, 0);
  EXPECT_EQ(config.groups[2].entries[1].librarySymbol, 3);
  // The spindle point moves to the last place but one after reading.
  EXPECT_EQ(library.symbol(1).action(3).type, kSpindlePoint);
}

TEST(LibraryReader, SaysOncePerLoadThatSymbolsDrawNoEntryAndKeepsThem) {
  Configuration config = groupsWith({{}, {"FLWN"}});
  SymbolLibrary library;
  test::RecordingMessages messages;
  ASSERT_TRUE(parseLibrary(header("XX01") + header("FLWN") + header("XX02"), "SYMBOLS.LIB", library,
                           config, messages));
  EXPECT_EQ(library.count(), 3);
  ASSERT_EQ(messages.texts().size(), 1u);
  EXPECT_EQ(messages.texts()[0],
            "Error reading Symbol Library - SYMBOLS.LIB\nEither this file or the SYMBOLS.CFG file "
            "may be corrupted and the system may not function properly.");
  messages.clear();
  ASSERT_TRUE(parseLibrary(header("XX03"), "SYMBOLS.LIB", library, config, messages));
  EXPECT_EQ(messages.texts().size(), 1u);
  EXPECT_EQ(config.groups[1].entries[0].librarySymbol, 0) << "a new load starts from no links";
}

TEST(LibraryReader, KeepsTheFirst250Symbols) {
  Configuration config = groupsWith({{}, {"FLWN"}});
  SymbolLibrary library;
  test::RecordingMessages messages;
  std::string content;
  for (int i = 0; i < 251; ++i) content += header("FLWN");
  ASSERT_TRUE(parseLibrary(content, "SYMBOLS.LIB", library, config, messages));
  EXPECT_EQ(library.count(), 250);
  ASSERT_EQ(messages.texts().size(), 1u);
  EXPECT_EQ(messages.texts()[0],
            "This File contains more than 250 symbols which is the maximum number allowed. Only "
            "the first 250 have been read. Please see READMESY.TXT for more details.");
}

TEST(LibraryReader, ABinaryFileIsReportedWithItsLineAndLoadsNothing) {
  Configuration config = groupsWith({{}, {"FLWN"}});
  SymbolLibrary library;
  test::RecordingMessages messages;
  const std::string content = header("FLWN") + std::string("\x01\x02\0\x03\r\n", 6);
  EXPECT_FALSE(parseLibrary(content, "SYMBOLS.LIB", library, config, messages));
  EXPECT_FALSE(library.loaded);
  EXPECT_EQ(library.count(), 0);
  EXPECT_EQ(config.groups[1].entries[0].librarySymbol, 0);
  ASSERT_EQ(messages.texts().size(), 1u);
  EXPECT_EQ(messages.texts()[0].rfind("SYMBOLS.LIB, line 2: ", 0), 0u) << messages.texts()[0];

  messages.clear();
  EXPECT_FALSE(
      parseLibrary(header("FLWN") + " 502         1   99999    1000       0       0       0\r\n",
                   "SYMBOLS.LIB", library, config, messages));
  ASSERT_EQ(messages.texts().size(), 1u);
  EXPECT_EQ(messages.texts()[0].rfind("SYMBOLS.LIB, line 2: ", 0), 0u) << messages.texts()[0];
}

TEST(LibraryReader, FindsTheFileInAnyCaseAndReportsItsAbsence) {
  test::TempDirectory temp;
  Configuration config = groupsWith({{}, {"FLWN"}});
  SymbolLibrary library;
  test::RecordingMessages messages;
  EXPECT_FALSE(readLibrary(WorkingDirectory(temp.path()), library, config, messages));
  ASSERT_EQ(messages.texts().size(), 1u);
  EXPECT_EQ(messages.texts()[0],
            "SYMBOLS.LIB not found in the " + temp.path().string() +
                "\ndirectory. No Standard Symbols will be \navailable to copy.");
  temp.write("symbols.lib", header("FLWN") + kActions);
  EXPECT_TRUE(readLibrary(WorkingDirectory(temp.path()), library, config, messages));
  EXPECT_EQ(library.count(), 1);
  EXPECT_EQ(config.groups[1].entries[0].librarySymbol, 1);
}

}  // namespace
}  // namespace quorn
