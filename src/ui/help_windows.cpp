#include "ui/help_windows.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "app/startup_texts.h"
#include "display/window_texts.h"
#include "ui/qt_text.h"

namespace quorn::ui {

namespace {

/// A button row at the foot of a dialog, the button on the right.
QPushButton* addButtonRow(QVBoxLayout* layout, std::string_view caption, const char* name) {
  auto* button = new QPushButton(qtText(caption));
  button->setObjectName(QLatin1String(name));
  button->setDefault(true);
  auto* row = new QHBoxLayout;
  row->addStretch();
  row->addWidget(button);
  layout->addLayout(row);
  return button;
}

/// The part `widthShare` by `heightShare` of the screen the dialog is on, centred on it.
void fitToScreen(QWidget* dialog, double widthShare, double heightShare) {
  const QScreen* screen = dialog->screen() ? dialog->screen() : QGuiApplication::primaryScreen();
  if (!screen) return;
  const QRect area = screen->availableGeometry();
  const QSize size(static_cast<int>(area.width() * widthShare),
                   static_cast<int>(area.height() * heightShare));
  dialog->resize(size);
  dialog->move(area.center() - QPoint(size.width() / 2, size.height() / 2));
}

}  // namespace

ReadMeViewer::ReadMeViewer(Editor& editor, std::function<void()> changed, QWidget* parent)
    : MirroredDialog(editor, std::move(changed), parent), text_(new QPlainTextEdit) {
  setObjectName(QStringLiteral("readMeViewer"));
  setWindowTitle(qtText(kReadMeFileName));
  text_->setObjectName(QStringLiteral("readMeText"));
  text_->setReadOnly(true);
  text_->setFont(QFont(QStringLiteral("monospace")));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(text_, 1);
  connect(addButtonRow(layout, kCloseCaption, "readMeClose"), &QPushButton::clicked, this,
          [this] { reject(); });
}

void ReadMeViewer::closeInEditor() {
  editor_.closeReadMe();
}

void ReadMeViewer::mirror() {
  const EditWindowState& window = editor_.window();
  if (window.readMeVisible && !isVisible()) {
    text_->setPlainText(qtText(window.readMeText));
    fitToScreen(this, 0.75, 0.8);
  }
  showAs(window.readMeVisible);
}

TipsPanelView::TipsPanelView(Editor& editor, std::function<void()> changed, QWidget* parent)
    : MirroredDialog(editor, std::move(changed), parent),
      headings_(new QListWidget),
      text_(new QLabel) {
  setObjectName(QStringLiteral("tipsPanel"));
  setWindowTitle(qtText(kTipsDialogTitle));
  headings_->setObjectName(QStringLiteral("tipsList"));
  text_->setObjectName(QStringLiteral("tipsPanelText"));
  text_->setTextFormat(Qt::PlainText);
  text_->setWordWrap(true);
  text_->setMinimumWidth(320);
  text_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  auto* layout = new QVBoxLayout(this);
  auto* body = new QHBoxLayout;
  body->addWidget(headings_);
  body->addWidget(text_, 1);
  layout->addLayout(body, 1);
  connect(addButtonRow(layout, kCloseCaption, "tipsPanelClose"), &QPushButton::clicked, this,
          [this] { reject(); });
  connect(headings_, &QListWidget::currentRowChanged, this, [this](int row) {
    editor_.chooseTipRow(row);
    afterEvent();
  });
}

void TipsPanelView::closeInEditor() {
  editor_.closeTipsPanel();
}

void TipsPanelView::mirror() {
  const EditWindowState& window = editor_.window();
  if (window.tipsPanelVisible) {
    const QSignalBlocker blocker(headings_);
    QStringList rows;
    for (const std::string& row : window.tipsPanel.rows) rows << qtText(row);
    QStringList shown;
    for (int i = 0; i < headings_->count(); ++i) shown << headings_->item(i)->text();
    if (shown != rows) {
      headings_->clear();
      headings_->addItems(rows);
    }
    headings_->setCurrentRow(window.tipsPanel.selected);
    text_->setText(qtText(window.tipsPanelText));
  }
  showAs(window.tipsPanelVisible);
}

AboutBox::AboutBox(Editor& editor, std::function<void()> changed, QWidget* parent)
    : MirroredDialog(editor, std::move(changed), parent), text_(new QLabel) {
  setObjectName(QStringLiteral("aboutBox"));
  setWindowTitle(qtText(kAboutTitle));
  text_->setObjectName(QStringLiteral("aboutText"));
  text_->setTextFormat(Qt::PlainText);
  text_->setWordWrap(true);
  text_->setAlignment(Qt::AlignCenter);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(text_, 1);
  connect(addButtonRow(layout, kOkCaption, "aboutOk"), &QPushButton::clicked, this,
          [this] { reject(); });
}

void AboutBox::closeInEditor() {
  editor_.closeAbout();
}

void AboutBox::mirror() {
  const bool visible = editor_.window().aboutVisible;
  if (visible && !isVisible()) {
    text_->setText(qtText(aboutText(editor_.startup().versionText)));
    fitToScreen(this, 0.3, 0.25);
  }
  showAs(visible);
}

}  // namespace quorn::ui
