#include "dea/Evaluate.h"

#include "dea/Equivalences.h"
#include "dea/Forms.h"

#include <algorithm>

namespace Tarnwise::Dea {

namespace {

void TakeDepartures(const Problem& problem, const Checked& checked, Results& results) {
  for (std::size_t j = 0; j < problem.Columns.size(); ++j) {
    results.Departures.push_back({static_cast<int>(j), DepartureFromChord(checked.Scales[j])});
  }
}

}  // namespace

Results Evaluate(const Problem& problem, const Watch& watch) {
  Checked checked = Check(problem);
  watch.Report(0.0);
  Results results;
  results.Equivalences = EquivalencesOf(problem, checked);
  TakeDepartures(problem, checked, results);
  results.LeftOut = checked.LeftOut;
  results.Notes = checked.Notes;
  if (problem.Options.Form == Form::Ratio) {
    EvaluateRatios(problem, checked, watch, results);
  } else {
    EvaluateValues(problem, checked, watch, results);
  }
  watch.Report(1.0);
  return results;
}

std::vector<int> DominatorsOf(const Problem& problem, int unit) {
  if (!problem.Session) return {};
  const Checked checked = Check(problem);
  const auto own = std::find(checked.Units.begin(), checked.Units.end(), unit);
  if (own == checked.Units.end()) return {};
  const int place = static_cast<int>(own - checked.Units.begin());
  std::vector<int> places = problem.Options.Form == Form::Ratio ? RatioDominators(problem, checked, place)
                                                                : ValueDominators(problem, checked, place);
  for (int& k : places) k = checked.Units[At(k)];
  return places;
}

}  // namespace Tarnwise::Dea
