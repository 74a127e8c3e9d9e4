#include "tradeoffs/TradeOffJudgment.h"

#include "runtime/Numbers.h"
#include "runtime/Text.h"

#include <algorithm>

namespace Tarnwise {

namespace {

String Shown(Double ratio) { return Format(ratio, "0.00"); }

String IntervalCaption(Double a, Double b) { return Shown(std::min(a, b)) + "/1,    " + Shown(std::max(a, b)) + "/1"; }

bool IsRatio(const String& text) { return text != kInfinity && Val(text) > 0.0; }

String InvalidCaption(const String& first, const String& second) {
  if (first == kInfinity && second == kInfinity) return kInfinity;
  if (first == kInfinity) return Shown(Val(second)) + "/1,    Infinity";
  if (second == kInfinity) return Shown(Val(first)) + "/1,    Infinity";
  return IntervalCaption(Val(first), Val(second));
}

// Fresh points for an attribute that shares the target's ratios: the target's own would mean nothing on its scale.
void SuggestForPeer(WizardData& data, int att, int reference) {
  const Interval interval = IntervalOf(data, att);
  ABPoint& point = data.ABPoints2[att];
  SuggestABPoints(data, att, reference, interval.Low);
  point.ALX = point.AX;
  point.ALY = point.AY;
  SuggestABPoints(data, att, reference, interval.High);
  point.AUX = point.AX;
  point.AUY = point.AY;
  SuggestABPoints(data, att, reference, interval.Mid);
  if (point.ALX == point.AUX && point.ALY == point.AUY) {
    point.AOrientation = 0;
  } else if (point.ALX == point.AUX) {
    point.AOrientation = 2;
  } else if (point.ALY == point.AUY) {
    point.AOrientation = 1;
  }
}

bool IsPeer(const WizardData& data, int att, int target) {
  const auto& orientations = data.AttributeList.AttOrientation;
  return att != target && orientations[att] == orientations[target] && data.AttO[att] == data.AttO[target] &&
         !IsReference(data, att);
}

// The record of one reference serves the pair of both; without the other group there is no such pair.
void SuggestForReference(WizardData& data, int other, Integer otherCount, int reference) {
  if (otherCount > 0) SuggestRefPairPoints(data, other, reference);
}

}  // namespace

TradeOffVerdict DecideJudgmentState(const WizardData& data, int target, const String& first, const String& second) {
  if (!IsRatio(first) || !IsRatio(second)) return {kInvalid, InvalidCaption(first, second)};
  const Double r1 = RoundToFourDecimals(Val(first));
  const Double r2 = RoundToFourDecimals(Val(second));
  TradeOffVerdict verdict{kNoneDecided, IntervalCaption(r1, r2)};
  if (data.IncnsistCtrl == 1) verdict.State = IsWithin(LimitsOf(data, target), r1, r2) ? kConsistent : kInconsistent;
  return verdict;
}

TradeOffVerdict DecideRefPairState(const String& ratio) {
  const JudgmentState state = IsRatio(ratio) ? kNoneDecided : kInvalid;
  return {state, ratio == kInfinity ? String(kInfinity) : Shown(Val(ratio)) + "/1"};
}

CornerRatios CornerRatiosOf(const WizardData& data, int xAtt, int yAtt, const ABPoint& p) {
  return {PointRatio(data, xAtt, yAtt, p.ALX, p.ALY, p.BX, p.BY),
          PointRatio(data, xAtt, yAtt, p.AUX, p.AUY, p.BX, p.BY)};
}

TradeOffRatios RatiosOf(const WizardData& data, int xAtt, int yAtt, const ABPoint& p) {
  return {CornerRatiosOf(data, xAtt, yAtt, p), PointRatio(data, xAtt, yAtt, p.AX, p.AY, p.BX, p.BY)};
}

void CommitTradeOff(WizardData& data, int target, const TradeOffRatios& ratios, const Settled& settled) {
  const Double a = StrictNumber(ratios.Corners.First);
  const Double b = StrictNumber(ratios.Corners.Second);
  const Double m = StrictNumber(ratios.Middle);
  const Interval interval = a == b ? Interval{m, m, m} : Interval{std::min(a, b), m, std::max(a, b)};
  StoreInterval(data, target, interval);
  data.WeightDone[target] = true;
  for (int i = 0; i < data.NumAtts(); ++i) {
    if (i != target && !IsPeer(data, i, target)) continue;
    if (i != target) {
      StoreInterval(data, i, interval);
      SuggestForPeer(data, i, ReferenceOf(data, target));
    }
    data.WeightDone[i] = true;
    settled(i);
  }
  PushNeighbours(data, target);
}

void SuggestAll(WizardData& data) {
  for (int i = 0; i < data.NumAtts(); ++i) {
    const Double ratio = ToDouble(data.Weights[i]);
    if (data.IsBenefit(i) && i != data.BRefAttID) {
      SuggestABPoints(data, i, data.BRefAttID, ratio);
    } else if (data.IsBenefit(i)) {
      SuggestForReference(data, data.CRefAttID, data.CRankCount, i);
    } else if (data.IsCost(i) && i != data.CRefAttID) {
      SuggestABPoints(data, i, data.CRefAttID, ratio);
    } else {
      SuggestForReference(data, data.BRefAttID, data.BRankCount, i);
    }
  }
  for (ABPoint& point : data.ABPoints2.Items()) {
    point.AOrientation = 0;
    CollapseCorners(point);
  }
}

void SuggestFromIntervals(WizardData& data) {
  for (int i = 0; i < data.NumAtts(); ++i) SuggestABPoints(data, i, ReferenceOf(data, i), ToDouble(data.Weights[i]));
  for (int i = 0; i < data.NumAtts(); ++i) {
    const Interval interval = IntervalOf(data, i);
    ABPoint& point = data.ABPoints2[i];
    point.AOrientation = interval.High == interval.Low ? 0 : 1;
    if (interval.High == interval.Low) {
      CollapseCorners(point);
    } else {
      IntervalCorners(data, i, ReferenceOf(data, i));
    }
  }
}

}  // namespace Tarnwise
