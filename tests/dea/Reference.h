// The same results from their definitions: one whole linear program for each unit in prices, all corners of a region
// for what is closed form in the product. Slow, and shares nothing with it but the values of scores.
#pragma once

#include "RawBounds.h"
#include "Solvers.h"

namespace Tarnwise::Dea {

using Solver = std::optional<double> (*)(const DenseProgram&);

// The units that count: no value missing; in the ratio form an input above zero.
std::vector<int> UnitsThatCount(const Problem& problem);

// Whether an output of the unit (an index into the problem's) is above zero, or there is none to be.
bool HasOutputs(const Problem& problem, int unit);

// Greatest efficiency of the unit (an index into UnitsThatCount), phi for orientation out; nothing without an end.
// Without: a unit that counts for nothing, -1 none.
std::optional<double> ReferenceMax(const Problem& problem, const RawBounds& bounds, int unit, int without,
                                   Solver solver);
// Constant returns, in; over all corners.
double ReferenceMin(const Problem& problem, const RawBounds& bounds, int unit);
bool ReferenceDominates(const Problem& problem, const RawBounds& bounds, int winner, int loser);

std::optional<double> ReferenceDistance(const Problem& problem, int unit, Solver solver);
Interval ReferenceValue(const Problem& problem, int unit);
double ReferenceRegret(const Problem& problem, int unit);
bool ReferenceValueDominates(const Problem& problem, int winner, int loser);

// Tolerance: relative to what is 1 or more.
bool IsSame(const std::optional<double>& a, const std::optional<double>& b, double tolerance);

}  // namespace Tarnwise::Dea
