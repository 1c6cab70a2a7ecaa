#pragma once
// Finding the window's widgets the way a user does: by their captions, or by their names.

#include <QAction>
#include <QMainWindow>
#include <QPushButton>
#include <QString>

namespace quorn::test {

/// The entry `entry` of the menu `menu` of the window's menu bar (captions with their "&").
QAction* menuEntry(QMainWindow& window, const QString& menu, const QString& entry);

/// The visible push button under `parent` captioned `caption` (with its "&").
QPushButton* buttonCaptioned(QWidget& parent, const QString& caption);

/// The child of `parent` named `name` of type T, or nothing.
template <typename T = QWidget>
T* named(QObject& parent, const char* name) {
  return parent.findChild<T*>(QString::fromLatin1(name));
}

}  // namespace quorn::test
