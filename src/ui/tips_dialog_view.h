#pragma once
// The tips dialog of start-up: the tip chosen at random and the fixed line on how to switch
// tips off. Widgets: "tipsDialog" with "tipText", "tipsNote" and "tipsClose".

#include <QLabel>

#include "ui/mirrored_dialog.h"

namespace quorn::ui {

class TipsDialogView : public MirroredDialog {
 public:
  TipsDialogView(Editor& editor, std::function<void()> changed, QWidget* parent);
  void mirror() override;

 protected:
  void closeInEditor() override;

 private:
  QLabel* tip_;
};

}  // namespace quorn::ui
