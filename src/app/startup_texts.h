#pragma once
// Every text that start-up and the small help dialogs show.

#include <string>
#include <string_view>

namespace quorn {

inline constexpr std::string_view kTipsFileName = "TIPS.TXT";
inline constexpr std::string_view kHelpFileName = "SYMBOLS.HLP";
inline constexpr std::string_view kReadMeFileName = "READMESY.TXT";
inline constexpr std::string_view kMarkerFileName = "SYMBOLS.EXE";

inline constexpr std::string_view kTipsDialogTitle = "User Tips";
inline constexpr std::string_view kTipsDialogNote =
    "For information on how to disable User Tips at Start Up, please see README.TXT.";

inline constexpr std::string_view kAboutTitle = "About Symbols Editor";
/// The About box's description of the program, with its version.
std::string aboutText(std::string_view versionText);

std::string tipsMissingText(std::string_view directoryShown);
std::string tipsCorruptText();
std::string helpMissingText(std::string_view directoryShown);
std::string readMeMissingText();
/// The working directory does not hold SYMBOLS.EXE.
std::string markerMissingText(std::string_view directoryShown);
/// The file named on the command line does not exist; shown under its own title.
inline constexpr std::string_view kCannotFindTitle = "Symbols Editor";
std::string cannotFindText(std::string_view fileName);

}  // namespace quorn
