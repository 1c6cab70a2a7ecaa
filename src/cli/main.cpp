// symbols: the command-line face of the editor's core.

#include <iostream>
#include <string_view>

#include "cli/commands.h"

namespace {

struct Command {
  std::string_view name;
  int (*run)(const quorn::cli::Words&, std::ostream&, std::ostream&);
  std::string_view usage;
};

constexpr Command kCommands[] = {
    {"config", quorn::cli::runConfig, "config [--workdir DIR] [--json]"},
    {"library", quorn::cli::runLibrary, "library [--workdir DIR] [--json]"},
#ifdef QUORN_WITH_RENDER
    {"render", quorn::cli::runRender,
     "render FILE [--symbol N] [--sheet] --out OUT.{svg,png,pdf} [--workdir DIR]"},
#endif
    {"replay", quorn::cli::runReplay, "replay SCRIPT [--workdir DIR]"},
    {"spindles", quorn::cli::runSpindles, "spindles [--workdir DIR] [--json]"},
    {"convert", quorn::cli::runConvert, "convert IN OUT [--workdir DIR] [--force]"},
    {"list", quorn::cli::runList, "list FILE [--workdir DIR] [--json]"},
    {"check-keys", quorn::cli::runCheckKeys,
     "check-keys --group G --old O [--new N] [--spindle S] [--scale F] [--set FILE] [--editing K] "
     "[--workdir DIR]"},
    {"check", quorn::cli::runCheck, "check FILE [--workdir DIR] [--json]"},
};

int usage(std::ostream& err) {
  err << "usage: symbols COMMAND ...\n";
  for (const Command& command : kCommands) err << "  symbols " << command.usage << '\n';
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) return usage(std::cerr);
  const std::string_view name = argv[1];
  for (const Command& command : kCommands) {
    if (command.name == name) {
      return command.run(quorn::cli::Words(argv + 2, argv + argc), std::cout, std::cerr);
    }
  }
  std::cerr << "symbols: unknown command '" << name << "'\n";
  return usage(std::cerr);
}
