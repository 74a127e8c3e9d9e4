// The verdict on a trade-off, its caption, and how it enters the shared intervals.
#pragma once

#include "judging/Consistency.h"
#include "judging/Intervals.h"
#include "tradeoffs/TradeOffModel.h"

namespace Tarnwise {

struct TradeOffVerdict {
  JudgmentState State = kNoneDecided;
  String Caption;
};

// The ratios at the two corners of an ordinary pair. Zero, negative and infinite ones are invalid whatever the
// consistency control says; the others are compared at four decimals. State 0: the control is off.
TradeOffVerdict DecideJudgmentState(const WizardData& data, int target, const String& first, const String& second);

// The one ratio of the reference pair: state 0 or invalid.
TradeOffVerdict DecideRefPairState(const String& ratio);

// What the pair of an attribute is judged by while it is moved: the ratios at both corners of A.
struct CornerRatios {
  String First;
  String Second;
};
CornerRatios CornerRatiosOf(const WizardData& data, int xAtt, int yAtt, const ABPoint& points);

// What Enter takes: those, and the ratio at A itself.
struct TradeOffRatios {
  CornerRatios Corners;
  String Middle;
};
TradeOffRatios RatiosOf(const WizardData& data, int xAtt, int yAtt, const ABPoint& points);

// The judgment enters: stored, copied to the same-ranked attributes with fresh points of their own, pushed to the
// neighbours. The target and its peers are settled in ascending id. Error 13 when a ratio is no number.
void CommitTradeOff(WizardData& data, int target, const TradeOffRatios& ratios, const Settled& settled = NobodyIsTold);

// Points for every attribute from the present intervals; no uncertainty.
void SuggestAll(WizardData& data);

// Points for every attribute from directly judged intervals, uncertain where the interval is one.
void SuggestFromIntervals(WizardData& data);

}  // namespace Tarnwise
