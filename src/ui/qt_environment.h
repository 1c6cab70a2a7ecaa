#pragma once
// The environment of the window program: the screen's size comes from the primary screen.

#include "app/system_environment.h"

namespace quorn::ui {

class QtEnvironment : public SystemEnvironment {
 public:
  /// The primary screen's size in form units (1440 to the inch).
  ScreenSize screenSize() override;
};

}  // namespace quorn::ui
