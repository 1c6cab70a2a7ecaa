#include "ui/scale_dialog_view.h"

#include <QFormLayout>
#include <QPushButton>

#include "edit/editing_texts.h"

namespace quorn::ui {

namespace {

QString text(std::string_view value) {
  return QString::fromUtf8(value.data(), static_cast<qsizetype>(value.size()));
}

}  // namespace

ScaleDialogView::ScaleDialogView(Editor& editor, std::function<void()> changed, QWidget* parent)
    : QDialog(parent),
      editor_(editor),
      changed_(std::move(changed)),
      division_(new QLineEdit),
      length_(new QLineEdit) {
  setWindowTitle(QStringLiteral("Scale"));
  auto* layout = new QFormLayout(this);
  layout->addRow(text(kGridDivisionCaption), division_);
  layout->addRow(text(kScaleLengthCaption), length_);
  auto* rescale = new QPushButton(text(kRescaleCaption));
  auto* close = new QPushButton(tr("&Close"));
  layout->addRow(rescale, close);
  connect(division_, &QLineEdit::textEdited, this,
          [this](const QString& typed) { editor_.typeGridDivision(typed.toStdString()); });
  connect(length_, &QLineEdit::textEdited, this,
          [this](const QString& typed) { editor_.typeScaleLength(typed.toStdString()); });
  connect(rescale, &QPushButton::clicked, this, [this] {
    editor_.rescaleSymbol();
    mirror();
    changed_();
  });
  connect(close, &QPushButton::clicked, this, [this] { reject(); });
}

void ScaleDialogView::reject() {
  editor_.closeScaleDialog();
  QDialog::reject();
  changed_();
}

void ScaleDialogView::mirror() {
  if (!editor_.window().scaleDialogVisible) {
    if (isVisible()) QDialog::hide();
    return;
  }
  division_->setText(QString::fromStdString(editor_.scaleDialog().gridDivision));
  length_->setText(QString::fromStdString(editor_.scaleDialog().scaleLength));
  if (!isVisible()) show();
}

}  // namespace quorn::ui
