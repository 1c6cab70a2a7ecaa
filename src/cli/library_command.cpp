// symbols library: the Symbol Library that start-up loads, and the symbol that draws each
// group entry.

#include <ostream>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/configuration_input.h"
#include "cli/console_messages.h"
#include "cli/json_writer.h"
#include "cli/symbol_json.h"
#include "cli/workdir_option.h"
#include "files/library_reader.h"
#include "model/keys.h"

namespace quorn::cli {

namespace {

void writeLibraryJson(const Configuration& config, const SymbolLibrary& library,
                      std::ostream& out) {
  JsonWriter json(out);
  json.beginObject().key("loaded").value(library.loaded).key("count").value(library.count());
  json.key("groups").beginArray();
  for (std::size_t number = 0; number < config.groups.size(); ++number) {
    json.beginObject().key("number").value(static_cast<long long>(number));
    json.key("name").value(config.groups[number].name).key("entries").beginArray();
    for (const GroupEntry& entry : config.groups[number].entries) {
      json.beginObject().key("skey").value(entry.skey).key("description").value(entry.description);
      json.key("librarySymbol").value(entry.librarySymbol).endObject();
    }
    json.endArray().endObject();
  }
  json.endArray().key("symbols").beginArray();
  for (int number = 1; number <= library.count(); ++number) {
    writeSymbolJson(json, library.symbol(number));
  }
  json.endArray().endObject().finish();
}

void writeLibraryText(const Configuration& config, const SymbolLibrary& library,
                      std::ostream& out) {
  out << library.count() << " library symbols\n";
  for (std::size_t number = 1; number < config.groups.size(); ++number) {
    out << "Group " << number << ": " << config.groups[number].name << '\n';
    for (const GroupEntry& entry : config.groups[number].entries) {
      out << "  " << entry.skey << "  library symbol " << entry.librarySymbol << "  "
          << entry.description << '\n';
    }
  }
  for (int number = 1; number <= library.count(); ++number) {
    out << "Symbol " << number << ": " << listLabel(library.symbol(number)) << '\n';
    writeSymbolText(out, library.symbol(number));
  }
}

}  // namespace

int runLibrary(const Words& words, std::ostream& out, std::ostream& err) {
  const Arguments arguments(words, {"workdir"});
  if (!arguments.error().empty() || !arguments.positional().empty()) {
    err << "usage: symbols library [--workdir DIR] [--json]\n";
    return 2;
  }
  const WorkingDirectory directory = workingDirectoryFrom(arguments);
  ConsoleMessages messages(err);
  Configuration config;
  CurrentSet unused;
  if (!readConfigurationFor(directory, config, unused, messages, err)) return 2;
  SymbolLibrary library;
  readLibrary(directory, library, config, messages);
  if (arguments.has("json")) {
    writeLibraryJson(config, library, out);
  } else {
    writeLibraryText(config, library, out);
  }
  return 0;
}

}  // namespace quorn::cli
