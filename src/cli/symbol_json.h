#pragma once
// One symbol as the tool's --json output and its text output show it.

#include <ostream>

#include "cli/json_writer.h"
#include "model/symbol_record.h"

namespace quorn::cli {

/// {"newKeyRaw", "newKey", "oldKeyRaw", "oldKey", "spindleKey", "scaleFactor", "mirrorType",
///  "flowArrow", "dimensions", "orientation", "tappingCount", "actions": [[code, x, y], ...]}
void writeSymbolJson(JsonWriter& json, const SymbolRecord& symbol);

/// Two lines: the attributes, then the actions as "code x,y".
void writeSymbolText(std::ostream& out, const SymbolRecord& symbol);

}  // namespace quorn::cli
