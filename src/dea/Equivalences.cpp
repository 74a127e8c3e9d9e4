#include "dea/Equivalences.h"

#include "dea/Basis.h"

namespace Tarnwise::Dea {

std::vector<Equivalence> EquivalencesOf(const Problem& problem, const Checked& checked) {
  std::vector<Equivalence> equivalences;
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
    equivalences.push_back(equivalence);
  }
  return equivalences;
}

}  // namespace Tarnwise::Dea
