#pragma once
// Reading a symbol file as the Open command does: the format comes from the file's extension.

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "base/messages.h"
#include "base/working_directory.h"
#include "config/settings.h"
#include "files/symbol_file.h"
#include "files/symbol_file_reader.h"
#include "model/symbol_collection.h"

namespace quorn {

/// What an open leaves besides the symbols in the Current Set.
struct OpenedSymbolFile {
  FormatStructure format;
  SymbolFileText text;
  std::vector<std::string> listLabels;
};

/// Loads the structure of the format named by `path`'s extension (in capitals) from
/// SYMBOLS.INI, then reads the file into `set`. Nothing when either step refused, after its
/// message; `set` is then as it was.
std::optional<OpenedSymbolFile> openSymbolFile(const WorkingDirectory& directory,
                                               const std::filesystem::path& path, bool writeBin,
                                               CurrentSet& set, Messages& messages,
                                               const ReadOptions& options = {});

}  // namespace quorn
