#pragma once
// The Select Existing Symbol picker over the new-symbol dialog: the current group's SKEYs,
// one of which fills the dialog. Widgets: "existingSymbolPicker" with "pickerCaption",
// "pickerList" and "pickerCancel".

#include <QLabel>
#include <QListWidget>

#include "ui/mirrored_dialog.h"

namespace quorn::ui {

class ExistingSymbolPickerView : public MirroredDialog {
 public:
  ExistingSymbolPickerView(Editor& editor, std::function<void()> changed, QWidget* parent);
  void mirror() override;

 protected:
  void closeInEditor() override;

 private:
  void pick(int row);

  QLabel* caption_;
  QListWidget* list_;
};

}  // namespace quorn::ui
