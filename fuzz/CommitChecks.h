// What the commit of one judgment may do to the intervals, and what it must.
#pragma once

#include "judging/Intervals.h"

namespace Tarnwise {

struct Commit {
  const WizardData& Data;
  const std::vector<Interval>& Before;
  const std::vector<bool>& DoneBefore;
  const std::vector<Interval>& Now;
  int Target = 0;
  bool ByText = false;  // same-ranked attributes are told by their orientation's text, not by its number
};

std::vector<Interval> AllIntervals(const WizardData& data);
bool SameIntervals(const std::vector<Interval>& a, const std::vector<Interval>& b);  // NaN equals NaN

void CheckDirectCommit(const Commit& commit, const String& lower, const String& upper);
void CheckTradeOffCommit(const Commit& commit, int reference);

}  // namespace Tarnwise
