#pragma once
// The Scale dialog: grid division and horizontal scale length, and "&Rescale Symbol".
// Widgets: "scaleDialog" with "gridDivisionField", "scaleLengthField", "rescaleButton" and
// "scaleClose".

#include <QDialog>
#include <QLineEdit>
#include <functional>

#include "app/editor.h"

namespace quorn::ui {

class ScaleDialogView : public QDialog {
  Q_OBJECT

 public:
  ScaleDialogView(Editor& editor, std::function<void()> changed, QWidget* parent);
  /// Shows the dialog with the editor's entries while the editor keeps it open.
  void mirror();

 protected:
  void reject() override;

 private:
  Editor& editor_;
  std::function<void()> changed_;
  QLineEdit* division_;
  QLineEdit* length_;
};

}  // namespace quorn::ui
