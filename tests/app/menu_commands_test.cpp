// Menu entries by their paths, and which of them a script may choose, as the window offers
// them.

#include "app/menu_commands.h"

#include <gtest/gtest.h>

#include <set>

#include "support/sample_script_test.h"

namespace quorn {
namespace {

TEST(MenuPath, NamesEveryEntryOnceAndFindsItBack) {
  std::set<std::string> paths;
  for (const MenuEntryText& entry : kMenuEntryTexts) {
    const std::string path = menuPath(entry);
    EXPECT_TRUE(paths.insert(path).second) << path;
    ASSERT_NE(menuEntryByPath(path), nullptr) << path;
    EXPECT_EQ(menuEntryByPath(path)->command, entry.command) << path;
  }
  // Access keys, trailing dots and the explanations after two blanks and a dash are dropped;
  // a single blank before the dash belongs to the caption.
  EXPECT_EQ(menuEntryByPath("File > Save As")->command, MenuCommand::SaveFileAs);
  EXPECT_EQ(menuEntryByPath("Symbol > New")->command, MenuCommand::NewSymbol);
  EXPECT_EQ(menuEntryByPath("Symbol > Edit")->command, MenuCommand::EditSymbol);
  EXPECT_EQ(menuEntryByPath("View > Symbol - from Current Set")->command,
            MenuCommand::CurrentSetView);
  EXPECT_EQ(menuEntryByPath("Help > Tips - Show User Tips")->command, MenuCommand::ShowTips);
  EXPECT_EQ(menuEntryByPath("Delete > Tapping point")->command, MenuCommand::DeleteTappingPoint);
  EXPECT_EQ(menuEntryByPath("Symbol > New  - Create a New Symbol in the Current Set"), nullptr);
  EXPECT_EQ(menuEntryByPath("File > &Save"), nullptr);
}

using MenuScriptTest = test::SampleScriptTest;

TEST_F(MenuScriptTest, TheMoveMenuIsOfferedOnlyOnceTheEditorShowsIt) {
  const std::string opened = "start\nclose-tips\nfile EXAMPLE.SYM\nmenu File > Open\n";
  EXPECT_EQ(attempt(opened + "menu Move > End point\n").error,
            "line 5: menu entry 'Move > End point' is not shown: its menu is hidden");
  const std::string shown =
      run(opened + "menu Symbol > Edit\npress \"Edit Symbol\"\nmenu Move > End point\n");
  EXPECT_TRUE(shown.ends_with(
      "prompt \"Move cursor to new position for End Point and Press Left Button\"\n"))
      << shown;
}

TEST_F(MenuScriptTest, PrintingNeedsTheWindow) {
  EXPECT_EQ(attempt("start\nmenu File > Print\n").error,
            "line 2: File > Print needs the window; symbols render draws symbols without one");
}

}  // namespace
}  // namespace quorn
