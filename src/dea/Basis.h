// What a judged ratio means. It is a ratio of values: of steps from worst to best (range), of whole curves (scale), or
// of raw units (unit). Prices of raw units replace a curve by its chord over the performance range.
#pragma once

#include "dea/Values.h"

namespace Tarnwise::Dea {

// Price of one raw unit of an attribute over that of its reference. The spans have to be positive where the basis
// needs them (Range: scores; Scale: scores and values).
Double PricePerUnit(Basis basis, Double ratio, const Span& own, const Span& reference);

// Weight of the attribute's whole curve over that of the reference's. (Range: values; Unit: scores and values.)
Double WeightOnScale(Basis basis, Double ratio, const Span& own, const Span& reference);

// The cross ratio, cost to benefit reference, on the scale basis.
Double CrossOnScale(Basis basis, Double ratio, const Span& benefit, const Span& cost);

}  // namespace Tarnwise::Dea
