// symbols list: reads a symbol file as the Open command does and shows what it holds.

#include <ostream>
#include <string>
#include <vector>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/console_messages.h"
#include "cli/json_writer.h"
#include "cli/symbol_json.h"
#include "cli/workdir_option.h"
#include "config/configuration_reader.h"
#include "config/settings_reader.h"
#include "files/file_names.h"
#include "files/symbol_file_reader.h"

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
  FormatStructure format;
  CurrentSet set;
  SymbolFileText text;
  std::vector<std::string> labels;
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
  json.key("extension").value(listing.format.extension).key("id").value(listing.format.id);
  json.key("headlines").value(listing.format.headlines);
  json.key("leadlines").value(listing.format.leadlines).endObject();
  writeLines(json, "head", listing.text.headLines);
  writeLines(json, "lead", listing.text.leadLines);
  writeLines(json, "tail", listing.text.tailLines);
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
  out << "Format ." << listing.format.extension << ": ID " << listing.format.id << ", Headlines "
      << listing.format.headlines << ", Leadlines " << listing.format.leadlines << '\n';
  writeLines(out, "Head", listing.text.headLines);
  writeLines(out, "Lead", listing.text.leadLines);
  for (int number = 1; number <= listing.set.count(); ++number) {
    out << "Symbol " << number << ": " << listing.labels[number - 1] << '\n';
    writeSymbolText(out, listing.set.symbol(number));
  }
  writeLines(out, "Tail", listing.text.tailLines);
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
  if (const auto fatal = readConfiguration(directory, config, messages)) {
    err << fatal->text << '\n';
    return 2;
  }
  Listing listing;
  listing.set.reset(config.maxSymbolsInFile);
  const auto format =
      loadFormatStructure(directory, fileExtension(fileName), config.writeBin, messages);
  if (!format) return 2;
  listing.format = *format;
  if (!readSymbolFile(fileName, listing.format, listing.set, listing.text, listing.labels,
                      messages)) {
    return 2;
  }
  if (arguments.has("json")) {
    writeJson(listing, messages.texts, out);
  } else {
    writeText(listing, out);
  }
  return 0;
}

}  // namespace quorn::cli
