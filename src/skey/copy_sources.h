#pragma once
// Finding the symbol whose attributes (or drawing) a new symbol starts from.

#include <string_view>

#include "model/symbol_collection.h"

namespace quorn {

/// Where the new-symbol dialog copies attributes from.
enum class AttributeSource { None, CurrentSet, Library };

/// The first symbol of the Current Set whose Old SKEY is `key`. Both are compared stripped and
/// upper-cased, a "**" end standing for the bare type, since a stored key never holds a bare
/// type ("VB" is held as "VB**"). Null when none.
const SymbolRecord* findCurrentSetSymbol(const CurrentSet& set, std::string_view key);

/// The first of the first 250 library symbols held under `key`, compared as above. A symbol held
/// under a two-character type (such as "VB") also serves every four-character key of that type.
/// Null when none.
const SymbolRecord* findLibrarySymbol(const SymbolLibrary& library, std::string_view key);

/// `findCurrentSetSymbol` or `findLibrarySymbol` by `source`; null for `None`.
const SymbolRecord* findAttributeSource(AttributeSource source, const CurrentSet& set,
                                        const SymbolLibrary& library, std::string_view key);

}  // namespace quorn
