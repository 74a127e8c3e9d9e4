// The verdict on a trade-off, its caption, and how it enters the shared intervals.
#pragma once

#include "direct/Consistency.h"
#include "tradeoffs/TradeOffModel.h"

#include <vector>

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

// The pair of an attribute: at both corners and in the middle.
struct TradeOffRatios {
  String First;
  String Second;
  String Middle;
};
TradeOffRatios RatiosOf(const WizardData& data, int xAtt, int yAtt, const ABPoint& points);

// The judgment enters: stored, copied to the same-ranked attributes with fresh points of their own, pushed to the
// neighbours. Returns the attributes that are judged by it. Error 13 when a ratio is no number.
std::vector<int> CommitTradeOff(WizardData& data, int target, const TradeOffRatios& ratios);

// Points for every attribute from the present intervals; no uncertainty.
void SuggestAll(WizardData& data);

// Points for every attribute from directly judged intervals, uncertain where the interval is one.
void SuggestFromIntervals(WizardData& data);

}  // namespace Tarnwise
