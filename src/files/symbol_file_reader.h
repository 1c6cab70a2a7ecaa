#pragma once
// Reads a symbol file into the Current Set: the record lines become symbols, the lines
// around them are kept for the next save.

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/messages.h"
#include "config/settings.h"
#include "files/symbol_file.h"
#include "model/symbol_collection.h"

namespace quorn {

struct ReadOptions {
  /// Keep the body lines in `SymbolFileText::bodyLines`, for the values view of the testing
  /// aids. Without them a large file reads faster and takes less memory.
  bool keepBodyLines = false;
};

/// Reads the symbol file `path` laid out as `format` says (the structure loaded for the
/// file's extension). The file is read once, from start to end, through a buffer of fixed
/// size, whatever its size.
///
/// On success returns true: `current` holds the symbols read, at most its capacity
/// (MAXSYMBOLSINFILE), each with its spindle point placed, and actions that stood before the
/// first header record in its slot 0; its changed flag is left as it was. `text` holds the
/// head, lead and tail lines and the file's line ends; `listLabels` the list label of each
/// symbol, in order. Limit messages have been shown through `messages`.
///
/// On failure returns false after showing why through `messages`: the file cannot be opened
/// or read, is empty, holds a NUL byte or a line longer than 4096 characters, has a
/// coordinate to be stored that does not fit a 16-bit integer, or lacks the format's test
/// string. `current`, `text` and `listLabels` are then as they were.
bool readSymbolFile(const std::filesystem::path& path, const FormatStructure& format,
                    CurrentSet& current, SymbolFileText& text, std::vector<std::string>& listLabels,
                    Messages& messages, const ReadOptions& options = {});

/// As `readSymbolFile`, for the content of a file held in memory; `fileShown` names the file
/// in messages.
bool readSymbolText(std::string_view content, std::string_view fileShown,
                    const FormatStructure& format, CurrentSet& current, SymbolFileText& text,
                    std::vector<std::string>& listLabels, Messages& messages,
                    const ReadOptions& options = {});

}  // namespace quorn
