#include "edit/editing_texts.h"


namespace quorn {

std::string deleteSymbolQuestion(std::string_view skey) {
  return "Are you sure you wish to permanently delete Symbol " + std::string(skey) +
         " from this set?";
}


}  // namespace quorn
