#pragma once
// Every text the Symbol Library reader shows.

#include <string>
#include <string_view>

namespace quorn {

inline constexpr std::string_view kLibraryFileName = "SYMBOLS.LIB";

/// SYMBOLS.LIB is not in the working directory.
std::string libraryMissingText(std::string_view directoryShown);
/// A library symbol whose old key is in no group; shown once per load.
std::string libraryUntiedText();
/// More than 250 symbols in SYMBOLS.LIB.
std::string librarySymbolLimitText();

}  // namespace quorn
