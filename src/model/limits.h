#pragma once
// The fixed capacities of the symbol model.

namespace quorn {

inline constexpr int kDefaultMaxSymbols = 100;  // when MAXSYMBOLSINFILE is 0
inline constexpr int kMaxActionsRead = 200;     // per symbol, as the readers accept them
inline constexpr int kMaxTappingPoints = 9;     // per symbol
inline constexpr int kLibraryCapacity = 250;    // symbols in SYMBOLS.LIB
inline constexpr int kMaxSpindles = 15;
inline constexpr int kMaxSpindleSegments = 50;
inline constexpr int kWorkingSlots = 203;  // working symbol slots 0 to 202
inline constexpr int kSpindleSlot = 201;
inline constexpr int kEndSlot = 202;
// A full working symbol stores its 200 slots plus the spindle and end points behind them,
// so a stored symbol holds up to 202 actions; only the readers stop at 200.
inline constexpr int kMaxActionsStored = 202;

}  // namespace quorn
