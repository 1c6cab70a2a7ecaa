#pragma once
// Every text the symbol file writer shows: the overwrite question, the backup messages and the
// reports of a save that could not be completed.

#include <string>
#include <string_view>

namespace quorn {

/// NAME already exists. / Do you wish to Overwrite it?
std::string overwriteQuestionText(std::string_view fileName);
/// NAME is missing. No Back Up has been made
std::string missingBackupText(std::string_view fileName);
/// A backup that could not be copied (`failedFile` is the file that failed, the original or
/// its backup): nothing is saved after it.
std::string backupFailedText(std::string_view fileName, std::string_view failedFile,
                             std::string_view problem);
/// A file that could not be written: the old one is kept.
std::string notSavedText(std::string_view fileName, std::string_view problem);

/// The problems those reports name; `reason` is the system's own word for the fault.
std::string cannotCreateProblem(std::string_view reason);
std::string cannotWriteProblem(std::string_view reason);
std::string cannotReplaceProblem(std::string_view reason);
std::string cannotReadProblem(std::string_view reason);

}  // namespace quorn
