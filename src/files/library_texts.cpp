#include "files/library_texts.h"

namespace quorn {

std::string libraryMissingText(std::string_view directoryShown) {
  return "SYMBOLS.LIB not found in the " + std::string(directoryShown) + "\n" +
         "directory. No Standard Symbols will be " + "\n" + "available to copy.";
}

std::string libraryUntiedText() {
  return std::string("Error reading Symbol Library - SYMBOLS.LIB") + "\n" +
         "Either this file or the SYMBOLS.CFG file may be " +
         "corrupted and the system may not function properly.";
}

std::string librarySymbolLimitText() {
  return std::string("This File contains more than ") + "250" +
         " symbols which is the maximum number allowed." + " Only the first " + "250" + " have" +
         " been read. Please see READMESY.TXT for more details.";
}

}  // namespace quorn
