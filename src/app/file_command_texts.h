#pragma once
// Every prompt and caption of the File menu's commands.

#include <string>
#include <string_view>

namespace quorn {

inline constexpr std::string_view kWindowCaption = "User Defined Symbols Editor";
inline constexpr std::string_view kCaptionSeparator = "    ";
inline constexpr std::string_view kSelectNewSymbolPrompt = "Select New Symbol";

std::string unsavedSetQuestion();
std::string pendingSymbolSaveQuestion();
std::string pendingSymbolExitQuestion(bool closing);
std::string unsavedSetExitQuestion(bool closing);
std::string plainExitQuestion();
std::string missingEndPointText();

}  // namespace quorn
