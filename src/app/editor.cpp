#include "app/editor.h"

#include "display/redraw.h"

namespace quorn {

Editor::Editor(Messages& messages, FileChooser& chooser, Environment& environment, Canvas& canvas)
    : messages_(messages), chooser_(chooser), environment_(environment), canvas_(canvas) {}

std::optional<FatalError> Editor::startFirstStage(const std::string& commandLine) {
  return runFirstStage(startup_, commandLine, environment_, messages_);
}

std::optional<FatalError> Editor::startSecondStage(const std::function<void()>& windowShown) {
  window_.pointer = Pointer::Busy;
  SecondStageSteps steps;
  steps.showEditWindow = [this, &windowShown]() -> std::optional<std::string> {
    const GridLayout layout = layOutGrid(startup_.config, environment_.screenSize());
    if (!layout.geometry) return layout.problem;
    grid_ = *layout.geometry;
    set_.reset(startup_.config.maxSymbolsInFile);
    window_.groupChooser.rows = startup_.config.groupList;
    window_.groupChooser.selected = window_.groupChooser.rows.empty() ? -1 : 0;
    window_.caption = windowCaption(openFileName_);
    redrawGrid(canvas_, grid_, startup_.config);
    auto context = browseContext();
    refreshSymbolList(context);
    if (windowShown) windowShown();
    return std::nullopt;
  };
  steps.showTips = [this, &windowShown] {
    window_.tipText = startup_.tips.texts.at(static_cast<std::size_t>(startup_.chosenTip));
    window_.tipsDialogVisible = true;
    if (windowShown) windowShown();
  };
  steps.openFile = [this](const std::string& fileName) {
    auto context = fileContext();
    if (openNamedFile(context, fileName)) showFirstSymbolAfterOpen();
  };
  auto fatal = runSecondStage(startup_, environment_, messages_, steps);
  window_.pointer = Pointer::Normal;
  return fatal;
}

FileCommandContext Editor::fileContext() {
  return FileCommandContext{*startup_.directory, startup_.config, startup_.settings, set_,
                            fileText_,           openFileName_,   working_,          state_,
                            gridPlacement(),     window_,         messages_,         chooser_};
}

GridPlacement Editor::gridPlacement() const {
  return quorn::gridPlacement(grid_);
}

void Editor::newFile() {
  auto context = fileContext();
  quorn::newFile(context);
}

void Editor::openFile() {
  auto context = fileContext();
  if (quorn::openFile(context)) showFirstSymbolAfterOpen();
}

void Editor::showFirstSymbolAfterOpen() {
  browse_.view = ListView::CurrentSet;
  browse_.shownSymbol = 0;
  if (set_.count() == 0) return;
  auto context = browseContext();
  chooseSymbol(context, 0);
  if (!state_.symbolInProgress) state_.newStrokePending = true;
}

BrowseContext Editor::browseContext() {
  return BrowseContext{startup_.config, set_,  startup_.library, browse_,  working_, state_,
                       window_,         grid_, canvas_,          messages_};
}

void Editor::chooseGroup(int row) {
  auto context = browseContext();
  quorn::chooseGroup(context, row);
  groupChosenUnderDialog(dialogs_, browse_.currentGroup);
}

void Editor::chooseSymbolRow(int row) {
  auto context = browseContext();
  chooseSymbol(context, row);
  // Drawing on a symbol just shown starts a new stroke; a symbol in progress is not replaced.
  if (!state_.symbolInProgress) state_.newStrokePending = true;
}

void Editor::viewStandardLibrary() {
  browse_.view = ListView::Standard;
  auto context = browseContext();
  refreshSymbolList(context, true);
}

void Editor::viewCurrentSet() {
  browse_.view = ListView::CurrentSet;
  auto context = browseContext();
  refreshSymbolList(context);
}

void Editor::saveFile() {
  auto context = fileContext();
  quorn::saveFile(context);
}

void Editor::saveFileAs() {
  auto context = fileContext();
  quorn::saveFileAs(context);
}

ExitDecision Editor::exitEditor() {
  auto context = fileContext();
  return quorn::exitEditor(context, false);
}

ExitDecision Editor::closeWindow() {
  auto context = fileContext();
  return quorn::exitEditor(context, true);
}

}  // namespace quorn
