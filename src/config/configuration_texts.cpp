#include "config/configuration_texts.h"

#include <iomanip>
#include <sstream>

#include "config/configuration.h"

namespace quorn {

std::string corruptConfigurationText(std::string_view directoryShown) {
  std::string text = "The SYMBOLS.CFG file in the ";
  text += directoryShown;
  text += " appears to be corrupt. Please replace it with a clean version.";
  return text;
}

std::string groupNotSupportedText(int group) {
  return "Group " + std::to_string(group) + " is not supported. SYMBOLS.CFG may be corrupt.";
}

std::string tooManySkeysText(int group) {
  return "Group " + std::to_string(group) + " has more than the allowable " +
         std::to_string(kMaxEntriesPerGroup) + " SKeys";
}

std::string groupAboveLimitProblem(double group) {
  std::ostringstream text;
  text << "group number " << std::setprecision(15) << group << " is above " << kMaxGroups
       << ", the highest group there can be";
  return text.str();
}

std::string valueOutOfRangeProblem(std::string_view key, std::string_view valueText) {
  std::string text = "the value ";
  text += valueText;
  text += " of ";
  text += key;
  text += " is out of range";
  return text;
}

std::string unreadableConfigurationText(std::string_view fileShown, std::string_view reason) {
  std::string text(fileShown);
  text += ' ';
  text += reason;
  return text;
}

}  // namespace quorn
