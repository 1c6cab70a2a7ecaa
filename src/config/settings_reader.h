#pragma once
// Reads SYMBOLS.INI: the start-up switches, the format table and one format's structure.

#include <optional>
#include <string_view>

#include "base/messages.h"
#include "base/working_directory.h"
#include "config/settings.h"

namespace quorn {

/// The version text and the tips switch (the first stage of start-up).
std::optional<FatalError> readStartupSettings(const WorkingDirectory& directory,
                                              Settings& settings);

/// The testing switch, the default extension, the format table, the file filter and the
/// default filter index (the second stage of start-up).
std::optional<FatalError> readFormats(const WorkingDirectory& directory, Settings& settings);

/// The structure block of the format for `extension` (callers pass it in capitals).
/// Every failure has been shown through `messages` when nothing is returned.
std::optional<FormatStructure> loadFormatStructure(const WorkingDirectory& directory,
                                                   std::string_view extension, bool writeBin,
                                                   Messages& messages);

}  // namespace quorn
