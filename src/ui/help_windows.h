#pragma once
// The windows of the Help menu, each open while the editor says so: the Read Me viewer
// ("readMeViewer" with "readMeText" and "readMeClose"), the tips panel ("tipsPanel" with
// "tipsList", "tipsPanelText" and "tipsPanelClose") and the About box ("aboutBox" with
// "aboutText" and "aboutOk"). The viewer and the About box size themselves to the screen.

#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>

#include "ui/mirrored_dialog.h"

namespace quorn::ui {

class ReadMeViewer : public MirroredDialog {
 public:
  ReadMeViewer(Editor& editor, std::function<void()> changed, QWidget* parent);
  void mirror() override;

 protected:
  void closeInEditor() override;

 private:
  QPlainTextEdit* text_;
};

class TipsPanelView : public MirroredDialog {
 public:
  TipsPanelView(Editor& editor, std::function<void()> changed, QWidget* parent);
  void mirror() override;

 protected:
  void closeInEditor() override;

 private:
  QListWidget* headings_;
  QLabel* text_;
};

class AboutBox : public MirroredDialog {
 public:
  AboutBox(Editor& editor, std::function<void()> changed, QWidget* parent);
  void mirror() override;

 protected:
  void closeInEditor() override;

 private:
  QLabel* text_;
};

}  // namespace quorn::ui
