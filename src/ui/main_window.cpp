#include "ui/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCursor>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QVBoxLayout>

#include "app/startup_texts.h"
#include "edit/action_buttons.h"
#include "edit/editing_texts.h"

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
          editor, [this] { refresh(); }, this)),
      scaleDialog_(new ScaleDialogView(
          editor, [this] { refresh(); }, this)),
      hint_(new QLabel) {
  surface_->onPress = [this](bool left, float x, float y) {
    run([this, left, x, y] {
      editor_.pressMouse(left ? MouseButton::Left : MouseButton::Right, x, y);
    });
    offerFlipIfAsked();
  };
  surface_->onMove = [this](float x, float y) { run([this, x, y] { editor_.moveMouse(x, y); }); };
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
  layout->addLayout(buildActionButtons());
  layout->addWidget(hint_);
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

  QMenu* erase = menuBar()->addMenu(tr("&Delete"));
  connect(erase, &QMenu::aboutToShow, this, [this] { run([this] { editor_.openDeleteMenu(); }); });
  const std::pair<const char*, DeleteEntry> deletes[] = {
      {"&Line", DeleteEntry::Line},
      {"&Insulation", DeleteEntry::Insulation},
      {"&Tracing", DeleteEntry::Tracing},
      {"Tapping &point", DeleteEntry::TappingPoint},
      {"&Spindle point", DeleteEntry::SpindlePoint}};
  for (const auto& [caption, entry] : deletes) {
    const DeleteEntry which = entry;
    erase->addAction(tr(caption), this,
                     [this, which] { run([this, which] { editor_.chooseDeleteEntry(which); }); });
  }
  erase->addAction(tr("S&ymbol"), this, [this] { run([this] { editor_.deleteSymbol(); }); });

  QMenu* move = menuBar()->addMenu(tr("&Move"));
  connect(move, &QMenu::aboutToShow, this, [this] { run([this] { editor_.openMoveMenu(); }); });
  const std::pair<const char*, MoveEntry> moves[] = {{"&Start point", MoveEntry::StartPoint},
                                                     {"&End point", MoveEntry::EndPoint},
                                                     {"S&pindle point", MoveEntry::SpindlePoint},
                                                     {"S&ymbol", MoveEntry::Symbol}};
  for (const auto& [caption, entry] : moves) {
    const MoveEntry which = entry;
    move->addAction(tr(caption), this,
                    [this, which] { run([this, which] { editor_.chooseMoveEntry(which); }); });
  }

  QMenu* help = menuBar()->addMenu(tr("&Help"));
  help->addAction(QStringLiteral("&View Read Me File"), QKeySequence::HelpContents, this, [this] {
    run([this] { editor_.showReadMe(); });
    showHelpWindows();
  });
  help->addAction(QStringLiteral("&Tips - Show User Tips"), this, [this] {
    run([this] { editor_.showTipsPanel(); });
    showHelpWindows();
  });
  help->addAction(QStringLiteral("&About"), this, [this] {
    run([this] { editor_.showAbout(); });
    showHelpWindows();
  });
}

QLayout* MainWindow::buildActionButtons() {
  auto* row = new QHBoxLayout;
  for (const ActionButtonText& entry : kActionButtonTexts) {
    auto* button = new QPushButton(text(std::string(entry.caption)));
    button->setToolTip(text(std::string(entry.hint)));
    button->setFocusPolicy(Qt::NoFocus);
    const ActionButton which = entry.button;
    connect(button, &QPushButton::clicked, this, [this, which] {
      run([this, which] { editor_.pressButton(which); });
      offerFlipIfAsked();
    });
    if (which == ActionButton::IsoOrtho) isoButton_ = button;
    row->addWidget(button);
  }
  return row;
}

void MainWindow::showHelpWindows() {
  const EditWindowState& window = editor_.window();
  if (window.readMeVisible) {
    QDialog viewer(this);
    viewer.setWindowTitle(text(std::string(kReadMeFileName)));
    auto* layout = new QVBoxLayout(&viewer);
    auto* view = new QPlainTextEdit(text(window.readMeText));
    view->setReadOnly(true);
    view->setFont(QFont(QStringLiteral("monospace")));
    layout->addWidget(view);
    viewer.resize(720, 560);
    viewer.exec();
    run([this] { editor_.closeReadMe(); });
  }
  if (window.tipsPanelVisible) {
    QDialog panel(this);
    panel.setWindowTitle(text(std::string(kTipsDialogTitle)));
    auto* layout = new QHBoxLayout(&panel);
    auto* headings = new QListWidget;
    for (const std::string& row : window.tipsPanel.rows) headings->addItem(text(row));
    auto* tipText = new QLabel;
    tipText->setWordWrap(true);
    tipText->setMinimumWidth(320);
    connect(headings, &QListWidget::currentRowChanged, &panel, [this, tipText](int row) {
      editor_.chooseTipRow(row);
      tipText->setText(text(editor_.window().tipsPanelText));
    });
    layout->addWidget(headings);
    layout->addWidget(tipText, 1);
    panel.exec();
    run([this] { editor_.closeTipsPanel(); });
  }
  if (window.aboutVisible) {
    QMessageBox::about(this, text(std::string(kAboutTitle)),
                       text(aboutText(editor_.startup().versionText)));
    run([this] { editor_.closeAbout(); });
  }
}

void MainWindow::offerFlipIfAsked() {
  if (!editor_.window().flipChoiceVisible) return;
  QMenu choice(this);
  QAction* horizontal = choice.addAction(text(std::string(kFlipHorizontalChoice)));
  QAction* vertical = choice.addAction(text(std::string(kFlipVerticalChoice)));
  QAction* chosen = choice.exec(QCursor::pos());
  if (chosen == horizontal) run([this] { editor_.chooseFlip(FlipAxis::Horizontal); });
  if (chosen == vertical) run([this] { editor_.chooseFlip(FlipAxis::Vertical); });
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
  scaleDialog_->mirror();
  hint_->setText(text(window.hint));
  if (isoButton_) isoButton_->setText(text(window.isoCaption));
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
