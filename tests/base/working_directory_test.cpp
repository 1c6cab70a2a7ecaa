#include "base/working_directory.h"

#include <gtest/gtest.h>

#include "support/temp_directory.h"

namespace quorn {
namespace {

namespace fs = std::filesystem;

TEST(WorkingDirectory, TheVariableWinsUnlessItIsEmpty) {
  EXPECT_EQ(WorkingDirectory::choose(std::string("data"), "here").path(), fs::path("data"));
  EXPECT_EQ(WorkingDirectory::choose(std::string(""), "here").path(), fs::path("here"));
  EXPECT_EQ(WorkingDirectory::choose(std::nullopt, "here").path(), fs::path("here"));
}

TEST(WorkingDirectory, ShowsPathsWithThePlatformSeparatorAndNoTrailingOne) {
  const std::string separator(1, static_cast<char>(fs::path::preferred_separator));
  const WorkingDirectory directory(fs::path("sym") / "work" / "");
  EXPECT_EQ(directory.shown(), "sym" + separator + "work");
  EXPECT_EQ(directory.shownPath("SYMBOLS.CFG"),
            "sym" + separator + "work" + separator + "SYMBOLS.CFG");
}

TEST(WorkingDirectory, FindsFixedNamesInAnyLetterCase) {
  test::TempDirectory temp;
  temp.write("symbols.cfg", "x");
  temp.write("Symbols.Ini", "x");
  const WorkingDirectory directory(temp.path());
  EXPECT_TRUE(directory.has("SYMBOLS.CFG"));
  EXPECT_TRUE(directory.has("SYMBOLS.INI"));
  EXPECT_EQ(directory.locate("SYMBOLS.CFG").filename(), "symbols.cfg");
  EXPECT_FALSE(directory.has("SYMBOLS.LIB"));
  EXPECT_EQ(directory.locate("SYMBOLS.LIB"), temp.path() / "SYMBOLS.LIB");
}

TEST(WorkingDirectory, PrefersTheExactNameAndIgnoresFolders) {
  test::TempDirectory temp;
  temp.write("TIPS.TXT", "exact");
  temp.write("tips.txt", "other");
  fs::create_directory(temp.path() / "SYMBOLS.HLP");
  const WorkingDirectory directory(temp.path());
  EXPECT_EQ(directory.locate("TIPS.TXT").filename(), "TIPS.TXT");
  EXPECT_FALSE(directory.has("SYMBOLS.HLP"));
}

}  // namespace
}  // namespace quorn
