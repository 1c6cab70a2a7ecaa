#pragma once
// The script lines that drive the new-symbol dialog and its pickers, the `dump dialog` output,
// and the output lines that follow the dialog and the pickers opening and closing. The syntax
// is described in docs/replay.md.

#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "app/editor.h"

namespace quorn {

/// type, leave, tick, option, choose, press, picker and pick.
bool isDialogVerb(std::string_view verb);

/// Runs one of the dialog's lines; the problem when it cannot be carried out.
std::optional<std::string> runDialogVerb(Editor& editor, std::string_view verb,
                                         const std::vector<std::string>& words);

/// The dialog is modal: while it is open only its own lines, the queued answers and files,
/// the dumps and the group chooser reach the editor. The problem for any other line.
std::optional<std::string> refusedUnderDialog(const Editor& editor, std::string_view verb);

/// `dump dialog`: the title, every field with its text and what is enabled, the mirror
/// caption, the lists with their items and chosen positions, the tick, the option, the
/// buttons and the focus. The problem when the dialog is not open.
std::optional<std::string> writeDialogDump(const Editor& editor, std::ostream& out);

/// Writes `dialog "TITLE"` / `dialog closed` and `picker "TITLE" "CAPTION"` with its
/// `picker-row "..."` lines / `picker closed` as the dialog and the pickers open and close.
class DialogReport {
 public:
  void report(const Editor& editor, std::ostream& out);

 private:
  bool dialogOpen_ = false;
  std::optional<PickerKind> picker_;
};

}  // namespace quorn
