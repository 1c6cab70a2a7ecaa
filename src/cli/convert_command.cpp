// symbols convert: reads a symbol file as the Open command does and writes it as Save As does,
// in the format of the new name's extension.

#include <ostream>
#include <string>
#include <vector>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/console_messages.h"
#include "cli/workdir_option.h"
#include "config/configuration_reader.h"
#include "config/settings_reader.h"
#include "files/file_names.h"
#include "files/symbol_file_reader.h"
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
  if (const auto fatal = readConfiguration(directory, config, messages)) {
    err << fatal->text << '\n';
    return 2;
  }
  CurrentSet set;
  set.reset(config.maxSymbolsInFile);
  const auto format =
      loadFormatStructure(directory, fileExtension(inName), config.writeBin, messages);
  SymbolFileText text;
  std::vector<std::string> listLabels;
  if (!format || !readSymbolFile(inName, *format, set, text, listLabels, messages)) return 2;

  // IN is the open file: writing over it makes its backup first.
  if (!writeSymbolFile(directory, outName, inName, set, text, config, messages)) return 2;
  out << set.count() << " symbols written to " << outName << '\n';
  return 0;
}

}  // namespace quorn::cli
