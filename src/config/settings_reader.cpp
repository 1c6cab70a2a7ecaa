#include "config/settings_reader.h"

#include "base/text_file.h"
#include "config/settings_parser.h"
#include "config/settings_texts.h"

namespace quorn {

namespace {

/// The file's lines, or the text that says why there are none.
struct SettingsFile {
  std::optional<TextFile> file;
  std::string fault;
};

SettingsFile openSettings(const WorkingDirectory& directory) {
  if (!directory.has(kSettingsFileName)) {
    return {std::nullopt, missingFileText(kSettingsFileName, directory.shown())};
  }
  ReadFailure failure;
  auto file = readTextFile(directory.locate(kSettingsFileName), &failure);
  if (!file) {
    return {std::nullopt,
            settingsUnreadableText(directory.shownPath(kSettingsFileName), failure.reason)};
  }
  return {std::move(file), {}};
}

}  // namespace

std::optional<FatalError> readStartupSettings(const WorkingDirectory& directory,
                                              Settings& settings) {
  SettingsFile settingsFile = openSettings(directory);
  if (!settingsFile.file) return FatalError{std::move(settingsFile.fault)};
  parseStartupSettings(*settingsFile.file, settings);
  return std::nullopt;
}

std::optional<FatalError> readFormats(const WorkingDirectory& directory, Settings& settings) {
  SettingsFile settingsFile = openSettings(directory);
  if (!settingsFile.file) return FatalError{std::move(settingsFile.fault)};
  return parseFormats(*settingsFile.file, directory.shownPath(kSettingsFileName), settings);
}

std::optional<FormatStructure> loadFormatStructure(const WorkingDirectory& directory,
                                                   std::string_view extension, bool writeBin,
                                                   Messages& messages) {
  SettingsFile settingsFile = openSettings(directory);
  if (!settingsFile.file) {
    messages.tell(std::move(settingsFile.fault));
    return std::nullopt;
  }
  return parseFormatStructure(*settingsFile.file, directory.shownPath(kSettingsFileName), extension,
                              writeBin, messages);
}

}  // namespace quorn
