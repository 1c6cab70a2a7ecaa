#include "ui/values_view.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "display/window_texts.h"
#include "ui/qt_text.h"

namespace quorn::ui {

ValuesView::ValuesView(Editor& editor, std::function<void()> changed, QWidget* parent)
    : MirroredDialog(editor, std::move(changed), parent), text_(new QPlainTextEdit) {
  setObjectName(QStringLiteral("valuesView"));
  setWindowTitle(qtText(kValuesViewTitle));
  text_->setObjectName(QStringLiteral("valuesText"));
  text_->setReadOnly(true);
  text_->setLineWrapMode(QPlainTextEdit::NoWrap);
  text_->setFont(QFont(QStringLiteral("monospace")));
  auto* close = new QPushButton(qtText(kCloseCaption));
  close->setObjectName(QStringLiteral("valuesClose"));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(text_, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(close);
  layout->addLayout(buttons);
  connect(close, &QPushButton::clicked, this, [this] { reject(); });
  resize(820, 520);
}

void ValuesView::closeInEditor() {
  editor_.closeValuesView();
}

void ValuesView::mirror() {
  const EditWindowState& window = editor_.window();
  if (window.valuesViewVisible && text_->toPlainText() != qtText(window.valuesView)) {
    text_->setPlainText(qtText(window.valuesView));
  }
  // The view stands beside the edit window, which stays usable.
  showAs(window.valuesViewVisible, false);
}

}  // namespace quorn::ui
