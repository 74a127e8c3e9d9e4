// Random rankings and numbers for properties.
#pragma once

#include "support/Ranked.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace Tarnwise {

// Of the whole range from the first case on.
inline int Whole(int from, int to) { return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(from, to + 1)); }

inline Double Between(Double low, Double high) { return low + (high - low) * Whole(0, 1000000) / 1000000.0; }

// Two decimals, as the boxes of the direct step show them.
inline Double Hundredths(int from, int to) { return Whole(from, to) / 100.0; }

// Attributes on dense ranks, ties among them; at least one cost, and benefits on two ranks, so that there is something
// to judge.
inline std::vector<RankedAtt> RandomRanks(int most) {
  std::vector<RankedAtt> atts;
  for (const Group g : {Group::Benefit, Group::Cost}) {
    const int least = g == Group::Benefit ? 2 : 1;
    const int n = Whole(least, most);
    const int ranks = Whole(least, n);
    for (int i = 0; i < n; ++i) atts.push_back({g, i < ranks ? i + 1 : Whole(1, ranks)});
  }
  for (std::size_t i = atts.size() - 1; i > 0; --i) {
    std::swap(atts[i], atts[static_cast<std::size_t>(Whole(0, static_cast<int>(i)))]);
  }
  return atts;
}

inline int AnyOf(const std::vector<RankedAtt>& atts, Group g) {
  std::vector<int> members;
  for (std::size_t i = 0; i < atts.size(); ++i) {
    if (atts[i].Of == g) members.push_back(static_cast<int>(i));
  }
  return members[static_cast<std::size_t>(Whole(0, static_cast<int>(members.size()) - 1))];
}

// Any attribute of each group is the reference; all intervals at their defaults.
inline WizardData RandomRankedData(int most = 6) {
  const std::vector<RankedAtt> atts = RandomRanks(most);
  return RankedData(atts, AnyOf(atts, Group::Benefit), AnyOf(atts, Group::Cost));
}

// The attributes that can be judged: those on another rank than their reference.
inline std::vector<int> Targets(const WizardData& data) {
  std::vector<int> targets;
  for (int i = 0; i < data.NumAtts(); ++i) {
    if (data.AttO[i] != data.AttO[ReferenceOf(data, i)]) targets.push_back(i);
  }
  return targets;
}

inline int AnyTarget(const WizardData& data) {
  const std::vector<int> targets = Targets(data);
  return targets[static_cast<std::size_t>(Whole(0, static_cast<int>(targets.size()) - 1))];
}

inline std::vector<Interval> Intervals(const WizardData& data) {
  std::vector<Interval> all;
  for (int i = 0; i < data.NumAtts(); ++i) all.push_back(IntervalOf(data, i));
  return all;
}

inline bool IsOrdered(const Interval& i) { return i.Low <= i.Mid && i.Mid <= i.High; }

}  // namespace Tarnwise
