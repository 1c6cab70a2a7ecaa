#include "skey/copy_sources.h"

#include <algorithm>
#include <string>

#include "base/text.h"
#include "model/limits.h"
#include "skey/special_skeys.h"

namespace quorn {
namespace {

std::string comparedKey(std::string_view key) {
  return std::string(typeKeyOf(normalisedWord(key)));
}

}  // namespace

const SymbolRecord* findCurrentSetSymbol(const CurrentSet& set, std::string_view key) {
  const std::string wanted = comparedKey(key);
  for (int number = 1; number <= set.count(); ++number) {
    const SymbolRecord& symbol = set.symbol(number);
    if (comparedKey(symbol.oldKey) == wanted) return &symbol;
  }
  return nullptr;
}

const SymbolRecord* findLibrarySymbol(const SymbolLibrary& library, std::string_view key) {
  const std::string wanted = comparedKey(key);
  const std::string wantedType = wanted.size() == 4 ? wanted.substr(0, 2) : wanted;
  const int last = std::min(library.count(), kLibraryCapacity);
  for (int number = 1; number <= last; ++number) {
    const SymbolRecord& symbol = library.symbol(number);
    const std::string held = comparedKey(symbol.oldKey);
    if (held == wanted || (held.size() == 2 && held == wantedType)) return &symbol;
  }
  return nullptr;
}

const SymbolRecord* findAttributeSource(AttributeSource source, const CurrentSet& set,
                                        const SymbolLibrary& library, std::string_view key) {
  switch (source) {
    case AttributeSource::CurrentSet:
      return findCurrentSetSymbol(set, key);
    case AttributeSource::Library:
      return findLibrarySymbol(library, key);
    case AttributeSource::None:
      break;
  }
  return nullptr;
}

}  // namespace quorn
