#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "support/sample_script_test.h"

namespace quorn {
namespace {

namespace fs = std::filesystem;

// The questions as the output line writes them, line feeds as "\n".
constexpr const char* kUnsavedSet =
    "New Symbols\\n        have not been saved.\\n                 Save Now?";
constexpr const char* kPendingSave =
    "Current Symbol has not been completed.\\n        Complete Symbol & Save (Yes)\\n"
    "Save Symbols without updating current Symbol (No)\\n"
    "           Cancel this action (Cancel)";
constexpr const char* kPendingExit =
    "Current Symbol has not been Added to Current Set.\\n"
    "Add to Current Set (Yes), Abandon Changes (No)";
constexpr const char* kUnsavedExit =
    "New Symbols have not been saved.\\nSave & Exit (Yes), Exit Without Saving (No)";
constexpr const char* kCancelLine = "\\n           Cancel this action (Cancel)";
constexpr const char* kPlainExit =
    "              Select OK to quit\\nor Cancel to Cancel this Action";
constexpr const char* kNoEndPoint = "Symbol Must Have an End Point before terminating.";

// The save dialog's filter built from the sample's formats.
constexpr const char* kFilter =
    "\"Quorn ASCII symbol file|*.SYM|IDF formatted symbol file|*.IDF|Plant symbol exchange "
    "file|*.PSY|All Files (*.*)|*.*\"";

// A new valve with a start point and one line: pending, with no end point yet.
constexpr const char* kPendingNoEnd =
    "start\nclose-tips\ngroup 2\nmenu Symbol > New\ntype \"Old Symbol Key\" VT**\n"
    "leave \"Old Symbol Key\"\ntype \"Spindle Key\" 01SP\npress \"Create Symbol\"\n"
    "click left 1100 1432\nclick left 1566 1432\n";
constexpr const char* kEndPoint = "button End\nclick left 2498 1432\n";
constexpr const char* kSpindlePoint = "button SP\nclick left 1566 1432\n";

/// The records of that valve as written: `oldKey` is "VT**" in the set and "VT" in a file.
std::string valveRecords(const std::string& oldKey, bool withSpindle) {
  return " 501       " + oldKey +
         " 01SP      100       0       0       0       0       0       0       0       0       "
         "0\n" +
         (withSpindle
              ? " 502         1       0    1850       2     100    1850       6     100    1850"
                "       1     300    1850       0\n"
              : " 502         1       0    1850       2     100    1850       1     300    1850"
                "       0       0       0       0\n");
}

std::string question(const std::string& text, const std::string& buttons,
                     const std::string& answer) {
  return "message \"Quorn Symbols Editor\" \"" + text + "\" [" + buttons + "] critical -> " +
         answer + "\n";
}

/// Scripts of the File menu, run in a copy of the sample working directory.
class FilePromptsScriptTest : public test::SampleScriptTest {
 protected:
  /// What `more` shows when run after `setup`.
  std::string after(const std::string& setup, const std::string& more) {
    const std::string before = run(setup);
    const std::string whole = run(setup + more);
    EXPECT_EQ(whole.substr(0, before.size()), before);
    return whole.substr(std::min(before.size(), whole.size()));
  }

  std::string path(const std::string& name) const { return (temp.path() / name).string(); }

  std::string saveDialog(const std::string& startName, const std::string& chosen) const {
    return "file-dialog save " + std::string(kFilter) + " 1 \"" + startName + "\" -> \"" +
           path(chosen) + "\"\n";
  }

  std::string captionOf(const std::string& name) const {
    return "caption \"User Defined Symbols Editor    " + path(name) + "\"\n";
  }

  /// The set's records as a file holds them between its first line and its end marker.
  std::string recordsIn(const std::string& name) const {
    std::string text = temp.read(name);
    std::erase(text, '\r');
    const auto end = text.find(" 999 ");
    return end == std::string::npos ? text : text.substr(0, end);
  }

  /// `shown` up to the end of the program; the window may still note its last texts after it.
  static std::string upToEnd(const std::string& shown) {
    const auto end = shown.find("ends\n");
    return end == std::string::npos ? shown : shown.substr(0, end + 5);
  }

  /// A finished valve: stored into the Current Set by Done, so the set has changed.
  static std::string finished() {
    return std::string(kPendingNoEnd) + kSpindlePoint + kEndPoint + "button Done\n";
  }
};

TEST_F(FilePromptsScriptTest, NewAndOpenOfferToSaveAChangedSet) {
  EXPECT_EQ(after(finished(), "answer Yes\nfile KEPT.SYM\nmenu File > New\n"),
            question(kUnsavedSet, "Yes No", "Yes") + saveDialog("", "KEPT.SYM") +
                "prompt \"Select New Symbol\"\n");
  EXPECT_EQ(recordsIn("KEPT.SYM"), valveRecords("VT  ", true));

  EXPECT_EQ(
      after(finished(), "answer No\nmenu File > New\ndump set\n"),
      question(kUnsavedSet, "Yes No", "No") + "prompt \"Select New Symbol\"\nset 0 symbols\n");

  fs::remove(temp.path() / "KEPT.SYM");
  const std::string openedAfterYes =
      after(finished(), "answer Yes\nfile KEPT.SYM\nfile EXAMPLE.SYM\nmenu File > Open\n");
  EXPECT_EQ(
      openedAfterYes.substr(0, openedAfterYes.find("file-dialog open")),
      question(kUnsavedSet, "Yes No", "Yes") + saveDialog("", "KEPT.SYM") + captionOf("KEPT.SYM"));
  EXPECT_NE(openedAfterYes.find(captionOf("EXAMPLE.SYM") +
                                "prompt \"Select Symbol/Edit to Edit the Symbol Displayed.\"\n"
                                "count \" 5 Symbols Loaded\"\n"),
            std::string::npos)
      << openedAfterYes;
  EXPECT_EQ(recordsIn("KEPT.SYM"), valveRecords("VT  ", true));

  const std::string openedAfterNo =
      after(finished(), "answer No\nfile EXAMPLE.SYM\nmenu File > Open\n");
  EXPECT_EQ(openedAfterNo.substr(0, openedAfterNo.find("file-dialog open")),
            question(kUnsavedSet, "Yes No", "No"));

  // An unchanged set is replaced without a question.
  EXPECT_EQ(after("start\nclose-tips\nfile EXAMPLE.SYM\nmenu File > Open\n", "menu File > New\n"),
            "caption \"User Defined Symbols Editor\"\nprompt \"Select New Symbol\"\n");
}

TEST_F(FilePromptsScriptTest, SaveAndSaveAsSettleAPendingSymbolFirst) {
  // Yes without an end point: the command is abandoned, no dialog is shown.
  EXPECT_EQ(after(kPendingNoEnd, "answer Yes\nmenu File > Save\n"),
            question(kPendingSave, "Yes No Cancel", "Yes") + question(kNoEndPoint, "OK", "OK"));
  EXPECT_EQ(after(kPendingNoEnd, "answer Yes\nmenu File > Save As\n"),
            question(kPendingSave, "Yes No Cancel", "Yes") + question(kNoEndPoint, "OK", "OK"));

  // Yes with an end point stores the symbol, which changes the set, so Save writes it.
  const std::string pending = std::string(kPendingNoEnd) + kEndPoint;
  EXPECT_EQ(after(pending, "answer Yes\nfile SAVED.SYM\nmenu File > Save\ndump set\n"),
            question(kPendingSave, "Yes No Cancel", "Yes") + saveDialog("", "SAVED.SYM") +
                captionOf("SAVED.SYM") + "set 1 symbols\n" + valveRecords("VT  ", false));
  EXPECT_EQ(recordsIn("SAVED.SYM"), valveRecords("VT  ", false));

  // No: the symbol stays out of the set; nothing has changed, so Save writes nothing while
  // Save As writes the empty set.
  EXPECT_EQ(after(pending, "answer No\nmenu File > Save\ndump set\n"),
            question(kPendingSave, "Yes No Cancel", "No") + "set 0 symbols\n");
  EXPECT_EQ(after(pending, "answer No\nfile EMPTY.SYM\nmenu File > Save As\n"),
            question(kPendingSave, "Yes No Cancel", "No") + saveDialog("", "EMPTY.SYM") +
                captionOf("EMPTY.SYM"));
  EXPECT_EQ(recordsIn("EMPTY.SYM"), "");

  // Cancel stops both commands before their dialog.
  EXPECT_EQ(after(pending, "answer Cancel\nmenu File > Save\nanswer Cancel\nmenu File > Save As\n"),
            question(kPendingSave, "Yes No Cancel", "Cancel") +
                question(kPendingSave, "Yes No Cancel", "Cancel"));
}

TEST_F(FilePromptsScriptTest, ExitAsksAboutAPendingSymbolWithCancelAndClosingWithout) {
  const std::string withCancel = std::string(kPendingExit) + kCancelLine;
  // Exit: Yes without an end point keeps the program running, as does Cancel; No abandons
  // the symbol and, the set being unchanged, leaves the plain question.
  EXPECT_EQ(after(kPendingNoEnd,
                  "answer Yes\nmenu File > Exit\nanswer Cancel\nmenu File > Exit\n"
                  "answer No OK\nmenu File > Exit\n"),
            question(withCancel, "Yes No Cancel", "Yes") + question(kNoEndPoint, "OK", "OK") +
                question(withCancel, "Yes No Cancel", "Cancel") +
                question(withCancel, "Yes No Cancel", "No") +
                question(kPlainExit, "OK Cancel", "OK") + "ends\n");

  // The close box offers Yes and No only; No ends the program without the plain question.
  EXPECT_EQ(after(kPendingNoEnd, "answer No\nclose\n"),
            question(kPendingExit, "Yes No", "No") + "ends\n");
  EXPECT_EQ(after(kPendingNoEnd, "answer Yes\nclose\ndump set\n"),
            question(kPendingExit, "Yes No", "Yes") + question(kNoEndPoint, "OK", "OK") +
                "set 0 symbols\n");

  // Yes with an end point stores the symbol; the changed set is asked about next.
  EXPECT_EQ(
      after(std::string(kPendingNoEnd) + kEndPoint, "answer Yes No\nclose\n"),
      question(kPendingExit, "Yes No", "Yes") + question(kUnsavedExit, "Yes No", "No") + "ends\n");
  EXPECT_EQ(upToEnd(after(std::string(kPendingNoEnd) + kEndPoint,
                          "answer Yes Yes\nfile EXIT.SYM\nmenu File > Exit\n")),
            question(withCancel, "Yes No Cancel", "Yes") +
                question(std::string(kUnsavedExit) + kCancelLine, "Yes No Cancel", "Yes") +
                saveDialog("", "EXIT.SYM") + "ends\n");
  EXPECT_EQ(recordsIn("EXIT.SYM"), valveRecords("VT  ", false));
}

TEST_F(FilePromptsScriptTest, ExitAsksAboutAChangedSetWithCancelAndClosingWithout) {
  const std::string withCancel = std::string(kUnsavedExit) + kCancelLine;
  EXPECT_EQ(after(finished(), "answer Cancel\nmenu File > Exit\ndump set\n"),
            question(withCancel, "Yes No Cancel", "Cancel") + "set 1 symbols, changed\n" +
                valveRecords("VT**", true));
  EXPECT_EQ(after(finished(), "answer No\nmenu File > Exit\n"),
            question(withCancel, "Yes No Cancel", "No") + "ends\n");
  EXPECT_EQ(upToEnd(after(finished(), "answer Yes\nfile EXIT.SYM\nmenu File > Exit\n")),
            question(withCancel, "Yes No Cancel", "Yes") + saveDialog("", "EXIT.SYM") + "ends\n");
  EXPECT_EQ(recordsIn("EXIT.SYM"), valveRecords("VT  ", true));

  EXPECT_EQ(after(finished(), "answer No\nclose\n"),
            question(kUnsavedExit, "Yes No", "No") + "ends\n");
  fs::remove(temp.path() / "EXIT.SYM");
  EXPECT_EQ(upToEnd(after(finished(), "answer Yes\nfile EXIT.SYM\nclose\n")),
            question(kUnsavedExit, "Yes No", "Yes") + saveDialog("", "EXIT.SYM") + "ends\n");
  EXPECT_EQ(recordsIn("EXIT.SYM"), valveRecords("VT  ", true));
}

TEST_F(FilePromptsScriptTest, ExitWithNothingToSaveAsksOnceAndClosingAsksNothing) {
  const std::string opened = "start\nclose-tips\nfile EXAMPLE.SYM\nmenu File > Open\n";
  EXPECT_EQ(after(opened, "answer Cancel\nmenu File > Exit\nanswer OK\nmenu File > Exit\n"),
            question(kPlainExit, "OK Cancel", "Cancel") + question(kPlainExit, "OK Cancel", "OK") +
                "ends\n");
  EXPECT_EQ(after(opened, "close\n"), "ends\n");
  // A symbol finished with Done is no longer pending: only the changed set is asked about.
  EXPECT_EQ(after(finished(), "answer No\nclose\n"),
            question(kUnsavedExit, "Yes No", "No") + "ends\n");
}

TEST_F(FilePromptsScriptTest, OpenAndSaveSetCaptionAndCountAndWriteOnlyWhatChanged) {
  const std::string opened = run("start\nclose-tips\nfile EXAMPLE.SYM\nmenu File > Open\n");
  EXPECT_NE(opened.find(captionOf("EXAMPLE.SYM") +
                        "prompt \"Select Symbol/Edit to Edit the Symbol Displayed.\"\n"
                        "count \" 5 Symbols Loaded\"\n"),
            std::string::npos)
      << opened;

  // Saving an unchanged set writes nothing and makes no backup.
  const std::string original = temp.read("EXAMPLE.SYM");
  std::ofstream(temp.path() / "EXAMPLE.SYM", std::ios::app) << "marker\n";
  EXPECT_EQ(after("start\nclose-tips\nfile EXAMPLE.SYM\nmenu File > Open\n", "menu File > Save\n"),
            "");
  EXPECT_EQ(temp.read("EXAMPLE.SYM"), original + "marker\n");
  EXPECT_FALSE(fs::exists(temp.path() / "EXAMPLE.BAK"));

  // A changed set is saved over the open file without a dialog, the old file kept as backup.
  EXPECT_EQ(after("start\nclose-tips\nfile EXAMPLE.SYM\nmenu File > Open\n",
                  "click left 1566 1432\nclick left 2032 1432\nanswer Yes\nmenu File > Save\n"),
            "prompt \"Select End point and Draw Line. Right Button = Move Mode.\"\n" +
                question(kPendingSave, "Yes No Cancel", "Yes"));
  EXPECT_EQ(temp.read("EXAMPLE.BAK"), original + "marker\n");
  EXPECT_NE(temp.read("EXAMPLE.SYM"), original + "marker\n");

  // Save As starts from the open file's name and writes the unchanged set.
  EXPECT_EQ(after("start\nclose-tips\nfile EXAMPLE.SYM\nmenu File > Open\n",
                  "file COPY.SYM\nmenu File > Save As\n"),
            saveDialog(path("EXAMPLE.SYM"), "COPY.SYM") + captionOf("COPY.SYM"));
  EXPECT_TRUE(fs::exists(temp.path() / "COPY.SYM"));

  // A file without symbols leaves the count label as it was.
  temp.write("NONE.SYM",
             " 999         0       0       0       0       0       0       0       0"
             "       0       0       0       0       0\n");
  const std::string reopened = after("start\nclose-tips\nfile EXAMPLE.SYM\nmenu File > Open\n",
                                     "file NONE.SYM\nmenu File > Open\ndump window\n");
  EXPECT_NE(reopened.find(captionOf("NONE.SYM") + "prompt "), std::string::npos) << reopened;
  EXPECT_NE(reopened.find("\ncount \" 5 Symbols Loaded\"\n"), std::string::npos) << reopened;
}

}  // namespace
}  // namespace quorn
