#include "ui/spindle_picker_view.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "display/window_texts.h"
#include "ui/qt_text.h"
#include "ui/spindle_drawing_view.h"

namespace quorn::ui {

namespace {

constexpr int kFramesPerRow = 5;

}  // namespace

SpindlePickerView::SpindlePickerView(Editor& editor, std::function<void()> changed, QWidget* parent)
    : MirroredDialog(editor, std::move(changed), parent),
      prompt_(new QLabel),
      list_(new QListWidget),
      frames_(new QGridLayout) {
  setObjectName(QStringLiteral("spindlePicker"));
  prompt_->setObjectName(QStringLiteral("spindlePrompt"));
  list_->setObjectName(QStringLiteral("spindleList"));
  list_->setMaximumWidth(120);
  auto* close = new QPushButton(qtText(kCloseCaption));
  close->setObjectName(QStringLiteral("spindleClose"));
  close->setAutoDefault(false);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(prompt_);
  auto* body = new QHBoxLayout;
  body->addWidget(list_);
  body->addLayout(frames_, 1);
  layout->addLayout(body, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(close);
  layout->addLayout(buttons);
  connect(close, &QPushButton::clicked, this, [this] { reject(); });
  connect(list_, &QListWidget::itemClicked, this,
          [this](QListWidgetItem* item) { pick(item->text().toStdString()); });
  connect(list_, &QListWidget::itemActivated, this,
          [this](QListWidgetItem* item) { pick(item->text().toStdString()); });
}

void SpindlePickerView::pick(const std::string& skey) {
  if (!isVisible()) return;
  editor_.pickSpindle(skey);
  afterEvent();
}

void SpindlePickerView::closeInEditor() {
  editor_.closePicker();
}

void SpindlePickerView::buildFrames(const std::vector<std::string>& rows) {
  while (QLayoutItem* item = frames_->takeAt(0)) {
    delete item->widget();
    delete item;
  }
  const std::vector<SpindleDefinition>& spindles = editor_.startup().spindles.spindles;
  int position = 0;
  for (const std::string& skey : rows) {
    // Index 0 of the table is never a spindle of the picker.
    const auto found = std::find_if(spindles.begin() + 1, spindles.end(),
                                    [&](const SpindleDefinition& s) { return s.name == skey; });
    if (found == spindles.end()) continue;
    auto* frame = new QGroupBox(qtText(skey));
    frame->setObjectName(QStringLiteral("spindleFrame_") + qtText(skey));
    auto* drawing = new SpindleDrawingView(*found, [this, skey] { pick(skey); });
    drawing->setObjectName(QStringLiteral("spindleDrawing_") + qtText(skey));
    auto* inside = new QVBoxLayout(frame);
    inside->addWidget(drawing);
    frames_->addWidget(frame, position / kFramesPerRow, position % kFramesPerRow);
    ++position;
  }
  framed_ = rows;
}

void SpindlePickerView::mirror() {
  const auto& picker = editor_.symbolDialogs().picker;
  const bool open = picker && picker->kind == PickerKind::Spindle;
  if (open) {
    setWindowTitle(qtText(picker->title));
    prompt_->setText(qtText(picker->caption));
    if (framed_ != picker->rows) {
      list_->clear();
      for (const std::string& row : picker->rows) list_->addItem(qtText(row));
      buildFrames(picker->rows);
    }
    // The row of the SKEY the dialog now holds is marked.
    const QString chosen = qtText(editor_.symbolDialogs().dialog.state().spindleKey.text);
    const auto matches = list_->findItems(chosen, Qt::MatchExactly);
    list_->setCurrentItem(matches.isEmpty() ? nullptr : matches.front());
  }
  showAs(open);
}

}  // namespace quorn::ui
