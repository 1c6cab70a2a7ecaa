// Every message of start-up as a script shows it: the faults that end the program and the
// warnings after which the editor goes on, each with its whole text, title and buttons.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "support/sample_script_test.h"

namespace quorn {
namespace {

namespace fs = std::filesystem;

class StartupScriptTest : public test::SampleScriptTest {
 protected:
  /// The working directory as messages name it.
  std::string dir() const { return temp.path().string(); }

  /// A warning: the application's title and an OK button.
  static std::string warning(const std::string& text) {
    return "message \"Quorn Symbols Editor\" \"" + text + "\" [OK] none -> OK\n";
  }
};

TEST_F(StartupScriptTest, MissingRequiredFilesEndTheProgramWithTheirMessage) {
  const std::string missingFile =
      " not found in the " + dir() +
      "\\ndirectory. Please load this file \\nand try again. See READMESY.TXT for File Format";
  const struct {
    const char* removed;
    std::string fatal;
  } cases[] = {
      {"SYMBOLS.EXE",
       "The Working Directory is set to " + dir() +
           "\\nThe Working Directory must point to the SYMBOLS.EXE file.\\nPlease reset the "
           "Working Directory in the Properties\\nfor the Options File Editor icon to point to "
           "the \\ndirectory in which SYMBOLS.EXE was installed."},
      {"SYMBOLS.INI", "SYMBOLS.INI" + missingFile},
      {"SYMBOLS.CFG", "SYMBOLS.CFG" + missingFile},
  };
  for (const auto& fault : cases) {
    const fs::path kept = temp.path() / (std::string(fault.removed) + ".kept");
    fs::rename(temp.path() / fault.removed, kept);
    // The missing settings file ends the first stage, before the start-up window shows.
    const std::string shown = "\n" + run("start\nmenu File > New\n");
    EXPECT_NE(shown.find("\nfatal \"" + fault.fatal + "\"\nends\n"), std::string::npos)
        << fault.removed << "\n"
        << shown;
    EXPECT_EQ(shown.find("prompt \"Select New Symbol\""), std::string::npos) << fault.removed;
    fs::rename(kept, temp.path() / fault.removed);
  }
}

TEST_F(StartupScriptTest, MissingOptionalFilesWarnAndTheEditorGoesOn) {
  fs::remove(temp.path() / "TIPS.TXT");
  fs::remove(temp.path() / "SYMBOLS.HLP");
  fs::remove(temp.path() / "SYMBOLS.LIB");
  const std::string shown = run("start\nmenu File > New\n");
  // The tips are read in the first stage, before the start-up window shows; the rest after.
  const std::string expected =
      warning("TIPS.TXT not found in the " + dir() +
              "\\ndirectory. User Tips will not be available at Start Up") +
      "startup \"V 2.1.4 (For use with KELVOR versions up to 8.13.0 )\"\n" +
      warning("SYMBOLS.HLP not found in the " + dir() +
              "\\ndirectory. Help text will not\\nbe available on line. See READMESY.TXT for "
              "further details.") +
      warning("SYMBOLS.LIB not found in the " + dir() +
              "\\ndirectory. No Standard Symbols will be \\navailable to copy.");
  EXPECT_EQ(shown.rfind(expected, 0), 0u) << shown;
  EXPECT_EQ(shown.find("tips-dialog"), std::string::npos) << shown;
  EXPECT_NE(shown.find("prompt \"Select New Symbol\""), std::string::npos) << shown;
}

TEST_F(StartupScriptTest, ATipCountThatIsNotMatchedShowsNoTips) {
  temp.write("TIPS.TXT", "[3 TIPS]\nTIP 1\nfirst\nTIP 2\nsecond\nlast line\n");
  const std::string shown = run("start\n");
  EXPECT_NE(shown.find(warning("TIPS.TXT Appears to be Corrupt.\\nUser Tips will not be "
                               "available at Start Up. Please reload this file to restore "
                               "User Tips.")),
            std::string::npos)
      << shown;
  EXPECT_EQ(shown.find("tips-dialog"), std::string::npos) << shown;
}

TEST_F(StartupScriptTest, TheCommandLineFileIsOpenedOrReportedAfterTheWindow) {
  const std::string missing = run("start NOSUCH.SYM\n");
  const std::string name = (temp.path() / "NOSUCH.SYM").string();
  EXPECT_NE(missing.find("message \"Symbols Editor\" \"Can't find " + name +
                         "\" [OK] exclamation "
                         "-> OK\n"),
            std::string::npos)
      << missing;
  EXPECT_LT(missing.find("tips-dialog"), missing.find("Can't find"));

  const std::string opened = run("start EXAMPLE.SYM\n");
  EXPECT_EQ(opened.find("Can't find"), std::string::npos) << opened;
  EXPECT_NE(opened.find("count \" 5 Symbols Loaded\""), std::string::npos) << opened;
}

}  // namespace
}  // namespace quorn
