#pragma once
// The binary copy of a symbol file: one block per text record, 56 bytes of record data framed
// as BINFORMAT says.

#include <array>
#include <cstdint>
#include <span>
#include <string>

#include "model/symbol_record.h"

namespace quorn {

inline constexpr std::size_t kBinaryRecordSize = 56;
using BinaryRecord = std::array<std::uint8_t, kBinaryRecordSize>;

/// 501, the three keys as 4 blank-padded characters each (the raw keys, as the text record
/// holds them), then scale factor, mirror type, flow arrow, dimensions, five zeros and
/// orientation as integers: the whole part of each text's leading number, held in 16 bits.
BinaryRecord binaryHeaderRecord(const SymbolText& symbol);
/// 502 and up to four groups of code, x and y; the bytes after the last group are 0.
BinaryRecord binaryActionRecord(std::span<const SymbolAction> groups);
/// 999 and zeros.
BinaryRecord binaryEndRecord();

/// Appends `record` framed for `binFormat` (0 to 3; any other value frames as 0).
void appendBinaryBlock(std::string& bytes, const BinaryRecord& record, int binFormat);

}  // namespace quorn
