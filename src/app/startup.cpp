#include "app/startup.h"

#include <filesystem>

#include "app/startup_texts.h"
#include "config/configuration_reader.h"
#include "config/settings_reader.h"
#include "files/library_reader.h"
#include "files/spindle_reader.h"

namespace quorn {

namespace {

constexpr std::string_view kRunDirectoryVariable = "VBRunDirectory";
constexpr std::string_view kSupportedHostVersion = "8.13.0";

WorkingDirectory findWorkingDirectory(Environment& environment) {
  return WorkingDirectory::choose(environment.variable(kRunDirectoryVariable),
                                  environment.currentDirectory());
}

}  // namespace

std::string programVersionText() {
  return "V " + std::to_string(QUORN_VERSION_MAJOR) + "." + std::to_string(QUORN_VERSION_MINOR) +
         "." + std::to_string(QUORN_VERSION_PATCH);
}

std::optional<FatalError> runFirstStage(StartupData& data, const std::string& commandLine,
                                        Environment& environment, Messages& messages) {
  data.versionText = programVersionText();
  data.commandLineFile = commandLine;
  data.directory = findWorkingDirectory(environment);
  data.settings.tipsOn = false;
  data.tips = readTips(*data.directory, messages);
  if (auto fatal = readStartupSettings(*data.directory, data.settings)) return fatal;
  data.startupCaption = data.versionText + " (For use with KELVOR versions up to " +
                        std::string(kSupportedHostVersion) + " )";
  data.chosenTip = 0;
  if (data.tips.loaded && data.settings.tipsOn) {
    data.chosenTip = chooseTip(data.tips, environment.random());
  }
  return std::nullopt;
}

std::optional<FatalError> runSecondStage(StartupData& data, Environment& environment,
                                         Messages& messages, const SecondStageSteps& steps) {
  data.directory = findWorkingDirectory(environment);
  const WorkingDirectory& directory = *data.directory;
  if (!directory.has(kMarkerFileName)) return FatalError{markerMissingText(directory.shown())};
  if (auto fatal = readFormats(directory, data.settings)) return fatal;
  if (auto fatal = readConfiguration(directory, data.config, messages)) return fatal;
  readSpindles(directory, data.spindles, messages);
  data.helpTexts = readHelpTexts(directory, messages);
  readLibrary(directory, data.library, data.config, messages);
  if (steps.showEditWindow) {
    if (auto problem = steps.showEditWindow()) return FatalError{*problem};
  }
  if (data.tips.loaded && data.settings.tipsOn && steps.showTips) steps.showTips();
  if (!data.commandLineFile.empty()) {
    std::error_code error;
    if (std::filesystem::is_regular_file(data.commandLineFile, error)) {
      if (steps.openFile) steps.openFile(data.commandLineFile);
    } else {
      messages.ask(Message{std::string(kCannotFindTitle), cannotFindText(data.commandLineFile),
                           Buttons::Ok, Icon::Exclamation});
    }
  }
  return std::nullopt;
}

}  // namespace quorn
