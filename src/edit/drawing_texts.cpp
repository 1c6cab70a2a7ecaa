#include "edit/drawing_texts.h"

#include "base/numbers.h"

namespace quorn {

std::string stepLimitText(int limit) {
  return "Unable to add this action to the current symbol as you have reached the limit of " +
         std::to_string(limit) + " actions.";
}

std::string setFullText(int maxSymbols) {
  return "Unable to add this Symbol to the Current Set as you have reached the limit of" +
         messageNumber(maxSymbols) + " Symbols.";
}

}  // namespace quorn
