#include "app/startup_texts.h"

namespace quorn {

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

}  // namespace quorn
