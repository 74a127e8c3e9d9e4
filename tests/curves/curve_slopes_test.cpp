#include "Curves.h"

#include <cmath>

namespace Tarnwise {
namespace {

// Eleven points whose slopes all differ.
const std::vector<Double> kX = {0.0, 1.0, 3.0, 4.0, 7.0, 8.0, 10.0, 13.0, 14.0, 16.0, 20.0};
const std::vector<Double> kY = {0.0, 0.5, 0.75, 1.5, 1.75, 3.0, 3.5, 6.0, 6.25, 9.0, 9.5};

Curve FirstPoints(int n) { return CurveThrough({kX.begin(), kX.begin() + n}, {kY.begin(), kY.begin() + n}); }

Double Slope(int k) {
  const auto i = static_cast<std::size_t>(k);
  return (kY[i + 1] - kY[i]) / (kX[i + 1] - kX[i]);
}

struct FiveSlopes {
  Double M0, M1, M2, M3, M4;
};

Double PointSlope(Double before, Double left, Double right, Double after) {
  const Double a = std::fabs(after - right);
  const Double b = std::fabs(left - before);
  return (a * left + b * right) / (a + b);
}

// The cubic of interval i that follows from the five slopes around it.
void ExpectCubic(int n, int i, const FiveSlopes& m) {
  const Coefs k = AkimaInterpolate(FirstPoints(n), i, 0.0);
  const auto at = static_cast<std::size_t>(i);
  const Double h = kX[at + 1] - kX[at];
  const Double t0 = PointSlope(m.M0, m.M1, m.M2, m.M3);
  const Double t1 = PointSlope(m.M1, m.M2, m.M3, m.M4);
  EXPECT_EQ(k[0], kY[at]);
  EXPECT_DOUBLE_EQ(k[1], t0);
  EXPECT_DOUBLE_EQ(k[2], (3.0 * m.M2 - 2.0 * t0 - t1) / h);
  EXPECT_DOUBLE_EQ(k[3], (t0 + t1 - 2.0 * m.M2) / (h * h));
  EXPECT_EQ(k[4], 0.0) << "no value where the interval is given";
}

TEST(CurveSlopes, ThreePointsFirstInterval) {
  const Double m2 = Slope(0);
  const Double m3 = Slope(1);
  const Double m1 = 2.0 * m2 - m3;
  ExpectCubic(3, 0, {2.0 * m1 - m2, m1, m2, m3, 2.0 * m3 - m2});
}

TEST(CurveSlopes, ThreePointsLastInterval) {
  const Double m2 = Slope(1);
  const Double m1 = Slope(0);
  const Double m3 = 2.0 * m2 - m1;
  ExpectCubic(3, 1, {2.0 * m1 - m2, m1, m2, m3, 2.0 * m3 - m2});
}

TEST(CurveSlopes, FirstIntervalOfFourPointsAndMore) {
  for (int n = 4; n <= 11; ++n) {
    SCOPED_TRACE(n);
    const Double m2 = Slope(0);
    const Double m3 = Slope(1);
    const Double m1 = 2.0 * m2 - m3;
    ExpectCubic(n, 0, {2.0 * m1 - m2, m1, m2, m3, Slope(2)});
  }
}

TEST(CurveSlopes, SecondIntervalOfFourPointsExtrapolatesTheLastSlope) {
  const Double m1 = Slope(0);
  const Double m2 = Slope(1);
  const Double m3 = Slope(2);
  ExpectCubic(4, 1, {2.0 * m1 - m2, m1, m2, m3, 2.0 * m3 - m2});
}

TEST(CurveSlopes, SecondIntervalOfFivePointsAndMoreTakesTheLastSlopeFromTheData) {
  for (int n = 5; n <= 11; ++n) {
    SCOPED_TRACE(n);
    const Double m1 = Slope(0);
    const Double m2 = Slope(1);
    ExpectCubic(n, 1, {2.0 * m1 - m2, m1, m2, Slope(2), Slope(3)});
  }
}

TEST(CurveSlopes, InnerIntervalsTakeAllSlopesFromTheData) {
  for (int n = 6; n <= 11; ++n) {
    for (int i = 2; i < n - 3; ++i) {
      SCOPED_TRACE(std::to_string(n) + " points, interval " + std::to_string(i));
      ExpectCubic(n, i, {Slope(i - 2), Slope(i - 1), Slope(i), Slope(i + 1), Slope(i + 2)});
    }
  }
}

TEST(CurveSlopes, LastIntervalButOneExtrapolatesTheLastSlope) {
  for (int n = 5; n <= 11; ++n) {
    SCOPED_TRACE(n);
    const int i = n - 3;
    const Double m2 = Slope(i);
    const Double m3 = Slope(n - 2);
    ExpectCubic(n, i, {Slope(i - 2), Slope(i - 1), m2, m3, 2.0 * m3 - m2});
  }
}

TEST(CurveSlopes, LastIntervalExtrapolatesTheTwoLastSlopes) {
  for (int n = 4; n <= 11; ++n) {
    SCOPED_TRACE(n);
    const int i = n - 2;
    const Double m1 = Slope(i - 1);
    const Double m2 = Slope(i);
    const Double m3 = 2.0 * m2 - m1;
    ExpectCubic(n, i, {Slope(i - 2), m1, m2, m3, 2.0 * m3 - m2});
  }
}

TEST(CurveSlopes, EveryIntervalRunsFromItsLeftPointToItsRightOneWithOneSlopeBetweenNeighbours) {
  for (int n = 3; n <= 11; ++n) {
    const Curve curve = FirstPoints(n);
    for (int i = 0; i + 1 < n; ++i) {
      const auto at = static_cast<std::size_t>(i);
      const Double h = kX[at + 1] - kX[at];
      const Coefs k = AkimaInterpolate(curve, i, 0.0);
      EXPECT_EQ(k[0], kY[at]);
      EXPECT_NEAR(k[0] + h * k[1] + h * h * k[2] + h * h * h * k[3], kY[at + 1], 1e-12);
      if (i + 2 < n) {
        const Double slopeAtTheEnd = k[1] + 2.0 * h * k[2] + 3.0 * h * h * k[3];
        EXPECT_NEAR(slopeAtTheEnd, AkimaInterpolate(curve, i + 1, 0.0)[1], 1e-12);
      }
    }
  }
}

TEST(CurveZeroSlopes, WhereNothingChangesOnEitherSideThePointTakesTheMean) {
  // Slopes 1, 1, 3, 3: a and b are 0 in the middle.
  const Curve curve = CurveThrough({0, 1, 2, 3, 4}, {0, 1, 2, 5, 8});
  EXPECT_EQ(AkimaInterpolate(curve, 2, 0.0)[1], 2.0);
}

TEST(CurveZeroSlopes, ChangesBelowTheMachineEpsilonCountAsNone) {
  // Slopes 1, 2, 1, 5, all times 1E-17; at the same slopes times 1 the weights are 4 and 1.
  const Curve large = CurveThrough({0, 1, 2, 3, 4}, {0, 1, 3, 4, 9});
  EXPECT_DOUBLE_EQ(AkimaInterpolate(large, 2, 0.0)[1], (4.0 * 2.0 + 1.0 * 1.0) / 5.0);
  const Curve small = CurveThrough({0, 1, 2, 3, 4}, {0, 1e-17, 3e-17, 4e-17, 9e-17});
  EXPECT_DOUBLE_EQ(AkimaInterpolate(small, 2, 0.0)[1], 1.5e-17);
}

TEST(CurveZeroSlopes, HalfTheMachineEpsilonIsStillNoneAndALittleMoreIsSome) {
  // One slope d beside flat ones: 1 + d = 1 up to 2^-53. The point takes the mean of 0 and d, or d's weight alone.
  const auto slope = [](Double d) {
    return AkimaInterpolate(CurveThrough({0, 1, 2, 3, 4}, {0.0, 0.0, 0.0, 0.0, d}), 3, 0.0)[1];
  };
  EXPECT_EQ(slope(0x1p-53), 0x1p-54);
  // Above it: a = |m3 - m2| with m3 = 2 m2 - m1, so a = d; b = 0; the slope is that of the flat side.
  EXPECT_EQ(slope(0x1.8p-53), 0.0);
}

TEST(CurveZeroSlopes, OneSideThatChangesDecidesAlone) {
  // At x = 2: slopes 1, 1 on the left, 3, 7 on the right: b = 0, a = 4, so the slope is the left one.
  EXPECT_EQ(AkimaInterpolate(CurveThrough({0, 1, 2, 3, 4}, {0, 1, 2, 5, 12}), 2, 0.0)[1], 1.0);
  // 1, 2 on the left, 5, 5 on the right: a = 0, b = 1, so the slope is the right one.
  EXPECT_EQ(AkimaInterpolate(CurveThrough({0, 1, 2, 3, 4}, {0, 1, 3, 8, 13}), 2, 0.0)[1], 5.0);
}

TEST(CurveZeroSlopes, TheEndOfAnIntervalFollowsTheSameRule) {
  // Interval 1 of slopes 1, 1, 3, 3 ends at x = 2 with the mean 2; it starts with 1.
  const Coefs k = AkimaInterpolate(CurveThrough({0, 1, 2, 3, 4}, {0, 1, 2, 5, 8}), 1, 0.0);
  EXPECT_EQ(k[1], 1.0);
  EXPECT_EQ(k[2], 3.0 * 1.0 - 2.0 * 1.0 - 2.0);
  EXPECT_EQ(k[3], 1.0 + 2.0 - 2.0 * 1.0);
}

TEST(CurveAbscissae, EqualOnesDivideByZero) {
  const Curve different = CurveThrough({0, 1, 1, 2, 3}, {0, 0.2, 0.4, 0.6, 1});
  const Curve same = CurveThrough({0, 1, 1, 2, 3}, {0, 0.2, 0.2, 0.6, 1});
  for (const Double x : {0.5, 1.0, 1.5, 2.5}) {
    EXPECT_EQ(ErrorNumber([&] { return AkimaInterpolate(different, -1, x); }), 11) << x;
    EXPECT_EQ(ErrorNumber([&] { return AkimaInterpolate(same, -1, x); }), 6) << x;
  }
}

TEST(CurveAbscissae, TwoEqualOnesDivideByZeroToo) {
  EXPECT_EQ(ErrorNumber([] { return AkimaInterpolate(CurveThrough({5, 5}, {0, 1}), -1, 5.0); }), 11);
  EXPECT_EQ(ErrorNumber([] { return AkimaInterpolate(CurveThrough({5, 5}, {1, 1}), -1, 5.0); }), 6);
  EXPECT_EQ(ErrorNumber([] { return AkimaInterpolate(CurveThrough({5, 5}, {0, 1}), 0, 5.0); }), 11);
}

TEST(CurveAbscissae, EqualOnesFarFromTheScoreAreNotLookedAt) {
  const Curve curve =
      CurveThrough({0, 1, 2, 3, 4, 5, 6, 7, 7, 8, 9}, {0, 0.1, 0.3, 0.4, 0.5, 0.55, 0.6, 0.7, 0.8, 0.9, 1});
  EXPECT_EQ(ErrorNumber([&] { return AkimaInterpolate(curve, -1, 0.5); }), 0);
  EXPECT_EQ(ErrorNumber([&] { return AkimaInterpolate(curve, -1, 6.5); }), 11);
}

TEST(CurveAbscissae, ThreePointsWithEqualOnesFailEverywhere) {
  for (const Double x : {-1.0, 0.0, 1.0, 2.0, 3.0}) {
    EXPECT_EQ(ErrorNumber([&] { return AkimaInterpolate(CurveThrough({0, 2, 2}, {0, 0.5, 1}), -1, x); }), 11) << x;
    EXPECT_EQ(ErrorNumber([&] { return AkimaInterpolate(CurveThrough({0, 0, 2}, {0, 0, 1}), -1, x); }), 6) << x;
  }
}

}  // namespace
}  // namespace Tarnwise
