#pragma once
// A FileChooser fake: answers from a queue and records every request.

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "app/file_chooser.h"

namespace quorn::test {

class ScriptedFileChooser : public FileChooser {
 public:
  /// The next dialog's answer: a file name, or nothing for Cancel.
  void queue(std::optional<std::string> answer) { answers_.push_back(std::move(answer)); }
  std::optional<std::string> chooseFileToOpen(const FileDialogRequest& request) override;
  std::optional<std::string> chooseFileToSave(const FileDialogRequest& request) override;

  struct Shown {
    bool save;
    FileDialogRequest request;
  };
  const std::vector<Shown>& shown() const { return shown_; }

 private:
  std::optional<std::string> answer(bool save, const FileDialogRequest& request);

  std::deque<std::optional<std::string>> answers_;
  std::vector<Shown> shown_;
};

}  // namespace quorn::test
