#pragma once
// Every prompt, label and message of drawing on the grid, the action buttons and Done, in one
// place. The texts of arcs and circles, of deleting and moving, and the snap label are with
// their own features (construction_texts.h, editing_texts.h).

#include "display/window_texts.h"

#include <string>
#include <string_view>

namespace quorn {

// The char label.
inline constexpr std::string_view kCharOnLabel = "Char is On";
inline constexpr std::string_view kCharOffLabel = "Char is Off";

/// An item button, Done, Undo or Flip with no symbol on the surface.
inline constexpr std::string_view kInitiateNewSymbolText = "Please Initiate New Symbol first";

// The item buttons' refusals.
inline constexpr std::string_view kOneEndPointText = "Only One End Point is allowed per Symbol";
inline constexpr std::string_view kNoSpindlePointAllowedText =
    "No Spindle Point is allowed on this Symbol";
inline constexpr std::string_view kOneSpindlePointText =
    "Only One Spindle Point is allowed per Symbol";
inline constexpr std::string_view kNoTappingPointsAllowedText =
    "No Tapping Points are allowed on this Symbol";

// The item buttons' prompts.
inline constexpr std::string_view kEndPointPrompt = "Select End Point with Left Button";
inline constexpr std::string_view kSpindlePointPrompt = "Select Spindle Point with Left Button";
inline constexpr std::string_view kTappingPointPrompt =
    "Select Tapping Point with Left Button. Right Button = Cancel.";
inline constexpr std::string_view kInsulationStartPrompt =
    "Select Start Point for Insulation with Left Button";
inline constexpr std::string_view kTracingStartPrompt =
    "Select Start Point for Tracing with Left Button";

// A polyline once its first point is picked.
inline constexpr std::string_view kLineEndPrompt =
    "Select End point and Draw Line. Right Button = Move Mode.";
inline constexpr std::string_view kInsulationEndPrompt =
    "Select End Point for Insulation. Right Button > Move Mode.";
inline constexpr std::string_view kTracingEndPrompt =
    "Select End Point for Tracing. Right Button > Move Mode.";

// Left-button refusals.
inline constexpr std::string_view kNineTappingPointsText =
    "Only 9 Tapping Points are allowed on any one symbol.";

// The right button.
inline constexpr std::string_view kOperationCancelledPrompt =
    "Left Button = Select Start Point for Line. Right Button = Refresh Screen. Or Select any "
    "Action Button.";
inline constexpr std::string_view kMoveModePrompt =
    "Left Button = Select Start Point for Line. Right Button = Refresh Screen.";

// Done.
inline constexpr std::string_view kSpindleKeyWithoutPointText =
    "Spindle SKEY has been specified but no Spindle Point has been Defined";
inline constexpr std::string_view kSpindlePointRequiredText =
    "A Spindle Point is required by default on this Symbol, but has not been Defined. You must "
    "add a Spindle Point in order to complete and save the Symbol. If you do not require a "
    "Spindle please complete and save the Symbol then Edit it and Specify NONE for the Spindle "
    "SKey and delete the Spindle Point from your Symbol design";
inline constexpr std::string_view kSpindleSuppressedText =
    "The Spindle Point has been suppressed by selecting Spindle type NONE but a Spindle Point "
    "has been defined. You must delete the Spindle Point in order to save the modified Symbol. "
    "If you do require a Spindle, delete the Spindle Point now, then complete the Symbol by "
    "pressing Done. Then Edit the Symbol, specify a Spindle SKey and and then add the Spindle "
    "Point to your Symbol design";
inline constexpr std::string_view kEndLeftOfStartText =
    "The Symbol End Point has been placed to the Left of the Start Point. This is not allowed. "
    "Please re-position the Start Point and/or the End Point using the appropriate Move command "
    "in the menu.";
inline constexpr std::string_view kSymbolStoredPrompt = "Show existing Symbol, Select New or Exit";

/// The Spindle SKEY that suppresses the spindle.
inline constexpr std::string_view kNoSpindleKey = "NONE";

/// "Unable to add this action to the current symbol as you have reached the limit of 200
/// actions." with the limit given.
std::string stepLimitText(int limit);

/// Done finds the Current Set full: the symbol stays on the surface.
std::string setFullText(int maxSymbols);

}  // namespace quorn
