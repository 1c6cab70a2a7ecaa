#include "base/numbers.h"

#include <gtest/gtest.h>

namespace quorn {
namespace {

TEST(LeadingNumber, ReadsSignDigitsPointAndExponentThenStops) {
  EXPECT_DOUBLE_EQ(leadingNumber("12.5mm"), 12.5);
  EXPECT_DOUBLE_EQ(leadingNumber("-3,4"), -3.0);
  EXPECT_DOUBLE_EQ(leadingNumber("+7"), 7.0);
  EXPECT_DOUBLE_EQ(leadingNumber("  42 tips"), 42.0);
  EXPECT_DOUBLE_EQ(leadingNumber(".5"), 0.5);
  EXPECT_DOUBLE_EQ(leadingNumber("1e3"), 1000.0);
  EXPECT_DOUBLE_EQ(leadingNumber("2.5E-1x"), 0.25);
  EXPECT_DOUBLE_EQ(leadingNumber("12E"), 12.0);
  EXPECT_DOUBLE_EQ(leadingNumber("7e+"), 7.0);
}

TEST(LeadingNumber, TextWithoutALeadingNumberIsZero) {
  EXPECT_EQ(leadingNumber(""), 0.0);
  EXPECT_EQ(leadingNumber("yes"), 0.0);
  EXPECT_EQ(leadingNumber("-"), 0.0);
  EXPECT_EQ(leadingNumber("."), 0.0);
  EXPECT_EQ(leadingNumber("+.e5"), 0.0);
  EXPECT_EQ(leadingNumber("Light Cyan 3"), 0.0);
}

TEST(LeadingNumber, HugeExponentsDoNotBecomeInfinite) {
  EXPECT_EQ(leadingNumber("1e999"), 0.0);
}

TEST(RoundToInt16, HalvesGoToEven) {
  EXPECT_EQ(roundToInt16(2.5), 2);
  EXPECT_EQ(roundToInt16(3.5), 4);
  EXPECT_EQ(roundToInt16(-2.5), -2);
  EXPECT_EQ(roundToInt16(122.5), 122);
  EXPECT_EQ(roundToInt16(2.4999), 2);
  EXPECT_EQ(roundToInt16(-0.6), -1);
}

TEST(RoundToInt16, OverflowIsDetectedNotWrapped) {
  EXPECT_EQ(roundToInt16(32767.0), 32767);
  EXPECT_EQ(roundToInt16(32767.4), 32767);
  EXPECT_EQ(roundToInt16(32767.5), std::nullopt);
  EXPECT_EQ(roundToInt16(-32768.5), -32768);
  EXPECT_EQ(roundToInt16(-32769.0), std::nullopt);
  EXPECT_EQ(roundToInt16(1e12), std::nullopt);
}

TEST(MessageNumber, NonNegativeNumbersCarryALeadingBlank) {
  EXPECT_EQ(messageNumber(5), " 5");
  EXPECT_EQ(messageNumber(0), " 0");
  EXPECT_EQ(messageNumber(-12), "-12");
}

}  // namespace
}  // namespace quorn
