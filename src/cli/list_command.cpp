// symbols list: reads a symbol file as the Open command does and shows what it holds.

#include <ostream>
#include <string>
#include <vector>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/configuration_input.h"
#include "cli/console_messages.h"
#include "cli/json_writer.h"
#include "cli/symbol_json.h"
#include "cli/workdir_option.h"
#include "files/open_symbol_file.h"

namespace quorn::cli {

namespace {

/// Shows every message on standard error and keeps its text for the JSON output.
class KeptMessages : public Messages {
 public:
  explicit KeptMessages(std::ostream& err) : console_(err) {}
  Answer ask(const Message& message) override {
    texts.push_back(message.text);
    return console_.ask(message);
  }
  std::vector<std::string> texts;

 private:
  ConsoleMessages console_;
};

struct Listing {
  CurrentSet set;
  OpenedSymbolFile file;
};

void writeLines(JsonWriter& json, std::string_view name, const std::vector<std::string>& lines) {
  json.key(name).beginArray();
  for (const std::string& line : lines) json.value(line);
  json.endArray();
}

void writeJson(const Listing& listing, const std::vector<std::string>& messages,
               std::ostream& out) {
  JsonWriter json(out);
  json.beginObject().key("format").beginObject();
  json.key("extension")
      .value(listing.file.format.extension)
      .key("id")
      .value(listing.file.format.id);
  json.key("headlines").value(listing.file.format.headlines);
  json.key("leadlines").value(listing.file.format.leadlines).endObject();
  writeLines(json, "head", listing.file.text.headLines);
  writeLines(json, "lead", listing.file.text.leadLines);
  writeLines(json, "tail", listing.file.text.tailLines);
  json.key("symbols").beginArray();
  for (int number = 1; number <= listing.set.count(); ++number) {
    writeSymbolJson(json, listing.set.symbol(number));
  }
  json.endArray();
  writeLines(json, "messages", messages);
  json.endObject().finish();
}

void writeLines(std::ostream& out, std::string_view name, const std::vector<std::string>& lines) {
  out << name << " lines: " << lines.size() << '\n';
  for (const std::string& line : lines) out << "  | " << line << '\n';
}

void writeText(const Listing& listing, std::ostream& out) {
  out << "Format ." << listing.file.format.extension << ": ID " << listing.file.format.id
      << ", Headlines " << listing.file.format.headlines << ", Leadlines "
      << listing.file.format.leadlines << '\n';
  writeLines(out, "Head", listing.file.text.headLines);
  writeLines(out, "Lead", listing.file.text.leadLines);
  for (int number = 1; number <= listing.set.count(); ++number) {
    out << "Symbol " << number << ": " << listing.file.listLabels[number - 1] << '\n';
    writeSymbolText(out, listing.set.symbol(number));
  }
  writeLines(out, "Tail", listing.file.text.tailLines);
  out << listing.set.count() << " Symbols Loaded\n";
}

}  // namespace

int runList(const Words& words, std::ostream& out, std::ostream& err) {
  const Arguments arguments(words, {"workdir"});
  if (!arguments.error().empty() || arguments.positional().size() != 1) {
    err << "usage: symbols list FILE [--workdir DIR] [--json]\n";
    return 2;
  }
  const std::string& fileName = arguments.positional()[0];
  const WorkingDirectory directory = workingDirectoryFrom(arguments);
  KeptMessages messages(err);
  Configuration config;
  Listing listing;
  if (!readConfigurationFor(directory, config, listing.set, messages, err)) return 2;
  auto opened = openSymbolFile(directory, fileName, config.writeBin, listing.set, messages);
  if (!opened) return 2;
  listing.file = std::move(*opened);
  if (arguments.has("json")) {
    writeJson(listing, messages.texts, out);
  } else {
    writeText(listing, out);
  }
  return 0;
}

}  // namespace quorn::cli
