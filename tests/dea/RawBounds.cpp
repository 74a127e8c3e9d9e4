#include "RawBounds.h"

#include "dea/Values.h"
#include "dea/Vectors.h"

#include <cmath>

namespace Tarnwise::Dea {

namespace {

const Judgment* JudgmentOn(const Problem& problem, int column) {
  if (!problem.Session) return nullptr;
  for (const Judgment& judgment : problem.Session->Judgments) {
    if (judgment.Column == column) return &judgment;
  }
  return nullptr;
}

}  // namespace

Scale ScaleInUse(const Problem& problem, int column) {
  const Judgment* const judgment = JudgmentOn(problem, column);
  return judgment != nullptr && judgment->Snapshot ? *judgment->Snapshot : problem.Columns[At(column)].Range;
}

int FirstOf(const Problem& problem, Role role) {
  for (std::size_t j = 0; j < problem.Columns.size(); ++j) {
    if (problem.Columns[j].Use == role) return static_cast<int>(j);
  }
  return -1;
}

int ReferenceOf(const Problem& problem, Role role) {
  if (problem.Session) {
    const auto& given = role == Role::Input ? problem.Session->CostReference : problem.Session->BenefitReference;
    if (given) return *given;
  }
  return FirstOf(problem, role);
}

namespace {

double Swing(const Scale& scale) {
  const ValueFunction value(scale);
  return std::fabs(value.At(scale.Best) - value.At(scale.Worst));
}

double Width(const Scale& scale) { return std::fabs(scale.Best - scale.Worst); }

double Factor(const Problem& problem, int column, int reference, bool price) {
  const Scale own = ScaleInUse(problem, column);
  const Scale other = ScaleInUse(problem, reference);
  switch (problem.Session->Basis) {
    case Basis::Range: return price ? Width(other) / Width(own) : Swing(other) / Swing(own);
    case Basis::Scale: return price ? (Swing(own) / Width(own)) / (Swing(other) / Width(other)) : 1.0;
    case Basis::Unit: return price ? 1.0 : (Swing(other) / Width(other)) / (Swing(own) / Width(own));
  }
  return 1.0;
}

RawBounds BoundsOf(const Problem& problem, bool judged, bool price) {
  RawBounds bounds;
  for (std::size_t j = 0; j < problem.Columns.size(); ++j) {
    const int reference = ReferenceOf(problem, problem.Columns[j].Use);
    bounds.References.push_back(reference);
    const bool isReference = reference == static_cast<int>(j);
    bounds.Low.push_back(isReference ? 1.0 : 0.0);
    bounds.High.push_back(isReference ? 1.0 : kInfinite);
    const Judgment* const judgment = JudgmentOn(problem, static_cast<int>(j));
    if (!judged || isReference || judgment == nullptr || !judgment->Judged) continue;
    if (judgment->Low == 0.0 && judgment->High == 0.0) continue;
    const double factor = Factor(problem, static_cast<int>(j), reference, price);
    double low = judgment->Low * factor;
    double high = judgment->High == 0.0 ? kInfinite : judgment->High * factor;
    if (low > 0.0 && high < kInfinite) {
      const double more = std::pow(high / low, (problem.Options.Widen - 1.0) / 2.0);
      low /= more;
      high *= more;
    }
    bounds.Low[j] = low;
    bounds.High[j] = high;
  }
  return bounds;
}

}  // namespace

RawBounds PricesOf(const Problem& problem, bool judged) { return BoundsOf(problem, judged, true); }

RawBounds WeightsOf(const Problem& problem) { return BoundsOf(problem, true, false); }

std::optional<double> CrossOf(const Problem& problem) {
  if (!problem.Session || !problem.Session->Cross) return std::nullopt;
  const int b = ReferenceOf(problem, Role::Output);
  const int c = ReferenceOf(problem, Role::Input);
  if (b < 0 || c < 0) return std::nullopt;
  return *problem.Session->Cross * Factor(problem, c, b, false);
}

}  // namespace Tarnwise::Dea
