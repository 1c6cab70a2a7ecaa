// symbols check-keys: an Old, New and Spindle SKEY with a scale factor, checked as the
// new-symbol dialog's Create button checks them.

#include <optional>
#include <ostream>
#include <string>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/key_check_input.h"
#include "cli/workdir_option.h"
#include "skey/skey_rules.h"

namespace quorn::cli {

namespace {

constexpr std::string_view kUsage =
    "usage: symbols check-keys --group G --old O [--new N] [--spindle S] [--scale F] "
    "[--set FILE] [--editing K] [--workdir DIR]\n";

// What the dialog holds when its fields have not been touched.
constexpr std::string_view kDefaultScaleFactor = "100";

}  // namespace

int runCheckKeys(const Words& words, std::ostream& out, std::ostream& err) {
  const Arguments arguments(
      words, {"group", "old", "new", "spindle", "scale", "set", "editing", "workdir"});
  const auto groupText = arguments.option("group");
  const auto oldKey = arguments.option("old");
  if (!arguments.error().empty() || !arguments.positional().empty() || !groupText || !oldKey) {
    err << kUsage;
    return 2;
  }
  const auto group = wholeNumber(*groupText);
  if (!group) {
    err << "symbols check-keys: --group takes a group number, not '" << *groupText << "'\n";
    return 2;
  }
  std::optional<int> edited;
  if (const auto editedText = arguments.option("editing")) {
    edited = wholeNumber(*editedText);
    if (!edited) {
      err << "symbols check-keys: --editing takes a symbol number, not '" << *editedText << "'\n";
      return 2;
    }
  }

  KeyCheckInput input;
  if (!readKeyCheckInput(workingDirectoryFrom(arguments), arguments.option("set"), input, err)) {
    return 2;
  }
  if (*group < 1 || *group > input.config.groupCount) {
    err << "symbols check-keys: SYMBOLS.CFG has groups 1 to " << input.config.groupCount << ", not "
        << *group << '\n';
    return 2;
  }
  if (edited && (*edited < 1 || *edited > input.set.count())) {
    err << "symbols check-keys: --editing " << *edited << " names no symbol: the Current Set "
        << "holds " << input.set.count() << '\n';
    return 2;
  }

  const KeysToValidate keys{*oldKey,
                            arguments.option("new").value_or(""),
                            arguments.option("spindle").value_or(""),
                            arguments.option("scale").value_or(std::string(kDefaultScaleFactor)),
                            edited.has_value(),
                            edited.value_or(0)};
  const KeyValidation validation = validateKeys(input.config, input.set, *group, keys);
  if (validation.failure) {
    out << *validation.failure << '\n';
    return 1;
  }
  out << "accepted\n";
  return 0;
}

}  // namespace quorn::cli
