#pragma once
// The edit window: it shows the editor's state and hands every user event to the editor.
// Widgets: "editWindow" with "groupChooser", "symbolList", "drawingSurface", "hintLine",
// "promptLine", "countLabel", "snapLabel", "charLabel", "statusLine", the action buttons named
// by their caption without "&" ("End", "Insul.", "Iso" whichever the view button reads), the
// menus "fileMenu", "symbolMenu", "viewMenu", "deleteMenu", "moveMenu", "helpMenu" and their
// entries (see menuActionName in main_window.cpp), and the dialogs over it.

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QPushButton>
#include <map>
#include <vector>

#include "app/editor.h"
#include "display/menu_texts.h"
#include "ui/drawing_surface.h"
#include "ui/mirrored_dialog.h"
#include "ui/new_symbol_dialog_view.h"
#include "ui/scale_dialog_view.h"

namespace quorn::ui {

class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  /// `surface` is the canvas the editor draws on; the window takes it over.
  MainWindow(Editor& editor, DrawingSurface* surface);

  /// Mirrors the editor's window state: captions, labels, lists, menus and the small
  /// dialogs over the window.
  void refresh();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void buildMenus();
  void runMenuCommand(MenuCommand command);
  QLayout* buildActionButtons();
  /// Offers the two flips while the editor shows the flip choice.
  void offerFlipIfAsked();
  /// Runs an editor command and shows what it changed.
  template <typename Command>
  void run(Command command) {
    command();
    refresh();
  }
  void exitIfDecided(ExitDecision decision);

  Editor& editor_;
  DrawingSurface* surface_;
  std::map<Menu, QMenu*> menus_;
  std::map<MenuCommand, QAction*> menuActions_;
  QComboBox* groupChooser_;
  QListWidget* symbolList_;
  QLabel* prompt_;
  QLabel* countLabel_;
  QLabel* snapLabel_;
  QLabel* charLabel_;
  QLabel* status_;
  NewSymbolDialogView* dialog_;
  ScaleDialogView* scaleDialog_;
  /// The tips dialog, the values view and the Help menu's windows.
  std::vector<MirroredDialog*> smallDialogs_;
  QPushButton* isoButton_ = nullptr;
  QLabel* hint_;
};

}  // namespace quorn::ui
