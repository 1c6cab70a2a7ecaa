#include "ui/qt_messages.h"

#include <QMessageBox>

namespace quorn::ui {

namespace {

QMessageBox::Icon iconOf(Icon icon) {
  switch (icon) {
    case Icon::Critical:
      return QMessageBox::Critical;
    case Icon::Question:
      return QMessageBox::Question;
    case Icon::Exclamation:
      return QMessageBox::Warning;
    case Icon::Information:
      return QMessageBox::Information;
    case Icon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons buttonsOf(Buttons buttons) {
  switch (buttons) {
    case Buttons::Ok:
      return QMessageBox::Ok;
    case Buttons::OkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case Buttons::YesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case Buttons::YesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
  }
  return QMessageBox::Ok;
}

Answer answerOf(int button) {
  switch (button) {
    case QMessageBox::Yes:
      return Answer::Yes;
    case QMessageBox::No:
      return Answer::No;
    case QMessageBox::Cancel:
      return Answer::Cancel;
    default:
      return Answer::Ok;
  }
}

}  // namespace

Answer QtMessages::ask(const Message& message) {
  QMessageBox box(iconOf(message.icon), QString::fromStdString(message.title),
                  QString::fromStdString(message.text), buttonsOf(message.buttons), parent_);
  box.setObjectName(QStringLiteral("messageBox"));
  // Escape (or the close box) means the least harmful answer the box offers.
  if (message.buttons == Buttons::YesNo) {
    box.setEscapeButton(QMessageBox::No);
  } else if (message.buttons != Buttons::Ok) {
    box.setEscapeButton(QMessageBox::Cancel);
  }
  return answerOf(box.exec());
}

}  // namespace quorn::ui
