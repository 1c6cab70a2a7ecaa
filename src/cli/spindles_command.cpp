// symbols spindles: the standard spindle shapes that start-up loads from SPINDLES.DEF.

#include <ostream>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/console_messages.h"
#include "cli/json_writer.h"
#include "cli/workdir_option.h"
#include "files/spindle_reader.h"

namespace quorn::cli {

namespace {

void writeSpindlesJson(const SpindleTable& table, std::ostream& out) {
  JsonWriter json(out);
  json.beginObject().key("count").value(table.count()).key("spindles").beginArray();
  for (int number = 1; number <= table.count(); ++number) {
    const SpindleDefinition& spindle = table.spindles[number];
    json.beginObject().key("number").value(number).key("name").value(spindle.name);
    json.key("segments").beginArray();
    for (const SpindleSegment& s : spindle.segments) {
      json.beginArray().value(s.x1).value(s.y1).value(s.x2).value(s.y2).endArray();
    }
    json.endArray().endObject();
  }
  json.endArray().endObject().finish();
}

void writeSpindlesText(const SpindleTable& table, std::ostream& out) {
  for (int number = 1; number <= table.count(); ++number) {
    const SpindleDefinition& spindle = table.spindles[number];
    out << number << ". " << spindle.name << " (" << spindle.segments.size() << " segments)\n";
    for (const SpindleSegment& s : spindle.segments) {
      out << "    " << s.x1 << ',' << s.y1 << ' ' << s.x2 << ',' << s.y2 << '\n';
    }
  }
}

}  // namespace

int runSpindles(const Words& words, std::ostream& out, std::ostream& err) {
  const Arguments arguments(words, {"workdir"});
  if (!arguments.error().empty() || !arguments.positional().empty()) {
    err << "usage: symbols spindles [--workdir DIR] [--json]\n";
    return 2;
  }
  ConsoleMessages messages(err);
  SpindleTable table;
  readSpindles(workingDirectoryFrom(arguments), table, messages);
  if (arguments.has("json")) {
    writeSpindlesJson(table, out);
  } else {
    writeSpindlesText(table, out);
  }
  return 0;
}

}  // namespace quorn::cli
