#pragma once
// Every text that the SYMBOLS.CFG reader shows or builds, in one place.

#include <string>
#include <string_view>

namespace quorn {

inline constexpr std::string_view kConfigFileName = "SYMBOLS.CFG";

/// The group chooser's entry for a named group is this followed by the name.
inline constexpr std::string_view kRedefiningPrefix = "Redefining ";
/// The group chooser's entry for a group without a name.
inline constexpr std::string_view kUnnamedGroupEntry = " ";

/// The file ends before [System Setup] is seen: an empty message.
inline constexpr std::string_view kNoSystemSetupText = "";

/// The file ends inside [System Setup] or [Groups], or a group number is below 1.
std::string corruptConfigurationText(std::string_view directoryShown);
/// A grouping line names a group that [Groups] did not give.
std::string groupNotSupportedText(int group);
/// A grouping line beyond the capacity of its group; the line is dropped.
std::string tooManySkeysText(int group);

/// The problem part of the fault texts that name the file and line.
std::string groupAboveLimitProblem(double group);
std::string valueOutOfRangeProblem(std::string_view key, std::string_view valueText);
/// The file exists but could not be read; `reason` says why.
std::string unreadableConfigurationText(std::string_view fileShown, std::string_view reason);

}  // namespace quorn
