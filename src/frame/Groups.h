// The two groups of attributes and their references, as the wizard data has them.
#pragma once

#include "frame/mdTRNMain.h"

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

// The attributes on each rank, the best rank first, in ascending id.
std::vector<std::vector<int>> AttsByRank(const WizardData& data, Group g);

}  // namespace Tarnwise
