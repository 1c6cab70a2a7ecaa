#pragma once
// SKEY normalisation and the label a symbol is listed under.

#include <array>
#include <string>
#include <string_view>

#include "model/symbol_record.h"

namespace quorn {

/// The end-condition codes that may end an SKEY, in their fixed order.
inline constexpr std::array<std::string_view, 22> kEndConditionCodes = {
    "PL", "RP", "SP", "SR", "SB", "OP", "PR", "DR", "PF", "PV", "RD",
    "WW", "WS", "WF", "WO", "XX", "MP", "LC", "LN", "LR", "BM", "BP"};

/// The wild card that stands for any end condition.
inline constexpr std::string_view kAnyEndCondition = "**";

bool isEndConditionCode(std::string_view code);

/// Trimmed and upper-cased; a bare two-letter component type gains "**" ("VB" -> "VB**"),
/// while a two-letter end-condition code stays as it is ("SP").
std::string normaliseKey(std::string_view key);

/// Sets a raw key (trimmed, case kept) and its normalised form.
void setNewKey(SymbolText& symbol, std::string_view typed);
void setOldKey(SymbolText& symbol, std::string_view typed);

/// "Old SKEY: VBSW   New SKEY: ..." as the symbol list shows a Current Set symbol.
std::string listLabel(const SymbolText& symbol);

}  // namespace quorn
