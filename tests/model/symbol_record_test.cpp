#include "model/symbol_record.h"

#include <gtest/gtest.h>

#include "model/symbol_collection.h"

namespace quorn {
namespace {

SymbolRecord withCodes(std::initializer_list<std::int16_t> codes) {
  SymbolRecord symbol;
  std::int16_t x = 0;
  for (const std::int16_t code : codes) symbol.actions.push_back({code, x, ++x});
  return symbol;
}

std::vector<std::int16_t> codesOf(const SymbolRecord& symbol) {
  std::vector<std::int16_t> codes;
  for (const SymbolAction& action : symbol.actions) codes.push_back(action.type);
  return codes;
}

TEST(SpindlePointPlacement, MovesTheFirstSpindlePointToTheLastPlaceButOne) {
  SymbolRecord symbol = withCodes({1, 6, 2, 3, 2, 1});
  const SymbolAction spindle = symbol.action(2);
  const SymbolAction last = symbol.action(6);
  placeSpindlePoint(symbol);
  EXPECT_EQ(codesOf(symbol), (std::vector<std::int16_t>{1, 2, 3, 2, 6, 1}));
  EXPECT_EQ(symbol.action(5), spindle);
  EXPECT_EQ(symbol.action(6), last);
}

TEST(SpindlePointPlacement, LeavesASpindlePointAlreadyLastButOneOrLast) {
  SymbolRecord lastButOne = withCodes({1, 2, 6, 1});
  placeSpindlePoint(lastButOne);
  EXPECT_EQ(codesOf(lastButOne), (std::vector<std::int16_t>{1, 2, 6, 1}));
  SymbolRecord last = withCodes({1, 2, 2, 6});
  placeSpindlePoint(last);
  EXPECT_EQ(codesOf(last), (std::vector<std::int16_t>{1, 2, 2, 6}));
  SymbolRecord tiny = withCodes({6, 1});
  placeSpindlePoint(tiny);
  EXPECT_EQ(codesOf(tiny), (std::vector<std::int16_t>{6, 1}));
}

TEST(SpindlePointPlacement, OnlyTheFirstOfSeveralMoves) {
  SymbolRecord symbol = withCodes({6, 2, 6, 2, 1});
  placeSpindlePoint(symbol);
  EXPECT_EQ(codesOf(symbol), (std::vector<std::int16_t>{2, 6, 2, 6, 1}));
}

TEST(SymbolCollection, NumbersFromOneKeepsSlotZeroAndRemovesInPlace) {
  CurrentSet set;
  EXPECT_EQ(set.count(), 0);
  set.scratch().oldKey = "ORPH";
  set.append().oldKey = "AA";
  set.append().oldKey = "BB";
  set.append().oldKey = "CC";
  set.remove(2);
  ASSERT_EQ(set.count(), 2);
  EXPECT_EQ(set.symbol(1).oldKey, "AA");
  EXPECT_EQ(set.symbol(2).oldKey, "CC");
  set.reset(2);
  EXPECT_EQ(set.count(), 0);
  EXPECT_EQ(set.capacity(), 2);
  EXPECT_EQ(set.symbol(0).oldKey, "");
}

}  // namespace
}  // namespace quorn
