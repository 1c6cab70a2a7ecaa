// The Help menu of the editor: the Read Me viewer, the tips panel and the About box.

#include "app/editor.h"
#include "app/help_file.h"
#include "display/redraw.h"

namespace quorn {

void Editor::showReadMe() {
  if (!startup_.directory) return;
  if (auto text = readReadMe(*startup_.directory, messages_)) {
    window_.readMeText = std::move(*text);
    window_.readMeVisible = true;
  }
}

void Editor::showTipsPanel() {
  ListState& panel = window_.tipsPanel;
  panel.rows.clear();
  for (std::size_t tip = 1; tip < startup_.tips.headings.size(); ++tip) {
    panel.rows.push_back(startup_.tips.headings[tip]);
  }
  panel.selected = -1;
  window_.tipsPanelText.clear();
  window_.tipsPanelVisible = true;
}

void Editor::chooseTipRow(int row) {
  const auto tip = static_cast<std::size_t>(row) + 1;
  if (row < 0 || tip >= startup_.tips.texts.size()) return;
  window_.tipsPanel.selected = row;
  window_.tipsPanelText = startup_.tips.texts[tip];
}

void Editor::closeTipsPanel() {
  window_.tipsPanelVisible = false;
  if (state_.symbolOnSurface) {
    auto context = browseContext();
    redrawWorkingSymbol(context);
  } else {
    redrawGrid(canvas_, grid_, startup_.config);
  }
}

}  // namespace quorn
