#pragma once
// Menu entries named by their path, as scripts and messages name them.

#include <string>
#include <string_view>

#include "display/menu_texts.h"

namespace quorn {

/// "File > Save As" for "Save &As..." of "&File": the captions without their access keys and
/// trailing dots, an entry's explanation after "  - " left out ("Symbol > New").
std::string menuPath(const MenuEntryText& entry);

/// The entry that `path` names, or nullptr.
const MenuEntryText* menuEntryByPath(std::string_view path);

}  // namespace quorn
