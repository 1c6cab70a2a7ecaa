#pragma once
// The script lines that draw on the grid: mouse clicks and moves, the action buttons, the
// flip choice, the Scale dialog, the Delete and Move menus, and the `dump symbol` and
// `dump state` output. The syntax is described in docs/replay.md.

#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "app/editor.h"

namespace quorn {

/// click, move, button, flip and scale.
bool isDrawingVerb(std::string_view verb);

/// Runs one of the drawing lines; the problem when it cannot be carried out. `scale` writes
/// the dialog's entries as they stand after "&Rescale Symbol".
std::optional<std::string> runDrawingVerb(Editor& editor, std::string_view verb,
                                          const std::vector<std::string>& words, std::ostream& out);

/// Opens the entry's menu and chooses the entry; the problem when there is no such entry.
std::optional<std::string> runDrawingMenuEntry(Editor& editor, std::string_view path);

/// `symbol` and `state`.
bool isDrawingDump(std::string_view what);

/// `dump symbol`: the working symbol's keys and attributes, its counts and placed points, and
/// each slot in use with its code, x, y and character flag. `dump state`: the editor's
/// drawing state, one field a line.
void writeDrawingDump(const Editor& editor, std::string_view what, std::ostream& out);

}  // namespace quorn
