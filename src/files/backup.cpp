#include "files/backup.h"

#include <cerrno>
#include <cstdio>
#include <system_error>
#include <vector>

#include "files/file_names.h"
#include "files/writer_texts.h"

namespace quorn {

namespace {

constexpr std::size_t kCopyChunk = 1 << 16;

std::string lastReason() {
  const int code = errno;
  return code != 0 ? std::generic_category().message(code) : std::string("unknown fault");
}

struct InputFile {
  explicit InputFile(const std::string& name) : file(std::fopen(name.c_str(), "rb")) {}
  ~InputFile() {
    if (file != nullptr) std::fclose(file);
  }
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;
  std::FILE* file;
};

}  // namespace

BackupOutcome makeBackup(const std::string& fileName, Messages& messages, FileSystem& files) {
  if (!files.exists(fileName)) {
    messages.tell(missingBackupText(fileName));
    return BackupOutcome::Missing;
  }
  const std::string backupName = backupFileName(fileName);
  const auto failed = [&](const std::string& failedFile, const std::string& problem) {
    messages.tell(backupFailedText(fileName, failedFile, problem));
    return BackupOutcome::Failed;
  };
  errno = 0;
  InputFile input(fileName);
  if (input.file == nullptr) return failed(fileName, cannotReadProblem(lastReason()));
  const auto output = files.replace(backupName);
  std::vector<char> chunk(kCopyChunk);
  for (;;) {
    errno = 0;
    const std::size_t got = std::fread(chunk.data(), 1, chunk.size(), input.file);
    if (got < chunk.size() && std::ferror(input.file)) {
      return failed(fileName, cannotReadProblem(lastReason()));
    }
    if (!output->write(std::string_view(chunk.data(), got))) {
      return failed(backupName, output->problem());
    }
    if (got < chunk.size()) break;
  }
  if (!output->finish() || !output->commit()) return failed(backupName, output->problem());
  return BackupOutcome::Made;
}

}  // namespace quorn
