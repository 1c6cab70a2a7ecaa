// A plain Qt program with the widgets of the edit window (main window, menus, group chooser,
// symbol list, drawing widget, action buttons, labels) and none of the editor behind them:
// the yardstick for the editor's start-up. Its drawing widget's first paint prints the
// wall-clock time in microseconds and ends the program, as the editor does when
// QUORN_EXIT_AFTER_FIRST_PAINT is set.
//
// With --startup-window it first shows a label like the editor's start-up window for one
// second, as the editor does between its start-up stages, so that the one-time work of the
// first window on the screen (fonts, style) falls inside the wait in both programs alike.

#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <chrono>
#include <cstdio>

namespace {

class DrawingWidget : public QWidget {
 public:
  DrawingWidget() {
    setMinimumSize(480, 360);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    if (reported_) return;
    reported_ = true;
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    std::printf(
        "first-paint %lld\n",
        static_cast<long long>(std::chrono::duration_cast<std::chrono::microseconds>(now).count()));
    std::fflush(stdout);
    QCoreApplication::exit(0);
  }

 private:
  bool reported_ = false;
};

void addMenu(QMenuBar* bar, const QString& title, int entries) {
  QMenu* menu = bar->addMenu(title);
  for (int i = 1; i <= entries; ++i) menu->addAction(QStringLiteral("Entry %1").arg(i));
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QMainWindow window;
  auto* central = new QWidget;
  auto* layout = new QVBoxLayout(central);
  auto* lists = new QVBoxLayout;
  auto* chooser = new QComboBox;
  for (int i = 1; i <= 9; ++i) chooser->addItem(QStringLiteral("Group %1").arg(i));
  lists->addWidget(chooser);
  auto* list = new QListWidget;
  list->setFont(QFont(QStringLiteral("monospace")));
  lists->addWidget(list, 1);
  auto* body = new QHBoxLayout;
  body->addLayout(lists, 1);
  body->addWidget(new DrawingWidget, 3);
  layout->addLayout(body, 1);
  auto* buttons = new QHBoxLayout;
  for (int i = 1; i <= 15; ++i) {
    auto* button = new QPushButton(QStringLiteral("B%1").arg(i));
    button->setToolTip(QStringLiteral("Button %1").arg(i));
    button->setFocusPolicy(Qt::NoFocus);
    buttons->addWidget(button);
  }
  layout->addLayout(buttons);
  layout->addWidget(new QLabel(QStringLiteral("hint")));
  layout->addWidget(new QLabel(QStringLiteral("prompt")));
  auto* labels = new QHBoxLayout;
  for (int i = 1; i <= 4; ++i) labels->addWidget(new QLabel(QStringLiteral("label %1").arg(i)));
  layout->addLayout(labels);
  window.setCentralWidget(central);
  addMenu(window.menuBar(), QStringLiteral("&File"), 5);
  addMenu(window.menuBar(), QStringLiteral("&Symbol"), 4);
  addMenu(window.menuBar(), QStringLiteral("&Delete"), 6);
  addMenu(window.menuBar(), QStringLiteral("&Move"), 4);
  addMenu(window.menuBar(), QStringLiteral("&Help"), 3);
  window.setWindowTitle(QStringLiteral("Bare window"));

  QLabel startup(QStringLiteral("Initialising..."));
  if (QApplication::arguments().contains(QStringLiteral("--startup-window"))) {
    startup.setAlignment(Qt::AlignCenter);
    startup.setMinimumSize(480, 160);
    startup.show();
    QTimer::singleShot(1000, [&] {
      startup.close();
      window.show();
    });
  } else {
    window.show();
  }
  return QApplication::exec();
}
