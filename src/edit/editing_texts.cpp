#include "edit/editing_texts.h"

#include "base/numbers.h"

namespace quorn {

std::string deleteSymbolQuestion(std::string_view skey) {
  return "Are you sure you wish to permanently delete Symbol " + std::string(skey) +
         " from this set?";
}

std::string symbolsLoadedStatus(int count) {
  return messageNumber(count) + std::string(kSymbolsLoadedStatus);
}

}  // namespace quorn
