#include "app/script_runner.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "support/sample_script_test.h"

namespace quorn {
namespace {

namespace fs = std::filesystem;

using ScriptRunnerTest = test::SampleScriptTest;

TEST_F(ScriptRunnerTest, OpenSaveAsAndReopenGiveTheSameSet) {
  ASSERT_TRUE(attempt("start\nfile EXAMPLE.IDF\nmenu File > Open\ndump set\n"
                      "answer OK\nfile COPY.IDF\nmenu File > Save As\n")
                  .ok)
      << output.str();
  const std::string first = output.str();
  const auto setStart = first.find("set 4 symbols\n");
  ASSERT_NE(setStart, std::string::npos) << first;
  const std::string dumped = first.substr(setStart, first.find("file-dialog save") - setStart);
  EXPECT_NE(first.find("caption \"User Defined Symbols Editor    " +
                       (temp.path() / "COPY.IDF").string() + "\""),
            std::string::npos)
      << first;

  ASSERT_TRUE(attempt("start\nfile COPY.IDF\nmenu File > Open\ndump set\n").ok) << output.str();
  EXPECT_NE(output.str().find(dumped), std::string::npos) << output.str();
}

TEST_F(ScriptRunnerTest, StartUpWarningsAndFaultsAreShown) {
  fs::remove(temp.path() / "SYMBOLS.LIB");
  ASSERT_TRUE(attempt("start MISSING.SYM\ndump window\n").ok);
  const std::string shown = output.str();
  EXPECT_NE(shown.find("message \"Quorn Symbols Editor\" \"SYMBOLS.LIB not found in the "),
            std::string::npos)
      << shown;
  EXPECT_NE(shown.find("message \"Symbols Editor\" \"Can't find " +
                       (temp.path() / "MISSING.SYM").string() + "\" [OK] exclamation -> OK"),
            std::string::npos)
      << shown;
  EXPECT_NE(shown.find("group-row \"Redefining Valves\""), std::string::npos) << shown;
  // The sample switches the tips on; the test's random number 0.5 picks tip 4 of 6.
  EXPECT_NE(shown.find("tips-dialog \"A valve that carries a spindle"), std::string::npos) << shown;

  fs::remove(temp.path() / "SYMBOLS.EXE");
  ASSERT_TRUE(attempt("start\nmenu File > New\n").ok);
  EXPECT_EQ(output.str().rfind("startup ", 0), 0u);
  EXPECT_NE(output.str().find("\nfatal \"The Working Directory is set to "), std::string::npos);
  EXPECT_EQ(output.str().substr(output.str().size() - 5), "ends\n") << "nothing runs after";
}

TEST_F(ScriptRunnerTest, ScriptMistakesNameTheirLine) {
  EXPECT_EQ(attempt("start\n\nfly away\n").error, "line 3: unknown event 'fly'");
  EXPECT_EQ(attempt("menu File > Open\n").error, "line 1: the editor has not been started");
  EXPECT_EQ(attempt("start\nmenu File > Exit\n").error,
            "line 2: a question was asked with no answer queued: \"              Select OK to "
            "quit\\nor Cancel to Cancel this Action\"");
  EXPECT_EQ(attempt("start\nmenu File > Open\n").error,
            "line 2: a file dialog was shown with no file queued");
  EXPECT_EQ(attempt("answer Maybe\n").error,
            "line 1: 'Maybe' is not an answer (Yes, No, OK, Cancel)");
  EXPECT_EQ(attempt("dump \"set\n").error, "line 1: a quoted text is not closed");
}

TEST_F(ScriptRunnerTest, ClosingTheWindowWithUnsavedWorkAsksYesOrNo) {
  ASSERT_TRUE(attempt("start\nfile EXAMPLE.SYM\nmenu File > Open\nclose\n").ok) << output.str();
  EXPECT_NE(output.str().find("\nends\n"), std::string::npos) << "nothing changed: no question";
  EXPECT_EQ(output.str().find("message"), std::string::npos) << output.str();
}

TEST_F(ScriptRunnerTest, TheHelpMenuShowsTheReadMeTheTipsAndTheAbout) {
  ASSERT_TRUE(attempt("start\nclose-tips\nmenu Help > Tips - Show User Tips\ntip 3\n"
                      "close-tips-panel\nmenu Help > About\nclose-about\n"
                      "menu Help > View Read Me File\nclose-read-me\n")
                  .ok)
      << output.str();
  const std::string shown = output.str();
  EXPECT_NE(shown.find("tip-row \"TIP 1 - Start from a standard symbol\"\n"), std::string::npos);
  EXPECT_NE(shown.find("tip-text \"The right button ends a stroke: the next left click starts a "
                       "new line with a pen-up move instead of drawing from the last point.\\n"
                       "The same right button also refreshes the screen.\""),
            std::string::npos)
      << shown;
  EXPECT_NE(shown.find("about \"About Symbols Editor\" \"Quorn Symbols Editor V "),
            std::string::npos);
  EXPECT_NE(shown.find("read-me \"QUORN SYMBOLS EDITOR - READ ME\\r\\n"), std::string::npos);

  fs::remove(temp.path() / "READMESY.TXT");
  ASSERT_TRUE(attempt("start\nmenu Help > View Read Me File\n").ok);
  EXPECT_NE(output.str().find("message \"Quorn Symbols Editor\" \"READMESY.TXT not found in the "
                              "directory with\\nSYMBOLS.EXE. Please load this file and try "
                              "again.\" [OK]"),
            std::string::npos)
      << output.str();
  EXPECT_EQ(attempt("start\ntip 1\n").error,
            "line 2: tip takes a row number of the tips panel from 1 to 0");
}

}  // namespace
}  // namespace quorn
