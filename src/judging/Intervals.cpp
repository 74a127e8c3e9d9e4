#include "judging/Intervals.h"

#include <algorithm>

namespace Tarnwise {

namespace {

Double LowOf(const WizardData& data, int i) { return ToDouble(data.WeightsL[i]); }
Double MidOf(const WizardData& data, int i) { return ToDouble(data.Weights[i]); }
Double HighOf(const WizardData& data, int i) { return ToDouble(data.WeightsH[i]); }

// An attribute that is more important than the target starts where the target ends.
void RaiseLow(WizardData& data, int k, Double high) {
  if (!(high > LowOf(data, k))) return;
  data.WeightsL[k] = high;
  if (high > HighOf(data, k)) {
    data.Weights[k] = high;
    data.WeightsH[k] = high;
  } else if (high > MidOf(data, k)) {
    data.Weights[k] = (HighOf(data, k) + high) / 2.0;
  }
}

// One that is less important ends where the target starts.
void LowerHigh(WizardData& data, int k, Double low) {
  if (!(low < HighOf(data, k))) return;
  data.WeightsH[k] = low;
  if (low < LowOf(data, k)) {
    data.Weights[k] = low;
    data.WeightsL[k] = low;
  } else if (low < MidOf(data, k)) {
    data.Weights[k] = (low + LowOf(data, k)) / 2.0;
  }
}

}  // namespace

void SeedIntervals(WizardData& data) {
  for (int k = 0; k < data.NumAtts(); ++k) {
    if (!data.IsBenefit(k) && !data.IsCost(k)) continue;
    const int own = data.AttO[k];
    const int reference = data.AttO[ReferenceOf(data, k)];
    const Double ratio = own == reference ? 1.0 : own < reference ? 1.2 : 0.8;
    StoreInterval(data, k, {ratio, ratio, ratio});
    data.WeightDone[k] = own == reference;
  }
}

void SetDefaultIntervals(WizardData& data) {
  for (int k = 0; k < data.NumAtts(); ++k) data.WeightDone[k] = false;
  SeedIntervals(data);
}

Interval IntervalOf(const WizardData& data, int att) { return {LowOf(data, att), MidOf(data, att), HighOf(data, att)}; }

void StoreInterval(WizardData& data, int att, const Interval& interval) {
  data.WeightsL[att] = interval.Low;
  data.Weights[att] = interval.Mid;
  data.WeightsH[att] = interval.High;
}

std::vector<int> SameRankPeers(const WizardData& data, int target) {
  std::vector<int> peers;
  for (int k = 0; k < data.NumAtts(); ++k) {
    if (data.AttO[k] == data.AttO[target] && data.Orientation(k) == data.Orientation(target) && !IsReference(data, k)) {
      peers.push_back(k);
    }
  }
  return peers;
}

void PushNeighbours(WizardData& data, int target) {
  const Double orientation = data.Orientation(target);
  const auto eachUntilJudged = [&](int rank, int end, int step, auto&& push) {
    for (; rank != end; rank += step) {
      for (int k = 0; k < data.NumAtts(); ++k) {
        if (data.AttO[k] != rank || data.Orientation(k) != orientation) continue;
        if (data.WeightDone[k]) return;
        push(k);
      }
    }
  };
  const int own = data.AttO[target];
  const int last = std::max<int>(own, orientation == 0.0 ? data.BAttCount : data.CAttCount);
  eachUntilJudged(own - 1, std::min(0, own - 1), -1, [&](int k) { RaiseLow(data, k, HighOf(data, target)); });
  eachUntilJudged(own + 1, last + 1, 1, [&](int k) { LowerHigh(data, k, LowOf(data, target)); });
}

void CommitInterval(WizardData& data, int target, Double lo, Double hi, const Settled& settled) {
  const Double mid = (hi + lo) / 2.0;
  const Interval interval = lo == hi ? Interval{mid, mid, mid} : Interval{lo, mid, hi};
  StoreInterval(data, target, interval);
  data.WeightDone[target] = true;
  for (const int k : SameRankPeers(data, target)) {
    StoreInterval(data, k, interval);
    data.WeightDone[k] = true;
    settled(k);
  }
  PushNeighbours(data, target);
}

bool AllJudged(const WizardData& data) {
  bool all = true;
  for (int k = 0; k < data.NumAtts(); ++k) all = data.WeightDone[k] && all;
  return all;
}

int FirstTarget(const WizardData& data) {
  int i = data.BRankCount == 1 ? 1 : 0;
  while (data.AttO[i] == data.AttO[ReferenceOf(data, i)]) ++i;
  return i;
}

}  // namespace Tarnwise
