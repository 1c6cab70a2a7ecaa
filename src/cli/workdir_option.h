#pragma once
// The --workdir option shared by every command.

#include "base/working_directory.h"
#include "cli/arguments.h"

namespace quorn::cli {

/// --workdir when given, else VBRunDirectory when set and not empty, else the current
/// directory.
WorkingDirectory workingDirectoryFrom(const Arguments& arguments);

}  // namespace quorn::cli
