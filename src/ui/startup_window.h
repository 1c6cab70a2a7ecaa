#pragma once
// The start-up window, shown centred on the screen between the two start-up stages: the
// initialising text under the version caption. Widget: "startupWindow" with "startupText".

#include <QWidget>
#include <string>

namespace quorn::ui {

class StartupWindow : public QWidget {
 public:
  explicit StartupWindow(const std::string& caption);
  /// Shows the window in the middle of the primary screen.
  void showCentred();
};

}  // namespace quorn::ui
