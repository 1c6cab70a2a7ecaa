#include "skey/creation_texts.h"

#include "base/numbers.h"

namespace quorn {

std::string createLimitText(int limit) {
  return "Unable to Create Symbol as you have reached the limit of " + messageNumber(limit) + ".";
}

std::string notFoundQuestion(std::string_view searchKey, std::string_view sourceName) {
  return "Symbol " + std::string(searchKey) + " could not be found in " + std::string(sourceName) +
         "\r" + "Create a blank image?";
}

std::string existingPickerCaption(std::string_view groupName) {
  return "Select a symbol from the list of " + std::string(groupName) +
         " as the basis for the Re-Defined Symbol.";
}

}  // namespace quorn
