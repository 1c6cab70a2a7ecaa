#pragma once
// The Standard Spindles picker over the new-symbol dialog: the spindles' SKEYs in a list and,
// beside it, each spindle drawn in a frame captioned with its SKEY. Choosing a row or clicking
// a drawing puts the SKEY into the dialog's Spindle SKEY field; the picker stays open until
// its close button. Widgets: "spindlePicker" with "spindlePrompt", "spindleList",
// "spindleFrame_<SKEY>" holding "spindleDrawing_<SKEY>", and "spindleClose".

#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <string>

#include "ui/mirrored_dialog.h"

namespace quorn::ui {

class SpindlePickerView : public MirroredDialog {
 public:
  SpindlePickerView(Editor& editor, std::function<void()> changed, QWidget* parent);
  void mirror() override;

 protected:
  void closeInEditor() override;

 private:
  void pick(const std::string& skey);
  /// One frame per row of the picker, with the drawing of the spindle of that SKEY.
  void buildFrames(const std::vector<std::string>& rows);

  QLabel* prompt_;
  QListWidget* list_;
  QGridLayout* frames_;
  std::vector<std::string> framed_;
};

}  // namespace quorn::ui
