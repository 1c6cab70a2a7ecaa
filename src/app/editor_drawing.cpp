// The Editor's events of drawing on the grid: the drawing surface, the action buttons, the
// Delete and Move menus, the flip choice and the Scale dialog.

#include "app/editor.h"
#include "skey/group_entries.h"

namespace quorn {

DrawingContext Editor::drawingContext() {
  return DrawingContext{startup_.config,
                        grid_,
                        groupFlags(startup_.config, browse_.currentGroup, browse_.currentEntry),
                        set_,
                        working_,
                        state_,
                        window_,
                        session_,
                        canvas_,
                        messages_};
}

void Editor::pressMouse(MouseButton button, float x, float y) {
  auto context = drawingContext();
  quorn::pressMouse(context, button, x, y);
}

void Editor::moveMouse(float x, float y) {
  auto context = drawingContext();
  quorn::moveMouse(context, x, y);
}

void Editor::pressButton(ActionButton button) {
  auto context = drawingContext();
  switch (pressActionButton(context, button)) {
    case ButtonFollowUp::SymbolStored: {
      // The list shows the Current Set with the symbol just stored.
      browse_.view = ListView::CurrentSet;
      browse_.shownSymbol = state_.symbolNumber;
      auto browsing = browseContext();
      refreshSymbolList(browsing);
      break;
    }
    case ButtonFollowUp::OpenScaleDialog:
      scaleDialog_ = openScaleDialog(startup_.config.pitch, startup_.config.hsize);
      window_.scaleDialogVisible = true;
      break;
    case ButtonFollowUp::None:
      break;
  }
}

void Editor::openDeleteMenu() {
  auto context = drawingContext();
  quorn::openDeleteMenu(context);
}

void Editor::chooseDeleteEntry(DeleteEntry entry) {
  auto context = drawingContext();
  quorn::chooseDeleteEntry(context, entry);
}

void Editor::deleteSymbol() {
  auto context = drawingContext();
  if (!chooseDeleteSymbol(context)) return;
  // The symbol stays on the surface but no longer stands in the set.
  browse_.shownSymbol = 0;
  auto browsing = browseContext();
  refreshSymbolList(browsing);
}

void Editor::openMoveMenu() {
  auto context = drawingContext();
  quorn::openMoveMenu(context);
}

void Editor::chooseMoveEntry(MoveEntry entry) {
  auto context = drawingContext();
  quorn::chooseMoveEntry(context, entry);
}

void Editor::chooseFlip(FlipAxis axis) {
  auto context = drawingContext();
  quorn::chooseFlip(context, axis);
}

void Editor::typeGridDivision(std::string text) {
  if (window_.scaleDialogVisible) scaleDialog_.gridDivision = std::move(text);
}

void Editor::typeScaleLength(std::string text) {
  if (window_.scaleDialogVisible) scaleDialog_.scaleLength = std::move(text);
}

void Editor::rescaleSymbol() {
  if (!window_.scaleDialogVisible) return;
  const auto scale = quorn::rescaleSymbol(scaleDialog_);
  if (!scale) return;
  const GridLayout layout = layOutGrid(scale->pitch, scale->hsize, environment_.screenSize());
  if (!layout.geometry) {
    messages_.tell(layout.problem);
    return;
  }
  startup_.config.pitch = scale->pitch;
  startup_.config.hsize = scale->hsize;
  grid_ = *layout.geometry;
  auto context = drawingContext();
  redrawSurface(context);
}

void Editor::closeScaleDialog() {
  window_.scaleDialogVisible = false;
}

}  // namespace quorn
