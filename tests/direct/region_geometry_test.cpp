#include "direct/RegionGeometry.h"

#include "support/ErrorNumber.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>

namespace Tarnwise {
namespace {

TEST(RatioToPoint, PutsOneInTheCentre) {
  EXPECT_EQ(RatioToPoint(1.0).X, 126.0F);
  EXPECT_EQ(RatioToPoint(1.0).Y, 126.0F);
}

TEST(RatioToPoint, PutsLargerRatiosOnTheHorizontalAtSevenTenths) {
  EXPECT_EQ(RatioToPoint(1.5).X, 117.6F);
  EXPECT_EQ(RatioToPoint(1.5).Y, 75.6F);
  EXPECT_EQ(RatioToPoint(29.4).X, static_cast<Single>(252.0 * 0.7 / 29.4));
}

TEST(RatioToPoint, PutsSmallerRatiosOnTheVerticalAtSevenTenths) {
  EXPECT_EQ(RatioToPoint(0.5).X, 176.4F);
  EXPECT_EQ(RatioToPoint(0.5).Y, 163.8F);
}

TEST(RatioToPoint, JumpsFromTheCentreToTheEdgesOfItsSquare) {
  EXPECT_EQ(RatioToPoint(std::nextafter(1.0, 2.0)).Y, 75.6F);
  EXPECT_EQ(RatioToPoint(std::nextafter(1.0, 0.0)).X, 176.4F);
}

TEST(RatioToPoint, PutsNothingAtTheBottomEdge) {
  EXPECT_EQ(RatioToPoint(0.0).X, 176.4F);
  EXPECT_EQ(RatioToPoint(0.0).Y, 252.0F);
}

TEST(RatioToPoint, BeyondASingleOverflows) {
  EXPECT_EQ(ErrorNumber([] { return RatioToPoint(-1e37); }), 6);
  EXPECT_EQ(ErrorNumber([] { return RatioToPoint(-1e300); }), 6);
  EXPECT_LT(RatioToPoint(-1e36).Y, 2e38F);
  EXPECT_EQ(RatioToPoint(1e300).X, 0.0F);
}

RC_GTEST_PROP(RatioToPoint, ComesBackAsTheSlope, ()) {
  const Double ratio = *rc::gen::inRange(340, 294000) / 10000.0;
  const ChartPoint p = RatioToPoint(ratio);
  RC_ASSERT(std::fabs(PointToRatio(p.X, p.Y) - ratio) <= 2e-5 * ratio);
}

RC_GTEST_PROP(RatioToPoint, NeverLeavesTheChartAtTheTopOrTheRight, ()) {
  const Double ratio = *rc::gen::inRange(0, 1000000) / 100.0;
  const ChartPoint p = RatioToPoint(ratio);
  RC_ASSERT(p.X > 0.0F);
  RC_ASSERT(p.X <= 176.4F);
  RC_ASSERT(p.Y >= 75.6F);
  RC_ASSERT(p.Y <= 252.0F);
}

TEST(RatioToPoint, IsOffTheChartForRatiosTooLargeOrTooSmall) {
  const auto isOn = [](Double ratio) {
    const ChartPoint p = RatioToPoint(ratio);
    return IsOnChart({p.X, p.Y, p.X, p.Y});
  };
  EXPECT_TRUE(isOn(29.3));
  EXPECT_FALSE(isOn(29.5));
  EXPECT_TRUE(isOn(0.0341));
  EXPECT_FALSE(isOn(0.0339));
}

TEST(PointToRatio, IsADoubleOfTheSinglesAsTheyAre) {
  EXPECT_EQ(PointToRatio(117.6F, 75.6F), (252.0 - static_cast<Double>(75.6F)) / static_cast<Double>(117.6F));
  EXPECT_EQ(PointToRatio(100.0F, 102.0F), 1.5);
}

TEST(PointToRatio, DividesByZeroAtTheLeftEdge) {
  const auto numberAt = [](Single x, Single y) {
    try {
      return static_cast<int>(PointToRatio(x, y)) - 10000;
    } catch (const RuntimeError& error) {
      return error.Number();
    }
  };
  EXPECT_EQ(numberAt(0.0F, 100.0F), 11);
  EXPECT_EQ(numberAt(0.0F, 252.0F), 6);
}

TEST(Region, HasItsCornerTwoUnitsAboveTheBottom) {
  const std::vector<Single> corners = RegionCorners({117.6F, 75.6F, 126.0F, 126.0F});
  EXPECT_EQ(corners, (std::vector<Single>{0, 250, 118, 76, 126, 126}));
}

TEST(Region, RoundsPointsToTheNearestWholeNumberTiesToEven) {
  EXPECT_EQ(RegionCorners({10.5F, 11.5F, 12.49F, -0.5F}), (std::vector<Single>{0, 250, 10, 12, 12, 0}));
}

}  // namespace
}  // namespace Tarnwise
