#pragma once
// SYMBOLS.CFG as every command that reads symbols needs it.

#include <ostream>

#include "base/messages.h"
#include "base/working_directory.h"
#include "config/configuration.h"
#include "model/symbol_collection.h"

namespace quorn::cli {

/// Reads SYMBOLS.CFG into `config` and sizes `set` from MAXSYMBOLSINFILE. A fault that would
/// end the editor is written to `err`; false then.
bool readConfigurationFor(const WorkingDirectory& directory, Configuration& config, CurrentSet& set,
                          Messages& messages, std::ostream& err);

}  // namespace quorn::cli
