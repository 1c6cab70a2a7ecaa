#pragma once
// The keys of SYMBOLS.CFG's [System Setup] section and how each value is held.

#include <cstdint>
#include <span>
#include <string_view>

#include "config/configuration.h"

namespace quorn {

struct ConfigKey {
  enum class Kind {
    Colour,    // a palette name looked up
    Real,      // PITCH: times ten, fraction kept
    TimesTen,  // times ten, rounded
    Plain,     // rounded
    Doubled,   // times two, rounded
    Flag,      // WRITEBIN: true exactly when the value is 1
  };
  std::string_view name;
  Kind kind;
  std::int16_t Configuration::*integer;  // the field of integer kinds; null otherwise
};

/// The keys in the order a line's keyword is compared with them.
std::span<const ConfigKey> configKeys();

}  // namespace quorn
