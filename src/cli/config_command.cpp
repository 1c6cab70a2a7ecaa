// symbols config: what the editor reads from SYMBOLS.INI and SYMBOLS.CFG at start-up.

#include <filesystem>
#include <functional>
#include <ostream>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/console_messages.h"
#include "cli/json_writer.h"
#include "cli/workdir_option.h"
#include "config/config_keys.h"
#include "config/configuration_reader.h"
#include "config/palette.h"
#include "config/settings_reader.h"

namespace quorn::cli {

namespace {

void writeConfigJson(const Configuration& config, const Settings& settings, std::ostream& out) {
  JsonWriter json(out);
  json.beginObject().key("config").beginObject();
  for (const ConfigKey& entry : configKeys()) {
    json.key(entry.name);
    switch (entry.kind) {
      case ConfigKey::Kind::Real:
        json.value(config.pitch);
        break;
      case ConfigKey::Kind::Flag:
        json.value(config.writeBin);
        break;
      default:
        json.value(config.*entry.integer);
        break;
    }
  }
  json.endObject();
  json.key("groupCount").value(config.groupCount);
  json.key("groups").beginArray();
  for (std::size_t number = 0; number < config.groups.size(); ++number) {
    const SkeyGroup& group = config.groups[number];
    json.beginObject().key("number").value(static_cast<long long>(number));
    json.key("name").value(group.name).key("entries").beginArray();
    for (const GroupEntry& entry : group.entries) {
      json.beginObject().key("skey").value(entry.skey).key("description").value(entry.description);
      json.key("flags").beginArray();
      for (int digit = 0; digit < 10; ++digit) {
        if (entry.flags[digit]) json.value(digit);
      }
      json.endArray().endObject();
    }
    json.endArray().endObject();
  }
  json.endArray();
  json.key("groupList").beginArray();
  for (const std::string& entry : config.groupList) json.value(entry);
  json.endArray();
  json.key("settings").beginObject();
  json.key("version").value(settings.version).key("tipsOn").value(settings.tipsOn);
  json.key("testingEnabled").value(settings.testingEnabled);
  json.key("defaultExtension").value(settings.defaultExtension);
  json.key("formats").beginArray();
  for (const FileFormat& format : settings.formats) {
    json.beginObject().key("extension").value(format.extension);
    json.key("description").value(format.description).endObject();
  }
  json.endArray();
  json.key("fileFilter").value(settings.fileFilter);
  json.key("defaultFilterIndex").value(settings.defaultFilterIndex);
  json.endObject().endObject().finish();
}

void writeConfigText(const Configuration& config, const Settings& settings, std::ostream& out) {
  out << "Version: " << settings.version << '\n'
      << "Tips on: " << (settings.tipsOn ? "yes" : "no") << '\n'
      << "Testing enabled: " << (settings.testingEnabled ? "yes" : "no") << '\n'
      << "Default extension: " << settings.defaultExtension << '\n';
  for (std::size_t i = 0; i < settings.formats.size(); ++i) {
    out << "Format " << i + 1 << ": " << settings.formats[i].extension << "  "
        << settings.formats[i].description << '\n';
  }
  out << "File filter: " << settings.fileFilter << '\n'
      << "Default filter index: " << settings.defaultFilterIndex << "\n\n";
  for (const ConfigKey& entry : configKeys()) {
    out << entry.name << " = ";
    switch (entry.kind) {
      case ConfigKey::Kind::Colour:
        out << config.*entry.integer << " (" << colourName(config.*entry.integer) << ")";
        break;
      case ConfigKey::Kind::Real:
        out << config.pitch;
        break;
      case ConfigKey::Kind::Flag:
        out << (config.writeBin ? "on" : "off");
        break;
      default:
        out << config.*entry.integer;
        break;
    }
    out << '\n';
  }
  out << "\nGroups: " << config.groupCount << '\n';
  for (std::size_t number = 0; number < config.groups.size(); ++number) {
    const SkeyGroup& group = config.groups[number];
    out << "Group " << number << ": " << group.name << '\n';
    for (const GroupEntry& entry : group.entries) {
      out << "  " << entry.skey << "  " << entry.description << "  flags";
      for (int digit = 0; digit < 10; ++digit) {
        if (entry.flags[digit]) out << ' ' << digit;
      }
      out << '\n';
    }
  }
}

}  // namespace

int runConfig(const Words& words, std::ostream& out, std::ostream& err) {
  const Arguments arguments(words, {"workdir"});
  if (!arguments.error().empty() || !arguments.positional().empty()) {
    err << "usage: symbols config [--workdir DIR] [--json]\n";
    return 2;
  }
  const WorkingDirectory directory = workingDirectoryFrom(arguments);
  ConsoleMessages messages(err);
  Settings settings;
  Configuration config;
  for (const auto& step : {
           std::function<std::optional<FatalError>()>(
               [&] { return readStartupSettings(directory, settings); }),
           std::function<std::optional<FatalError>()>(
               [&] { return readFormats(directory, settings); }),
           std::function<std::optional<FatalError>()>(
               [&] { return readConfiguration(directory, config, messages); }),
       }) {
    if (const auto fatal = step()) {
      err << fatal->text << '\n';
      return 2;
    }
  }
  if (arguments.has("json")) {
    writeConfigJson(config, settings, out);
  } else {
    writeConfigText(config, settings, out);
  }
  return 0;
}

}  // namespace quorn::cli
