#include "support/scripted_file_chooser.h"

namespace quorn::test {

std::optional<std::string> ScriptedFileChooser::answer(bool save,
                                                       const FileDialogRequest& request) {
  shown_.push_back({save, request});
  if (answers_.empty()) return std::nullopt;
  auto next = answers_.front();
  answers_.pop_front();
  return next;
}

std::optional<std::string> ScriptedFileChooser::chooseFileToOpen(const FileDialogRequest& request) {
  return answer(false, request);
}

std::optional<std::string> ScriptedFileChooser::chooseFileToSave(const FileDialogRequest& request) {
  return answer(true, request);
}

}  // namespace quorn::test
