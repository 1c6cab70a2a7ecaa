#pragma once
// The values of SYMBOLS.CFG as the editor holds them, with their defaults.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace quorn {

/// One SKEY of a group, in file order.
struct GroupEntry {
  std::string skey;
  std::string description;
  std::array<bool, 10> flags{};    // one per digit 0 to 9
  std::int16_t librarySymbol = 0;  // the Symbol Library symbol that draws it, 0 for none
};

struct SkeyGroup {
  std::string name;                 // empty for an unnamed group
  std::vector<GroupEntry> entries;  // positions 1 to 80, held from index 0
};

inline constexpr int kMaxGroups = 21;
inline constexpr int kMaxEntriesPerGroup = 80;

struct Configuration {
  // Colours are palette indices 0 to 15.
  std::int16_t gridColour = 11;
  std::int16_t scaleColour = 0;
  std::int16_t tensColour = 8;
  std::int16_t startColour = 10;
  std::int16_t endColour = 12;
  std::int16_t spindleColour = 9;
  std::int16_t teeColour = 14;
  std::int16_t insulationColour = 12;
  std::int16_t tracingColour = 12;
  double pitch = 5;          // tenths of a millimetre, fraction kept
  std::int16_t hsize = 300;  // tenths of a millimetre
  std::int16_t startRadius = 60;
  std::int16_t endRadius = 150;
  std::int16_t spindleRadius = 120;
  std::int16_t teeRadius = 90;
  std::int16_t topMargin = 1440;
  std::int16_t leftMargin = 1080;
  std::int16_t lineScale = 100;
  std::int16_t maxSymbolsInFile = 0;  // 0 after reading becomes 100
  std::int16_t noOfSegments = 16;
  std::int16_t segmentsIn180Arc = 32;  // held doubled: segments in a whole turn
  bool writeBin = false;
  std::int16_t binFormat = 0;

  /// Names of groups 1 to 21 (index 0 unused).
  std::array<std::string, kMaxGroups + 1> groupNames{};
  /// The highest group number given under [Groups].
  std::int16_t groupCount = 0;
  /// Groups 0 to groupCount with their entries.
  std::vector<SkeyGroup> groups;
  /// The group chooser's entries for groups 1 to groupCount.
  std::vector<std::string> groupList;
};

}  // namespace quorn
