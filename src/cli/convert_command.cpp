// symbols convert: reads a symbol file as the Open command does and writes it as Save As does,
// in the format of the new name's extension.

#include <ostream>
#include <string>
#include <vector>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/configuration_input.h"
#include "cli/console_messages.h"
#include "cli/workdir_option.h"
#include "files/open_symbol_file.h"
#include "files/symbol_file_writer.h"
#include "files/writer_texts.h"

namespace quorn::cli {

int runConvert(const Words& words, std::ostream& out, std::ostream& err) {
  const Arguments arguments(words, {"workdir"});
  if (!arguments.error().empty() || arguments.positional().size() != 2) {
    err << "usage: symbols convert IN OUT [--workdir DIR] [--force]\n";
    return 2;
  }
  const std::string& inName = arguments.positional()[0];
  std::string outName = arguments.positional()[1];
  // Without --force the overwrite question is answered No before anything is read.
  if (!arguments.has("force") && diskFileSystem().exists(outName)) {
    err << overwriteQuestionText(outName) << '\n';
    return 2;
  }

  const WorkingDirectory directory = workingDirectoryFrom(arguments);
  ConsoleMessages messages(err);
  Configuration config;
  CurrentSet set;
  if (!readConfigurationFor(directory, config, set, messages, err)) return 2;
  const auto opened = openSymbolFile(directory, inName, config.writeBin, set, messages);
  if (!opened) return 2;

  // IN is the open file: writing over it makes its backup first.
  if (!writeSymbolFile(directory, outName, inName, set, opened->text, config, messages)) return 2;
  out << set.count() << " symbols written to " << outName << '\n';
  return 0;
}

}  // namespace quorn::cli
