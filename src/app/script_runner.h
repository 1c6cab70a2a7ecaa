#pragma once
// Runs the editor from a text script, as a user would drive the edit window, and writes what
// the user would have seen. The syntax is described in docs/replay.md.

#include <filesystem>
#include <ostream>
#include <string_view>

#include "base/environment.h"

namespace quorn {

struct ScriptOutcome {
  bool ok = true;
  std::string error;  // "line N: problem" when not ok
};

/// Runs `script` against a new editor whose environment is `environment`; relative file
/// names of the script are taken from `baseDirectory`. Everything shown goes to `out`.
ScriptOutcome runScript(std::string_view script, const std::filesystem::path& baseDirectory,
                        Environment& environment, std::ostream& out);

}  // namespace quorn
