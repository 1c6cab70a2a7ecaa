#pragma once
// The editor: one object that holds everything the program keeps for its whole run, and the
// events of the edit window. The window, the command line and scripts all drive this object;
// none of them decides anything itself.

#include <functional>
#include <optional>
#include <string>

#include "app/file_chooser.h"
#include "app/file_commands.h"
#include "app/startup.h"
#include "base/environment.h"
#include "base/messages.h"
#include "display/canvas.h"
#include "display/edit_window_state.h"
#include "display/menu_texts.h"
#include "display/grid_geometry.h"
#include "edit/drawing_engine.h"
#include "edit/scale_dialog.h"
#include "files/symbol_file.h"
#include "model/editor_state.h"
#include "model/symbol_collection.h"
#include "model/working_symbol.h"
#include "skey/browsing.h"
#include "skey/symbol_creation.h"

namespace quorn {

class Editor {
 public:
  Editor(Messages& messages, FileChooser& chooser, Environment& environment, Canvas& canvas);
  Editor(const Editor&) = delete;
  Editor& operator=(const Editor&) = delete;

  /// The first start-up stage; a fault that ends the program is returned.
  std::optional<FatalError> startFirstStage(const std::string& commandLine);
  /// The second stage, run once when the start-up timer fires. `windowShown` is called when
  /// the edit window is laid out and drawn and again when the tips dialog is asked for, so a
  /// window can show both before the command-line file is opened.
  std::optional<FatalError> startSecondStage(const std::function<void()>& windowShown = {});

  // The Help menu: the Read Me viewer, the tips panel and the About box.
  void showReadMe();
  void closeReadMe() { window_.readMeVisible = false; }
  void showTipsPanel();
  void chooseTipRow(int row);
  void closeTipsPanel();
  void showAbout() { window_.aboutVisible = true; }
  void closeAbout() { window_.aboutVisible = false; }

  /// The tips dialog's "&Close" button.
  void closeTipsDialog() { window_.tipsDialogVisible = false; }

  /// The testing aids' values view closed; the next Open that reads a file shows it again.
  void closeValuesView() { window_.valuesViewVisible = false; }

  // Browsing: the group chooser, the symbol list and the two views of it.
  void chooseGroup(int row);
  void chooseSymbolRow(int row);
  void viewStandardLibrary();
  void viewCurrentSet();

  // Drawing on the grid: the drawing surface (positions in form units), the action buttons,
  // the Delete and Move menus, the flip choice and the Scale dialog
  // (src/app/editor_drawing.cpp).
  void pressMouse(MouseButton button, float x, float y);
  void moveMouse(float x, float y);
  void pressButton(ActionButton button);
  void openDeleteMenu();
  void chooseDeleteEntry(DeleteEntry entry);
  /// Delete › Symbol.
  void deleteSymbol();
  void openMoveMenu();
  void chooseMoveEntry(MoveEntry entry);
  void chooseFlip(FlipAxis axis);
  void typeGridDivision(std::string text);
  void typeScaleLength(std::string text);
  /// "&Rescale Symbol": the grid laid out again from the entries, and the symbol redrawn.
  void rescaleSymbol();
  /// The Scale dialog's close button: the grid stays as the last rescale left it.
  void closeScaleDialog();

  // Symbol › New and Symbol › Edit, the new-symbol dialog and the two pickers over it
  // (src/app/editor_symbol_dialog.cpp). True when the event was taken: an event of a closed
  // dialog or picker, or of a disabled control, does nothing.
  bool newSymbol();
  bool editSymbol();
  bool typeInDialog(DialogField field, std::string text);
  void leaveDialogField(DialogField field);
  void tickCopySymbol(bool ticked);
  void chooseCopyOption(CopyOption option);
  bool chooseDialogList(AttributeList list, int position);
  CreateOutcome pressCreate();
  void pressCancel();
  bool openExistingSymbolPicker();
  /// Entry `entry` (from 1) of the group's SKEYs; the picker closes.
  bool pickExistingSymbol(int entry);
  bool openSpindlePicker();
  /// A spindle by its SKEY; the picker stays open.
  bool pickSpindle(std::string_view skey);
  /// The picker's Cancel or close button.
  void closePicker();

  // The File menu and the window's close box.
  void newFile();
  void openFile();
  void saveFile();
  void saveFileAs();
  ExitDecision exitEditor();
  ExitDecision closeWindow();

  // The menus (src/app/editor_menu.cpp).
  /// Opening a menu is an event of its own: the Delete and Move menus set the operation.
  void openMenu(Menu menu);
  /// The entry can be chosen now: its menu is shown and it does not wait for Done.
  bool menuEntryOffered(const MenuEntryText& entry) const;
  /// A menu entry chosen. Printing is the window's own, so File › Print changes nothing here.
  ExitDecision chooseMenuEntry(MenuCommand command);

  const StartupData& startup() const { return startup_; }
  const CurrentSet& currentSet() const { return set_; }
  const SymbolFileText& fileText() const { return fileText_; }
  const std::string& openFileName() const { return openFileName_; }
  const WorkingSymbol& workingSymbol() const { return working_; }
  const EditorState& state() const { return state_; }
  const EditWindowState& window() const { return window_; }
  const GridGeometry& grid() const { return grid_; }
  const BrowseState& browse() const { return browse_; }
  const ScaleDialogState& scaleDialog() const { return scaleDialog_; }
  const SymbolDialogs& symbolDialogs() const { return dialogs_; }

 private:
  FileCommandContext fileContext();
  BrowseContext browseContext();
  DrawingContext drawingContext();
  CreationContext creationContext();
  /// The dialog is open and no picker covers it.
  bool dialogTakesInput() const;
  /// After an Open that read symbols, the list shows the Current Set and its first symbol.
  void showFirstSymbolAfterOpen();
  /// Where the grid lies, for turning form units into stored units.
  GridPlacement gridPlacement() const;

  Messages& messages_;
  FileChooser& chooser_;
  Environment& environment_;
  Canvas& canvas_;

  StartupData startup_;
  CurrentSet set_;
  SymbolFileText fileText_;
  std::string openFileName_;
  WorkingSymbol working_;
  EditorState state_;
  EditWindowState window_;
  GridGeometry grid_;
  BrowseState browse_;
  DrawingSession session_;
  ScaleDialogState scaleDialog_;
  SymbolDialogs dialogs_;
};

}  // namespace quorn
