#pragma once
// What the key checks read: the configuration and, when named, a symbol file as the Current Set.

#include <optional>
#include <ostream>
#include <string>

#include "base/working_directory.h"
#include "config/configuration.h"
#include "model/symbol_collection.h"

namespace quorn::cli {

struct KeyCheckInput {
  Configuration config;
  CurrentSet set;
};

/// Reads SYMBOLS.CFG from `directory` and, when `symbolFile` is given, that file as Open reads
/// it. The readers' messages are written to `err`; false when a file could not be used.
bool readKeyCheckInput(const WorkingDirectory& directory,
                       const std::optional<std::string>& symbolFile, KeyCheckInput& input,
                       std::ostream& err);

/// A whole decimal number, nothing else; nothing when `text` is not one.
std::optional<int> wholeNumber(const std::string& text);

}  // namespace quorn::cli
