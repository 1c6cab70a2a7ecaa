#include "ui/existing_symbol_picker_view.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "skey/dialog_texts.h"
#include "ui/qt_text.h"

namespace quorn::ui {

ExistingSymbolPickerView::ExistingSymbolPickerView(Editor& editor, std::function<void()> changed,
                                                   QWidget* parent)
    : MirroredDialog(editor, std::move(changed), parent),
      caption_(new QLabel),
      list_(new QListWidget) {
  setObjectName(QStringLiteral("existingSymbolPicker"));
  caption_->setObjectName(QStringLiteral("pickerCaption"));
  caption_->setWordWrap(true);
  caption_->setTextFormat(Qt::PlainText);
  caption_->setMinimumWidth(360);
  list_->setObjectName(QStringLiteral("pickerList"));
  auto* cancel = new QPushButton(qtText(kCancelCaption));
  cancel->setObjectName(QStringLiteral("pickerCancel"));
  cancel->setAutoDefault(false);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(caption_);
  layout->addWidget(list_, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cancel);
  layout->addLayout(buttons);
  connect(cancel, &QPushButton::clicked, this, [this] { reject(); });
  connect(list_, &QListWidget::itemClicked, this,
          [this](QListWidgetItem* item) { pick(list_->row(item)); });
  connect(list_, &QListWidget::itemActivated, this,
          [this](QListWidgetItem* item) { pick(list_->row(item)); });
}

void ExistingSymbolPickerView::pick(int row) {
  if (!isVisible()) return;
  editor_.pickExistingSymbol(row + 1);
  afterEvent();
}

void ExistingSymbolPickerView::closeInEditor() {
  editor_.closePicker();
}

void ExistingSymbolPickerView::mirror() {
  const auto& picker = editor_.symbolDialogs().picker;
  const bool open = picker && picker->kind == PickerKind::ExistingSymbol;
  if (open) {
    setWindowTitle(qtText(picker->title));
    caption_->setText(qtText(picker->caption));
    QStringList rows;
    for (const std::string& row : picker->rows) rows << qtText(row);
    QStringList shown;
    for (int i = 0; i < list_->count(); ++i) shown << list_->item(i)->text();
    if (shown != rows) {
      list_->clear();
      list_->addItems(rows);
    }
  }
  showAs(open);
}

}  // namespace quorn::ui
