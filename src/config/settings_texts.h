#pragma once
// Every text the SYMBOLS.INI readers put before the user or into the settings.

#include <string>
#include <string_view>

namespace quorn {

inline constexpr std::string_view kSettingsFileName = "SYMBOLS.INI";

inline constexpr std::string_view kNoVersion = "No Version";
inline constexpr std::string_view kNoDefaultExtension = "None Specified";
/// The filter entry that always closes the file dialogs' filter.
inline constexpr std::string_view kAllFilesFilter = "All Files (*.*)|*.*";
/// The ID of the built-in ASCII layout, the one format that may also be written in binary.
inline constexpr std::string_view kQuornAsciiId = "Quorn_ASCII";

/// The extension `extension` has no EXTENSION line in the file shown as `fileShown`.
std::string structureNotDefinedText(std::string_view extension, std::string_view fileShown);
/// The structure block of `extension` lacks a usable Leadlines or Headlines value.
std::string structureNotValidText(std::string_view extension, std::string_view fileShown);

/// The file exists but could not be read; `reason` says why ("cannot be opened").
std::string settingsUnreadableText(std::string_view fileShown, std::string_view reason);

/// Problems named, with the file and line, by faultInFileText.
std::string tooManyFormatsProblem();
std::string structureCutShortProblem(std::string_view extension);
std::string valueOutOfRangeProblem(std::string_view key);

}  // namespace quorn
