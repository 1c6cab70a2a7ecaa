#pragma once
// The edit window: it shows the editor's state and hands every user event to the editor.

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QPushButton>
#include <vector>

#include "app/editor.h"
#include "ui/drawing_surface.h"
#include "ui/new_symbol_dialog_view.h"
#include "ui/scale_dialog_view.h"

namespace quorn::ui {

class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  /// `surface` is the canvas the editor draws on; the window takes it over.
  MainWindow(Editor& editor, DrawingSurface* surface);

  /// Mirrors the editor's window state: captions, labels, lists.
  void refresh();
  /// The tips dialog of start-up, when the editor asks for it.
  void showTipsIfAsked();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void buildMenus();
  QLayout* buildActionButtons();
  /// Offers the two flips while the editor shows the flip choice.
  void offerFlipIfAsked();
  /// The Read Me viewer, the tips panel and the About box, while the editor shows them.
  void showHelpWindows();
  /// Runs an editor command and shows what it changed.
  template <typename Command>
  void run(Command command) {
    command();
    refresh();
  }
  void exitIfDecided(ExitDecision decision);

  Editor& editor_;
  DrawingSurface* surface_;
  /// The entries that wait while a symbol is in progress.
  std::vector<QAction*> heldWhileDrawing_;
  QComboBox* groupChooser_;
  QListWidget* symbolList_;
  QLabel* prompt_;
  QLabel* countLabel_;
  QLabel* snapLabel_;
  QLabel* charLabel_;
  QLabel* status_;
  NewSymbolDialogView* dialog_;
  ScaleDialogView* scaleDialog_;
  QPushButton* isoButton_ = nullptr;
  QLabel* hint_;
};

}  // namespace quorn::ui
