#include "display/window_texts.h"

#include "base/numbers.h"

namespace quorn {

std::string symbolsLoadedText(int count) { return messageNumber(count) + " Symbols Loaded"; }

}  // namespace quorn
