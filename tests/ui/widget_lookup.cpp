#include "ui/widget_lookup.h"

#include <QMenu>
#include <QMenuBar>

namespace quorn::test {

QAction* menuEntry(QMainWindow& window, const QString& menu, const QString& entry) {
  for (QAction* title : window.menuBar()->actions()) {
    if (!title->menu() || title->text() != menu) continue;
    for (QAction* action : title->menu()->actions()) {
      if (action->text() == entry) return action;
    }
  }
  return nullptr;
}

QPushButton* buttonCaptioned(QWidget& parent, const QString& caption) {
  for (QPushButton* button : parent.findChildren<QPushButton*>()) {
    if (button->text() == caption && button->isVisible()) return button;
  }
  return nullptr;
}

}  // namespace quorn::test
