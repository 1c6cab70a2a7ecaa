#pragma once
// The readings of SYMBOLS.INI over lines already in memory, so that they can be driven
// without a file.

#include <optional>
#include <string_view>

#include "base/messages.h"
#include "base/text_file.h"
#include "config/settings.h"

namespace quorn {

/// The version text and the tips switch. The file's last line is never looked at.
void parseStartupSettings(const TextFile& file, Settings& settings);

/// The testing switch, the default extension, the format table, the file filter and the
/// default filter index. A format beyond the tenth is a fatal fault naming `fileShown` and
/// its line.
std::optional<FatalError> parseFormats(const TextFile& file, std::string_view fileShown,
                                       Settings& settings);

/// The structure block of the first EXTENSION line, anywhere in the file, whose value starts
/// with `extension`. Every failure is told through `messages`, naming `fileShown`, before
/// nothing is returned.
std::optional<FormatStructure> parseFormatStructure(const TextFile& file,
                                                    std::string_view fileShown,
                                                    std::string_view extension, bool writeBin,
                                                    Messages& messages);

}  // namespace quorn
