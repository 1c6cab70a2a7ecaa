#pragma once
// The fixed-column text records a symbol file is written with: the "501" header, the "502"
// action line and the "999" end record.

#include <string>

#include "model/symbol_record.h"

namespace quorn {

inline constexpr std::size_t kHeaderRecordLength = 101;
inline constexpr std::size_t kActionRecordLength = 110;
inline constexpr int kGroupsPerActionRecord = 4;

/// Appends the header record of `symbol` (101 characters, no line end). Keys keep their first
/// four characters, the right-aligned fields their last ones.
void appendHeaderRecord(std::string& line, const SymbolText& symbol);
/// Appends " 502  ", which starts an action record.
void appendActionRecordStart(std::string& line);
/// Appends one action group: code, x and y right-aligned in 8 characters each.
void appendActionGroup(std::string& line, const SymbolAction& action);
/// Ends an action record: one filler after four groups, else fillers until the record is
/// longer than 103 characters. `recordStart` is where the record begins in `line`.
void appendActionRecordEnd(std::string& line, std::size_t recordStart, int groups);
/// Appends the end record (110 characters, no line end).
void appendEndRecord(std::string& line);

}  // namespace quorn
