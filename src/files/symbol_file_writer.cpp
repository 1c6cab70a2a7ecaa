#include "files/symbol_file_writer.h"

#include <array>
#include <span>

#include "base/text.h"
#include "config/settings_reader.h"
#include "config/settings_texts.h"
#include "files/backup.h"
#include "files/binary_records.h"
#include "files/file_names.h"
#include "files/text_records.h"
#include "files/writer_texts.h"

namespace quorn {

namespace {

constexpr std::string_view kEndRecordMark = "999";
// Buffers are handed to the outputs once they hold this much.
constexpr std::size_t kDrainSize = 1 << 16;

std::string_view lineEndText(LineEnding ending) {
  return ending == LineEnding::CrLf ? "\r\n" : "\n";
}

SymbolAction withoutNegatives(const SymbolAction& action) {
  return {action.type, action.x < 0 ? std::int16_t{0} : action.x,
          action.y < 0 ? std::int16_t{0} : action.y};
}

// One action record being filled.
struct ActionLine {
  std::array<SymbolAction, kGroupsPerActionRecord> groups{};
  int count = 0;
};

void putActionLine(const ActionLine& line, RecordBuffers& out) {
  const std::size_t start = out.text.size();
  appendActionRecordStart(out.text);
  for (int i = 0; i < line.count; ++i) appendActionGroup(out.text, line.groups[i]);
  appendActionRecordEnd(out.text, start, line.count);
  out.text += out.lineEnd;
  if (out.binary) {
    appendBinaryBlock(out.binaryBytes,
                      binaryActionRecord(std::span(line.groups.data(), line.count)), out.binFormat);
  }
}

// Symbols written in the first pass: old keys of the "SP" end condition, apart from the
// bare code and WSSP.
bool writtenFirst(const SymbolRecord& symbol) {
  const std::string& key = symbol.oldKey;
  return key.ends_with("SP") && key != "SP" && key != "WSSP";
}

void cutWildcard(std::string& rawKey) {
  if (trimmed(rawKey).ends_with("**")) rawKey = std::string(leftPart(trimmed(rawKey), 2));
}

// Hands the buffers to the outputs; false when a write failed (`failed` then names it).
bool drain(RecordBuffers& buffers, OutputFile& text, OutputFile* binary,
           const OutputFile*& failed) {
  if (!text.write(buffers.text)) {
    failed = &text;
  } else if (binary != nullptr && !binary->write(buffers.binaryBytes)) {
    failed = binary;
  }
  buffers.text.clear();
  buffers.binaryBytes.clear();
  return failed == nullptr;
}

void appendLines(const std::vector<std::string>& lines, std::size_t from, RecordBuffers& out) {
  for (std::size_t i = from; i < lines.size(); ++i) {
    out.text += lines[i];
    out.text += out.lineEnd;
  }
}

}  // namespace

void writeSymbolRecords(const SymbolRecord& symbol, RecordBuffers& out) {
  appendHeaderRecord(out.text, symbol);
  out.text += out.lineEnd;
  if (out.binary) appendBinaryBlock(out.binaryBytes, binaryHeaderRecord(symbol), out.binFormat);

  const int count = symbol.actionCount();
  ActionLine line;
  for (int a = 1; a <= count; ++a) {
    SymbolAction action = withoutNegatives(symbol.action(a));
    const bool move = action.type == kMove;
    if (move && line.count > 0 && line.groups[line.count - 1].type == kMove) {
      SymbolAction& previous = line.groups[line.count - 1];
      if (a == 2) {
        // A second action on the start point adds nothing; elsewhere it must not move the
        // start point.
        if (action.x == previous.x && action.y == previous.y) continue;
      } else {
        previous.x = action.x;
        previous.y = action.y;
        continue;
      }
    } else if (move && line.count == kGroupsPerActionRecord - 1 && a < count &&
               symbol.action(a + 1).type == kMove) {
      // The run of moves would outlast this record: only its last point is written.
      while (a < count && symbol.action(a + 1).type == kMove) ++a;
      action = withoutNegatives(symbol.action(a));
    }
    line.groups[line.count++] = action;
    if (line.count == kGroupsPerActionRecord) {
      putActionLine(line, out);
      line.count = 0;
    }
  }
  if (line.count > 0) putActionLine(line, out);
}

const OutputFile* writeSymbolSet(CurrentSet& set, const SymbolFileText& fileText,
                                 const FormatStructure& format, std::int16_t binFormat,
                                 OutputFile& text, OutputFile* binary) {
  RecordBuffers buffers;
  buffers.lineEnd = lineEndText(fileText.lineEnding);
  buffers.binary = binary != nullptr;
  buffers.binFormat = binFormat;
  const OutputFile* failed = nullptr;

  appendLines(fileText.headLines, 0, buffers);
  appendLines(fileText.leadLines, 0, buffers);
  for (const bool firstPass : {true, false}) {
    for (int number = 1; number <= set.count(); ++number) {
      SymbolRecord& symbol = set.symbol(number);
      if (writtenFirst(symbol) != firstPass) continue;
      cutWildcard(symbol.newKeyRaw);
      cutWildcard(symbol.oldKeyRaw);
      writeSymbolRecords(symbol, buffers);
      if (buffers.text.size() >= kDrainSize && !drain(buffers, text, binary, failed)) {
        return failed;
      }
    }
  }
  if (equalsIgnoringCase(format.id, kQuornAsciiId)) {
    appendEndRecord(buffers.text);
    buffers.text += buffers.lineEnd;
  }
  const auto& tail = fileText.tailLines;
  const bool endMarkFirst = !tail.empty() && trimmed(tail.front()).starts_with(kEndRecordMark);
  appendLines(tail, endMarkFirst ? 1 : 0, buffers);
  if (binary != nullptr) appendBinaryBlock(buffers.binaryBytes, binaryEndRecord(), binFormat);
  drain(buffers, text, binary, failed);
  return failed;
}

bool writeSymbolFile(const WorkingDirectory& directory, std::string& fileName,
                     const std::string& openFileName, CurrentSet& set,
                     const SymbolFileText& fileText, const Configuration& config,
                     Messages& messages, FileSystem& files) {
  const auto format =
      loadFormatStructure(directory, fileExtension(fileName), config.writeBin, messages);
  if (!format) return false;
  if (fileName != openFileName) {
    if (files.exists(fileName) &&
        messages.ask(Message{std::string(kAppTitle), overwriteQuestionText(fileName),
                             Buttons::OkCancel, Icon::Critical}) != Answer::Ok) {
      fileName = openFileName;
      return false;
    }
  } else if (makeBackup(fileName, messages, files) == BackupOutcome::Failed) {
    return false;
  }

  const std::string binaryName = binaryFileName(fileName);
  // A text file that is itself called NAME.BIN keeps its text: no copy is written over it.
  const bool withBinary = format->writeBinary && binaryName != fileName;
  const auto text = files.replace(fileName);
  const auto binary = withBinary ? files.replace(binaryName) : nullptr;
  const auto failedWith = [&](const OutputFile& output) {
    messages.tell(notSavedText(&output == text.get() ? fileName : binaryName, output.problem()));
    return false;
  };

  if (const OutputFile* failed =
          writeSymbolSet(set, fileText, *format, config.binFormat, *text, binary.get())) {
    return failedWith(*failed);
  }
  if (binary && !binary->finish()) return failedWith(*binary);
  if (!text->finish()) return failedWith(*text);
  // The copy first: should it fail to take its place, the text file is still untouched.
  if (binary && !binary->commit()) return failedWith(*binary);
  if (!text->commit()) return failedWith(*text);
  set.changed = false;
  return true;
}

}  // namespace quorn
