#pragma once
// The edit window over an editor started on a fresh copy of the sample working directory, the
// way the program starts it, with the recording messages and the scripted file chooser answering
// every question.

#include <functional>
#include <memory>
#include <string>

#include "app/editor.h"
#include "support/fake_environment.h"
#include "support/recording_messages.h"
#include "support/scripted_file_chooser.h"
#include "support/temp_directory.h"
#include "ui/drawing_surface.h"
#include "ui/main_window.h"

namespace quorn::test {

class WindowSession {
 public:
  WindowSession();
  ~WindowSession();
  WindowSession(const WindowSession&) = delete;
  WindowSession& operator=(const WindowSession&) = delete;

  /// Both start-up stages, with the window shown when the editor asks for it, and
  /// `betweenStages` run where the program shows its start-up window. False, after the fault's
  /// text on standard error, when start-up ended the program.
  bool start(const std::function<void()>& betweenStages = {});

  /// The path of `name` in the working directory.
  std::string path(const std::string& name) const;

  TempDirectory temp;
  FakeEnvironment environment;
  RecordingMessages messages;
  ScriptedFileChooser chooser;
  /// Owned by the window once it is made.
  ui::DrawingSurface* surface;
  Editor editor;
  std::unique_ptr<ui::MainWindow> window;
};

}  // namespace quorn::test
