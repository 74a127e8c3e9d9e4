#include "frame/Groups.h"

namespace Tarnwise {

bool InGroup(const WizardData& data, int att, Group g) {
  return g == Group::Benefit ? data.IsBenefit(att) : data.IsCost(att);
}

Integer GroupSize(const WizardData& data, Group g) { return g == Group::Benefit ? data.BRankCount : data.CRankCount; }

Integer ReferenceOf(const WizardData& data, int att) { return data.IsBenefit(att) ? data.BRefAttID : data.CRefAttID; }

bool IsReference(const WizardData& data, int att) {
  return (att == data.BRefAttID && data.BRankCount > 0) || (att == data.CRefAttID && data.CRankCount > 0);
}

bool IsReferencePair(const WizardData& data, int target, int reference) {
  return target == data.CRefAttID && reference == data.BRefAttID && data.BRankCount > 0 && data.CRankCount > 0;
}

std::vector<std::vector<int>> AttsByRank(const WizardData& data, Group g) {
  const int ranks = g == Group::Benefit ? data.BAttCount : data.CAttCount;
  std::vector<std::vector<int>> rows(static_cast<std::size_t>(ranks));
  for (int rank = 1; rank <= ranks; ++rank) {
    for (int i = 0; i < data.NumAtts(); ++i) {
      if (InGroup(data, i, g) && data.AttO[i] == rank) rows[static_cast<std::size_t>(rank) - 1].push_back(i);
    }
  }
  return rows;
}

}  // namespace Tarnwise
