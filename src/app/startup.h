#pragma once
// Start-up in its two stages: the first while the start-up window is built, the second one
// second later. Each file is read in a fixed order, with its own message when it is missing
// or damaged; a fault in a required file ends the program.

#include <functional>
#include <optional>
#include <string>

#include "app/help_file.h"
#include "app/tips_file.h"
#include "base/environment.h"
#include "base/messages.h"
#include "base/working_directory.h"
#include "config/configuration.h"
#include "config/settings.h"
#include "model/spindle_definition.h"
#include "model/symbol_collection.h"

namespace quorn {

/// What start-up fills and the editor keeps for the whole run.
struct StartupData {
  std::string versionText;      // "V 2.1.4"
  std::string commandLineFile;  // the whole command line
  std::optional<WorkingDirectory> directory;
  Tips tips;
  int chosenTip = 0;           // 0 when no tip is to be shown
  std::string startupCaption;  // the start-up window's caption
  Settings settings;
  Configuration config;
  SpindleTable spindles;
  HelpTexts helpTexts;
  SymbolLibrary library;
};

/// The text the start-up window shows while the second stage is awaited.
inline constexpr std::string_view kStartupWindowText =
    "Initialising KELVOR User Defined Symbols Editor";

/// The program's own version as "V major.minor.revision".
std::string programVersionText();

/// The first stage: version, command line, working directory, TIPS.TXT, the version and tips
/// switch of SYMBOLS.INI, the start-up caption and the random tip. A missing SYMBOLS.INI is
/// returned as the fault that ends the program.
std::optional<FatalError> runFirstStage(StartupData& data, const std::string& commandLine,
                                        Environment& environment, Messages& messages);

/// What the second stage asks of the editor once the files are read.
struct SecondStageSteps {
  /// Lays the window and the grid out for the screen and draws the grid; a text when the
  /// screen cannot hold the grid.
  std::function<std::optional<std::string>()> showEditWindow;
  /// Shows the tips dialog with the chosen tip.
  std::function<void()> showTips;
  /// Opens a file as the File Open command does.
  std::function<void(const std::string& fileName)> openFile;
};

/// The second stage: the working-directory marker, the formats of SYMBOLS.INI, SYMBOLS.CFG,
/// SPINDLES.DEF, SYMBOLS.HLP, SYMBOLS.LIB, the edit window, the tips and the command-line
/// file. A fault that ends the program is returned.
std::optional<FatalError> runSecondStage(StartupData& data, Environment& environment,
                                         Messages& messages, const SecondStageSteps& steps);

}  // namespace quorn
