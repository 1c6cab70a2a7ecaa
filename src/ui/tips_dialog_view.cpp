#include "ui/tips_dialog_view.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/startup_texts.h"
#include "display/window_texts.h"
#include "ui/qt_text.h"

namespace quorn::ui {

TipsDialogView::TipsDialogView(Editor& editor, std::function<void()> changed, QWidget* parent)
    : MirroredDialog(editor, std::move(changed), parent), tip_(new QLabel) {
  setObjectName(QStringLiteral("tipsDialog"));
  setWindowTitle(qtText(kTipsDialogTitle));
  // The normal pointer over the dialog, though start-up may still show the busy one.
  setCursor(Qt::ArrowCursor);
  tip_->setObjectName(QStringLiteral("tipText"));
  tip_->setWordWrap(true);
  tip_->setTextFormat(Qt::PlainText);
  tip_->setMinimumWidth(420);
  auto* note = new QLabel(qtText(kTipsDialogNote));
  note->setObjectName(QStringLiteral("tipsNote"));
  note->setWordWrap(true);
  note->setTextFormat(Qt::PlainText);
  auto* close = new QPushButton(qtText(kCloseCaption));
  close->setObjectName(QStringLiteral("tipsClose"));
  close->setDefault(true);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(tip_, 1);
  layout->addWidget(note);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(close);
  layout->addLayout(buttons);
  connect(close, &QPushButton::clicked, this, [this] { reject(); });
}

void TipsDialogView::closeInEditor() {
  editor_.closeTipsDialog();
}

void TipsDialogView::mirror() {
  const EditWindowState& window = editor_.window();
  if (window.tipsDialogVisible) tip_->setText(qtText(window.tipText));
  showAs(window.tipsDialogVisible, false);
}

}  // namespace quorn::ui
