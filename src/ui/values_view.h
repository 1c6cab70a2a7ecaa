#pragma once
// The testing aids' values view: after an Open, while testing is enabled, the lines read and
// the symbols as records again, read-only. Widgets: "valuesView" with "valuesText" and
// "valuesClose".

#include <QPlainTextEdit>

#include "ui/mirrored_dialog.h"

namespace quorn::ui {

class ValuesView : public MirroredDialog {
 public:
  ValuesView(Editor& editor, std::function<void()> changed, QWidget* parent);
  void mirror() override;

 protected:
  void closeInEditor() override;

 private:
  QPlainTextEdit* text_;
};

}  // namespace quorn::ui
