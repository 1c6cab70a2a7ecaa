#pragma once
// Every prompt, message, question and caption of deleting, moving, undo, erase and the
// whole-symbol transformations, in one place.

#include "display/window_texts.h"

#include <string>
#include <string_view>

namespace quorn {

// The Delete menu.
inline constexpr std::string_view kDeleteMenuPrompt =
    "Select type of item to delete. Right Mouse Button to cancel.";
inline constexpr std::string_view kDeleteLinePrompt =
    "Use Left Button to identify line to be deleted, Right Button to Cancel";
inline constexpr std::string_view kDeleteInsulationPrompt =
    "Use Left Button to identify either end of Insulation Line to be deleted, Right Button to "
    "Cancel";
inline constexpr std::string_view kDeleteTracingPrompt =
    "Use Left Button to identify either end of Tracing Line to be deleted, Right Button to Cancel";
inline constexpr std::string_view kDeleteTappingPointPrompt =
    "Use Mouse and Left Button to Select Tapping Point to Delete, Right Button to Cancel";
inline constexpr std::string_view kDeleteSpindlePointPrompt =
    "Press Left Button to Delete Spindle Point, Right Button to Cancel";

// The Move menu.
inline constexpr std::string_view kMoveMenuPrompt =
    "Select type of item to move. Right Mouse Button to cancel.";
inline constexpr std::string_view kMoveStartPointPrompt =
    "Move cursor to new position for Start Point and Press Left Button";
inline constexpr std::string_view kMoveEndPointPrompt =
    "Move cursor to new position for End Point and Press Left Button";
inline constexpr std::string_view kMoveSpindlePointPrompt =
    "Move cursor to new position for Spindle Point and Press Left Button";
inline constexpr std::string_view kMoveSymbolPrompt =
    "Move to New Start Point for Symbol and Select with Left Button. Right Button = Cancel.";

inline constexpr std::string_view kSpindlePointNotSet = "Spindle Point not set";

// Picking a segment or a tapping point to delete.
inline constexpr std::string_view kDeleteLineTitle = "Delete Line";
inline constexpr std::string_view kDeleteLineQuestion = "Delete This Line?";
inline constexpr std::string_view kLineNotFound = "Line not found.";
inline constexpr std::string_view kInsulationNotFound = "Insulation not found.";
inline constexpr std::string_view kTracingNotFound = "Tracing not found.";
inline constexpr std::string_view kTappingPointNotFound = "Tapping Point not found.";

// Undo.
inline constexpr std::string_view kUndoLinePrompt =
    "Select End point and Draw Line. Right Button > Move Mode.";

// Erase.
inline constexpr std::string_view kEraseQuestion =
    "Erasing the Symbol will lose all work done since it was last Shown. Do you really wish to "
    "erase the current symbol?";
inline constexpr std::string_view kErasedEmptySetPrompt = "Select New Symbol.";
inline constexpr std::string_view kErasedPrompt =
    "Select New Symbol or use Show to view and edit Current Symbols.";

// Deleting a symbol from the Current Set.
inline constexpr std::string_view kDeleteSymbolTitle = kWindowCaption;

// The snap label, which the Delete menu switches off and the reset switches back on.
inline constexpr std::string_view kSnapOnLabel = "Snap is On";
inline constexpr std::string_view kSnapOffLabel = "Snap is Off";

// Moving the whole symbol (and the start point alone).
inline constexpr std::string_view kSymbolDoesNotFit =
    "New Start Point can not be adopted as Symbol can not fit within the positive area of the "
    "grid";

// Flip: the two rows of the choice and the axis word each runs with.
inline constexpr std::string_view kFlipHorizontalChoice = "Flip about Horizontal Axis";
inline constexpr std::string_view kFlipVerticalChoice = "Flip about Vertical Axis";
inline constexpr std::string_view kHorizontalAxis = "Horizontal";
inline constexpr std::string_view kVerticalAxis = "Vertical";

// The Scale dialog.
inline constexpr std::string_view kGridDivisionCaption = "Grid Division (mm)";
inline constexpr std::string_view kScaleLengthCaption = "Horizontal Scale Length (mm)";
inline constexpr std::string_view kRescaleCaption = "&Rescale Symbol";
inline constexpr std::string_view kSmallestGridDivision = "0.1";
inline constexpr std::string_view kLargestGridDivision = "2.0";
inline constexpr std::string_view kShortestScaleLength = "5";
inline constexpr std::string_view kLongestScaleLength = "75";

// The view button's two captions: the view it switches to.
inline constexpr std::string_view kIsoCaption = "Iso";
inline constexpr std::string_view kOrthoCaption = "Ortho";

/// "Are you sure you wish to permanently delete Symbol " + SKEY + " from this set?"
std::string deleteSymbolQuestion(std::string_view skey);

}  // namespace quorn
