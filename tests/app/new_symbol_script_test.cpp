#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <sstream>
#include <string>

#include "support/sample_script_test.h"

namespace quorn {
namespace {

namespace fs = std::filesystem;

/// Scripts of the new-symbol dialog, run in a copy of the sample working directory.
class NewSymbolScriptTest : public test::SampleScriptTest {
 protected:
  /// The lines of `text` that start with one of `prefixes`, in order.
  static std::string linesStarting(const std::string& text,
                                   std::initializer_list<std::string_view> prefixes) {
    std::istringstream lines(text);
    std::string kept;
    for (std::string line; std::getline(lines, line);) {
      for (const std::string_view prefix : prefixes) {
        if (line.rfind(prefix, 0) == 0) kept += line + "\n";
      }
    }
    return kept;
  }

  /// What the drawing surface shows at the end of `script`.
  std::string canvasAfter(const std::string& script) {
    return linesStarting(run(script + "dump canvas\n"), {"line ", "circle "});
  }
};

TEST_F(NewSymbolScriptTest, ABlankSymbolWaitsForItsStartPointAndHoldsTheMenus) {
  const std::string shown =
      run("start\nclose-tips\ngroup 2\nmenu Symbol > New\n"
          "type \"Old Symbol Key\" vbsw\nleave \"Old Symbol Key\"\npress \"Create Symbol\"\n"
          "menu Symbol > New\n");
  EXPECT_TRUE(holds(shown,
                    "dialog \"Add New Symbol\"\ndialog closed\n"
                    "prompt \"Move to Start Point for Symbol and Select with Left Button\"\n"
                    "count \" 1 Symbols Loaded\"\n"))
      << shown;
  EXPECT_TRUE(holds(shown,
                    "message \"Quorn Symbols Editor\" \"Press Done to terminate current symbol "
                    "before starting a new one.\" [OK] none -> OK\n"))
      << shown;
  EXPECT_EQ(linesStarting(shown, {"dialog "}), "dialog \"Add New Symbol\"\ndialog closed\n")
      << "the second New opens nothing";

  EXPECT_EQ(attempt("start\nmenu Symbol > New\nmenu File > Open\n").error,
            "line 3: the dialog \"Add New Symbol\" is open");
  EXPECT_EQ(attempt("start\ngroup 2\nmenu Symbol > New\ntype \"Old Symbol Key\" VBSW\n"
                    "press \"Create Symbol\"\nmenu File > New\n")
                .error,
            "line 6: menu entry 'File > New' is disabled until the symbol is finished");
  EXPECT_EQ(attempt("start\ntype \"Old Symbol Key\" VBSW\n").error,
            "line 2: the new-symbol dialog is not open");
  const std::string cancelled = run("start\nmenu Symbol > New\npress Cancel\nmenu File > New\n");
  EXPECT_TRUE(holds(cancelled, "dialog closed\n")) << cancelled;
}

TEST_F(NewSymbolScriptTest, LibraryCopiesDrawTheSymbolTheirKeysName) {
  // VB** is searched as VB: what row 3 of the valves (the library's VB) shows.
  const std::string viewed = canvasAfter("start\ngroup 2\nrow 3\n");
  const std::string copied = canvasAfter(
      "start\ngroup 2\nmenu Symbol > New\ntype \"Old Symbol Key\" VB**\n"
      "tick \"Copy Symbol from\" on\noption Library\npress \"Create Symbol\"\n");
  EXPECT_FALSE(viewed.empty());
  EXPECT_EQ(copied, viewed);
  EXPECT_FALSE(holds(output.str(), "message ")) << output.str();

  // FLOW with New SKEY AR04 is searched as AR04, the fourth flow arrow.
  const std::string arrow = canvasAfter("start\ngroup 9\nrow 4\n");
  const std::string flow = canvasAfter("start\ngroup 9\nrow 1\n");
  ASSERT_NE(arrow, flow);
  EXPECT_EQ(canvasAfter("start\ngroup 9\nmenu Symbol > New\ntype \"Old Symbol Key\" FLOW\n"
                        "type \"New Symbol Key\" AR04\ntick \"Copy Symbol from\" on\n"
                        "option Library\npress \"Create Symbol\"\n"),
            arrow);
}

TEST_F(NewSymbolScriptTest, NotFoundAnsweredNoKeepsTheDialogAsTyped) {
  const std::string shown =
      run("start\ngroup 8\nmenu Symbol > New\ntype \"Old Symbol Key\" ANCH\n"
          "type \"Scale Factor\" 80\ntick \"Copy Symbol from\" on\noption \"Current Set\"\n"
          "answer No\npress \"Create Symbol\"\ndump dialog\n");
  EXPECT_TRUE(holds(shown,
                    "message \"Symbol Editor\" \"Symbol ANCH could not be found in Current "
                    "Symbol Set.\\rCreate a blank image?\" [Yes No] exclamation -> No\n"))
      << shown;
  EXPECT_FALSE(holds(shown, "dialog closed")) << shown;
  EXPECT_TRUE(holds(shown, "field \"Old Symbol Key\" \"ANCH\" enabled")) << shown;
  EXPECT_TRUE(holds(shown, "field \"Scale Factor\" \"80\" enabled")) << shown;
  EXPECT_TRUE(holds(shown, "tick \"Copy Symbol from\" on\noption \"Current Set\"\n")) << shown;

  const std::string blank =
      run("start\ngroup 8\nmenu Symbol > New\ntype \"Old Symbol Key\" ANCH\n"
          "tick \"Copy Symbol from\" on\noption Library\noption \"Current Set\"\nanswer Yes\n"
          "press \"Create Symbol\"\n");
  EXPECT_TRUE(holds(blank,
                    "-> Yes\ndialog closed\n"
                    "prompt \"Move to Start Point for Symbol and Select with Left Button\"\n"))
      << blank;
}

TEST_F(NewSymbolScriptTest, AFullSetRefusesNewSymbolsWithTheLimit) {
  const fs::path cfg = temp.path() / "SYMBOLS.CFG";
  std::ifstream in(cfg);
  std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  in.close();
  const std::string key = "MAXSYMBOLSINFILE = 100";
  ASSERT_NE(text.find(key), std::string::npos);
  text.replace(text.find(key), key.size(), "MAXSYMBOLSINFILE = 5");
  std::ofstream(cfg) << text;

  const std::string shown = run("start\nfile EXAMPLE.SYM\nmenu File > Open\nmenu Symbol > New\n");
  EXPECT_TRUE(holds(shown, "\"Unable to Create Symbol as you have reached the limit of  5.\" [OK]"))
      << shown;
  EXPECT_FALSE(holds(shown, "\ndialog ")) << shown;
}

TEST_F(NewSymbolScriptTest, EditingWithoutChangesRewritesTheSameRow) {
  const std::string open = "start\nfile EXAMPLE.SYM\nmenu File > Open\n";
  const std::string before = linesStarting(run(open + "dump window\n"), {"symbol-row "});
  const std::string shown =
      run(open + "menu Symbol > Edit\ndump dialog\npress \"Edit Symbol\"\ndump window\n");
  EXPECT_TRUE(holds(shown, "dialog \"Edit Symbol\"\n")) << shown;
  EXPECT_TRUE(holds(shown, "item Arrow 0 \"Use the Old SKEY Setting\"\n")) << shown;
  EXPECT_TRUE(holds(shown, "button \"Edit Symbol\"\n")) << shown;
  EXPECT_TRUE(holds(shown,
                    "dialog closed\nprompt \"Use the various control buttons and menu items to "
                    "modify the Symbol.\"\n"))
      << shown;
  EXPECT_FALSE(before.empty());
  EXPECT_EQ(linesStarting(shown, {"symbol-row "}), before);

  EXPECT_EQ(attempt(open + "menu Symbol > Edit\npress \"Create Symbol\"\n").error,
            "line 5: the dialog's buttons are \"Edit Symbol\" and \"Cancel\"");
}

TEST_F(NewSymbolScriptTest, ThePickersFillTheOldAndSpindleKeys) {
  const std::string shown =
      run("start\ngroup 2\nmenu Symbol > New\npicker existing\npick 3\n"
          "picker spindle\npick 02SP\npicker close\ndump dialog\n");
  EXPECT_TRUE(holds(shown,
                    "picker \"Select Existing Symbol\" \"Select a symbol from the list of Valves "
                    "as the basis for the Re-Defined Symbol.\"\npicker-row \"VT**\"\n"
                    "picker-row \"VG**\"\npicker-row \"VB**\"\n"))
      << shown;
  EXPECT_TRUE(holds(shown,
                    "picker closed\npicker \"Standard Spindles\" \"Click on Chosen "
                    "Spindle to Select\"\npicker-row \"01SP\"\n"))
      << shown;
  EXPECT_TRUE(holds(shown, "field \"Old Symbol Key\" \"VB**\"")) << shown;
  EXPECT_TRUE(holds(shown, "field \"Spindle Key\" \"02SP\"")) << shown;

  EXPECT_EQ(attempt("start\ngroup 1\nmenu Symbol > New\npicker spindle\n").error,
            "line 4: the spindle picker's button is disabled");
  EXPECT_EQ(attempt("start\ngroup 2\nmenu Symbol > New\npicker spindle\n"
                    "type \"Scale Factor\" 50\n")
                .error,
            "line 5: the picker \"Standard Spindles\" is open");
}

}  // namespace
}  // namespace quorn
