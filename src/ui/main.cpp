// symbols-editor: the edit window over the editor's core.

#include <QApplication>
#include <QScreen>
#include <QStringList>
#include <QTimer>

#include "app/editor.h"
#include "ui/drawing_surface.h"
#include "ui/main_window.h"
#include "ui/qt_environment.h"
#include "ui/qt_file_chooser.h"
#include "ui/qt_messages.h"
#include "ui/startup_window.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  quorn::ui::QtMessages messages;
  quorn::ui::QtFileChooser chooser;
  quorn::ui::QtEnvironment environment;
  auto* surface = new quorn::ui::DrawingSurface;
  quorn::Editor editor(messages, chooser, environment, *surface);

  // The whole command line names the file to open.
  const QStringList arguments = QApplication::arguments().mid(1);
  const auto showFatal = [&](const quorn::FatalError& fatal) {
    messages.ask(quorn::Message{std::string(quorn::kAppTitle), fatal.text});
  };
  if (const auto fatal = editor.startFirstStage(arguments.join(' ').toStdString())) {
    showFatal(*fatal);
    return 1;
  }

  quorn::ui::StartupWindow startupWindow(editor.startup().startupCaption);
  startupWindow.showCentred();

  quorn::ui::MainWindow window(editor, surface);
  messages.setParent(&window);
  chooser.setParent(&window);
  QTimer::singleShot(1000, [&] {
    // The edit window and the tips come up before the command-line file is opened, so its
    // messages stand over the window.
    const auto fatal = editor.startSecondStage([&] {
      startupWindow.close();
      // The grid is laid out for the whole screen: the window opens as large as it may,
      // also where no window manager maximises it.
      const QRect screen = window.screen()->availableGeometry();
      window.setGeometry(screen);
      window.showMaximized();
      window.refresh();
    });
    startupWindow.close();
    if (fatal) {
      showFatal(*fatal);
      QApplication::exit(1);
      return;
    }
    window.refresh();
  });
  return QApplication::exec();
}
