// symbols check: every symbol of a file put through the key rules, as if each were edited
// and created again in the group its Old SKEY belongs to.

#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/json_writer.h"
#include "cli/key_check_input.h"
#include "cli/workdir_option.h"
#include "model/keys.h"
#include "skey/skey_rules.h"

namespace quorn::cli {

namespace {

struct KeyFailure {
  int number = 0;
  const SymbolRecord* symbol = nullptr;
  std::string message;
};

// The group to check a stored Old SKEY in: the one that holds it as it stands, else the first
// whose entries match it as a typed Old SKEY (a "VB**" entry serves a stored "VBSW", which the
// user may have chosen in any such group).
std::optional<int> groupOf(const Configuration& config, std::string_view oldKey) {
  if (const auto position = locateStoredOldSkey(config, oldKey)) return position->group;
  for (int group = 1; group <= config.groupCount; ++group) {
    if (matchOldSkey(config, group, oldKey)) return group;
  }
  return std::nullopt;
}

// The first rule that symbol `number` breaks, or nothing. The keys are taken as the editor
// holds them, so a bare type "VB" counts as "VB**".
std::optional<std::string> failureOf(const KeyCheckInput& input, int number) {
  const SymbolRecord& symbol = input.set.symbol(number);
  const auto group = groupOf(input.config, symbol.oldKey);
  if (!group) return invalidStoredOldSkeyText();
  const KeysToValidate keys{symbol.oldKey,      symbol.newKey, symbol.spindleKey,
                            symbol.scaleFactor, true,          number};
  return validateKeys(input.config, input.set, *group, keys).failure;
}

std::vector<KeyFailure> checkSymbols(const KeyCheckInput& input) {
  std::vector<KeyFailure> failures;
  for (int number = 1; number <= input.set.count(); ++number) {
    if (auto message = failureOf(input, number)) {
      failures.push_back({number, &input.set.symbol(number), std::move(*message)});
    }
  }
  return failures;
}

void writeJson(const std::string& fileName, int checked, const std::vector<KeyFailure>& failures,
               std::ostream& out) {
  JsonWriter json(out);
  json.beginObject().key("file").value(fileName).key("checked").value(checked);
  json.key("failures").beginArray();
  for (const KeyFailure& failure : failures) {
    json.beginObject().key("number").value(failure.number);
    json.key("oldKey").value(failure.symbol->oldKey);
    json.key("newKey").value(failure.symbol->newKey);
    json.key("spindleKey").value(failure.symbol->spindleKey);
    json.key("message").value(failure.message).endObject();
  }
  json.endArray().endObject().finish();
}

void writeText(int checked, const std::vector<KeyFailure>& failures, std::ostream& out) {
  for (const KeyFailure& failure : failures) {
    out << "Symbol " << failure.number << ": " << trimmedRight(listLabel(*failure.symbol))
        << "\n    " << failure.message << '\n';
  }
  if (failures.empty()) {
    out << "All " << checked << " symbols pass the key checks\n";
  } else {
    out << failures.size() << " of " << checked << " symbols fail the key checks\n";
  }
}

}  // namespace

int runCheck(const Words& words, std::ostream& out, std::ostream& err) {
  const Arguments arguments(words, {"workdir"});
  if (!arguments.error().empty() || arguments.positional().size() != 1) {
    err << "usage: symbols check FILE [--workdir DIR] [--json]\n";
    return 2;
  }
  const std::string& fileName = arguments.positional()[0];
  KeyCheckInput input;
  if (!readKeyCheckInput(workingDirectoryFrom(arguments), fileName, input, err)) return 2;
  const std::vector<KeyFailure> failures = checkSymbols(input);
  if (arguments.has("json")) {
    writeJson(fileName, input.set.count(), failures, out);
  } else {
    writeText(input.set.count(), failures, out);
  }
  return failures.empty() ? 0 : 1;
}

}  // namespace quorn::cli
