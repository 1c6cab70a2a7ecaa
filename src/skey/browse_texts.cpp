#include "skey/browse_texts.h"

#include "base/numbers.h"

namespace quorn {

std::string noSuchSymbolText(int number) {
  return "Symbol Number " + messageNumber(number) + " does not exist";
}

}  // namespace quorn
