#include "files/open_symbol_file.h"

#include "config/settings_reader.h"
#include "files/file_names.h"

namespace quorn {

std::optional<OpenedSymbolFile> openSymbolFile(const WorkingDirectory& directory,
                                               const std::filesystem::path& path, bool writeBin,
                                               CurrentSet& set, Messages& messages,
                                               const ReadOptions& options) {
  const auto format =
      loadFormatStructure(directory, fileExtension(path.string()), writeBin, messages);
  if (!format) return std::nullopt;
  OpenedSymbolFile opened;
  opened.format = *format;
  if (!readSymbolFile(path, opened.format, set, opened.text, opened.listLabels, messages,
                      options)) {
    return std::nullopt;
  }
  return opened;
}

}  // namespace quorn
