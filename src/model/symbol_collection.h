#pragma once
// The Current Set (the symbols being edited) and the Symbol Library (the standard symbols).

#include <vector>

#include "model/limits.h"
#include "model/symbol_record.h"

namespace quorn {

/// Symbols numbered from 1. Slot 0 exists for records that stand before any header.
class SymbolCollection {
 public:
  explicit SymbolCollection(int capacity) : capacity_(capacity) {}

  int capacity() const { return capacity_; }
  int count() const { return static_cast<int>(slots_.size()) - 1; }
  bool full() const { return count() >= capacity_; }

  /// 0 to count().
  SymbolRecord& symbol(int number) { return slots_[number]; }
  const SymbolRecord& symbol(int number) const { return slots_[number]; }
  SymbolRecord& scratch() { return slots_[0]; }

  /// Adds a symbol behind the last; the caller checks `full()` first.
  SymbolRecord& append(SymbolRecord symbol = {});
  /// Removes every symbol and sets the capacity.
  void reset(int capacity);
  void clear() { reset(capacity_); }
  /// Removes symbol `number`; later symbols move up one place.
  void remove(int number);

 private:
  int capacity_;
  std::vector<SymbolRecord> slots_ = std::vector<SymbolRecord>(1);
};

/// The symbols being edited, sized from MAXSYMBOLSINFILE.
struct CurrentSet : SymbolCollection {
  CurrentSet() : SymbolCollection(kDefaultMaxSymbols) {}
  /// The set differs from what was last read or written.
  bool changed = false;
};

/// The standard symbols of SYMBOLS.LIB; never written.
struct SymbolLibrary : SymbolCollection {
  SymbolLibrary() : SymbolCollection(kLibraryCapacity) {}
  bool loaded = false;
};

}  // namespace quorn
