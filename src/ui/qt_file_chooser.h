#pragma once
// The core's open and save dialogs as the system's file dialogs, named "openDialog" and
// "saveDialog".

#include <QString>
#include <QStringList>
#include <QWidget>

#include "app/file_chooser.h"

namespace quorn::ui {

class QtFileChooser : public FileChooser {
 public:
  explicit QtFileChooser(QWidget* parent = nullptr) : parent_(parent) {}
  void setParent(QWidget* parent) { parent_ = parent; }
  std::optional<std::string> chooseFileToOpen(const FileDialogRequest& request) override;
  std::optional<std::string> chooseFileToSave(const FileDialogRequest& request) override;

  /// "Desc|*.EXT|Other|*.*" as the dialog's filters "Desc (*.EXT)", "Other (*.*)".
  static QStringList nameFilters(const std::string& filter);

 private:
  std::optional<std::string> choose(const FileDialogRequest& request, bool save);

  QWidget* parent_;
};

}  // namespace quorn::ui
