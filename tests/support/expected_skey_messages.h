#pragma once
// The SKEY rules' messages as the users' documents give them, written out here independently
// of the code so that the tests compare against the required text.

#include <string>

namespace quorn::test {

inline const std::string kRequired = "Original SKEY name must be defined";
inline const std::string kStandard =
    "You have specified a New SKEY name which is the same as one of the standard SKEYs. This is "
    "not allowed. Please re-specify the New SKEY name, or if you wish to re-define the standard "
    "SKEY, then enter its name in the Old Symbol Key box and leave the New Symbol Key box blank.";
inline const std::string kNeedsEnd =
    "If the Selected Old SKEY has variable End Conditions (eg VB**) then any additional New SKEY "
    "must have End Conditions defined by its last 2 characters, ie **, BW, CP, SC, FL, SW, PL, "
    "LC, LN, LR, or MP. To replace the standard Symbol for all end types, leave the New Symbol "
    "Key box empty. We recommend that to replace a single end type, you enter the full SKEY in "
    "the Old Symbol Key box (eg VBSW).";
inline const std::string kSameType =
    "You have specified a New SKEY name which could be confused with one of the standard SKEYs "
    "because it uses the same first two characters. Please re-specify the New SKEY name, or if "
    "you wish to re-define the standard SKEY, then enter its name in the Old Symbol Key box and "
    "leave the New Symbol Key box blank.";
inline const std::string kLooksStandard =
    "You have specified a New SKEY name which could be confused with a standard SKEY because its "
    "first 2 characters match the specified Old SKEY and its last 2 characters match one of the "
    "Standard End Types. Please re-specify the New SKEY name, or if you wish to re-define the "
    "standard SKEY, then enter its name in the Old Symbol Key box and leave the New Symbol Key "
    "box blank.";
inline const std::string kSingleEnd =
    "We recommend that to replace a single end type for a Standard Symbol which has variable End "
    "Conditions (eg VB**), you enter the full SKEY in the Old Symbol Key box (eg VBSW). Plase "
    "note that only the End Conditions **, BW, CP, SC, FL, SW, PL, LC, LN, LR, or MP, are "
    "allowed.";
inline const std::string kInSet =
    "You have specified a New SKEY name which is the same as one of the New SKEY names in the "
    "current set. Please delete the earlier Symbol or re-specify the New SKEY name, or if you "
    "wish to re-define the standard SKEY, then enter its name in the Old Symbol Key box and "
    "leave the New Symbol Key box blank.";
inline const std::string kSpindle =
    "You have specified a Spindle SKEY which matches neither a Standard Spindle SKEY or any "
    "redefined Spindle SKEY in the Current Set. Please re-specify the Spindle SKEY name.";
inline const std::string kScale = "A Percentage Scale Factor must be defined";
inline const std::string kInvalidStored =
    "The Old SKEY specified for this symbol is invalid.Please Edit the symbol and Specified a "
    "Valid Old SKEY.";

}  // namespace quorn::test
