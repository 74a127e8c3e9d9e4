#include "model/Groups.h"

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

std::vector<FinishedRank> FinishedRanks(const WizardData& data, Group g) {
  const int count = g == Group::Benefit ? data.BAttCount : data.CAttCount;
  const Array<Integer>& sizes = g == Group::Benefit ? data.BOM : data.COM;
  std::vector<FinishedRank> ranks;
  for (int rank = 1; rank <= count; ++rank) {
    ranks.push_back({sizes[rank], {}});
    for (int i = 0; i < data.NumAtts(); ++i) {
      if (InGroup(data, i, g) && data.AttO[i] == rank) ranks.back().Atts.push_back(i);
    }
  }
  return ranks;
}

}  // namespace Tarnwise
