#include "model/working_symbol.h"

#include <gtest/gtest.h>

namespace quorn {
namespace {

// A grid 60 divisions of 233 form units wide, 30 rows high: 46.6 form units per millimetre.
const GridPlacement kGrid{46.6f, 30 * 233};
constexpr int kBottom = 500 + 30 * 233;

WorkingSymbol drawnSymbol() {
  WorkingSymbol working;
  working.oldKeyRaw = "vb";
  working.oldKey = "VB**";
  working.scaleFactor = "100";
  working.slots[1] = {kMove, 1100, kBottom};
  working.slots[2] = {kLine, 1100 + 466, kBottom - 233};
  working.slots[3] = {kLine, 1100 + 932, kBottom, true};
  working.slots[4] = {kTappingPoint, 1100 + 466, kBottom - 466};
  working.actionCount = 4;
  working.tappingCount = 1;
  working.slots[kSpindleSlot] = {kSpindlePoint, 1100 + 466, kBottom - 699};
  working.slots[kEndSlot] = {kWorkingEndPoint, 1100 + 1398, kBottom};
  return working;
}

TEST(StoreWorkingSymbol, ConvertsFormUnitsToHundredthsOfAMillimetreFromTheBottomLeft) {
  EXPECT_EQ(storedAction(kLine, 1100, kBottom, kGrid), (SymbolAction{kLine, 0, 0}));
  EXPECT_EQ(storedAction(kLine, 1100 + 466, kBottom - 233, kGrid),
            (SymbolAction{kLine, 1000, 500}));
  // Fractions are cut towards minus infinity, not rounded.
  EXPECT_EQ(storedAction(kLine, 1100 + 47, kBottom - 1, kGrid), (SymbolAction{kLine, 100, 2}));
}

TEST(StoreWorkingSymbol, AppendsTheSpindleAndEndPointsAndMarksCharacterLines) {
  CurrentSet set;
  ASSERT_TRUE(storeWorkingSymbol(drawnSymbol(), true, kGrid, set, 1));
  ASSERT_EQ(set.count(), 1);
  const SymbolRecord& stored = set.symbol(1);
  EXPECT_TRUE(set.changed);
  EXPECT_EQ(stored.oldKeyRaw, "vb");
  EXPECT_EQ(stored.scaleFactor, "100");
  EXPECT_EQ(stored.tappingCount, 1);
  EXPECT_EQ(stored.actions, (std::vector<SymbolAction>{{kMove, 0, 0},
                                                       {kLine, 1000, 500},
                                                       {kCharacterLine, 2000, 0},
                                                       {kTappingPoint, 1000, 1000},
                                                       {kSpindlePoint, 1000, 1500},
                                                       {kMove, 3000, 0}}));
}

TEST(StoreWorkingSymbol, WithoutASpindlePointTheEndPointFollowsTheDrawnSlots) {
  CurrentSet set;
  set.append().oldKey = "FIRST";
  ASSERT_TRUE(storeWorkingSymbol(drawnSymbol(), false, kGrid, set, 1));
  EXPECT_EQ(set.count(), 1);
  EXPECT_EQ(set.symbol(1).actionCount(), 5);
  EXPECT_EQ(set.symbol(1).action(5), (SymbolAction{kMove, 3000, 0}));
}

TEST(StoreWorkingSymbol, AFullWorkingSymbolStoresItsSpindleAndEndPointBehind200Slots) {
  WorkingSymbol working = drawnSymbol();
  for (int slot = 5; slot <= 200; ++slot) working.slots[slot] = {kLine, 1100, kBottom};
  working.actionCount = 200;
  CurrentSet set;
  ASSERT_TRUE(storeWorkingSymbol(working, true, kGrid, set, 1));
  EXPECT_EQ(set.symbol(1).actionCount(), kMaxActionsStored);
  EXPECT_EQ(set.symbol(1).action(201).type, kSpindlePoint);
  EXPECT_EQ(set.symbol(1).action(202).type, kMove);
}

TEST(StoreWorkingSymbol, RefusesANumberOutsideTheSetOrAFullSet) {
  CurrentSet set;
  set.reset(1);
  EXPECT_FALSE(storeWorkingSymbol(drawnSymbol(), false, kGrid, set, 2));
  EXPECT_TRUE(storeWorkingSymbol(drawnSymbol(), false, kGrid, set, 1));
  set.changed = false;
  EXPECT_FALSE(storeWorkingSymbol(drawnSymbol(), false, kGrid, set, 2));
  EXPECT_FALSE(set.changed);
  EXPECT_EQ(set.count(), 1);
}

}  // namespace
}  // namespace quorn
