#include "config/config_keys.h"

#include <array>

namespace quorn {

namespace {

using Kind = ConfigKey::Kind;
using C = Configuration;

constexpr std::array<ConfigKey, 23> kKeys = {{
    {"GRIDCOLOUR", Kind::Colour, &C::gridColour},
    {"SCALECOLOUR", Kind::Colour, &C::scaleColour},
    {"STARTCOLOUR", Kind::Colour, &C::startColour},
    {"ENDCOLOUR", Kind::Colour, &C::endColour},
    {"SPINDLECOLOUR", Kind::Colour, &C::spindleColour},
    {"TEECOLOUR", Kind::Colour, &C::teeColour},
    {"INSULATIONCOLOUR", Kind::Colour, &C::insulationColour},
    {"TRACINGCOLOUR", Kind::Colour, &C::tracingColour},
    {"TENSCOLOUR", Kind::Colour, &C::tensColour},
    {"PITCH", Kind::Real, nullptr},
    {"HSIZE", Kind::TimesTen, &C::hsize},
    {"STARTRADIUS", Kind::Plain, &C::startRadius},
    {"ENDRADIUS", Kind::Plain, &C::endRadius},
    {"SPINDLERADIUS", Kind::Plain, &C::spindleRadius},
    {"TEERADIUS", Kind::Plain, &C::teeRadius},
    {"TOPMARGIN", Kind::Plain, &C::topMargin},
    {"LEFTMARGIN", Kind::Plain, &C::leftMargin},
    {"LINESCALE", Kind::Plain, &C::lineScale},
    {"MAXSYMBOLSINFILE", Kind::Plain, &C::maxSymbolsInFile},
    {"NOOFSEGMENTS", Kind::Plain, &C::noOfSegments},
    {"SEGMENTSIN180ARC", Kind::Doubled, &C::segmentsIn180Arc},
    {"WRITEBIN", Kind::Flag, nullptr},
    {"BINFORMAT", Kind::Plain, &C::binFormat},
}};

}  // namespace

std::span<const ConfigKey> configKeys() {
  return kKeys;
}

}  // namespace quorn
