#include "files/writer_texts.h"

namespace quorn {

namespace {

std::string joined(std::initializer_list<std::string_view> parts) {
  std::string text;
  for (std::string_view part : parts) text += part;
  return text;
}

}  // namespace

std::string overwriteQuestionText(std::string_view fileName) {
  return joined({fileName, " already exists.", "\n", "Do you wish to Overwrite it?"});
}

std::string missingBackupText(std::string_view fileName) {
  return joined({fileName, " is missing. No Back Up has been made"});
}

std::string backupFailedText(std::string_view fileName, std::string_view failedFile,
                             std::string_view problem) {
  return joined({"No Back Up of ", fileName, " could be made: ", failedFile, " ", problem, ".",
                 "\n", "Nothing has been saved."});
}

std::string notSavedText(std::string_view fileName, std::string_view problem) {
  return joined({"Saving ", fileName, " failed: the file ", problem, ".", "\n",
                 "The file on disk has not been changed."});
}

std::string cannotCreateProblem(std::string_view reason) {
  return joined({"cannot be created (", reason, ")"});
}

std::string cannotWriteProblem(std::string_view reason) {
  return joined({"cannot be written (", reason, ")"});
}

std::string cannotReplaceProblem(std::string_view reason) {
  return joined({"cannot take the old file's place (", reason, ")"});
}

std::string cannotReadProblem(std::string_view reason) {
  return joined({"cannot be read (", reason, ")"});
}

}  // namespace quorn
