#include "ui/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCursor>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QMenuBar>
#include <QShortcut>
#include <QVBoxLayout>

#include "edit/action_buttons.h"
#include "edit/editing_texts.h"
#include "ui/help_windows.h"
#include "ui/print_sheet.h"
#include "ui/qt_text.h"
#include "ui/tips_dialog_view.h"
#include "ui/values_view.h"

namespace quorn::ui {

namespace {

QString menuName(Menu menu) {
  switch (menu) {
    case Menu::File:
      return QStringLiteral("fileMenu");
    case Menu::Symbol:
      return QStringLiteral("symbolMenu");
    case Menu::View:
      return QStringLiteral("viewMenu");
    case Menu::Delete:
      return QStringLiteral("deleteMenu");
    case Menu::Move:
      return QStringLiteral("moveMenu");
    case Menu::Help:
      return QStringLiteral("helpMenu");
  }
  return {};
}

/// The widget name of a menu entry's action.
QString menuActionName(MenuCommand command) {
  switch (command) {
    case MenuCommand::NewFile:
      return QStringLiteral("newFileAction");
    case MenuCommand::OpenFile:
      return QStringLiteral("openFileAction");
    case MenuCommand::SaveFile:
      return QStringLiteral("saveFileAction");
    case MenuCommand::SaveFileAs:
      return QStringLiteral("saveFileAsAction");
    case MenuCommand::Print:
      return QStringLiteral("printAction");
    case MenuCommand::Exit:
      return QStringLiteral("exitAction");
    case MenuCommand::NewSymbol:
      return QStringLiteral("newSymbolAction");
    case MenuCommand::EditSymbol:
      return QStringLiteral("editSymbolAction");
    case MenuCommand::StandardLibrary:
      return QStringLiteral("standardLibraryAction");
    case MenuCommand::CurrentSetView:
      return QStringLiteral("currentSetAction");
    case MenuCommand::DeleteLine:
      return QStringLiteral("deleteLineAction");
    case MenuCommand::DeleteInsulation:
      return QStringLiteral("deleteInsulationAction");
    case MenuCommand::DeleteTracing:
      return QStringLiteral("deleteTracingAction");
    case MenuCommand::DeleteTappingPoint:
      return QStringLiteral("deleteTappingPointAction");
    case MenuCommand::DeleteSpindlePoint:
      return QStringLiteral("deleteSpindlePointAction");
    case MenuCommand::DeleteSymbol:
      return QStringLiteral("deleteSymbolAction");
    case MenuCommand::MoveStartPoint:
      return QStringLiteral("moveStartPointAction");
    case MenuCommand::MoveEndPoint:
      return QStringLiteral("moveEndPointAction");
    case MenuCommand::MoveSpindlePoint:
      return QStringLiteral("moveSpindlePointAction");
    case MenuCommand::MoveSymbol:
      return QStringLiteral("moveSymbolAction");
    case MenuCommand::ViewReadMe:
      return QStringLiteral("readMeAction");
    case MenuCommand::ShowTips:
      return QStringLiteral("tipsAction");
    case MenuCommand::About:
      return QStringLiteral("aboutAction");
  }
  return {};
}

/// The platform's usual keys for the File and Help entries that have them.
QKeySequence shortcutOf(MenuCommand command) {
  switch (command) {
    case MenuCommand::NewFile:
      return QKeySequence::New;
    case MenuCommand::OpenFile:
      return QKeySequence::Open;
    case MenuCommand::SaveFile:
      return QKeySequence::Save;
    case MenuCommand::SaveFileAs:
      return QKeySequence::SaveAs;
    case MenuCommand::Print:
      return QKeySequence::Print;
    case MenuCommand::Exit:
      return QKeySequence::Quit;
    case MenuCommand::ViewReadMe:
      return QKeySequence::HelpContents;
    default:
      return {};
  }
}

void mirrorList(QComboBox* box, const ListState& list) {
  QStringList rows;
  for (const std::string& row : list.rows) rows << qtText(row);
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
  for (const std::string& row : list.rows) rows << qtText(row);
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
  setObjectName(QStringLiteral("editWindow"));
  const auto refreshWindow = [this] { refresh(); };
  smallDialogs_ = {
      new TipsDialogView(editor, refreshWindow, this), new ValuesView(editor, refreshWindow, this),
      new ReadMeViewer(editor, refreshWindow, this), new TipsPanelView(editor, refreshWindow, this),
      new AboutBox(editor, refreshWindow, this)};
  surface_->setObjectName(QStringLiteral("drawingSurface"));
  groupChooser_->setObjectName(QStringLiteral("groupChooser"));
  symbolList_->setObjectName(QStringLiteral("symbolList"));
  hint_->setObjectName(QStringLiteral("hintLine"));
  prompt_->setObjectName(QStringLiteral("promptLine"));
  countLabel_->setObjectName(QStringLiteral("countLabel"));
  snapLabel_->setObjectName(QStringLiteral("snapLabel"));
  charLabel_->setObjectName(QStringLiteral("charLabel"));
  status_->setObjectName(QStringLiteral("statusLine"));
  for (QLabel* label : {hint_, prompt_, countLabel_, snapLabel_, charLabel_, status_}) {
    label->setTextFormat(Qt::PlainText);
  }
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
  for (const MenuText& menuText : kMenuTexts) {
    QMenu* menu = menuBar()->addMenu(qtText(menuText.caption));
    menu->setObjectName(menuName(menuText.menu));
    menus_[menuText.menu] = menu;
    for (const MenuEntryText& entry : kMenuEntryTexts) {
      if (entry.menu != menuText.menu) continue;
      if (entry.separatorBefore) menu->addSeparator();
      const MenuCommand command = entry.command;
      QAction* action = menu->addAction(qtText(entry.caption), shortcutOf(command), this,
                                        [this, command] { runMenuCommand(command); });
      action->setObjectName(menuActionName(command));
      menuActions_[command] = action;
    }
    // Opening a menu is an event of its own: the Delete and Move menus set the operation.
    const Menu which = menuText.menu;
    connect(menu, &QMenu::aboutToShow, this,
            [this, which] { run([this, which] { editor_.openMenu(which); }); });
  }
}

void MainWindow::runMenuCommand(MenuCommand command) {
  if (command == MenuCommand::Print) return printWorkingSymbol(this, editor_);
  exitIfDecided(editor_.chooseMenuEntry(command));
}

QLayout* MainWindow::buildActionButtons() {
  auto* row = new QHBoxLayout;
  for (const ActionButtonText& entry : kActionButtonTexts) {
    auto* button = new QPushButton(qtText(entry.caption));
    button->setObjectName(withoutAccessKey(entry.caption));
    button->setToolTip(qtText(entry.hint));
    button->setFocusPolicy(Qt::NoFocus);
    const ActionButton which = entry.button;
    connect(button, &QPushButton::clicked, this, [this, which] {
      run([this, which] { editor_.pressButton(which); });
      offerFlipIfAsked();
    });
    if (which == ActionButton::IsoOrtho) isoButton_ = button;
    // The platform's undo key works the Undo button; its access key stays as it is.
    if (which == ActionButton::Undo) {
      connect(new QShortcut(QKeySequence::Undo, this), &QShortcut::activated, button,
              &QPushButton::click);
    }
    row->addWidget(button);
  }
  return row;
}

void MainWindow::offerFlipIfAsked() {
  if (!editor_.window().flipChoiceVisible) return;
  QMenu choice(this);
  choice.setObjectName(QStringLiteral("flipChoice"));
  QAction* horizontal = choice.addAction(qtText(kFlipHorizontalChoice));
  QAction* vertical = choice.addAction(qtText(kFlipVerticalChoice));
  QAction* chosen = choice.exec(QCursor::pos());
  if (chosen == horizontal) run([this] { editor_.chooseFlip(FlipAxis::Horizontal); });
  if (chosen == vertical) run([this] { editor_.chooseFlip(FlipAxis::Vertical); });
}

void MainWindow::refresh() {
  const EditWindowState& window = editor_.window();
  setWindowTitle(qtText(window.caption));
  surface_->setGrid(editor_.grid());
  prompt_->setText(qtText(window.prompt));
  countLabel_->setText(qtText(window.countLabel));
  snapLabel_->setText(qtText(window.snapLabel));
  charLabel_->setText(qtText(window.charLabel));
  status_->setText(qtText(window.statusText));
  mirrorList(groupChooser_, window.groupChooser);
  mirrorList(symbolList_, window.symbolList);
  for (const MenuEntryText& entry : kMenuEntryTexts) {
    menuActions_[entry.command]->setEnabled(editor_.menuEntryOffered(entry));
  }
  menus_[Menu::Move]->menuAction()->setVisible(window.moveMenuVisible);
  dialog_->mirror();
  scaleDialog_->mirror();
  // The small dialogs stand over the window, so they wait until it is shown.
  if (isVisible()) {
    for (MirroredDialog* small : smallDialogs_) small->mirror();
  }
  hint_->setText(qtText(window.hint));
  if (isoButton_) isoButton_->setText(qtText(window.isoCaption));
  switch (window.pointer) {
    case Pointer::Busy:
      QApplication::setOverrideCursor(Qt::WaitCursor);
      break;
    default:
      while (QApplication::overrideCursor()) QApplication::restoreOverrideCursor();
  }
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
