#pragma once
// One standard spindle's shape, painted through the core's spindle drawing; a click on it
// chooses the spindle.

#include <QWidget>
#include <functional>

#include "model/spindle_definition.h"

namespace quorn::ui {

class SpindleDrawingView : public QWidget {
 public:
  SpindleDrawingView(const SpindleDefinition& spindle, std::function<void()> clicked);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  SpindleDefinition spindle_;
  std::function<void()> clicked_;
};

}  // namespace quorn::ui
