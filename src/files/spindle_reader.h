#pragma once
// Reads SPINDLES.DEF, the standard spindle shapes the spindle picker draws.

#include <string_view>

#include "base/messages.h"
#include "base/text_file.h"
#include "base/working_directory.h"
#include "model/spindle_definition.h"

namespace quorn {

/// Reads SPINDLES.DEF from the working directory into `spindles` (emptied first). A missing
/// file is reported and leaves no spindles; reading never ends the program.
void readSpindles(const WorkingDirectory& directory, SpindleTable& spindles, Messages& messages);

/// The same from text already read; `fileShown` names the file in messages.
SpindleTable parseSpindles(const TextFile& file, std::string_view fileShown, Messages& messages);

}  // namespace quorn
