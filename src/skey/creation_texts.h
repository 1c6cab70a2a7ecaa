#pragma once
// Every text of beginning a symbol: opening the new-symbol dialog, Create, and the two pickers
// of the dialog.

#include "display/window_texts.h"

#include <string>
#include <string_view>

namespace quorn {

/// The Current Set is full: the limit with its leading blank, so two blanks stand before it.
std::string createLimitText(int limit);

/// New Symbol while a symbol is still being drawn.
inline constexpr std::string_view kFinishCurrentSymbolText =
    "Press Done to terminate current symbol before starting a new one.";

/// The prompts that Create leaves on the edit window.
inline constexpr std::string_view kEditedSymbolPrompt =
    "Use the various control buttons and menu items to modify the Symbol.";
inline constexpr std::string_view kCopiedSymbolPrompt =
    "Left Button = Select start Point for Line. Right Button = Refresh Screen.";
inline constexpr std::string_view kBlankSymbolPrompt = kStartPointPrompt;

/// The erase button's caption while a stored symbol is edited.
inline constexpr std::string_view kEraseRetainCaption =
    "Erase Symbol from Screen but Retain in Current Symbol Set";

/// The question when the symbol to copy is not found, its title and the two sources' names.
inline constexpr std::string_view kNotFoundTitle = "Symbol Editor";
inline constexpr std::string_view kLibrarySourceName = "Symbol Library.";
inline constexpr std::string_view kCurrentSetSourceName = "Current Symbol Set.";
/// "Symbol KEY could not be found in SOURCE" and, after a carriage return alone, "Create a
/// blank image?".
std::string notFoundQuestion(std::string_view searchKey, std::string_view sourceName);

/// The Select Existing Symbol picker.
inline constexpr std::string_view kExistingPickerTitle = "Select Existing Symbol";
/// "Select a symbol from the list of GROUP as the basis for the Re-Defined Symbol."
std::string existingPickerCaption(std::string_view groupName);

/// The Standard Spindles picker.
inline constexpr std::string_view kSpindlePickerTitle = "Standard Spindles";
inline constexpr std::string_view kSpindlePickerPrompt = "Click on Chosen Spindle to Select";

}  // namespace quorn
