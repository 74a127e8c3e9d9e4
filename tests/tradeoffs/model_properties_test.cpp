#include "TradeOffs.h"

#include "curves/mdGraphs.h"
#include "runtime/Text.h"

#include <rapidcheck/gtest.h>

#include <chrono>
#include <cmath>

namespace Tarnwise {
namespace {

rc::Gen<Double> AnyBetween(Double low, Double high) {
  return rc::gen::map(rc::gen::inRange(0, 1000001), [=](int part) { return low + (high - low) * part / 1000000.0; });
}

// A rising curve over the whole scale, of 2 to 11 points, nowhere steep enough for a step to jump over a value.
void GiveRisingCurve(WizardData& data, int att, Double low, Double high) {
  const int n = *rc::gen::inRange(2, 12);
  data.AttValueData.ScoreMin[att] = low;
  data.AttValueData.ScoreMax[att] = high;
  std::vector<Double> x;
  std::vector<Double> y;
  Double sum = 0.0;
  for (int k = 0; k < n; ++k) {
    x.push_back(low + (high - low) * k / (n - 1));
    y.push_back(sum);
    sum += *AnyBetween(1.0, 1.7);
  }
  for (Double& value : y) value /= y.back();
  GiveCurve(data, att, x, y);
}

WizardData AnyPair() {
  WizardData data = TradeOffData({B(1), B(2), C(1)}, 1, 2);
  for (int i = 0; i < 2; ++i) {
    const Double low = *AnyBetween(-200.0, 200.0);
    const Double high = low + *AnyBetween(1.0, 500.0);
    GiveRisingCurve(data, i, low, high);
    data.AttValueData.WorstScore[i] = low;
    data.AttValueData.BestScore[i] = high;
  }
  return data;
}

Double HalfRange(const WizardData& data, int att) {
  return (data.AttValueData.ScoreMax[att] - data.AttValueData.ScoreMin[att]) / 2.0;
}

RC_GTEST_PROP(SuggestionProperty, ThePointsGiveBackTheRatio, ()) {
  WizardData data = AnyPair();
  const Double ratio = *rc::gen::oneOf(AnyBetween(0.05, 0.999), AnyBetween(1.001, 12.0));
  SuggestABPoints(data, 0, 1, ratio);
  const ABPoint& p = data.ABPoints2[0];
  if (p.BY == static_cast<Single>(HalfRange(data, 1))) return;  // B's value was not reached
  const Double v1 = GetAttValue(data, 0, p.AX);
  const Double v3 = GetAttValue(data, 0, p.BX);
  const Double dx = std::fabs(v3 - v1);
  RC_PRE(dx > 0.01);
  // B's second value is found to 0.0001; a loop that the bound ended keeps the value of the pass before, whose c was a
  // thousandth larger.
  const Double pass = ratio > 1.0 ? 0.0014 * ratio : 0.0;
  const Double tolerance = (0.00011 + pass) / dx + 0.0001;
  const Double found = Val(PointRatio(data, 0, 1, p.AX, p.AY, p.BX, p.BY));
  RC_ASSERT(std::fabs(found - ratio) <= tolerance);
}

RC_GTEST_PROP(SuggestionProperty, AtOneTheReferencePairGivesOneOnStraightCurves, ()) {
  WizardData data = TradeOffData({B(1), C(1)}, 0, 1);
  for (int i = 0; i < 2; ++i) {
    const Double low = *AnyBetween(-200.0, 200.0);
    GiveScale(data, i, low, low + *AnyBetween(1.0, 500.0));
  }
  SuggestRefPairPoints(data, 1, 0);
  const ABPoint& p = data.ABPoints2[1];
  RC_ASSERT(std::fabs(Val(RefPairRatio(data, 1, 0, p.AX, p.AY, p.BX, p.BY)) - 1.0) <= 0.002);
}

RC_GTEST_PROP(CornersProperty, TheCornersGiveBackTheBounds, ()) {
  WizardData data = AnyPair();
  const AttValueData& values = data.AttValueData;
  const auto scoreAt = [&](int att, Double part) {
    return static_cast<Single>(values.ScoreMin[att] + (values.ScoreMax[att] - values.ScoreMin[att]) * part);
  };
  data.ABPoints2[0] = PointsAt(scoreAt(0, *AnyBetween(0.4, 0.6)), scoreAt(1, *AnyBetween(0.1, 0.4)),
                               scoreAt(0, *AnyBetween(0.1, 0.3)), scoreAt(1, *AnyBetween(0.5, 0.9)));
  const Double low = *AnyBetween(0.3, 3.0);
  const Double high = low + *AnyBetween(0.0, 3.0);
  data.WeightsL[0] = low;
  data.WeightsH[0] = high;
  IntervalCorners(data, 0, 1);
  const ABPoint& p = data.ABPoints2[0];
  const auto check = [&](Single x, Single y, Double bound) {
    if (x == static_cast<Single>(HalfRange(data, 0))) return;
    const Double away = std::fabs(GetAttValue(data, 0, x) - GetAttValue(data, 0, p.BX));
    const Double found = Val(PointRatio(data, 0, 1, x, y, p.BX, p.BY));
    RC_ASSERT(std::fabs(found - bound) <= bound * 0.00012 / away + 0.0001);
  };
  check(p.ALX, p.ALY, low);
  check(p.AUX, p.AUY, high);
}

RC_GTEST_PROP(SuggestionProperty, EndsForEveryModelAndLeavesNumbersOnly, ()) {
  const auto any = rc::gen::oneOf(AnyBetween(-1.0, 1.0), AnyBetween(-1000.0, 1000.0),
                                  rc::gen::element(0.0, 1e-300, -1e-300, 1e9, -1e9, 1e30, -1e30, 1e300, -1e300));
  WizardData data = TradeOffData({B(1), B(2), C(1)}, 1, 2);
  AttValueData& values = data.AttValueData;
  for (int i = 0; i < 2; ++i) {
    values.ScoreMin[i] = *any;
    values.ScoreMax[i] = *any;
    values.WorstScore[i] = *any;
    values.BestScore[i] = *any;
    const int n = *rc::gen::inRange(0, 12);
    values.ValuePointCount[i] = static_cast<Integer>(n);
    for (int k = 0; k < n; ++k) {
      values.ValuePointX(i, k) = *any;
      values.ValuePointY(i, k) = *any;
    }
  }
  const Double ratio = *rc::gen::oneOf(any, AnyBetween(1.0, 200.0));
  try {
    SuggestABPoints(data, 0, 1, ratio);
  } catch (const RuntimeError& error) {
    RC_ASSERT(error.Number() == 6 || error.Number() == 9 || error.Number() == 11);
    return;
  }
  const ABPoint& p = data.ABPoints2[0];
  for (const Single score : {p.AX, p.AY, p.BX, p.BY}) RC_ASSERT(std::isfinite(score));
}

TEST(SuggestionLoop, EndsForExtremesInsideOfAMoment) {
  const auto began = std::chrono::steady_clock::now();
  for (const Double worst : {-1e300, -1e9, -1.0, 0.0, 1.0, 1e9, 1e300}) {
    for (const Double best : {-1e300, -1e9, -1.0, 0.0, 1.0, 1e9, 1e300}) {
      for (const Double high : {-1e30, 0.0, 1e-30, 1.0, 1e30}) {
        for (const Double ratio : {1.0 + 0x1p-52, 1.0001, 1.2, 5.0, 1e30}) {
          WizardData data = TradeOffData({B(1), B(2), C(1)}, 1, 2);
          data.AttValueData.WorstScore[0] = worst;
          data.AttValueData.BestScore[0] = best;
          data.AttValueData.ScoreMin[0] = 0.0;
          data.AttValueData.ScoreMax[0] = high;
          const int fault = ErrorNumber([&] { return (SuggestABPoints(data, 0, 1, ratio), 0); });
          ASSERT_TRUE(fault == 0 || fault == 6) << fault;
          const ABPoint& p = data.ABPoints2[0];
          ASSERT_TRUE(std::isfinite(p.AX) && std::isfinite(p.BY));
        }
      }
    }
  }
  EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::seconds(120));
}

}  // namespace
}  // namespace Tarnwise
