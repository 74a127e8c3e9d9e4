// Attributes with their ranks and references, as the ordering step hands them over: as wizard data, and as the script
// that makes a user's way through the ordering step to the direct step.
#pragma once

#include "judging/Intervals.h"
#include "support/Session.h"

#include <algorithm>

namespace Tarnwise {

struct RankedAtt {
  Group Of;
  int Rank;
};

inline RankedAtt B(int rank) { return {Group::Benefit, rank}; }
inline RankedAtt C(int rank) { return {Group::Cost, rank}; }

inline WizardData ModelFor(const std::vector<RankedAtt>& atts) {
  std::vector<std::pair<String, Group>> named;
  for (std::size_t i = 0; i < atts.size(); ++i) named.emplace_back("Att " + std::to_string(i), atts[i].Of);
  return ModelOf(named);
}

// Nothing judged yet: all intervals at their defaults.
inline WizardData RankedData(const std::vector<RankedAtt>& atts, int benefitReference, int costReference) {
  WizardData data = ModelFor(atts);
  const int n = data.NumAtts();
  for (auto* array : {&data.WeightsL, &data.Weights, &data.WeightsH}) array->Allocate(n);
  data.WeightDone.Allocate(n);
  data.AttO.Allocate(n);
  for (int i = 0; i < n; ++i) {
    const RankedAtt& att = atts[static_cast<std::size_t>(i)];
    const auto rank = static_cast<Integer>(att.Rank);
    data.AttO[i] = rank;
    const bool benefit = att.Of == Group::Benefit;
    ++(benefit ? data.BRankCount : data.CRankCount);
    Integer& ranks = benefit ? data.BAttCount : data.CAttCount;
    ranks = std::max(ranks, rank);
  }
  data.BOM.Allocate(data.BAttCount + 1);
  data.COM.Allocate(data.CAttCount + 1);
  for (const RankedAtt& att : atts) ++(att.Of == Group::Benefit ? data.BOM : data.COM)[att.Rank];
  data.BRefAttID = static_cast<Integer>(benefitReference);
  data.CRefAttID = static_cast<Integer>(costReference);
  data.RefAttWR = Integer(1);
  data.IncnsistCtrl = 1;
  SetDefaultIntervals(data);
  return data;
}

inline Interval Range(Double low, Double high) { return {low, (high + low) / 2.0, high}; }

inline void Judge(WizardData& data, int att, Double low, Double high) {
  StoreInterval(data, att, Range(low, high));
  data.WeightDone[att] = true;
}

// Commits the judgment; the attributes that it settles, in the order in which they were told.
inline std::vector<int> SettledBy(WizardData& data, int target, Double lo, Double hi) {
  std::vector<int> settled;
  CommitInterval(data, target, lo, hi, [&settled](int att) { settled.push_back(att); });
  return settled;
}

inline bool operator==(const Interval& a, const Interval& b) {
  return a.Low == b.Low && a.Mid == b.Mid && a.High == b.High;
}

inline std::ostream& operator<<(std::ostream& out, const Interval& i) {
  return out << '[' << i.Low << ' ' << i.Mid << ' ' << i.High << ']';
}

// The script lines from the model to the opened direct step. References are attribute ids, -1 for an empty group.
inline String ToDirectStep(const std::vector<RankedAtt>& atts, int benefitReference, int costReference,
                           bool consistencyControl = true) {
  String lines = "host show\n";
  if (!consistencyControl) lines += "click chkIncnsistCtrl\n";
  lines += "click cmdNext\n";
  String clicks = "click cmdNext\n";
  for (const Group g : {Group::Benefit, Group::Cost}) {
    const String suffix = g == Group::Benefit ? "" : "1";
    int rows = 1;
    int place = 0;
    String drags;
    for (std::size_t i = 0; i < atts.size(); ++i) {
      if (atts[i].Of != g) continue;
      const String at = "(" + std::to_string(place++) + ")";
      for (; rows < atts[i].Rank; ++rows) lines += "click cmdAdd" + suffix + "\n";
      drags += "drag cmdAttA" + suffix + at + " picOrder" + suffix + "(" + std::to_string(atts[i].Rank - 1) + ")\n";
      if (static_cast<int>(i) == (g == Group::Benefit ? benefitReference : costReference)) {
        clicks += "click cmdAttButtons" + suffix + at + "\n";
      }
    }
    lines += drags;
  }
  return lines + clicks + "click cmdNext\n";
}

// A session that stands on the direct step.
struct DirectSession : Session {
  DirectSession(const std::vector<RankedAtt>& atts, int benefitReference, int costReference,
                bool consistencyControl = true)
      : Session(ModelFor(atts)) {
    Given(ToDirectStep(atts, benefitReference, costReference, consistencyControl));
  }
};

}  // namespace Tarnwise
