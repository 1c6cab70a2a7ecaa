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

/// The same from the content of the file; `fileShown` names the file in messages. A file
/// that is not text (a NUL byte, an overlong line) is reported with its line and gives no
/// spindles.
SpindleTable parseSpindles(std::string_view content, std::string_view fileShown,
                           Messages& messages);

}  // namespace quorn
