#pragma once
// Reads SYMBOLS.CFG into the Configuration.

#include <optional>

#include "base/messages.h"
#include "base/text_file.h"
#include "base/working_directory.h"
#include "config/configuration.h"

namespace quorn {

/// Sets the defaults, then reads SYMBOLS.CFG from the working directory into `config`.
/// Warnings that let reading go on are shown through `messages`; a fault that ends the
/// program is returned with its message, and `config` is then not to be used.
std::optional<FatalError> readConfiguration(const WorkingDirectory& directory,
                                            Configuration& config, Messages& messages);

/// The same for a SYMBOLS.CFG already in memory. Nothing is read from `directory`: it only
/// names the file in messages.
std::optional<FatalError> readConfigurationText(const TextFile& file,
                                                const WorkingDirectory& directory,
                                                Configuration& config, Messages& messages);

}  // namespace quorn
