#include "dea/Evaluate.h"

#include "dea/Basis.h"
#include "dea/Forms.h"

namespace Tarnwise::Dea {

namespace {

void TakeEquivalences(const Problem& problem, const Checked& checked, Results& results) {
  for (std::size_t j = 0; j < problem.Columns.size(); ++j) {
    if (!checked.Judged[j]) continue;
    const int column = static_cast<int>(j);
    Equivalence equivalence;
    equivalence.Column = column;
    equivalence.Of = checked.ReferenceOf(problem, column);
    const Span& reference = checked.Spans[static_cast<std::size_t>(equivalence.Of)];
    const Interval& ratio = checked.Judged[j]->Ratio;
    const Basis basis = problem.Session->Basis;
    equivalence.Low = PricePerUnit(basis, ratio.Low, checked.Spans[j], reference);
    if (ratio.High < kNoBound) equivalence.High = PricePerUnit(basis, ratio.High, checked.Spans[j], reference);
    results.Equivalences.push_back(equivalence);
  }
}

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
  TakeEquivalences(problem, checked, results);
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

}  // namespace Tarnwise::Dea
