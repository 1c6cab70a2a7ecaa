// symbols replay: runs the editor from a script and prints what the user would have seen.

#include <filesystem>
#include <fstream>
#include <ostream>
#include <sstream>

#include "app/script_runner.h"
#include "app/system_environment.h"
#include "cli/arguments.h"
#include "cli/commands.h"

namespace quorn::cli {

int runReplay(const Words& words, std::ostream& out, std::ostream& err) {
  const Arguments arguments(words, {"workdir"});
  if (!arguments.error().empty() || arguments.positional().size() != 1) {
    err << "usage: symbols replay SCRIPT [--workdir DIR]\n";
    return 2;
  }
  const std::filesystem::path scriptPath = arguments.positional()[0];
  std::ifstream in(scriptPath, std::ios::binary);
  if (!in) {
    err << scriptPath.string() << ": the script cannot be opened\n";
    return 2;
  }
  std::ostringstream script;
  script << in.rdbuf();
  SystemEnvironment environment(arguments.option("workdir"));
  const ScriptOutcome outcome = runScript(script.str(), scriptPath.parent_path(), environment, out);
  if (!outcome.ok) {
    err << scriptPath.string() << ", " << outcome.error << '\n';
    return 1;
  }
  return 0;
}

}  // namespace quorn::cli
