#include "runtime/Numbers.h"
#include "runtime/Text.h"
#include "support/ErrorNumber.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace Tarnwise {
namespace {

constexpr Double kInfinity = std::numeric_limits<Double>::infinity();
constexpr Double kNaN = std::numeric_limits<Double>::quiet_NaN();

TEST(CheckedInteger, HoldsSixteenBits) {
  EXPECT_EQ(CheckedInteger(32767), 32767);
  EXPECT_EQ(CheckedInteger(-32768), -32768);
  EXPECT_EQ(ErrorNumber([] { return CheckedInteger(32767 + 1); }), 6);
  EXPECT_EQ(ErrorNumber([] { return CheckedInteger(-32768 - 1); }), 6);
}

struct RoundingRow {
  const char* Name;
  Double From;
  Double Expected;
};

TEST(RoundToFourDecimals, GoesToNearestAndFromATieToEven) {
  // It is the product with 10000 that is a tie or none.
  const RoundingRow rows[] = {
      {"four decimals stay", 3.1749, 3.1749},
      {"down", 0.37004, 0.37},
      {"up", 0.37006, 0.3701},
      {"a tie down to even", 0.00005 * 9, 0.0004},
      {"a tie at 5/32 goes to even", 0.03125, 0.0312},
      {"a tie at 3/32 goes to even", 0.09375, 0.0938},
      {"a decimal tie whose product is a tie", 2.00005, 2.0},
      {"a decimal tie whose product is above it", 1.00005, 1.0001},
      {"a decimal tie to an even last place above", 1.00015, 1.0002},
      {"a negative tie", -0.03125, -0.0312},
      {"a third", 1.0 / 3.0, 0.3333},
      {"large", 123456789.00005, 123456789.0},
  };
  for (const RoundingRow& row : rows) {
    SCOPED_TRACE(row.Name);
    EXPECT_EQ(RoundToFourDecimals(row.From), row.Expected);
  }
}

TEST(RoundToFourDecimals, NeverGivesANegativeZero) {
  EXPECT_FALSE(std::signbit(RoundToFourDecimals(-0.00001)));
  EXPECT_FALSE(std::signbit(RoundToFourDecimals(-0.0)));
}

TEST(RoundToFourDecimals, OverflowsBeyondSixtyFourBits) {
  EXPECT_EQ(RoundToFourDecimals(-922337203685477.5808), -922337203685477.5808);
  EXPECT_EQ(RoundToFourDecimals(922337203685477.0), 922337203685477.0);
  for (const Double x : {922337203685477.6, -922337203685478.0, 1e300, kInfinity, -kInfinity, kNaN}) {
    SCOPED_TRACE(x);
    EXPECT_EQ(ErrorNumber([&] { return RoundToFourDecimals(x); }), 6);
  }
}

TEST(RoundHalfEven, GoesToNearestAndFromATieToEven) {
  const RoundingRow rows[] = {
      {"half", 0.5, 0.0},
      {"one and a half", 1.5, 2.0},
      {"two and a half", 2.5, 2.0},
      {"minus half", -0.5, 0.0},
      {"minus one and a half", -1.5, -2.0},
      {"minus two and a half", -2.5, -2.0},
      {"just below a half", std::nextafter(0.5, 0.0), 0.0},
      {"just above a half", std::nextafter(2.5, 3.0), 3.0},
      {"whole", 37.0, 37.0},
  };
  for (const RoundingRow& row : rows) {
    SCOPED_TRACE(row.Name);
    EXPECT_EQ(RoundHalfEven(row.From), row.Expected);
  }
}

TEST(Int, IsTheFloor) {
  EXPECT_EQ(Int(3.17), 3.0);
  EXPECT_EQ(Int(-3.17), -4.0);
  EXPECT_EQ(Int(3.0), 3.0);
  EXPECT_EQ(Int(-3.0), -3.0);
  EXPECT_EQ(Int(0.999999999999999), 0.0);
  EXPECT_EQ(Int(-0.000001), -1.0);
}

TEST(Divide, DividesAsDoubles) { EXPECT_EQ(Divide(0.37, 3.17), 0.37 / 3.17); }

TEST(Divide, ByZeroIsErrorElevenAndZeroByZeroIsSix) {
  EXPECT_EQ(ErrorNumber([] { return Divide(3.17, 0.0); }), 11);
  EXPECT_EQ(ErrorNumber([] { return Divide(-3.17, -0.0); }), 11);
  EXPECT_EQ(ErrorNumber([] { return Divide(0.0, 0.0); }), 6);
  EXPECT_EQ(ErrorNumber([] { return Divide(-0.0, 0.0); }), 6);
}

TEST(Divide, OverflowsWhereTheQuotientIsTooLarge) {
  EXPECT_EQ(ErrorNumber([] { return Divide(1e300, 1e-300); }), 6);
  EXPECT_EQ(Divide(1e-300, 1e300), 0.0);
}

TEST(DivideSingle, RoundsToSingle) {
  EXPECT_EQ(DivideSingle(1.0F, 3.0F), 0x1.555556p-2F);
  EXPECT_EQ(DivideSingle(0.37F, 3.17F), 0.37F / 3.17F);
}

TEST(DivideSingle, FailsAsTheDoubleOneDoes) {
  EXPECT_EQ(ErrorNumber([] { return DivideSingle(3.17F, 0.0F); }), 11);
  EXPECT_EQ(ErrorNumber([] { return DivideSingle(0.0F, 0.0F); }), 6);
  EXPECT_EQ(ErrorNumber([] { return DivideSingle(1e30F, 1e-30F); }), 6);
}

TEST(ToSingleChecked, GoesToTheNearestSingle) {
  EXPECT_EQ(ToSingleChecked(0.1), 0.1F);
  EXPECT_EQ(ToSingleChecked(16777217.0), 16777216.0F);
  EXPECT_EQ(ToSingleChecked(16777219.0), 16777220.0F);
  EXPECT_EQ(ToSingleChecked(1e-50), 0.0F);
}

TEST(ToSingleChecked, OverflowsWhereItIsTooLarge) {
  EXPECT_EQ(ToSingleChecked(3.4028234663852886e38), 0x1.fffffep127F);
  EXPECT_EQ(ErrorNumber([] { return ToSingleChecked(3.5e38); }), 6);
  EXPECT_EQ(ErrorNumber([] { return ToSingleChecked(-1e300); }), 6);
}

}  // namespace
}  // namespace Tarnwise
