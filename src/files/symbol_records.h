#pragma once
// The "501" header and "502" action records that every symbol file and the Symbol Library
// hold, parsed into a symbol collection one line at a time.

#include <climits>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "base/messages.h"
#include "model/symbol_collection.h"

namespace quorn {

inline constexpr std::int16_t kHeaderRecord = 501;
inline constexpr std::int16_t kActionRecord = 502;

/// Stands for a record number that does not fit a 16-bit integer; never a record.
inline constexpr int kNoRecordNumber = INT_MIN;

/// The value of a line's first four characters as a 16-bit integer, read as any number;
/// `kNoRecordNumber` when the value does not fit.
int readRecordNumber(std::string_view line);

/// True for a line that starts " 501 " or " 502 ", as the records are written: its record
/// number is the same whether it is trimmed first or not.
inline bool isWrittenRecord(std::string_view line) {
  return line.size() >= 5 && line[0] == ' ' && line[1] == '5' && line[2] == '0' &&
         (line[3] == '1' || line[3] == '2') && line[4] == ' ';
}

/// The record number of a line, as `readRecordNumber`, with the records as written (" 501",
/// and "501 " once trimmed) known at a glance: every line of a large file comes here.
inline int recordNumber(std::string_view line) {
  if (line.size() >= 4 && line[0] == ' ' && line[1] == '5' && line[2] == '0') {
    if (line[3] == '1') return kHeaderRecord;
    if (line[3] == '2') return kActionRecord;
  }
  if (line.size() >= 3 && line[0] == '5' && line[1] == '0' &&
      (line.size() == 3 || line[3] == ' ')) {
    if (line[2] == '1') return kHeaderRecord;
    if (line[2] == '2') return kActionRecord;
  }
  return readRecordNumber(line);
}

/// What differs between the readers that use the records.
struct RecordRules {
  /// Shown when a header record finds the collection full (its capacity is the limit);
  /// parsing then stops and the rest of the lines are ignored.
  std::string symbolLimitText;
  /// Called for each header record taken, once its fields have been read, with the
  /// symbol's number; may be empty.
  std::function<void(int number, const SymbolRecord& symbol)> onHeader;
};

/// Turns record lines into symbols of `symbols`, which should start empty:
/// - a header record starts the next symbol (its keys normalised, its attribute fields
///   trimmed; the scale factor without its first column);
/// - an action record adds its groups with a code 1 to 9 to the symbol last started (slot 0
///   before the first header), keeping 9 tapping points and 200 actions per symbol; the
///   surplus is dropped with one message per symbol and kind; negative coordinates become 0;
/// - every other line is ignored.
class SymbolRecordParser {
 public:
  SymbolRecordParser(SymbolCollection& symbols, RecordRules rules, Messages& messages);

  /// Takes one line. Returns the problem when a coordinate that is to be stored does not fit
  /// a 16-bit integer: the caller names the file and line and stops reading.
  std::optional<std::string> parse(std::string_view line) {
    if (stopped_) return std::nullopt;
    const int record = recordNumber(line);
    if (record == kActionRecord) return addActions(line);
    if (record == kHeaderRecord) startSymbol(line);
    return std::nullopt;
  }
  /// Ends the parse: places each symbol's spindle point and trims spare room.
  void finish();
  /// True once the symbol limit has stopped the parse.
  bool stopped() const { return stopped_; }

 private:
  void startSymbol(std::string_view line);
  std::optional<std::string> addActions(std::string_view line);
  /// Applies the tapping-point and action limits to an action of `code`; false drops it.
  bool admit(std::int16_t code);
  void closeSymbol();

  SymbolCollection& symbols_;
  RecordRules rules_;
  Messages& messages_;
  SymbolRecord* symbol_;  // the symbol that action records go to
  int number_ = 0;        // the current symbol number
  bool stopped_ = false;
  bool closed_ = false;       // the symbol that action records go to is complete
  bool tappingFlag_ = false;  // set by an accepted tapping point, cleared by its message
  bool actionFlag_ = false;   // cleared by an accepted action, set by its message
};

}  // namespace quorn
