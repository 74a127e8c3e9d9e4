// The two groups of attributes and their references, as the wizard data has them.
#pragma once

#include "model/mdTRNMain.h"

#include <vector>

namespace Tarnwise {

enum class Group { Benefit, Cost };

bool InGroup(const WizardData& data, int att, Group g);
Integer GroupSize(const WizardData& data, Group g);  // BRankCount or CRankCount

// The reference of the attribute's group. What is not benefit-oriented counts as cost here.
Integer ReferenceOf(const WizardData& data, int att);

// The id of an empty group's reference is 0 and stands for no attribute.
bool IsReference(const WizardData& data, int att);
bool IsReferencePair(const WizardData& data, int target, int reference);

// A rank of the finished order: how many attributes it was given, and which of the model's are on it, in ascending id.
// The two agree unless the host has loaded another model since.
struct FinishedRank {
  int Size = 0;
  std::vector<int> Atts;
};

// The best rank first.
std::vector<FinishedRank> FinishedRanks(const WizardData& data, Group g);

}  // namespace Tarnwise
