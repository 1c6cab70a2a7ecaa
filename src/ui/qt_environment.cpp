#include "ui/qt_environment.h"

#include <QGuiApplication>
#include <QScreen>

namespace quorn::ui {

ScreenSize QtEnvironment::screenSize() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (!screen) return SystemEnvironment::screenSize();
  const QSizeF inches = QSizeF(screen->size()) / screen->logicalDotsPerInch();
  return ScreenSize{inches.width() * 1440.0, inches.height() * 1440.0};
}

}  // namespace quorn::ui
