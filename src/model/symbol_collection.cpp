#include "model/symbol_collection.h"

namespace quorn {

SymbolRecord& SymbolCollection::append(SymbolRecord symbol) {
  slots_.push_back(std::move(symbol));
  return slots_.back();
}

void SymbolCollection::reset(int capacity) {
  capacity_ = capacity;
  slots_.assign(1, SymbolRecord{});
}

void SymbolCollection::remove(int number) {
  if (number >= 1 && number <= count()) slots_.erase(slots_.begin() + number);
}

}  // namespace quorn
