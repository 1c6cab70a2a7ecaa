#pragma once
// Texts of the edit window that several commands write.

#include <string>

namespace quorn {

/// The count with its leading blank when not negative, then " Symbols Loaded": what the
/// count label and the status show after a set changes size.
std::string symbolsLoadedText(int count);

}  // namespace quorn
