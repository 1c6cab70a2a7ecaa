#pragma once
// Every prompt and message of arc and circle construction, in one place.

#include <string_view>

namespace quorn {

// The Arc and Circle buttons.
inline constexpr std::string_view kArcCentrePrompt = "Select Arc Centre Point with Left Button";
inline constexpr std::string_view kArcUnderWayText = "Please complete current Arc first";
inline constexpr std::string_view kCircleCentrePrompt =
    "Select Circle Centre Point with Left Button";
inline constexpr std::string_view kCircleUnderWayText = "Please complete current circle first";

// The clicks of an arc.
inline constexpr std::string_view kArcStartEdgePrompt =
    "Select Edge Point for Start of Arc with Left Button. Right Button = Cancel";
inline constexpr std::string_view kArcEndPrompt =
    "Select Point for End of Arc with Left Button. Right Button = Cancel";

// The clicks of a circle.
inline constexpr std::string_view kCircleEdgePrompt =
    "Select Edge Point with Left Button. Right Button = Cancel";

/// After an arc or a circle: no stroke is under way.
inline constexpr std::string_view kConstructionDonePrompt =
    "Move without Drawing. Right Button > Draw Mode";

// Refusals.
inline constexpr std::string_view kArcTooSmallText =
    "Selected Quadrant is too small for an arc. Please use a line or reselect.";
inline constexpr std::string_view kArcTooManyActionsText =
    "Construction of this Arc would exceed the maximum allowable number number of actions in a "
    "Symbol (200). Operation terminated.";
inline constexpr std::string_view kCircleDoesNotFitText =
    "The requested Circle can not fit within the Drawing Grid. Please press Circle again and "
    "re-specify with a new Centre Point and / or Radius, or use Move to relocate the Symbol on "
    "the Grid.";
/// A circle's own segments would pass the action limit; worded after the arc's message.
inline constexpr std::string_view kCircleTooManyActionsText =
    "Construction of this Circle would exceed the maximum allowable number of actions in a "
    "Symbol (200). Operation terminated.";
/// SYMBOLS.CFG gives no segments for a circle, so none can be drawn.
inline constexpr std::string_view kCircleNoSegmentsText =
    "A Circle can not be drawn: NOOFSEGMENTS in SYMBOLS.CFG must be 1 or more.";

}  // namespace quorn
