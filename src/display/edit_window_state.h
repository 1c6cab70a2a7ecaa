#pragma once
// Everything the edit window shows besides the drawing: captions, labels, lists and which
// commands are enabled. The core writes it; the window only mirrors it.

#include <string>
#include <vector>

#include "display/window_texts.h"

namespace quorn {

enum class Pointer { Normal, Busy, Crosshair };

/// A list the user picks rows from (the symbol list, the group chooser).
struct ListState {
  std::vector<std::string> rows;
  int selected = -1;  // 0-based row, -1 for none
  bool enabled = true;
};

struct EditWindowState {
  std::string caption{kWindowCaption};
  std::string prompt;
  std::string countLabel;
  std::string statusText;
  std::string snapLabel = "Snap is On";
  std::string charLabel = "Char is Off";
  std::string hint;
  std::string isoCaption = "Iso";
  std::string eraseCaption = "Erase Symbol from Screen but Retain in Current Symbol Set";
  Pointer pointer = Pointer::Normal;
  ListState groupChooser;
  ListState symbolList;
  bool menusEnabled = true;
  bool moveMenuVisible = false;
  bool flipChoiceVisible = false;
  /// The Scale dialog over the edit window; its entries are the editor's.
  bool scaleDialogVisible = false;
  bool isometric = false;
  /// The testing aids' values view: what the last Open read, shown when testing is enabled.
  std::string valuesView;
  bool valuesViewVisible = false;
  /// The tips dialog of start-up with the chosen tip's text.
  std::string tipText;
  bool tipsDialogVisible = false;
  /// The Read Me viewer with the text of READMESY.TXT.
  std::string readMeText;
  bool readMeVisible = false;
  /// The tips panel: the tip headings, and the text of the tip chosen.
  ListState tipsPanel;
  std::string tipsPanelText;
  bool tipsPanelVisible = false;
  bool aboutVisible = false;
};

}  // namespace quorn
