#include "dea/Basis.h"

namespace Tarnwise::Dea {

namespace {

// What the chord gives for one raw unit.
Double ValuePerUnit(const Span& span) { return span.Value / span.Score; }

}  // namespace

Double PricePerUnit(Basis basis, Double ratio, const Span& own, const Span& reference) {
  switch (basis) {
    case Basis::Range: return ratio * reference.Score / own.Score;
    case Basis::Scale: return ratio * ValuePerUnit(own) / ValuePerUnit(reference);
    case Basis::Unit: return ratio;
  }
  return ratio;
}

Double WeightOnScale(Basis basis, Double ratio, const Span& own, const Span& reference) {
  switch (basis) {
    case Basis::Range: return ratio * reference.Value / own.Value;
    case Basis::Scale: return ratio;
    case Basis::Unit: return ratio * ValuePerUnit(reference) / ValuePerUnit(own);
  }
  return ratio;
}

Double CrossOnScale(Basis basis, Double ratio, const Span& benefit, const Span& cost) {
  return WeightOnScale(basis, ratio, cost, benefit);
}

}  // namespace Tarnwise::Dea
