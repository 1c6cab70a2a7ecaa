#include "ui/mirrored_dialog.h"

namespace quorn::ui {

MirroredDialog::MirroredDialog(Editor& editor, std::function<void()> changed, QWidget* parent)
    : QDialog(parent), editor_(editor), changed_(std::move(changed)) {}

void MirroredDialog::reject() {
  closeInEditor();
  afterEvent();
}

void MirroredDialog::afterEvent() {
  mirror();
  changed_();
}

void MirroredDialog::showAs(bool visible, bool modal) {
  if (visible && !isVisible()) {
    if (modal) {
      open();
    } else {
      show();
    }
  } else if (!visible && isVisible()) {
    QDialog::hide();
  }
}

}  // namespace quorn::ui
