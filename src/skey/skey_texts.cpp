#include "skey/skey_texts.h"

namespace quorn {

std::string notRedefinableText(std::string_view oldKey) {
  return std::string(oldKey) + " is not a re-definable SKEY in this Group.";
}

std::string invalidStoredOldSkeyText() {
  return std::string(kInvalidStoredOldSkeyText);
}

}  // namespace quorn
