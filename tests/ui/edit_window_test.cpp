// The edit window driven end to end as a user drives it: keys typed into the new-symbol
// dialog, clicks on the drawing surface and the action buttons, the File menu with the file
// chooser, and the questions the editor asks answered through its messages.

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QToolButton>
#include <filesystem>
#include <memory>
#include <vector>

#include "files/open_symbol_file.h"
#include "model/symbol_record.h"
#include "model/working_symbol.h"
#include "ui/surface_points.h"
#include "ui/widget_lookup.h"
#include "ui/window_session.h"

namespace quorn::test {

// Runs a helper that checks as it goes, and ends the test when one of its checks failed.
#define STEP(call)                          \
  do {                                      \
    call;                                   \
    if (QTest::currentTestFailed()) return; \
  } while (false)

class EditWindowTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init();
  void cleanup();

  void startUpShowsTheTipAndItsCloseButtonClosesIt();
  void aSymbolDrawnSavedAndOpenedAgainKeepsEveryPoint();
  void theCloseBoxAsksAboutAPendingSymbolThroughTheMessages();
  void escapeClosesTheNewSymbolDialogAndNothingIsDrawn();
  void thePickersFillTheKeysFromTheirLists();
  void aRescaledGridTakesClicksAtItsNewDivision();
  void deleteLineAsksAndTakesTheLineClickedOn();

 private:
  /// The start-up tip closed with its button, as a user starts work.
  void closeTips();
  /// The group chooser moved to `row` with the arrow keys, as a user picks a group.
  void chooseGroup(int row);
  /// Makes `window` the active window, as a click on it would.
  void activate(QWidget& window);
  /// Symbol › New, with its dialog then shown and active.
  void openNewSymbolDialog();
  QDialog* newSymbolDialog() const { return named<QDialog>(*session_->window, "newSymbolDialog"); }
  /// Symbol › New, the keys typed into the dialog's fields, then "Create &Symbol".
  void createSymbol(const QString& oldKey, const QString& newKey);
  /// Types `text` into the field named `name` and leaves it with Tab.
  void typeIntoField(QWidget& dialog, const char* name, const QString& text);
  /// A click on the grid point `across` divisions right of and `up` divisions above the
  /// grid's bottom-left corner.
  void clickGridPoint(int across, int up, Qt::MouseButton button = Qt::LeftButton);
  void pressButton(const QString& caption);
  /// A click on the row of `list` that reads `text`.
  void clickRow(QListWidget& list, const QString& text);
  void chooseMenu(const QString& menu, const QString& entry);
  std::vector<std::string> listRows() const;
  /// Every message shown so far, for a failure's report.
  QString shownMessages() const;

  std::unique_ptr<WindowSession> session_;
};

void EditWindowTest::init() {
  session_ = std::make_unique<WindowSession>();
  QVERIFY(session_->start());
  QVERIFY(QTest::qWaitForWindowExposed(session_->window.get()));
}

void EditWindowTest::cleanup() {
  session_.reset();
}

void EditWindowTest::closeTips() {
  auto* tips = named<QDialog>(*session_->window, "tipsDialog");
  QVERIFY(tips && tips->isVisible());
  auto* close = named<QPushButton>(*tips, "tipsClose");
  QVERIFY(close);
  QTest::mouseClick(close, Qt::LeftButton);
  QVERIFY(!tips->isVisible());
}

void EditWindowTest::chooseGroup(int row) {
  auto* chooser = named<QComboBox>(*session_->window, "groupChooser");
  QVERIFY(chooser);
  QVERIFY(row < chooser->count());
  for (int step = 0; step < chooser->count() && chooser->currentIndex() != row; ++step) {
    QTest::keyClick(chooser, chooser->currentIndex() < row ? Qt::Key_Down : Qt::Key_Up);
  }
  QCOMPARE(chooser->currentIndex(), row);
  QCOMPARE(session_->editor.window().groupChooser.selected, row);
}

void EditWindowTest::typeIntoField(QWidget& dialog, const char* name, const QString& text) {
  auto* field = named<QLineEdit>(dialog, name);
  QVERIFY2(field, name);
  QVERIFY2(field->isEnabled(), name);
  QTest::mouseClick(field, Qt::LeftButton);
  QVERIFY2(field->hasFocus(), name);
  field->selectAll();
  QTest::keyClicks(field, text);
  QTest::keyClick(field, Qt::Key_Tab);
  // Leaving the field runs the editor's check of it, and the dialog shows the editor's state
  // again without pulling the focus back.
  QVERIFY2(!field->hasFocus(), name);
}

void EditWindowTest::chooseMenu(const QString& menu, const QString& entry) {
  QMenuBar* bar = session_->window->menuBar();
  QAction* title = nullptr;
  for (QAction* candidate : bar->actions()) {
    if (candidate->text() == menu && candidate->isVisible()) title = candidate;
  }
  QVERIFY2(title && title->menu(), qPrintable(menu));
  QMenu* popup = title->menu();
  // The menu opens as a click on its title opens it, so the window hears of it first.
  QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->actionGeometry(title).center());
  QTRY_VERIFY2(popup->isVisible(), qPrintable(menu));
  QAction* action = menuEntry(*session_->window, menu, entry);
  QVERIFY2(action && action->isVisible(), qPrintable(entry));
  QVERIFY2(action->isEnabled(), qPrintable(entry));
  QTest::mouseClick(popup, Qt::LeftButton, Qt::NoModifier, popup->actionGeometry(action).center());
  QTRY_VERIFY2(!popup->isVisible(), qPrintable(entry));
}

void EditWindowTest::openNewSymbolDialog() {
  STEP(chooseMenu("&Symbol", "&New  - Create a New Symbol in the Current Set"));
  QDialog* dialog = newSymbolDialog();
  QVERIFY(dialog);
  QVERIFY(dialog->isVisible());
  activate(*dialog);
}

void EditWindowTest::activate(QWidget& window) {
  // Activation arrives as an event, and the offscreen platform does not say when.
  window.activateWindow();
  QTRY_VERIFY(QGuiApplication::focusWindow() == window.windowHandle());
}

void EditWindowTest::createSymbol(const QString& oldKey, const QString& newKey) {
  STEP(openNewSymbolDialog());
  QDialog* dialog = newSymbolDialog();
  STEP(typeIntoField(*dialog, "oldKeyField", oldKey));
  STEP(typeIntoField(*dialog, "newKeyField", newKey));
  QPushButton* create = buttonCaptioned(*dialog, "Create &Symbol");
  QVERIFY(create);
  QTest::mouseClick(create, Qt::LeftButton);
  QVERIFY(!dialog->isVisible());
}

void EditWindowTest::clickGridPoint(int across, int up, Qt::MouseButton button) {
  ui::DrawingSurface& surface = *session_->surface;
  const SurfacePoints points(surface);
  QVERIFY(points.valid());
  const GridGeometry& grid = session_->editor.grid();
  const QPoint pixel = points.pixelAt(kGridLeft + across * grid.spacing,
                                      kGridTop + grid.gridHeight - up * grid.spacing);
  QVERIFY(surface.rect().contains(pixel));
  QTest::mouseClick(&surface, button, Qt::NoModifier, pixel);
}

void EditWindowTest::pressButton(const QString& caption) {
  QPushButton* button = buttonCaptioned(*session_->window, caption);
  QVERIFY2(button, qPrintable(caption));
  QVERIFY2(button->isEnabled(), qPrintable(caption));
  QTest::mouseClick(button, Qt::LeftButton);
}

void EditWindowTest::clickRow(QListWidget& list, const QString& text) {
  const QList<QListWidgetItem*> found = list.findItems(text, Qt::MatchExactly);
  QVERIFY2(found.size() == 1, qPrintable(text));
  list.scrollToItem(found[0]);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier,
                    list.visualItemRect(found[0]).center());
}

std::vector<std::string> EditWindowTest::listRows() const {
  std::vector<std::string> rows;
  if (auto* list = named<QListWidget>(*session_->window, "symbolList")) {
    for (int i = 0; i < list->count(); ++i) rows.push_back(list->item(i)->text().toStdString());
  }
  return rows;
}

QString EditWindowTest::shownMessages() const {
  QStringList texts;
  for (const std::string& text : session_->messages.texts()) texts << QString::fromStdString(text);
  return texts.join(QStringLiteral(" | "));
}

void EditWindowTest::startUpShowsTheTipAndItsCloseButtonClosesIt() {
  // The sample switches tips on, so start-up leaves the tips dialog over the window.
  auto* tips = named<QDialog>(*session_->window, "tipsDialog");
  QVERIFY(tips);
  QVERIFY(tips->isVisible());
  QVERIFY(session_->editor.window().tipsDialogVisible);
  auto* close = named<QPushButton>(*tips, "tipsClose");
  QVERIFY(close);
  QTest::mouseClick(close, Qt::LeftButton);
  QVERIFY(!tips->isVisible());
  QVERIFY(!session_->editor.window().tipsDialogVisible);
  QCOMPARE(session_->window->windowTitle(),
           QString::fromStdString(session_->editor.window().caption));
  QVERIFY(session_->messages.shown().empty());
}

void EditWindowTest::aSymbolDrawnSavedAndOpenedAgainKeepsEveryPoint() {
  Editor& editor = session_->editor;
  // Group 8 holds the anchors.
  STEP(closeTips());
  STEP(chooseGroup(7));
  STEP(createSymbol("anch", "anc1"));
  QVERIFY(editor.state().symbolInProgress);

  STEP(clickGridPoint(2, 10));  // the start point
  STEP(clickGridPoint(10, 10));
  STEP(clickGridPoint(10, 14));
  STEP(pressButton("E&nd"));
  STEP(clickGridPoint(14, 10));
  STEP(pressButton("&Done"));
  QVERIFY2(session_->messages.shown().empty(), qPrintable(shownMessages()));
  QVERIFY(!editor.state().symbolInProgress);
  QCOMPARE(editor.currentSet().count(), 1);
  const SymbolRecord drawn = editor.currentSet().symbol(1);
  QCOMPARE(drawn.oldKey, std::string("ANCH"));
  QCOMPARE(drawn.newKey, std::string("ANC1"));
  // One division is half a millimetre: fifty hundredths from the grid's bottom-left corner.
  const std::vector<SymbolAction> expected = {
      {kMove, 100, 500}, {kLine, 500, 500}, {kLine, 500, 700}, {kMove, 700, 500}};
  QVERIFY(drawn.actions == expected);
  QCOMPARE(listRows().size(), std::size_t{1});

  const std::string file = session_->path("DRAWN.SYM");
  session_->chooser.queue(file);
  STEP(chooseMenu("&File", "&Save"));
  QCOMPARE(session_->chooser.shown().size(), std::size_t{1});
  QVERIFY(session_->chooser.shown()[0].save);
  QVERIFY(std::filesystem::exists(file));
  QVERIFY(session_->window->windowTitle().endsWith(QString::fromStdString(file)));

  // A fresh set, then the file opened again through the window.
  STEP(chooseMenu("&File", "&New"));
  QCOMPARE(editor.currentSet().count(), 0);
  QVERIFY(listRows().empty());
  session_->chooser.queue(file);
  STEP(chooseMenu("&File", "&Open..."));
  QCOMPARE(editor.currentSet().count(), 1);
  QVERIFY(editor.currentSet().symbol(1) == drawn);
  QCOMPARE(listRows().size(), std::size_t{1});
  QVERIFY2(session_->messages.shown().empty(), qPrintable(shownMessages()));

  // The file as the reader sees it, apart from the editor.
  CurrentSet read;
  read.reset(editor.startup().config.maxSymbolsInFile);
  RecordingMessages readerMessages;
  QVERIFY(openSymbolFile(WorkingDirectory(session_->temp.path()), file,
                         editor.startup().config.writeBin, read, readerMessages));
  QCOMPARE(read.count(), 1);
  QVERIFY(read.symbol(1) == drawn);
  QVERIFY(readerMessages.shown().empty());
}

void EditWindowTest::theCloseBoxAsksAboutAPendingSymbolThroughTheMessages() {
  Editor& editor = session_->editor;
  STEP(closeTips());
  STEP(chooseGroup(7));
  STEP(createSymbol("anch", "anc2"));
  STEP(clickGridPoint(4, 10));
  STEP(clickGridPoint(8, 10));

  // Yes stores the symbol, but it has no end point yet: the editor says so and stays.
  session_->messages.queue(Answer::Yes);
  QVERIFY(!session_->window->close());
  QVERIFY(session_->window->isVisible());
  QCOMPARE(session_->messages.shown().size(), std::size_t{2});
  QCOMPARE(session_->messages.shown()[0].buttons, Buttons::YesNo);
  QCOMPARE(session_->messages.shown()[1].buttons, Buttons::Ok);
  QVERIFY(editor.state().symbolPending);
  QCOMPARE(editor.currentSet().count(), 0);

  // No drops the symbol; nothing else is unsaved, so the window closes.
  session_->messages.clear();
  session_->messages.queue(Answer::No);
  QVERIFY(session_->window->close());
  QVERIFY(!session_->window->isVisible());
  QCOMPARE(session_->messages.shown().size(), std::size_t{1});
  QCOMPARE(editor.currentSet().count(), 0);
}

void EditWindowTest::escapeClosesTheNewSymbolDialogAndNothingIsDrawn() {
  Editor& editor = session_->editor;
  STEP(closeTips());
  STEP(chooseGroup(7));
  STEP(openNewSymbolDialog());
  QDialog* dialog = newSymbolDialog();
  QVERIFY(editor.symbolDialogs().dialogOpen);
  QTest::keyClick(dialog, Qt::Key_Escape);
  QVERIFY(!dialog->isVisible());
  QVERIFY(!editor.symbolDialogs().dialogOpen);
  QVERIFY(!editor.state().symbolPending);

  // A click on the grid with no symbol in hand adds no point.
  STEP(clickGridPoint(4, 4));
  QCOMPARE(editor.workingSymbol().actionCount, 0);
  QCOMPARE(editor.currentSet().count(), 0);
}

void EditWindowTest::thePickersFillTheKeysFromTheirLists() {
  const Editor& editor = session_->editor;
  STEP(closeTips());
  // Group 2 holds the valves, whose symbols take a spindle.
  STEP(chooseGroup(1));
  STEP(openNewSymbolDialog());
  QDialog* dialog = newSymbolDialog();
  auto* oldKey = named<QLineEdit>(*dialog, "oldKeyField");
  auto* spindleKey = named<QLineEdit>(*dialog, "spindleKeyField");
  QVERIFY(oldKey && spindleKey);

  auto* existingButton = named<QToolButton>(*dialog, "oldKeyPicker");
  QVERIFY(existingButton && existingButton->isEnabled());
  QTest::mouseClick(existingButton, Qt::LeftButton);
  auto* existing = named<QDialog>(*session_->window, "existingSymbolPicker");
  QVERIFY(existing && existing->isVisible());
  auto* existingList = named<QListWidget>(*existing, "pickerList");
  QVERIFY(existingList);
  STEP(clickRow(*existingList, "VB**"));
  QVERIFY(!existing->isVisible());
  QCOMPARE(oldKey->text(), QStringLiteral("VB**"));
  QCOMPARE(editor.symbolDialogs().dialog.state().oldKey.text, std::string("VB**"));

  auto* spindleButton = named<QToolButton>(*dialog, "spindleKeyPicker");
  QVERIFY(spindleButton && spindleButton->isEnabled());
  QTest::mouseClick(spindleButton, Qt::LeftButton);
  auto* spindles = named<QDialog>(*session_->window, "spindlePicker");
  QVERIFY(spindles && spindles->isVisible());
  auto* spindleList = named<QListWidget>(*spindles, "spindleList");
  QVERIFY(spindleList);
  STEP(clickRow(*spindleList, "03SP"));
  // The spindle picker stays open for another look until it is closed.
  QVERIFY(spindles->isVisible());
  QCOMPARE(spindleKey->text(), QStringLiteral("03SP"));
  auto* close = named<QPushButton>(*spindles, "spindleClose");
  QVERIFY(close);
  QTest::mouseClick(close, Qt::LeftButton);
  QVERIFY(!spindles->isVisible());
  QVERIFY(dialog->isVisible());

  QPushButton* create = buttonCaptioned(*dialog, "Create &Symbol");
  QVERIFY(create);
  QTest::mouseClick(create, Qt::LeftButton);
  QVERIFY(!dialog->isVisible());
  QVERIFY(editor.state().symbolInProgress);
  QVERIFY2(session_->messages.shown().empty(), qPrintable(shownMessages()));
}

void EditWindowTest::aRescaledGridTakesClicksAtItsNewDivision() {
  const Editor& editor = session_->editor;
  STEP(closeTips());
  const GridGeometry before = editor.grid();
  STEP(pressButton("Scale"));
  auto* scale = named<QDialog>(*session_->window, "scaleDialog");
  QVERIFY(scale && scale->isVisible());
  STEP(activate(*scale));
  // One division of a millimetre instead of the sample's half millimetre.
  STEP(typeIntoField(*scale, "gridDivisionField", "1"));
  auto* rescale = named<QPushButton>(*scale, "rescaleButton");
  QVERIFY(rescale);
  QTest::mouseClick(rescale, Qt::LeftButton);
  QVERIFY(editor.grid() != before);
  auto* close = named<QPushButton>(*scale, "scaleClose");
  QVERIFY(close);
  QTest::mouseClick(close, Qt::LeftButton);
  QVERIFY(!scale->isVisible());

  STEP(chooseGroup(7));
  STEP(createSymbol("anch", "anc3"));
  STEP(clickGridPoint(2, 10));
  STEP(clickGridPoint(6, 10));
  STEP(pressButton("E&nd"));
  STEP(clickGridPoint(8, 10));
  STEP(pressButton("&Done"));
  QVERIFY2(session_->messages.shown().empty(), qPrintable(shownMessages()));
  QCOMPARE(editor.currentSet().count(), 1);
  // Hundredths of a millimetre: the same grid points lie twice as far from the corner.
  const std::vector<SymbolAction> expected = {
      {kMove, 200, 1000}, {kLine, 600, 1000}, {kMove, 800, 1000}};
  QVERIFY(editor.currentSet().symbol(1).actions == expected);
}

void EditWindowTest::deleteLineAsksAndTakesTheLineClickedOn() {
  const Editor& editor = session_->editor;
  STEP(closeTips());
  STEP(chooseGroup(7));
  STEP(createSymbol("anch", "anc4"));
  STEP(clickGridPoint(2, 10));
  STEP(clickGridPoint(10, 10));
  STEP(clickGridPoint(10, 14));
  STEP(pressButton("E&nd"));
  STEP(clickGridPoint(14, 10));

  session_->messages.queue(Answer::Yes);
  STEP(chooseMenu("&Delete", "&Line"));
  STEP(clickGridPoint(6, 10));  // on the first line, halfway along
  STEP(clickGridPoint(30, 30, Qt::RightButton));
  STEP(pressButton("&Done"));
  QCOMPARE(session_->messages.shown().size(), std::size_t{1});
  QCOMPARE(session_->messages.shown()[0].buttons, Buttons::YesNo);
  QCOMPARE(editor.currentSet().count(), 1);
  // The deleted line's end stays as a pen-up move; the second line is kept.
  const std::vector<SymbolAction> expected = {
      {kMove, 100, 500}, {kMove, 500, 500}, {kLine, 500, 700}, {kMove, 700, 500}};
  QVERIFY(editor.currentSet().symbol(1).actions == expected);
}

}  // namespace quorn::test

QTEST_MAIN(quorn::test::EditWindowTest)
#include "edit_window_test.moc"
