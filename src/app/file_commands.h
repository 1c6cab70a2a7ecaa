#pragma once
// The File menu: New, Open, Save, Save As, Exit and closing the window, with the questions
// that guard unsaved work.

#include <string>

#include "app/file_chooser.h"
#include "base/messages.h"
#include "base/working_directory.h"
#include "config/configuration.h"
#include "config/settings.h"
#include "display/edit_window_state.h"
#include "display/window_texts.h"
#include "files/symbol_file.h"
#include "model/editor_state.h"
#include "model/symbol_collection.h"
#include "model/working_symbol.h"

namespace quorn {

/// What the file commands read and change; the editor owns all of it.
struct FileCommandContext {
  const WorkingDirectory& directory;
  const Configuration& config;
  const Settings& settings;
  CurrentSet& set;
  SymbolFileText& fileText;
  std::string& openFileName;  // empty after New
  WorkingSymbol& working;
  EditorState& state;
  GridPlacement grid;
  EditWindowState& window;
  Messages& messages;
  FileChooser& chooser;
};

enum class ExitDecision { KeepRunning, EndProgram };

void newFile(FileCommandContext& context);
/// True when a file was read into the Current Set.
bool openFile(FileCommandContext& context);
void saveFile(FileCommandContext& context);
void saveFileAs(FileCommandContext& context);
/// The Exit command (`closing` false) or the window being closed (`closing` true: the
/// questions offer no Cancel).
ExitDecision exitEditor(FileCommandContext& context, bool closing);

/// Opens `fileName` as the Open command does after its dialog (no questions asked first).
bool openNamedFile(FileCommandContext& context, const std::string& fileName);

/// "User Defined Symbols Editor" followed by the open file's name when there is one.
std::string windowCaption(const std::string& openFileName);

}  // namespace quorn
