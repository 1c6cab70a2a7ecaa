#include "skey/attribute_codes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace quorn {
namespace {

using Captions = std::vector<std::string>;

TEST(AttributeCaptions, NewSymbolListsSpellSettingAsTheirOwnFirstItemDoes) {
  EXPECT_EQ(listCaptions(AttributeList::FlowArrow, CaptionStyle::NewSymbol),
            (Captions{"Use the Old SKEY setting", "Flow Arrow Off", "Flow Arrow On"}));
  EXPECT_EQ(listCaptions(AttributeList::Dimensions, CaptionStyle::NewSymbol),
            (Captions{"Use the Old SKEY setting", "Turn Dimensions Off", "Turn Dimensions On"}));
  EXPECT_EQ(
      listCaptions(AttributeList::Orientation, CaptionStyle::NewSymbol),
      (Captions{"Use the Old SKEY Setting", "Always Plot Vertical", "User Specified Direction",
                "All Three Primary Directions", "Heat Tracing Component"}));
}

TEST(AttributeCaptions, EditingListsAllBeginWithACapitalSetting) {
  for (const AttributeList list :
       {AttributeList::FlowArrow, AttributeList::Dimensions, AttributeList::Orientation}) {
    const Captions editing = listCaptions(list, CaptionStyle::Editing);
    const Captions fresh = listCaptions(list, CaptionStyle::NewSymbol);
    EXPECT_EQ(editing.front(), "Use the Old SKEY Setting");
    ASSERT_EQ(editing.size(), fresh.size());
    EXPECT_TRUE(std::equal(editing.begin() + 1, editing.end(), fresh.begin() + 1));
  }
}

TEST(AttributeCodes, PositionsAreStoredAsTextWithHeatTracingAsSeven) {
  EXPECT_EQ(codeForPosition(AttributeList::Orientation, 4), "7");
  EXPECT_EQ(codeForPosition(AttributeList::Orientation, 3), "3");
  EXPECT_EQ(codeForPosition(AttributeList::Orientation, 0), "0");
  EXPECT_EQ(codeForPosition(AttributeList::FlowArrow, 2), "2");
  EXPECT_EQ(codeForPosition(AttributeList::Dimensions, 1), "1");
  // Positions outside a list cannot come from the dialog; they store the first item's code.
  EXPECT_EQ(codeForPosition(AttributeList::FlowArrow, 3), "0");
  EXPECT_EQ(codeForPosition(AttributeList::Orientation, -1), "0");
}

TEST(AttributeCodes, StoredCodesSelectTheirPositionAndAnythingElseTheFirst) {
  EXPECT_EQ(positionForCode(AttributeList::Orientation, "7"), 4);
  EXPECT_EQ(positionForCode(AttributeList::Orientation, " 7 "), 4);
  EXPECT_EQ(positionForCode(AttributeList::Orientation, "3"), 3);
  EXPECT_EQ(positionForCode(AttributeList::Orientation, "4"), 4);
  EXPECT_EQ(positionForCode(AttributeList::Orientation, "5"), 0);
  EXPECT_EQ(positionForCode(AttributeList::Orientation, "-1"), 0);
  EXPECT_EQ(positionForCode(AttributeList::FlowArrow, "2"), 2);
  EXPECT_EQ(positionForCode(AttributeList::FlowArrow, "7"), 0);
  EXPECT_EQ(positionForCode(AttributeList::Dimensions, "1.4"), 1);
  EXPECT_EQ(positionForCode(AttributeList::Dimensions, "1.5"), 2);
  EXPECT_EQ(positionForCode(AttributeList::Dimensions, ""), 0);
  EXPECT_EQ(positionForCode(AttributeList::Dimensions, "abc"), 0);
  EXPECT_EQ(positionForCode(AttributeList::Dimensions, "99999"), 0);
}

TEST(MirrorCodes, ZeroOrLessIsSymmetricalAndOnlyTheSymmetricalCaptionStoresZero) {
  EXPECT_EQ(mirrorCaptionForCode("-1"), "Symbol is Symmetrical");
  EXPECT_EQ(mirrorCaptionForCode("0"), "Symbol is Symmetrical");
  EXPECT_EQ(mirrorCaptionForCode(""), "Symbol is Symmetrical");
  EXPECT_EQ(mirrorCaptionForCode("0.5"), "Symbol will be Mirrored");
  EXPECT_EQ(mirrorCaptionForCode("1"), "Symbol will be Mirrored");
  EXPECT_EQ(mirrorCaptionForCode("2"), "Symbol will be Mirrored");
  EXPECT_EQ(mirrorCodeForCaption("Symbol is Symmetrical"), "0");
  EXPECT_EQ(mirrorCodeForCaption("Symbol will be Mirrored"), "1");
  EXPECT_EQ(mirrorCodeForCaption(""), "1");
}

}  // namespace
}  // namespace quorn
