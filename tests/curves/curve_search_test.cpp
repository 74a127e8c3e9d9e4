#include "Curves.h"

#include <cmath>

namespace Tarnwise {
namespace {

// n points at 0, 10, 20, ... with ordinates that no two share.
Curve Steps(int n) {
  std::vector<Double> x;
  std::vector<Double> y;
  for (int k = 0; k < n; ++k) {
    x.push_back(10.0 * k);
    y.push_back(0.01 * k * k + 0.02);
  }
  return CurveThrough(x, y);
}

// The interval that the search takes at x, by its left point.
int IntervalAt(const Curve& curve, Double x) {
  const Double left = AkimaInterpolate(curve, -1, x)[0];
  for (int i = 0; i < curve.N; ++i) {
    if (curve.Y[static_cast<std::size_t>(i)] == left) return i;
  }
  return -1;
}

TEST(CurveSearch, UpToTheSecondPointItIsTheFirstInterval) {
  for (int n = 3; n <= 11; ++n) {
    for (const Double x : {-1e9, -0.5, 0.0, 5.0, std::nextafter(10.0, 0.0), 10.0}) {
      EXPECT_EQ(IntervalAt(Steps(n), x), 0) << n << " points, x = " << x;
    }
  }
}

TEST(CurveSearch, AnInnerPointBelongsToTheIntervalOnItsRight) {
  for (int n = 4; n <= 11; ++n) {
    for (int k = 2; k <= n - 2; ++k) {
      EXPECT_EQ(IntervalAt(Steps(n), 10.0 * k), k) << n;
      EXPECT_EQ(IntervalAt(Steps(n), std::nextafter(10.0 * k, 0.0)), k - 1) << n;
      EXPECT_EQ(IntervalAt(Steps(n), std::nextafter(10.0 * k, 1000.0)), k) << n;
    }
  }
}

TEST(CurveSearch, JustBehindTheSecondPointItIsTheSecondInterval) {
  for (int n = 3; n <= 11; ++n) EXPECT_EQ(IntervalAt(Steps(n), std::nextafter(10.0, 20.0)), 1) << n;
}

TEST(CurveSearch, FromTheLastPointOnItIsTheLastInterval) {
  for (int n = 3; n <= 11; ++n) {
    const Double last = 10.0 * (n - 1);
    for (const Double x : {std::nextafter(last, 0.0), last, last + 1.0, 1e9}) {
      EXPECT_EQ(IntervalAt(Steps(n), x), n - 2) << n << " points, x = " << x;
    }
  }
}

TEST(CurveSearch, EveryInnerScoreLiesInTheIntervalFound) {
  for (int n = 3; n <= 11; ++n) {
    for (int tenth = 0; tenth < 100 * (n - 1); ++tenth) {
      const Double x = tenth / 10.0;
      const int expected = x <= 10.0 ? 0 : static_cast<int>(std::floor(x / 10.0));
      EXPECT_EQ(IntervalAt(Steps(n), x), expected) << n << " points, x = " << x;
    }
  }
}

TEST(CurveSearch, TheValueIsTheCubicOfTheIntervalAtTheScore) {
  const Curve curve = Steps(7);
  const Coefs k = AkimaInterpolate(curve, -1, 33.5);
  const Coefs cubic = AkimaInterpolate(curve, 3, 33.5);
  const Double d = 33.5 - 30.0;
  EXPECT_EQ(k[4], cubic[0] + d * cubic[1] + (d * d) * cubic[2] + (d * d * d) * cubic[3]);
  for (std::size_t c = 0; c < 4; ++c) EXPECT_EQ(k[c], cubic[c]);
}

TEST(CurveSearch, OutsideThePointsTheFirstAndTheLastCubicGoOn) {
  const Curve curve = Steps(5);
  const auto cubicAt = [&](int i, Double d) {
    const Coefs k = AkimaInterpolate(curve, i, 0.0);
    return k[0] + d * k[1] + (d * d) * k[2] + (d * d * d) * k[3];
  };
  EXPECT_EQ(AkimaInterpolate(curve, -1, -25.0)[4], cubicAt(0, -25.0));
  EXPECT_EQ(AkimaInterpolate(curve, -1, 65.0)[4], cubicAt(3, 35.0));
}

TEST(CurveHint, NamesTheIntervalWhateverTheScore) {
  const Curve curve = Steps(8);
  for (int i = 0; i <= 6; ++i) {
    const Coefs k = AkimaInterpolate(curve, i, 12345.0);
    EXPECT_EQ(k[0], curve.Y[static_cast<std::size_t>(i)]);
    EXPECT_EQ(k[4], 0.0);
  }
}

TEST(CurveHint, PastTheLastIntervalIsTheLastInterval) {
  for (int n = 3; n <= 11; ++n) {
    const Coefs last = AkimaInterpolate(Steps(n), n - 2, 0.0);
    for (const int hint : {n - 1, n, 100}) EXPECT_EQ(AkimaInterpolate(Steps(n), hint, 0.0), last) << n;
  }
}

TEST(CurveHint, AnyNegativeNumberAsksForTheSearch) {
  EXPECT_EQ(AkimaInterpolate(Steps(6), -7, 23.0), AkimaInterpolate(Steps(6), -1, 23.0));
}

TEST(CurvePoints, NoneGivesAllZero) {
  EXPECT_EQ(AkimaInterpolate(Curve(), -1, 3.0), Coefs{});
  EXPECT_EQ(AkimaInterpolate(Curve(), 2, 3.0), Coefs{});
}

TEST(CurvePoints, OneGivesItsOrdinateAtEveryScore) {
  const Coefs expected = {0.375, 0.0, 0.0, 0.0, 0.375};
  for (const Double x : {-1e6, 0.0, 7.0, 1e6}) EXPECT_EQ(AkimaInterpolate(CurveThrough({7}, {0.375}), -1, x), expected);
  EXPECT_EQ(AkimaInterpolate(CurveThrough({7}, {0.375}), 0, 1.0), expected);
}

TEST(CurvePoints, TwoGiveTheLineThroughThemAndBeyond) {
  const Curve line = CurveThrough({10, 50}, {0.25, 0.75});
  for (const Double x : {-30.0, 10.0, 20.0, 50.0, 130.0}) {
    const Coefs k = AkimaInterpolate(line, -1, x);
    EXPECT_EQ(k[0], 0.25);
    EXPECT_EQ(k[1], 0.0125);
    EXPECT_EQ(k[2], 0.0);
    EXPECT_EQ(k[3], 0.0);
    EXPECT_EQ(k[4], ((x - 50.0) * 0.25 - (x - 10.0) * 0.75) / (10.0 - 50.0));
  }
  EXPECT_DOUBLE_EQ(AkimaInterpolate(line, -1, 130.0)[4], 1.75);
}

TEST(CurvePoints, TwoAreTheSameLineWhenPreparedToTheLastBit) {
  const Curve line = CurveThrough({0.1, 0.7}, {0.3, 0.9});
  PreparedCurve prepared(line);
  EXPECT_FALSE(prepared.IsAscending());
  for (int k = -50; k <= 150; ++k) {
    const Double x = k * 0.01;
    EXPECT_EQ(prepared.ValueAt(x), AkimaInterpolate(line, -1, x)[4]) << x;
  }
}

TEST(CurvePoints, TwoWithAHintGiveNoValue) {
  const Coefs k = AkimaInterpolate(CurveThrough({10, 50}, {0.25, 0.75}), 0, 20.0);
  EXPECT_EQ(k[1], 0.0125);
  EXPECT_EQ(k[4], 0.0);
}

TEST(CurvePoints, FromTwoToElevenTheCurveGoesThroughEachOfThem) {
  Chance chance(11);
  for (int n = 2; n <= 11; ++n) {
    for (int time = 0; time < 50; ++time) {
      const Curve curve = chance.AnyCurve(n, chance.Real(-50.0, 50.0), 0.0, 1.0);
      for (std::size_t k = 0; k < static_cast<std::size_t>(n); ++k) {
        EXPECT_NEAR(AkimaInterpolate(curve, -1, curve.X[k])[4], curve.Y[k], 1e-9);
      }
      // Inner points from the third on start their interval.
      for (std::size_t k = 2; k + 1 < static_cast<std::size_t>(n); ++k) {
        EXPECT_EQ(AkimaInterpolate(curve, -1, curve.X[k])[4], curve.Y[k]);
      }
    }
  }
}

}  // namespace
}  // namespace Tarnwise
