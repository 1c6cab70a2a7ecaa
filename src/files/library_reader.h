#pragma once
// Reads SYMBOLS.LIB, the standard symbols, and ties each to the SKEY groups that it draws.

#include <string_view>

#include "base/messages.h"
#include "base/working_directory.h"
#include "config/configuration.h"
#include "model/symbol_collection.h"

namespace quorn {

/// Reads SYMBOLS.LIB from the working directory into `library` and stores, in each group
/// entry of `config`, the number of the library symbol that draws it. A missing file is
/// reported and leaves the library empty and not loaded. Returns whether it was loaded.
bool readLibrary(const WorkingDirectory& directory, SymbolLibrary& library, Configuration& config,
                 Messages& messages);

/// The same from the content of the file; `fileShown` names it in messages. A file that is
/// not a text of records (a NUL byte, an overlong line, a coordinate beyond 16 bits) is
/// reported with its line and leaves the library empty and not loaded.
bool parseLibrary(std::string_view content, std::string_view fileShown, SymbolLibrary& library,
                  Configuration& config, Messages& messages);

}  // namespace quorn
