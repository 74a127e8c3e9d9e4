#include "tradeoffs/TradeOffModel.h"

#include "curves/mdGraphs.h"
#include "runtime/Numbers.h"
#include "runtime/Text.h"

namespace Tarnwise {

namespace {

struct Scale {
  Double Low = 0.0;
  Double High = 0.0;
  Double Range() const { return High - Low; }
};

Scale ScaleOf(const WizardData& data, int att) {
  return {data.AttValueData.ScoreMin[att], data.AttValueData.ScoreMax[att]};
}

String RatioText(Double numerator, Double denominator) {
  if (denominator == 0.0) return kInfinity;
  return FourDecimalText(numerator / denominator);
}

// The scores of A and B on the way to a suggestion.
struct Scores {
  Single P;  // A's first score
  Single Q;  // B's first score
  Single R;  // A's second score
};

struct SecondValues {
  Double A;
  Single B;
};

void Store(WizardData& data, int xAtt, int yAtt, const Scores& s, Single valueOfB) {
  ABPoint& point = data.ABPoints2[xAtt];
  point.AX = s.P;
  point.BX = s.Q;
  point.AY = s.R;
  point.BY = GetAttScore(data, yAtt, valueOfB);
}

SecondValues SecondValuesFor(PreparedCurve& xCurve, PreparedCurve& yCurve, const Scores& s, Double ratio) {
  const Double v1 = ClampedValue(xCurve.ValueAt(static_cast<Double>(s.P)));
  const Double v2 = ClampedValue(xCurve.ValueAt(static_cast<Double>(s.Q)));
  const Double v3 = ClampedValue(yCurve.ValueAt(static_cast<Double>(s.R)));
  return {v3, ToSingleChecked(v3 - (v2 - v1) * ratio)};
}

void SuggestBelowOne(WizardData& data, int xAtt, int yAtt, Double ratio) {
  const Scale x = ScaleOf(data, xAtt);
  const Scale y = ScaleOf(data, yAtt);
  const Scores s = {ToSingleChecked(x.Low + (x.Range() / 2.0) * 1.3), ToSingleChecked(x.Low + (x.Range() / 2.0) * 1.0),
                    ToSingleChecked(y.Low + y.Range() / 2.0)};
  PreparedCurve xCurve(CurveOf(data, xAtt));
  PreparedCurve yCurve(CurveOf(data, yAtt));
  Store(data, xAtt, yAtt, s, SecondValuesFor(xCurve, yCurve, s, ratio).B);
}

// How far B stands above A on the second value scale, against one fifth and two fifths of the room above A.
bool IsInBand(const SecondValues& v, bool endsCount) {
  const auto d = static_cast<Double>(static_cast<Single>(static_cast<Double>(v.B) - v.A));
  const Double g1 = (1.0 - v.A) / 5.0;
  const Double g2 = 2.0 * (1.0 - v.A) / 5.0;
  return endsCount ? g1 <= d && d <= g2 : !(d <= g1 || d >= g2);
}

// B shall stand between one fifth and two fifths of the room above A on the value scale. A comes nearer to B, and past
// it, until that is so, or until A has come to the bound near the worst score. The loop ends for every model: c falls
// in steps of at least 0.0001 from 1.3, and a pass that leaves it unchanged is the last one.
void SuggestAboveOne(WizardData& data, int xAtt, int yAtt, Double ratio) {
  const Scale x = ScaleOf(data, xAtt);
  const Scale y = ScaleOf(data, yAtt);
  PreparedCurve xCurve(CurveOf(data, xAtt));
  PreparedCurve yCurve(CurveOf(data, yAtt));
  const Double worst = data.AttValueData.WorstScore[xAtt];
  const Double bound = (data.AttValueData.BestScore[xAtt] + worst) / 10.0;
  const auto scoresAt = [&](Double c) {
    return Scores{ToSingleChecked(x.Low + (c * x.Range()) / 3.0), ToSingleChecked(x.Low + x.Range() / 3.0),
                  ToSingleChecked(y.Low + y.Range() / 3.0)};
  };
  Double c = 1.3;
  Scores s = scoresAt(c);
  SecondValues v = SecondValuesFor(xCurve, yCurve, s, ratio);
  bool found = IsInBand(v, true);
  while (!found) {
    const Double before = c;
    c = RoundToFourDecimals(c * 0.999);
    s = scoresAt(c);
    if (c == before || bound > static_cast<Double>(s.P) - worst) break;
    v = SecondValuesFor(xCurve, yCurve, s, ratio);
    found = IsInBand(v, false);
  }
  Store(data, xAtt, yAtt, s, v.B);
}

}  // namespace

String PointRatio(const WizardData& data, int xAtt, int yAtt, Single x1, Single y1, Single x2, Single y2) {
  const Double v1 = GetAttValue(data, xAtt, x1);
  const Double v2 = GetAttValue(data, yAtt, y1);
  const Double v3 = GetAttValue(data, xAtt, x2);
  const Double v4 = GetAttValue(data, yAtt, y2);
  return RatioText(v2 - v4, v3 - v1);
}

String RefPairRatio(const WizardData& data, int xAtt, int yAtt, Single x1, Single y1, Single x2, Single y2) {
  const Double v1 = GetAttValue(data, xAtt, x1);
  const Double v2 = GetAttValue(data, yAtt, y1);
  const Double v3 = GetAttValue(data, xAtt, x2);
  const Double v4 = GetAttValue(data, yAtt, y2);
  return RatioText(v2 - v4, v1 - v3);
}

void SuggestABPoints(WizardData& data, int xAtt, int yAtt, Double ratio) {
  if (ratio == 1.0) {
    const Scale x = ScaleOf(data, xAtt);
    const Scale y = ScaleOf(data, yAtt);
    ABPoint& point = data.ABPoints2[xAtt];
    point.AX = ToSingleChecked(x.Low + (1.3 * x.Range()) / 3.0);
    point.BX = ToSingleChecked(x.Low + x.Range() / 3.0);
    point.AY = ToSingleChecked(y.Low + y.Range() / 3.0);
    point.BY = ToSingleChecked(y.Low + (1.3 * y.Range()) / 3.0);
  } else if (ratio > 1.0) {
    SuggestAboveOne(data, xAtt, yAtt, ratio);
  } else {
    SuggestBelowOne(data, xAtt, yAtt, ratio);
  }
}

void SuggestRefPairPoints(WizardData& data, int xAtt, int yAtt) {
  const Scale x = ScaleOf(data, xAtt);
  const Scale y = ScaleOf(data, yAtt);
  ABPoint& point = data.ABPoints2[xAtt];
  point.AX = ToSingleChecked(x.Low + (1.3 * x.Range()) / 3.0);
  point.BX = ToSingleChecked(x.Low + x.Range() / 3.0);
  point.AY = ToSingleChecked(y.Low + (1.3 * y.Range()) / 3.0);
  point.BY = ToSingleChecked(y.Low + y.Range() / 3.0);
}

void IntervalCorners(WizardData& data, int target, int reference) {
  ABPoint& point = data.ABPoints2[target];
  const Double u = GetAttValue(data, target, point.BX);
  const Double e = GetAttValue(data, reference, point.BY) - GetAttValue(data, reference, point.AY);
  point.ALX = GetAttScore(data, target, ToSingleChecked(u + Divide(e, ToDouble(data.WeightsL[target]))));
  point.ALY = point.AY;
  point.AUX = GetAttScore(data, target, ToSingleChecked(u + Divide(e, ToDouble(data.WeightsH[target]))));
  point.AUY = point.AY;
}

void CollapseCorners(ABPoint& point) {
  point.ALX = point.AX;
  point.AUX = point.AX;
  point.ALY = point.AY;
  point.AUY = point.AY;
}

}  // namespace Tarnwise
