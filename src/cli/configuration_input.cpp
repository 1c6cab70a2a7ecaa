#include "cli/configuration_input.h"

#include "config/configuration_reader.h"

namespace quorn::cli {

bool readConfigurationFor(const WorkingDirectory& directory, Configuration& config, CurrentSet& set,
                          Messages& messages, std::ostream& err) {
  if (const auto fatal = readConfiguration(directory, config, messages)) {
    err << fatal->text << '\n';
    return false;
  }
  set.reset(config.maxSymbolsInFile);
  return true;
}

}  // namespace quorn::cli
