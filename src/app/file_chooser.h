#pragma once
// The open and save dialogs, as the core asks for a file name.

#include <optional>
#include <string>

namespace quorn {

struct FileDialogRequest {
  std::string filter;       // "Description|*.EXT|...|All Files (*.*)|*.*"
  int filterIndex = 0;      // 1-based format preselected, 0 for none
  std::string initialName;  // the name the dialog starts from
};

/// The window shows the system's file dialogs; scripts and tests answer from a queue.
class FileChooser {
 public:
  virtual ~FileChooser() = default;
  /// The chosen file, or nothing when the dialog was cancelled.
  virtual std::optional<std::string> chooseFileToOpen(const FileDialogRequest& request) = 0;
  virtual std::optional<std::string> chooseFileToSave(const FileDialogRequest& request) = 0;
};

}  // namespace quorn
