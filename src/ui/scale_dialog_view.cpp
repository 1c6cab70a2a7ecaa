#include "ui/scale_dialog_view.h"

#include <QFormLayout>
#include <QPushButton>

#include "display/window_texts.h"
#include "edit/editing_texts.h"
#include "ui/qt_text.h"

namespace quorn::ui {

ScaleDialogView::ScaleDialogView(Editor& editor, std::function<void()> changed, QWidget* parent)
    : QDialog(parent),
      editor_(editor),
      changed_(std::move(changed)),
      division_(new QLineEdit),
      length_(new QLineEdit) {
  setObjectName(QStringLiteral("scaleDialog"));
  setWindowTitle(qtText(kScaleDialogTitle));
  division_->setObjectName(QStringLiteral("gridDivisionField"));
  length_->setObjectName(QStringLiteral("scaleLengthField"));
  auto* layout = new QFormLayout(this);
  layout->addRow(qtText(kGridDivisionCaption), division_);
  layout->addRow(qtText(kScaleLengthCaption), length_);
  auto* rescale = new QPushButton(qtText(kRescaleCaption));
  rescale->setObjectName(QStringLiteral("rescaleButton"));
  auto* close = new QPushButton(qtText(kCloseCaption));
  close->setObjectName(QStringLiteral("scaleClose"));
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
  division_->setText(qtText(editor_.scaleDialog().gridDivision));
  length_->setText(qtText(editor_.scaleDialog().scaleLength));
  if (!isVisible()) show();
}

}  // namespace quorn::ui
