#include "app/startup_texts.h"

namespace quorn {

std::string aboutText(std::string_view versionText) {
  return "Quorn Symbols Editor " + std::string(versionText) + "\n\n" +
         "Draws and maintains the user-defined symbols of the KELVOR piping isometric system: " +
         "their keys, attributes and shapes, saved as symbol files in the formats of " +
         "SYMBOLS.INI.";
}

std::string tipsMissingText(std::string_view directoryShown) {
  return "TIPS.TXT not found in the " + std::string(directoryShown) + "\n" +
         "directory. User Tips will not be available " + "at Start Up";
}

std::string tipsCorruptText() {
  return std::string("TIPS.TXT Appears to be Corrupt.") + "\n" +
         "User Tips will not be available " + "at Start Up. Please reload this file " +
         "to restore User Tips.";
}

std::string helpMissingText(std::string_view directoryShown) {
  return "SYMBOLS.HLP not found in the " + std::string(directoryShown) + "\n" +
         "directory. Help text will not" + "\n" + "be available on line. See " + "READMESY.TXT" +
         " for further details.";
}

std::string readMeMissingText() {
  return std::string("READMESY.TXT") + " not found in the directory with" + "\n" + "SYMBOLS.EXE" +
         ". Please load this file and try again.";
}

std::string markerMissingText(std::string_view directoryShown) {
  return "The Working Directory is set to " + std::string(directoryShown) + "\n" +
         "The Working Directory must point to the " + std::string(kMarkerFileName) + " file." +
         "\n" + "Please reset the Working Directory in the Properties" + "\n" +
         "for the Options File Editor icon to point to the " + "\n" + "directory in which " +
         std::string(kMarkerFileName) + " was installed.";
}

std::string cannotFindText(std::string_view fileName) {
  return "Can't find " + std::string(fileName);
}

}  // namespace quorn
