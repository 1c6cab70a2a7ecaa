#pragma once
// One symbol: its keys, attributes and actions.

#include <cstdint>
#include <string>
#include <vector>

namespace quorn {

/// Action codes as a symbol file writes them.
enum ActionCode : std::int16_t {
  kMove = 1,
  kLine = 2,
  kTappingPoint = 3,
  kInsulation = 4,
  kTracing = 5,
  kSpindlePoint = 6,
  kCharacterLine = 7,
  kWorkingEndPoint = 20,  // marks the working symbol's end slot; never stored
};

/// One point of a symbol, in hundredths of a millimetre from the grid's bottom-left corner.
struct SymbolAction {
  std::int16_t type = 0;
  std::int16_t x = 0;
  std::int16_t y = 0;
  friend bool operator==(const SymbolAction&, const SymbolAction&) = default;
};

/// The text fields of a symbol, each kept exactly as it will be written.
struct SymbolText {
  std::string newKeyRaw;  // as read or typed, trimmed
  std::string newKey;     // normalised; blank when the symbol keeps its old key
  std::string oldKeyRaw;
  std::string oldKey;  // normalised; the key the symbol is listed by
  std::string spindleKey;
  std::string scaleFactor;
  std::string mirrorType;
  std::string flowArrow;
  std::string dimensions;
  std::string orientation;
  friend bool operator==(const SymbolText&, const SymbolText&) = default;
};

struct SymbolRecord : SymbolText {
  std::int16_t tappingCount = 0;
  /// Actions 1 to actionCount(), held from index 0.
  std::vector<SymbolAction> actions;

  std::int16_t actionCount() const { return static_cast<std::int16_t>(actions.size()); }
  /// 1-based, as the system numbers actions.
  const SymbolAction& action(int number) const { return actions[number - 1]; }
  friend bool operator==(const SymbolRecord&, const SymbolRecord&) = default;
};

/// Moves the first spindle point among actions 1 to count - 2 to the last place but one.
/// The last action never moves.
void placeSpindlePoint(SymbolRecord& symbol);

}  // namespace quorn
