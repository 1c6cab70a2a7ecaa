#pragma once
// Every prompt and caption of the File menu's commands.

#include "display/window_texts.h"

#include <string>
#include <string_view>

namespace quorn {

inline constexpr std::string_view kCaptionSeparator = "    ";

std::string unsavedSetQuestion();
std::string pendingSymbolSaveQuestion();
std::string pendingSymbolExitQuestion(bool closing);
std::string unsavedSetExitQuestion(bool closing);
std::string plainExitQuestion();

}  // namespace quorn
