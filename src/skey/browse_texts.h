#pragma once
// Every text of browsing the standard and current symbols.

#include <string>
#include <string_view>

namespace quorn {

inline constexpr std::string_view kStandardViewPrompt =
    "Open Symbol File, Select Standard Symbol to View, Select Symbol/New, or View/Current";
inline constexpr std::string_view kShownSymbolPrompt =
    "Select Symbol/Edit to Edit the Symbol Displayed.";
inline constexpr std::string_view kSymbolInProgressText =
    "Erase current Symbol or Press Done to Save it, before viewing others.";

/// "Symbol Number  5 does not exist": the number with its leading blank.
std::string noSuchSymbolText(int number);

}  // namespace quorn
