#pragma once
// A standard spindle shape from SPINDLES.DEF.

#include <cstdint>
#include <string>
#include <vector>

namespace quorn {

struct SpindleSegment {
  std::int16_t x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  friend bool operator==(const SpindleSegment&, const SpindleSegment&) = default;
};

struct SpindleDefinition {
  std::string name;                      // its SKEY
  std::vector<SpindleSegment> segments;  // up to 50
};

/// Spindles 1 to 15 in file order; index 0 collects segments met before the first name.
struct SpindleTable {
  std::vector<SpindleDefinition> spindles = std::vector<SpindleDefinition>(1);
  int count() const { return static_cast<int>(spindles.size()) - 1; }
};

}  // namespace quorn
