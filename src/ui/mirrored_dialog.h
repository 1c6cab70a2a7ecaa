#pragma once
// A small dialog of the window whose being open is the editor's state: the window shows or
// hides it as the state says, and closing it (its button, Escape or the close box) is an
// editor event.

#include <QDialog>
#include <functional>

#include "app/editor.h"

namespace quorn::ui {

class MirroredDialog : public QDialog {
 public:
  /// `changed` is called after every event of the dialog, so the window shows what changed.
  MirroredDialog(Editor& editor, std::function<void()> changed, QWidget* parent);

  /// Shows the dialog with the editor's state while the editor keeps it open, else hides it.
  virtual void mirror() = 0;

 protected:
  /// Tells the editor the dialog was closed; it is hidden when the state says so.
  void reject() override;
  /// The editor's event for closing this dialog.
  virtual void closeInEditor() = 0;
  /// Shows the dialog (modal over its parent when `modal`) or hides it.
  void showAs(bool visible, bool modal = true);
  /// After an editor event: the dialog and the window show what it changed.
  void afterEvent();

  Editor& editor_;

 private:
  std::function<void()> changed_;
};

}  // namespace quorn::ui
