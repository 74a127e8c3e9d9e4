// What can be computed with: a problem is checked once, at the entry, and the arithmetic behind it is free of checks.
#pragma once

#include "dea/Region.h"
#include "dea/Values.h"

namespace Tarnwise::Dea {

// A judged interval as the session holds it, widened where that was asked for. Low 0 and High kNoBound: no bound.
struct JudgedInterval {
  Interval Ratio;
  Interval AsJudged;
};

// A problem that passed. Columns are indices into the problem's.
struct Checked {
  std::vector<int> Units;  // indices of those that are evaluated
  std::vector<Dea::LeftOut> LeftOut;
  std::vector<int> Inputs;
  std::vector<int> Outputs;

  // Of each column: the scale in use (the session's copy, else its own) and what was judged.
  std::vector<Scale> Scales;
  std::vector<Span> Spans;
  std::vector<std::optional<JudgedInterval>> Judged;

  // The references, -1 for a group without columns. Without a session the first of each group.
  int BenefitReference = -1;
  int CostReference = -1;
  std::optional<Double> Cross;  // as judged, where both groups are there

  std::vector<Note> Notes;

  int ReferenceOf(const Problem& problem, int column) const {
    return problem.Columns[static_cast<std::size_t>(column)].Use == Role::Input ? CostReference : BenefitReference;
  }
};

// Refused for what cannot be computed with: the text names column, unit or session, and what about it.
Checked Check(const Problem& problem);

}  // namespace Tarnwise::Dea
