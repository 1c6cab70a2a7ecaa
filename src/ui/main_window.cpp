#include "ui/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>
#include <QVBoxLayout>

#include "app/startup_texts.h"

namespace quorn::ui {

namespace {

QString text(const std::string& value) {
  return QString::fromStdString(value);
}

void mirrorList(QComboBox* box, const ListState& list) {
  QStringList rows;
  for (const std::string& row : list.rows) rows << text(row);
  QStringList shown;
  for (int i = 0; i < box->count(); ++i) shown << box->itemText(i);
  if (shown != rows) {
    box->clear();
    box->addItems(rows);
  }
  box->setCurrentIndex(list.selected);
  box->setEnabled(list.enabled);
}

void mirrorList(QListWidget* widget, const ListState& list) {
  QStringList rows;
  for (const std::string& row : list.rows) rows << text(row);
  QStringList shown;
  for (int i = 0; i < widget->count(); ++i) shown << widget->item(i)->text();
  if (shown != rows) {
    widget->clear();
    widget->addItems(rows);
  }
  widget->setCurrentRow(list.selected);
  widget->setEnabled(list.enabled);
}

}  // namespace

MainWindow::MainWindow(Editor& editor, DrawingSurface* surface)
    : editor_(editor),
      surface_(surface),
      groupChooser_(new QComboBox),
      symbolList_(new QListWidget),
      prompt_(new QLabel),
      countLabel_(new QLabel),
      snapLabel_(new QLabel),
      charLabel_(new QLabel),
      status_(new QLabel),
      dialog_(new NewSymbolDialogView(
          editor, [this] { refresh(); }, this)) {
  auto* central = new QWidget;
  auto* layout = new QVBoxLayout(central);
  auto* lists = new QVBoxLayout;
  lists->addWidget(groupChooser_);
  symbolList_->setFont(QFont(QStringLiteral("monospace")));
  lists->addWidget(symbolList_, 1);
  auto* body = new QHBoxLayout;
  body->addLayout(lists, 1);
  body->addWidget(surface_, 3);
  layout->addLayout(body, 1);
  layout->addWidget(prompt_);
  auto* labels = new QHBoxLayout;
  for (QLabel* label : {countLabel_, snapLabel_, charLabel_, status_}) labels->addWidget(label);
  layout->addLayout(labels);
  setCentralWidget(central);
  buildMenus();
  connect(groupChooser_, &QComboBox::activated, this,
          [this](int row) { run([this, row] { editor_.chooseGroup(row); }); });
  connect(symbolList_, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
    const int row = symbolList_->row(item);
    run([this, row] { editor_.chooseSymbolRow(row); });
  });
  refresh();
}

void MainWindow::buildMenus() {
  QMenu* file = menuBar()->addMenu(tr("&File"));
  heldWhileDrawing_.push_back(file->addAction(tr("&New"), QKeySequence::New, this,
                                              [this] { run([this] { editor_.newFile(); }); }));
  heldWhileDrawing_.push_back(file->addAction(tr("&Open..."), QKeySequence::Open, this,
                                              [this] { run([this] { editor_.openFile(); }); }));
  file->addAction(tr("&Save"), QKeySequence::Save, this,
                  [this] { run([this] { editor_.saveFile(); }); });
  file->addAction(tr("Save &As..."), QKeySequence(tr("Ctrl+Shift+S")), this,
                  [this] { run([this] { editor_.saveFileAs(); }); });
  file->addSeparator();
  file->addAction(tr("E&xit"), QKeySequence::Quit, this,
                  [this] { exitIfDecided(editor_.exitEditor()); });

  QMenu* symbol = menuBar()->addMenu(tr("&Symbol"));
  symbol->addAction(QStringLiteral("&New  - Create a New Symbol in the Current Set"), this,
                    [this] { run([this] { editor_.newSymbol(); }); });
  heldWhileDrawing_.push_back(
      symbol->addAction(QStringLiteral("&Edit  - Edit the Symbol Displayed on the Screen"), this,
                        [this] { run([this] { editor_.editSymbol(); }); }));
  symbol->addSeparator();
  symbol->addAction(QStringLiteral("&Standard Library"), this,
                    [this] { run([this] { editor_.viewStandardLibrary(); }); });
  symbol->addAction(QStringLiteral("S&ymbol - from Current Set"), this,
                    [this] { run([this] { editor_.viewCurrentSet(); }); });
}

void MainWindow::refresh() {
  const EditWindowState& window = editor_.window();
  setWindowTitle(text(window.caption));
  surface_->setGrid(editor_.grid());
  prompt_->setText(text(window.prompt));
  countLabel_->setText(text(window.countLabel));
  snapLabel_->setText(text(window.snapLabel));
  charLabel_->setText(text(window.charLabel));
  status_->setText(text(window.statusText));
  mirrorList(groupChooser_, window.groupChooser);
  mirrorList(symbolList_, window.symbolList);
  for (QAction* action : heldWhileDrawing_) action->setEnabled(window.menusEnabled);
  dialog_->mirror();
  switch (window.pointer) {
    case Pointer::Busy:
      QApplication::setOverrideCursor(Qt::WaitCursor);
      break;
    default:
      while (QApplication::overrideCursor()) QApplication::restoreOverrideCursor();
  }
}

void MainWindow::showTipsIfAsked() {
  const EditWindowState& window = editor_.window();
  if (!window.tipsDialogVisible) return;
  QMessageBox tips(this);
  tips.setWindowTitle(text(std::string(kTipsDialogTitle)));
  tips.setText(text(window.tipText) + QStringLiteral("\n\n") + text(std::string(kTipsDialogNote)));
  tips.addButton(tr("&Close"), QMessageBox::AcceptRole);
  tips.exec();
  editor_.closeTipsDialog();
  refresh();
}

void MainWindow::exitIfDecided(ExitDecision decision) {
  refresh();
  if (decision == ExitDecision::EndProgram) QApplication::exit(0);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  const ExitDecision decision = editor_.closeWindow();
  refresh();
  if (decision == ExitDecision::EndProgram) {
    event->accept();
  } else {
    event->ignore();
  }
}

}  // namespace quorn::ui
