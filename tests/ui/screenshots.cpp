// ui_screenshots DIR: draws the edit window, with a sample symbol on its grid, and each of its
// dialogs into PNG files in DIR. Run with QT_QPA_PLATFORM=offscreen; scripts/screenshots.sh
// builds and runs it.

#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QPainter>
#include <QTest>
#include <filesystem>
#include <functional>
#include <iostream>
#include <string>

#include "edit/action_buttons.h"
#include "ui/startup_window.h"
#include "ui/widget_lookup.h"
#include "ui/window_session.h"

namespace quorn::test {
namespace {

/// The widget as painted, under a plain title bar with its caption: an offscreen window has no
/// frame of its own, and the caption tells the dialogs apart.
QImage withTitleBar(QWidget& widget) {
  const QPixmap content = widget.grab();
  const int bar = 28;
  QImage image(content.width() + 2, content.height() + bar + 1, QImage::Format_RGB32);
  image.fill(QColor(0x70, 0x70, 0x70));
  QPainter painter(&image);
  painter.fillRect(QRect(1, 1, content.width(), bar - 1), QColor(0xdc, 0xe2, 0xea));
  QFont font = widget.font();
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(Qt::black);
  painter.drawText(QRect(10, 1, content.width() - 20, bar - 1), Qt::AlignVCenter | Qt::AlignLeft,
                   widget.windowTitle());
  painter.drawPixmap(1, bar, content);
  return image;
}

class Screenshots {
 public:
  Screenshots(WindowSession& session, std::filesystem::path directory)
      : session_(session), directory_(std::move(directory)) {}

  /// Runs `event` on the editor, lets the window show what it changed and saves the widget
  /// named `name` (the window itself for nothing) as `file`.
  void take(const std::function<void(Editor&)>& event, const char* name, const char* file) {
    event(session_.editor);
    session_.window->refresh();
    QWidget* widget = name ? named(*session_.window, name) : session_.window.get();
    save(widget, file);
  }

  void save(QWidget* widget, const char* file) {
    if (!widget || !widget->isVisible() || !QTest::qWaitForWindowExposed(widget)) {
      std::cerr << file << ": the widget is not shown\n";
      failed_ = true;
      return;
    }
    QApplication::processEvents();
    const auto path = directory_ / file;
    if (!withTitleBar(*widget).save(QString::fromStdString(path.string()))) {
      std::cerr << path.string() << ": cannot be written\n";
      failed_ = true;
      return;
    }
    std::cout << path.string() << "\n";
  }

  bool failed() const { return failed_; }

 private:
  WindowSession& session_;
  std::filesystem::path directory_;
  bool failed_ = false;
};

int run(const std::filesystem::path& directory) {
  std::filesystem::create_directories(directory);
  WindowSession session;
  // Absolute, as the program later changes its current directory.
  Screenshots shots(session, std::filesystem::absolute(directory));

  const bool started = session.start([&] {
    ui::StartupWindow startup(session.editor.startup().startupCaption);
    startup.showCentred();
    shots.save(&startup, "startup-window.png");
  });
  if (!started) return 1;
  shots.take([](Editor&) {}, "tipsDialog", "user-tips.png");
  session.editor.closeTipsDialog();

  // The sample file open, its second symbol on the grid. It is named from the working
  // directory, so the caption shows no temporary path.
  const auto startedIn = std::filesystem::current_path();
  std::filesystem::current_path(session.temp.path());
  session.chooser.queue("EXAMPLE.SYM");
  shots.take(
      [](Editor& editor) {
        editor.openFile();
        editor.chooseSymbolRow(1);
      },
      nullptr, "main-window.png");

  shots.take(
      [](Editor& editor) {
        editor.showTipsPanel();
        editor.chooseTipRow(0);
      },
      "tipsPanel", "tips-panel.png");
  session.editor.closeTipsPanel();
  shots.take([](Editor& editor) { editor.showReadMe(); }, "readMeViewer", "read-me.png");
  session.editor.closeReadMe();
  shots.take([](Editor& editor) { editor.showAbout(); }, "aboutBox", "about.png");
  session.editor.closeAbout();
  shots.take([](Editor& editor) { editor.pressButton(ActionButton::Scale); }, "scaleDialog",
             "rescale.png");
  session.editor.closeScaleDialog();

  // Group 2 holds the valves, whose keys ask for a spindle.
  shots.take(
      [](Editor& editor) {
        editor.chooseGroup(1);
        editor.newSymbol();
        editor.typeInDialog(DialogField::OldKey, "VBFL");
        editor.leaveDialogField(DialogField::OldKey);
      },
      "newSymbolDialog", "new-symbol.png");
  shots.take([](Editor& editor) { editor.openExistingSymbolPicker(); }, "existingSymbolPicker",
             "select-existing-symbol.png");
  session.editor.closePicker();
  shots.take([](Editor& editor) { editor.openSpindlePicker(); }, "spindlePicker",
             "standard-spindles.png");
  session.editor.closePicker();
  session.editor.pressCancel();
  session.window->refresh();
  std::filesystem::current_path(startedIn);
  return shots.failed() ? 1 : 0;
}

}  // namespace
}  // namespace quorn::test

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 2) {
    std::cerr << "usage: ui_screenshots DIR\n";
    return 2;
  }
  return quorn::test::run(argv[1]);
}
