#pragma once
// Saves the Current Set as a symbol file in the format its extension selects, with the binary
// copy when the configuration asks for it and a backup of the file that is open.

#include <cstdint>
#include <string>
#include <string_view>

#include "base/messages.h"
#include "base/working_directory.h"
#include "config/configuration.h"
#include "config/settings.h"
#include "files/output_file.h"
#include "files/symbol_file.h"
#include "model/symbol_collection.h"

namespace quorn {

/// Writes the whole Current Set to `fileName`:
/// - loads the structure of the format named by the extension of `fileName` in capitals
///   (a failure has been shown by the loader; nothing is written);
/// - when `fileName` is not `openFileName` and exists, asks whether to overwrite it; unless
///   the answer is OK, `fileName` becomes `openFileName` and nothing is written;
/// - when `fileName` is `openFileName`, copies it to NAME.BAK first (a missing file is only
///   reported; a copy that fails stops the save);
/// - writes the text file with `fileText.lineEnding` and, when the format's write-binary flag
///   is on, NAME.BIN beside it. Each goes to a temporary file that takes the target's place
///   only when every byte has been written, so a failed save (reported through `messages`)
///   leaves the old files as they were.
/// Returns true when the set has been saved; `set.changed` is then cleared, and otherwise left.
/// Raw keys ending in "**" are cut to their first two characters in `set` as they are written.
bool writeSymbolFile(const WorkingDirectory& directory, std::string& fileName,
                     const std::string& openFileName, CurrentSet& set,
                     const SymbolFileText& fileText, const Configuration& config,
                     Messages& messages, FileSystem& files = diskFileSystem());

/// The bytes of the records being built, appended to by `writeSymbolRecords` and drained by
/// the caller; the buffers keep their room from one symbol to the next.
struct RecordBuffers {
  std::string_view lineEnd = "\r\n";
  bool binary = false;  // build the binary blocks as well
  std::int16_t binFormat = 0;
  std::string text;
  std::string binaryBytes;
};

/// Appends one symbol: its header record, then its actions four groups to a record, where a
/// run of moves keeps only its last point (a second action that repeats a move's start point
/// is left out) and negative coordinates are written as 0. A symbol without actions has no
/// action record.
void writeSymbolRecords(const SymbolRecord& symbol, RecordBuffers& out);

/// The body of a save into outputs already made: head and lead lines, the symbols (those
/// whose old key ends in "SP", other than "SP" and "WSSP", first), the end record for the
/// Quorn_ASCII format, the tail lines (a first one reading "999..." left out) and, with a
/// binary output, its end block. Nothing is finished or committed. Returns the output whose
/// write failed, or nullptr when every byte has been handed over.
const OutputFile* writeSymbolSet(CurrentSet& set, const SymbolFileText& fileText,
                                 const FormatStructure& format, std::int16_t binFormat,
                                 OutputFile& text, OutputFile* binary);

}  // namespace quorn
