#pragma once
// The backup copy made before a save replaces the file that is open.

#include <string>

#include "base/messages.h"
#include "files/output_file.h"

namespace quorn {

enum class BackupOutcome {
  Made,     // the file has been copied to its backup name
  Missing,  // there was no file to copy; the user has been told and the save may go on
  Failed,   // the copy failed; the user has been told and nothing should be saved
};

/// Copies `fileName` to NAME.BAK (see backupFileName), replacing an older backup only once
/// the copy is complete.
BackupOutcome makeBackup(const std::string& fileName, Messages& messages,
                         FileSystem& files = diskFileSystem());

}  // namespace quorn
