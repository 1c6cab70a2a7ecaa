#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "support/sample_script_test.h"

namespace quorn {
namespace {

// One symbol: start (0, 10 mm), a line 3 mm long, the spindle point at 15 mm and the end point
// at 30 mm. On the test's screen the grid's divisions are 233 form units (0.5 mm), so these
// stand at x 1100, 2498, 8090 and 15080 and y 5393 on the surface.
constexpr const char* kDrawingFile =
    " 501       VT   01SP      100       0       0       1       0       0       0       0       0"
    "       0\n"
    " 502         1       0    1000       2     300    1000       6    1500    1000       1    3000"
    "    1000       0\n"
    " 999         0       0       0       0       0       0       0       0       0       0       0"
    "       0       0\n";

constexpr const char* kOpened = "start\nclose-tips\nfile DRAW.SYM\nmenu File > Open\n";

/// Scripts run in a copy of the sample working directory with DRAW.SYM beside its files.
class DrawingScriptTest : public test::SampleScriptTest {
 protected:
  DrawingScriptTest() { std::ofstream(temp.path() / "DRAW.SYM") << kDrawingFile; }

  std::string error(std::string_view script) { return attempt(script).error; }
};

TEST_F(DrawingScriptTest, DrawingOnAShownSymbolIsStoredByDoneAndSaved) {
  const std::string shown = run(std::string(kOpened) +
                                "click left 1566 1432\n"
                                "click left 2032 1432\n"
                                "move 2500 1500\n"
                                "dump canvas\n"
                                "button Insul.\n"
                                "click left 1566 1898\n"
                                "click left 2964 1898\n"
                                "button TP\n"
                                "click left 3430 1898\n"
                                "menu Delete > Line\n"
                                "answer Yes\n"
                                "click left 1800 1440\n"
                                "click right 3000 3000\n"
                                "button Done\n"
                                "dump symbol\n"
                                "dump set\n"
                                "file OUT.SYM\n"
                                "menu File > Save As\n");
  // A symbol just shown takes a new stroke: a pen-up move first, then the line.
  EXPECT_TRUE(holds(shown,
                    "count \" 1 Symbols Loaded\"\n"
                    "prompt \"Select End point and Draw Line. Right Button = Move Mode.\"\n"))
      << shown;
  // The rubber band runs from the last point to the grid point under the mouse.
  EXPECT_TRUE(holds(shown, "line 2032 1432 2498 1432 BLACK solid 1\nprompt")) << shown;
  EXPECT_TRUE(holds(shown,
                    "snap \"Snap is Off\"\nmessage \"Delete Line\" \"Delete This Line?\" "
                    "[Yes No] question -> Yes\n"))
      << shown;
  EXPECT_TRUE(holds(shown,
                    "snap \"Snap is On\"\nprompt \"Show existing Symbol, Select New or "
                    "Exit\"\n"))
      << shown;
  EXPECT_TRUE(holds(shown,
                    "counts actions 7 tapping 1\nplaced end true spindle true\n"
                    "slot 1 1 1100 5393 0\nslot 2 2 2498 5393 0\n"
                    "slot 3 1 1566 1432 0\nslot 4 1 2032 1432 0\n"
                    "slot 5 1 1566 1898 0\nslot 6 4 2964 1898 0\n"
                    "slot 7 3 3430 1898 0\n"
                    "slot 201 6 8090 5393 0\nslot 202 20 15080 5393 0\n"))
      << shown;
  // 466 form units to the millimetre: the new points at 1, 4 and 5 mm right and 17.5 mm up.
  // The deleted line stays as a pen-up move, and the writer keeps only the last of the run of
  // moves it ends.
  const std::string stored =
      " 502         1       0    1000       2     300    1000       1     100    1750       4"
      "     400    1750       0\n"
      " 502         3     500    1750       6    1500    1000       1    3000    1000       0"
      "       0       0       0\n";
  EXPECT_TRUE(holds(shown, "set 1 symbols, changed\n")) << shown;
  EXPECT_TRUE(holds(shown, stored)) << shown;

  const std::string reopened = run("start\nclose-tips\nfile OUT.SYM\nmenu File > Open\ndump set\n");
  EXPECT_TRUE(holds(reopened, stored)) << reopened;
}

TEST_F(DrawingScriptTest, ABlankSymbolIsDrawnFinishedSavedAndReadBack) {
  const std::string drawn =
      run("start\nclose-tips\ngroup 2\nmenu Symbol > New\n"
          "type \"Old Symbol Key\" vbsw\nleave \"Old Symbol Key\"\npress \"Create Symbol\"\n"
          "click left 1566 5393\n"  // the start point
          "click left 2032 5393\n"
          "button Arc\n"
          "click left 2964 5393\n"  // centre
          "click left 2498 5393\n"  // start edge
          "click left 2964 4927\n"  // end: a quarter circle
          "button SP\nclick left 2964 5393\n"
          "button End\nclick left 3896 5393\n"
          "button Done\n"
          "dump symbol\n"
          "dump set\n"
          "file NEW.SYM\nmenu File > Save As\n");
  EXPECT_TRUE(holds(drawn, "prompt \"Move without Drawing. Right Button > Draw Mode\"\n")) << drawn;
  // Start, line, and the arc's pen-up move with its eight lines.
  EXPECT_TRUE(holds(drawn, "keys old \"VBSW\" new \"\" spindle \"\"\n")) << drawn;
  EXPECT_TRUE(holds(drawn, "counts actions 11 tapping 0\n")) << drawn;
  EXPECT_TRUE(holds(drawn, "slot 3 1 2964 4927 0\n")) << drawn;
  const std::size_t set = drawn.find("set 1 symbols, changed\n");
  ASSERT_NE(set, std::string::npos) << drawn;
  const std::size_t records = drawn.find('\n', set) + 1;
  const std::string stored = drawn.substr(records, drawn.find("file-dialog", records) - records);
  EXPECT_EQ(stored.rfind(" 501       VBSW", 0), 0u) << stored;
  // 466 form units to the millimetre: the start 1 mm right and 10 mm up, the line to 2 mm,
  // the arc from (4, 11) mm.
  EXPECT_TRUE(holds(stored,
                    " 502         1     100    1000       2     200    1000       1     "
                    "400    1100       2"))
      << stored;

  const std::string reopened = run("start\nclose-tips\nfile NEW.SYM\nmenu File > Open\ndump set\n");
  EXPECT_TRUE(holds(reopened, "set 1 symbols\n" + stored)) << reopened;
}

TEST_F(DrawingScriptTest, UndoFlipScaleAndTheStateDump) {
  const std::string shown = run(std::string(kOpened) +
                                "click left 1566 1432\n"
                                "click left 2032 1432\n"
                                "button Undo\n"
                                "button Flip\n"
                                "flip Vertical\n"
                                "button Scale\n"
                                "scale 0.05 30\n"
                                "scale 1 30\n"
                                "scale close\n"
                                "dump symbol\n"
                                "dump state\n"
                                "dump canvas\n");
  // Undo took back the line and the pen-up move before it.
  EXPECT_TRUE(holds(shown, "counts actions 2 tapping 0\n")) << shown;
  // Flipped about a vertical axis: the rightmost point, the end point, lands on the left edge.
  EXPECT_TRUE(holds(shown,
                    "slot 1 1 15080 5393 0\nslot 2 2 13682 5393 0\n"
                    "slot 201 6 8090 5393 0\nslot 202 20 1100 5393 0\n"))
      << shown;
  EXPECT_TRUE(holds(shown, "scale-entries \"0.1\" \"30\"\nscale-entries \"1\" \"30\"\n")) << shown;
  EXPECT_TRUE(holds(shown, "undoHistory 10 2 6 20\nlastButton 6\nsymbolOnSurface true\n")) << shown;
  EXPECT_TRUE(holds(shown, "symbolPending true\n")) << shown;
  // A 1 mm grid over 30 mm: 30 divisions of 14010 / 30 = 467 form units.
  EXPECT_TRUE(holds(shown, "\nline 1567 500 1567 ")) << shown;
}

TEST_F(DrawingScriptTest, DrawingWithoutASymbolAndScriptMistakes) {
  const std::string idle =
      run("start\nclose-tips\nbutton End\nclick right 2000 2000\nbutton Char\n");
  EXPECT_TRUE(holds(idle, "\"Please Initiate New Symbol first\" [OK]")) << idle;
  EXPECT_TRUE(holds(idle, "prompt \"Select New Symbol\"\nchar \"Char is On\"\n")) << idle;

  EXPECT_EQ(error("start\nclick middle 1 2\n"),
            "line 2: click takes left or right and the position X Y in form units");
  EXPECT_EQ(error("start\nmove 1\n"), "line 2: move takes the position X Y in form units");
  EXPECT_EQ(error("start\nbutton E&nd\n").rfind("line 2: button takes a caption: Char,", 0), 0u);
  EXPECT_EQ(error("start\nflip Vertical\n"), "line 2: the flip choice is not shown (button Flip)");
  EXPECT_EQ(error("start\nscale 1 30\n"), "line 2: the Scale dialog is not open (button Scale)");
  EXPECT_EQ(error("start\nmenu Delete > Everything\n"),
            "line 2: unknown menu entry 'Delete > Everything'");
  EXPECT_EQ(error("click left 1 2\n"), "line 1: the editor has not been started");
}

}  // namespace
}  // namespace quorn
