#pragma once
// Every text that the SKEY rules show or build, in one place.

#include <string>
#include <string_view>

namespace quorn {

/// No Old SKEY was given.
inline constexpr std::string_view kOldSkeyRequiredText = "Original SKEY name must be defined";

/// The New SKEY is one of the standard SKEYs of some group.
inline constexpr std::string_view kNewSkeyIsStandardText =
    "You have specified a New SKEY name which is the same as one of the standard SKEYs. This "
    "is not allowed. Please re-specify the New SKEY name, or if you wish to re-define the "
    "standard SKEY, then enter its name in the Old Symbol Key box and leave the New Symbol Key "
    "box blank.";

/// The Old SKEY has variable end conditions and the New SKEY has no standard end.
inline constexpr std::string_view kNewSkeyNeedsStandardEndText =
    "If the Selected Old SKEY has variable End Conditions (eg VB**) then any additional New "
    "SKEY must have End Conditions defined by its last 2 characters, ie **, BW, CP, SC, FL, SW, "
    "PL, LC, LN, LR, or MP. To replace the standard Symbol for all end types, leave the New "
    "Symbol Key box empty. We recommend that to replace a single end type, you enter the full "
    "SKEY in the Old Symbol Key box (eg VBSW).";

/// The New SKEY begins like some standard SKEY of another component type.
inline constexpr std::string_view kNewSkeyTypeIsStandardText =
    "You have specified a New SKEY name which could be confused with one of the standard SKEYs "
    "because it uses the same first two characters. Please re-specify the New SKEY name, or if "
    "you wish to re-define the standard SKEY, then enter its name in the Old Symbol Key box and "
    "leave the New Symbol Key box blank.";

/// The New SKEY has the Old SKEY's type and a standard end.
inline constexpr std::string_view kNewSkeyLooksStandardText =
    "You have specified a New SKEY name which could be confused with a standard SKEY because "
    "its first 2 characters match the specified Old SKEY and its last 2 characters match one "
    "of the Standard End Types. Please re-specify the New SKEY name, or if you wish to "
    "re-define the standard SKEY, then enter its name in the Old Symbol Key box and leave the "
    "New Symbol Key box blank.";

/// The New SKEY begins with the type of an Old SKEY that has variable end conditions.
inline constexpr std::string_view kReplaceSingleEndTypeText =
    "We recommend that to replace a single end type for a Standard Symbol which has variable "
    "End Conditions (eg VB**), you enter the full SKEY in the Old Symbol Key box (eg VBSW). "
    "Plase note that only the End Conditions **, BW, CP, SC, FL, SW, PL, LC, LN, LR, or MP, are "
    "allowed.";

/// Another symbol of the Current Set already has the New SKEY.
inline constexpr std::string_view kNewSkeyInCurrentSetText =
    "You have specified a New SKEY name which is the same as one of the New SKEY names in the "
    "current set. Please delete the earlier Symbol or re-specify the New SKEY name, or if you "
    "wish to re-define the standard SKEY, then enter its name in the Old Symbol Key box and "
    "leave the New Symbol Key box blank.";

/// The Spindle SKEY is neither standard nor a redefined spindle of the Current Set.
inline constexpr std::string_view kUnknownSpindleSkeyText =
    "You have specified a Spindle SKEY which matches neither a Standard Spindle SKEY or any "
    "redefined Spindle SKEY in the Current Set. Please re-specify the Spindle SKEY name.";

/// The scale factor reads as 0 or less.
inline constexpr std::string_view kScaleFactorRequiredText =
    "A Percentage Scale Factor must be defined";

/// A stored Old SKEY that no group of 1 upward holds.
inline constexpr std::string_view kInvalidStoredOldSkeyText =
    "The Old SKEY specified for this symbol is invalid.Please Edit the symbol and Specified a "
    "Valid Old SKEY.";

/// The Old SKEY (normalised) matches no entry of the current group.
std::string notRedefinableText(std::string_view oldKey);

/// The Locate message, as a string.
std::string invalidStoredOldSkeyText();

}  // namespace quorn
