#include "ui/qt_file_chooser.h"

#include <QFileDialog>

namespace quorn::ui {

QStringList QtFileChooser::nameFilters(const std::string& filter) {
  const QStringList parts = QString::fromStdString(filter).split('|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    filters << QStringLiteral("%1 (%2)").arg(parts[i], parts[i + 1]);
  }
  return filters;
}

std::optional<std::string> QtFileChooser::choose(const FileDialogRequest& request, bool save) {
  QFileDialog dialog(parent_);
  dialog.setObjectName(save ? QStringLiteral("saveDialog") : QStringLiteral("openDialog"));
  dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  // The editor asks its own overwrite question, with its own words.
  dialog.setOption(QFileDialog::DontConfirmOverwrite, true);
  const QStringList filters = nameFilters(request.filter);
  dialog.setNameFilters(filters);
  if (request.filterIndex >= 1 && request.filterIndex <= filters.size()) {
    dialog.selectNameFilter(filters[request.filterIndex - 1]);
  }
  if (!request.initialName.empty()) dialog.selectFile(QString::fromStdString(request.initialName));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return dialog.selectedFiles().front().toStdString();
}

std::optional<std::string> QtFileChooser::chooseFileToOpen(const FileDialogRequest& request) {
  return choose(request, false);
}

std::optional<std::string> QtFileChooser::chooseFileToSave(const FileDialogRequest& request) {
  return choose(request, true);
}

}  // namespace quorn::ui
