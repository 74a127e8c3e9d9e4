// Fractions over boxes, values and their chords, conversions between bases, drawn weights.
#include "Problems.h"
#include "RandomProblems.h"
#include "dea/Basis.h"
#include "dea/Draws.h"
#include "dea/Fractions.h"

#include <algorithm>
#include <cmath>

namespace Tarnwise::Dea {
namespace {

Double Least(const std::vector<Double>& a, const std::vector<Double>& b, const Box& box) {
  return LeastFraction(a.data(), b.data(), box);
}

TEST(LeastFraction, TakesTheCornerThatIsWorst) {
  const Box box{{1, 0.5}, {1, 2}};
  EXPECT_DOUBLE_EQ((3 + 0.5 * 7) / (2 + 0.5 * 1.5), Least({3, 7}, {2, 1.5}, box));
  EXPECT_DOUBLE_EQ((3 + 2 * 1.0) / (2 + 2 * 1.5), Least({3, 1}, {2, 1.5}, box));
}

TEST(LeastFraction, NotJudgedIncludesThePriceAlone) {
  EXPECT_DOUBLE_EQ(0.2, Least({3, 0.3}, {2, 1.5}, FreeBox(2, 0)));
  EXPECT_DOUBLE_EQ(1.5, Least({3, 3.3}, {2, 1.5}, FreeBox(2, 0)));
}

TEST(LeastFraction, NothingOverNothingIsPassedOver) {
  EXPECT_DOUBLE_EQ(1.5, Least({3, 0}, {2, 0}, FreeBox(2, 0)));
  EXPECT_DOUBLE_EQ(2.2, Least({0, 3.3}, {0, 1.5}, FreeBox(2, 0)));
  EXPECT_EQ(kNoBound, Least({0, 0}, {0, 0}, FreeBox(2, 0)));
}

TEST(LeastFraction, SomethingOverNothingHasNoEnd) {
  EXPECT_EQ(kNoBound, Least({3, 1}, {0, 0}, FreeBox(2, 0)));
  EXPECT_DOUBLE_EQ(2.0, Least({3, 2}, {0, 1}, FreeBox(2, 0)));
  EXPECT_EQ(kNoBound, Least({3}, {0}, {{1}, {1}}));
}

TEST(LeastFraction, APriceThatOutweighsAllOthersHidesNothing) {
  const Box box{{0, 1}, {1e17, 1}};
  EXPECT_DOUBLE_EQ(0.5, Least({3, 1}, {2, 2}, box));
}

TEST(LeastFraction, IsTheLeastOverAllCorners) {
  for (std::uint64_t seed = 1; seed <= 2000; ++seed) {
    Chance chance(seed);
    const int attributes = chance.Whole(1, 7);
    Box box;
    std::vector<Double> a, b;
    for (int j = 0; j < attributes; ++j) {
      box.Low.push_back(j == 0 ? 1.0 : chance.InLog(0.1, 10));
      box.High.push_back(j == 0 ? 1.0 : box.Low.back() * chance.InLog(1, 10));
      a.push_back(chance.OneIn(4) ? 0.0 : chance.Real(0, 10));
      b.push_back(chance.OneIn(4) ? 0.0 : chance.Real(0, 10));
    }
    Double expected = kNoBound;
    for (unsigned corner = 0; corner < 1U << static_cast<unsigned>(attributes); ++corner) {
      Double over = 0.0;
      Double under = 0.0;
      for (std::size_t j = 0; j < a.size(); ++j) {
        const Double price = (corner >> j & 1U) != 0 ? box.High[j] : box.Low[j];
        over += price * a[j];
        under += price * b[j];
      }
      if (under > 0.0) expected = std::fmin(expected, over / under);
    }
    const Double actual = Least(a, b, box);
    if (expected == kNoBound) {
      EXPECT_EQ(expected, actual) << seed;
    } else {
      EXPECT_NEAR(expected, actual, 1e-13 * std::fmax(1.0, expected)) << seed;
    }
  }
}

TEST(NeverLess, WantsNoDirectionInWhichItIsLess) {
  const std::vector<Double> a{3, 1};
  const std::vector<Double> b{2, 1.4};
  EXPECT_TRUE(NeverLess(a.data(), b.data(), {{1, 0.5}, {1, 2.5}}));
  EXPECT_FALSE(NeverLess(a.data(), b.data(), {{1, 0.5}, {1, 2.51}}));
  EXPECT_FALSE(NeverLess(a.data(), b.data(), FreeBox(2, 0)));
  EXPECT_TRUE(NeverLess(a.data(), a.data(), FreeBox(2, 0)));
}

TEST(Widened, KeepsTheMiddleInLogRatio) {
  const Interval wider = Widened({0.5, 2.0}, 3.0);
  EXPECT_DOUBLE_EQ(0.125, wider.Low);
  EXPECT_DOUBLE_EQ(8.0, wider.High);
  EXPECT_EQ(1.37, Widened({1.37, 1.37}, 2.0).Low);
  EXPECT_EQ(kNoBound, Widened({1.37, kNoBound}, 2.0).High);
}

TEST(Values, AreClampedAndTheLineStandsForAMissingCurve) {
  const ValueFunction line(Scale{9.5, 3.5, std::nullopt});
  EXPECT_DOUBLE_EQ(0.25, line.At(5.0));
  EXPECT_DOUBLE_EQ(0.0, line.At(3.0));
  EXPECT_DOUBLE_EQ(1.0, line.At(10.0));
  EXPECT_LT(line.Unclamped(3.0), 0.0);
}

// The largest departure against a fine walk along the curve.
Double WalkedDeparture(const Scale& scale) {
  const ValueFunction value(scale);
  const Double low = std::fmin(scale.Worst, scale.Best);
  const Double high = std::fmax(scale.Worst, scale.Best);
  const Double slope = (value.At(high) - value.At(low)) / (high - low);
  Double farthest = 0.0;
  for (int k = 0; k <= 100000; ++k) {
    const Double x = low + (high - low) * k / 100000.0;
    farthest = std::fmax(farthest, std::fabs(value.At(x) - value.At(low) - slope * (x - low)));
  }
  return farthest / SpanOf(scale).Value;
}

TEST(Departures, AreThoseOfAFineWalk) {
  for (std::uint64_t seed = 1; seed <= 60; ++seed) {
    Chance chance(seed);
    Curve curve;
    curve.N = chance.Whole(2, 11);
    Double x = chance.Real(-5, 5);
    for (std::size_t k = 0; k < static_cast<std::size_t>(curve.N); ++k) {
      curve.X[k] = x;
      curve.Y[k] = chance.Real(-0.3, 1.3);  // beyond the values: the curve is cut off
      x += chance.Real(0.1, 3);
    }
    Scale scale{x + 1.0, curve.X[0] - chance.Real(0, 1), curve};
    if (SpanOf(scale).Value < 0.01) continue;
    const Double walked = WalkedDeparture(scale);
    EXPECT_GE(*DepartureFromChord(scale), walked - 1e-12) << seed;
    EXPECT_NEAR(walked, *DepartureFromChord(scale), 1e-4 * walked + 1e-9) << seed;
  }
}

TEST(Departures, AreNoneOfALineAndUnknownOfACurveThatComesBack) {
  EXPECT_EQ(0.0, *DepartureFromChord({2, 7, std::nullopt}));
  EXPECT_EQ(0.0, *DepartureFromChord({7, 7, CurveThrough({2, 7}, {0, 1})}));
  EXPECT_FALSE(DepartureFromChord({1, 3, CurveThrough({1, 2, 3}, {0.2, 0.9, 0.2})}));
}

TEST(Conversions, BetweenTheThreeBases) {
  const Span doctors{36, 0.797778};
  const Span nurses{175, 0.875};
  EXPECT_DOUBLE_EQ(3.0 * 175 / 36, PricePerUnit(Basis::Range, 3, doctors, nurses));
  EXPECT_NEAR(3.0 * (0.797778 / 36) / (0.875 / 175), PricePerUnit(Basis::Scale, 3, doctors, nurses), 1e-13);
  EXPECT_EQ(3.0, PricePerUnit(Basis::Unit, 3, doctors, nurses));
  EXPECT_DOUBLE_EQ(3.0 * 0.875 / 0.797778, WeightOnScale(Basis::Range, 3, doctors, nurses));
  EXPECT_EQ(3.0, WeightOnScale(Basis::Scale, 3, doctors, nurses));
  EXPECT_NEAR(3.0 * (0.875 / 175) / (0.797778 / 36), WeightOnScale(Basis::Unit, 3, doctors, nurses), 1e-13);
  EXPECT_DOUBLE_EQ(1.15 * 0.797778 / 0.875, CrossOnScale(Basis::Range, 1.15, doctors, nurses));
}

// The first numbers of SplitMix64 from the state 1234567, as published with it.
TEST(RandomNumbers, AreTheSameEverywhere) {
  RandomNumbers random(1234567);
  EXPECT_EQ(6457827717110365317U, random.Next());
  EXPECT_EQ(3203168211198807973U, random.Next());
  EXPECT_EQ(9817491932198370423U, random.Next());
}

TEST(RandomNumbers, AreUniformInLogRatio) {
  RandomNumbers random(5);
  int below = 0;
  for (int k = 0; k < 10000; ++k) {
    const Double x = random.InLog(0.25, 4.0);
    EXPECT_TRUE(x >= 0.25 && x <= 4.0);
    below += x < 1.0 ? 1 : 0;
  }
  EXPECT_NEAR(5000, below, 200);
}

TEST(DrawnPrices, KeepWithinTheBoxWhereABoundIsMissing) {
  EXPECT_EQ(0.001, DrawnFrom(0, kNoBound).Low);
  EXPECT_EQ(1000.0, DrawnFrom(0, kNoBound).High);
  EXPECT_EQ(2.0, DrawnFrom(2, kNoBound).Low);
  EXPECT_EQ(2000.0, DrawnFrom(2, kNoBound).High);
  EXPECT_EQ(0.0005, DrawnFrom(0, 0.5).Low);
  EXPECT_EQ(0.5, DrawnFrom(0, 0.5).High);
}

}  // namespace
}  // namespace Tarnwise::Dea
