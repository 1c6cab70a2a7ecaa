#pragma once
// SYMBOLS.HLP: the eight lines of on-line help, and READMESY.TXT for the Read Me viewer.

#include <array>
#include <optional>
#include <string>

#include "base/messages.h"
#include "base/text_file.h"
#include "base/working_directory.h"

namespace quorn {

/// Help texts 1 to 8 (index 0 unused).
using HelpTexts = std::array<std::string, 9>;

/// Reads SYMBOLS.HLP; a missing file is reported and gives empty texts.
HelpTexts readHelpTexts(const WorkingDirectory& directory, Messages& messages);
HelpTexts parseHelpTexts(const TextFile& file);

/// The text of READMESY.TXT, every line ended with CR LF; nothing after the missing-file
/// message when the file is not there.
std::optional<std::string> readReadMe(const WorkingDirectory& directory, Messages& messages);

}  // namespace quorn
