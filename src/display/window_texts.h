#pragma once
// Texts of the edit window that several commands write.

#include <string>

#include <string_view>

namespace quorn {

/// The edit window's caption when no file is open; also the title of a few questions.
inline constexpr std::string_view kWindowCaption = "User Defined Symbols Editor";
inline constexpr std::string_view kSelectNewSymbolPrompt = "Select New Symbol";
/// The prompt that waits for a new symbol's start point.
inline constexpr std::string_view kStartPointPrompt =
    "Move to Start Point for Symbol and Select with Left Button";
/// Done, or a pending symbol stored by a File command, without an end point.
inline constexpr std::string_view kNoEndPointText =
    "Symbol Must Have an End Point before terminating.";

/// The buttons of the window's own small dialogs: the tips dialog, the viewers, the Scale
/// dialog and the spindle picker close with the first, the About box with the second.
inline constexpr std::string_view kCloseCaption = "&Close";
inline constexpr std::string_view kOkCaption = "OK";
/// The picker buttons beside the new-symbol dialog's Old SKEY and Spindle SKEY fields.
inline constexpr std::string_view kPickerButtonCaption = "...";
/// The Scale dialog's title (its button on the edit window reads the same).
inline constexpr std::string_view kScaleDialogTitle = "Scale";
/// The testing aids' view of what the last Open read.
inline constexpr std::string_view kValuesViewTitle = "Symbol File Values";

/// The count with its leading blank when not negative, then " Symbols Loaded": what the
/// count label and the status show after a set changes size.
std::string symbolsLoadedText(int count);

}  // namespace quorn
