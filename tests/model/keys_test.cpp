#include "model/keys.h"

#include <gtest/gtest.h>

namespace quorn {
namespace {

TEST(NormaliseKey, ABareComponentTypeStandsForAnyEndCondition) {
  EXPECT_EQ(normaliseKey("vb"), "VB**");
  EXPECT_EQ(normaliseKey("  VT "), "VT**");
  EXPECT_EQ(normaliseKey("sp"), "SP");
  EXPECT_EQ(normaliseKey("BP"), "BP");
  EXPECT_EQ(normaliseKey("VBSW"), "VBSW");
  EXPECT_EQ(normaliseKey("v"), "V");
  EXPECT_EQ(normaliseKey("VBS"), "VBS");
  EXPECT_EQ(normaliseKey(""), "");
}

TEST(NormaliseKey, EveryEndConditionCodeIsKeptAsItIs) {
  for (const std::string_view code : kEndConditionCodes) EXPECT_EQ(normaliseKey(code), code);
  EXPECT_EQ(normaliseKey("**"), "****");
}

TEST(SetKeys, TheRawKeyKeepsItsCaseAndLosesOnlyItsBlanks) {
  SymbolText symbol;
  setOldKey(symbol, " vb ");
  setNewKey(symbol, "Xy");
  EXPECT_EQ(symbol.oldKeyRaw, "vb");
  EXPECT_EQ(symbol.oldKey, "VB**");
  EXPECT_EQ(symbol.newKeyRaw, "Xy");
  EXPECT_EQ(symbol.newKey, "XY**");
}

TEST(ListLabel, ShowsTheNewAndSpindleKeysOnlyWhenPresent) {
  SymbolText symbol;
  symbol.oldKey = "VBFL";
  EXPECT_EQ(listLabel(symbol), "Old SKEY: VBFL" + std::string(17, ' '));
  symbol.oldKey = "SP";
  symbol.newKey = "XV**";
  EXPECT_EQ(listLabel(symbol), "Old SKEY: SP     New SKEY: XV**");
  symbol.newKey = "";
  symbol.spindleKey = "HWSP";
  EXPECT_EQ(listLabel(symbol), "Old SKEY: SP  " + std::string(17, ' ') + "   Spindle SKEY: HWSP");
}

}  // namespace
}  // namespace quorn
