#include "ui/window_session.h"

#include <iostream>

namespace quorn::test {

WindowSession::WindowSession()
    : surface(new ui::DrawingSurface), editor(messages, chooser, environment, *surface) {
  temp.copyFilesFrom(QUORN_SAMPLE_DIR);
  environment.current = temp.path();
}

// The window goes first: it owns the surface the editor draws on.
WindowSession::~WindowSession() {
  if (!window) delete surface;
  window.reset();
}

bool WindowSession::start(const std::function<void()>& betweenStages) {
  if (const auto fatal = editor.startFirstStage("")) {
    std::cerr << fatal->text << "\n";
    return false;
  }
  if (betweenStages) betweenStages();
  window = std::make_unique<ui::MainWindow>(editor, surface);
  // A size at which one grid division spans several pixels, so a click lands on its point.
  window->resize(1280, 960);
  const auto fatal = editor.startSecondStage([this] {
    window->refresh();
    window->show();
  });
  if (fatal) {
    std::cerr << fatal->text << "\n";
    return false;
  }
  window->refresh();
  window->show();
  return true;
}

std::string WindowSession::path(const std::string& name) const {
  return (temp.path() / name).string();
}

}  // namespace quorn::test
