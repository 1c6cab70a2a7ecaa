#include "ui/startup_window.h"

#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

#include "app/startup.h"
#include "ui/qt_text.h"

namespace quorn::ui {

StartupWindow::StartupWindow(const std::string& caption) {
  setObjectName(QStringLiteral("startupWindow"));
  setWindowTitle(qtText(caption));
  auto* text = new QLabel(qtText(kStartupWindowText));
  text->setObjectName(QStringLiteral("startupText"));
  text->setTextFormat(Qt::PlainText);
  text->setAlignment(Qt::AlignCenter);
  QFont font = text->font();
  if (font.pointSizeF() > 0) font.setPointSizeF(font.pointSizeF() * 1.5);
  text->setFont(font);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(text);
  setFixedSize(520, 180);
}

void StartupWindow::showCentred() {
  if (const QScreen* screen = QGuiApplication::primaryScreen()) {
    const QRect area = screen->availableGeometry();
    move(area.center() - QPoint(width() / 2, height() / 2));
  }
  show();
}

}  // namespace quorn::ui
