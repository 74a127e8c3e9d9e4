// What a session's intervals come to, worked out from what the bases mean: the part of the reference that converts.
#pragma once

#include "Problems.h"
#include "Solvers.h"

namespace Tarnwise::Dea {

// Prices of raw units over the reference's, or weights on the scale basis.
struct RawBounds {
  std::vector<int> References;  // of the columns
  std::vector<double> Low, High;
};

RawBounds PricesOf(const Problem& problem, bool judged);  // per raw unit
RawBounds WeightsOf(const Problem& problem);              // on the scale basis
std::optional<double> CrossOf(const Problem& problem);    // on the scale basis

Scale ScaleInUse(const Problem& problem, int column);
int FirstOf(const Problem& problem, Role role);      // -1: there is none
int ReferenceOf(const Problem& problem, Role role);  // as given, else the first

}  // namespace Tarnwise::Dea
