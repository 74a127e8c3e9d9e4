#include "dea/Basis.h"
#include "dea/Forms.h"
#include "dea/ValueScores.h"
#include "dea/Vectors.h"

#include <algorithm>
#include <cmath>

namespace Tarnwise::Dea {

namespace {

// Where the groups are not linked, the relation of their references is drawn from these.
constexpr Interval kUnlinked{1.0 / 20.0, 20.0};

bool IsCost(const Problem& problem, std::size_t column) { return problem.Columns[column].Use == Role::Input; }

ValueData GoodnessOf(const Problem& problem, const Checked& checked) {
  ValueData data;
  data.Units = static_cast<int>(checked.Units.size());
  data.Attributes = static_cast<int>(problem.Columns.size());
  data.Goodness.resize(checked.Units.size() * problem.Columns.size());
  for (std::size_t j = 0; j < problem.Columns.size(); ++j) {
    const ValueFunction function(checked.Scales[j]);
    for (std::size_t k = 0; k < checked.Units.size(); ++k) {
      const Double value = function.At(problem.Columns[j].Values[At(checked.Units[k])]);
      data.Goodness[k * problem.Columns.size() + j] = IsCost(problem, j) ? 1.0 - value : value;
    }
  }
  return data;
}

// Weights with both references at 1.
Box WeightsOf(const Problem& problem, const Checked& checked) {
  Box box = FreeBox(static_cast<int>(problem.Columns.size()), 0);
  box.Low[0] = 0.0;
  box.High[0] = kNoBound;
  for (const int reference : {checked.BenefitReference, checked.CostReference}) {
    if (reference >= 0) box.Low[At(reference)] = box.High[At(reference)] = 1.0;
  }
  for (std::size_t j = 0; j < problem.Columns.size(); ++j) {
    if (!checked.Judged[j]) continue;
    const Span& reference = checked.Spans[At(checked.ReferenceOf(problem, static_cast<int>(j)))];
    const Interval& ratio = checked.Judged[j]->Ratio;
    box.Low[j] = WeightOnScale(problem.Session->Basis, ratio.Low, checked.Spans[j], reference);
    if (ratio.High < kNoBound) {
      box.High[j] = WeightOnScale(problem.Session->Basis, ratio.High, checked.Spans[j], reference);
    }
    const bool isUsable = std::isfinite(box.Low[j]) && (ratio.Low == 0.0 || box.Low[j] > 0.0) && box.High[j] > 0.0 &&
                          (ratio.High == kNoBound || box.High[j] < kNoBound);
    if (isUsable) continue;
    throw Refused(problem.Session->Name + ": column " + problem.Columns[j].Name +
                  ": the bound cannot be computed with for scales of such different size.");
  }
  return box;
}

// The box with the weights of one group multiplied, or with those of the other taken away.
Box WithCostsTimes(const Problem& problem, Box box, Double factor) {
  for (std::size_t j = 0; j < box.Low.size(); ++j) {
    if (!IsCost(problem, j)) continue;
    box.Low[j] *= factor;
    if (box.High[j] < kNoBound) box.High[j] *= factor;
  }
  return box;
}

Box OnlyGroup(const Problem& problem, Box box, bool costs) {
  for (std::size_t j = 0; j < box.Low.size(); ++j) {
    if (IsCost(problem, j) != costs) box.Low[j] = box.High[j] = 0.0;
  }
  return box;
}

void AddRow(int attribute, int reference, Side side, Double bound, ValueRegion& region) {
  JudgedBound row;
  row.Attribute = attribute;
  row.Reference = reference;
  row.Side = side;
  row.Bound = bound;
  region.Rows.push_back(RowOf(row));
}

void AddJudgedRows(const Problem& problem, const Checked& checked, const Box& weights, ValueRegion& region) {
  for (int j = 0; At(j) < problem.Columns.size(); ++j) {
    if (!checked.Judged[At(j)]) continue;
    const int reference = checked.ReferenceOf(problem, j);
    if (weights.Low[At(j)] > 0.0) AddRow(j, reference, Side::Low, weights.Low[At(j)], region);
    if (weights.High[At(j)] < kNoBound) AddRow(j, reference, Side::High, weights.High[At(j)], region);
  }
}

// The cross ratio, or the ends of its band.
void Link(const Problem& problem, const Checked& checked, const Box& weights, ValueRegion& region) {
  const Double cross = CrossOnScale(problem.Session->Basis, *checked.Cross, checked.Spans[At(checked.BenefitReference)],
                                    checked.Spans[At(checked.CostReference)]);
  const Double band = problem.Options.CrossBand;
  const Interval ends{cross / band, cross * band};
  if (!std::isfinite(ends.High) || !(ends.Low > 0.0)) {
    throw Refused(problem.Session->Name +
                  ": the cross ratio cannot be computed with for scales of such different size.");
  }
  region.Boxes.push_back(WithCostsTimes(problem, weights, ends.Low));
  if (band > 1.0) region.Boxes.push_back(WithCostsTimes(problem, weights, ends.High));
  AddRow(checked.CostReference, checked.BenefitReference, Side::Low, ends.Low, region);
  AddRow(checked.CostReference, checked.BenefitReference, Side::High, ends.High, region);
  region.Drawn = WithCostsTimes(problem, weights, cross);
  region.CostFactor = {1.0 / band, band};
}

ValueRegion RegionOf(const Problem& problem, const Checked& checked) {
  const Box weights = WeightsOf(problem, checked);
  ValueRegion region;
  for (std::size_t j = 0; j < problem.Columns.size(); ++j) region.IsCost.push_back(IsCost(problem, j));
  AddJudgedRows(problem, checked, weights, region);
  if (checked.Cross) {
    Link(problem, checked, weights, region);
    return region;
  }
  if (!checked.Outputs.empty()) region.Boxes.push_back(OnlyGroup(problem, weights, false));
  if (!checked.Inputs.empty()) region.Boxes.push_back(OnlyGroup(problem, weights, true));
  region.Drawn = weights;
  if (region.Boxes.size() > 1) region.CostFactor = kUnlinked;
  return region;
}

}  // namespace

std::vector<int> ValueDominators(const Problem& problem, const Checked& checked, int unit) {
  const ValueData data = GoodnessOf(problem, checked);
  const ValueScorer scorer(data, RegionOf(problem, checked));
  return WinnersOver(unit, data.Units, [&](int winner, int loser) { return scorer.DominatesSurely(winner, loser); });
}

void EvaluateValues(const Problem& problem, const Checked& checked, const Watch& watch, Results& results) {
  const ValueData data = GoodnessOf(problem, checked);
  ValueScorer scorer(data, RegionOf(problem, checked));
  const std::size_t units = checked.Units.size();
  results.Units.resize(units);
  const Watch distances = watch.Part(0.0, 0.4);
  for (std::size_t k = 0; k < units; ++k) {
    distances.Report(static_cast<int>(k), static_cast<int>(units));
    results.Units[k].Unit = checked.Units[k];
    results.Units[k].Value = scorer.Range(static_cast<int>(k));
    const int unit = static_cast<int>(k);
    results.Units[k].Distance = NamingUnit(problem, checked, unit, [&] { return scorer.Distance(unit, watch); });
  }
  const Watch regrets = watch.Part(0.4, 0.6);
  for (std::size_t k = 0; k < units; ++k) {
    regrets.Report(static_cast<int>(k), static_cast<int>(units));
    results.Units[k].Regret = scorer.Regret(static_cast<int>(k));
  }
  results.WorstViolation = scorer.WorstViolation();
  if (!problem.Session || !problem.Options.Ranks) return;
  if (data.Units > kMostRankedUnits) {
    results.Notes.emplace_back("Ranks are worked out for 20,000 units at most.");
    return;
  }
  const auto sure = scorer.SureRanks(watch.Part(0.6, 0.9));
  const auto seen = scorer.SeenRanks(problem.Options.Seed, watch.Part(0.9, 1.0));
  for (std::size_t k = 0; k < units; ++k) {
    results.Units[k].Ranks = sure[k];
    results.Units[k].RanksSeen = seen[k];
  }
}

}  // namespace Tarnwise::Dea
