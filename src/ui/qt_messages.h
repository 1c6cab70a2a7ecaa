#pragma once
// Messages and questions of the core shown as message boxes, each named "messageBox".

#include <QWidget>

#include "base/messages.h"

namespace quorn::ui {

class QtMessages : public Messages {
 public:
  explicit QtMessages(QWidget* parent = nullptr) : parent_(parent) {}
  void setParent(QWidget* parent) { parent_ = parent; }
  Answer ask(const Message& message) override;

 private:
  QWidget* parent_;
};

}  // namespace quorn::ui
