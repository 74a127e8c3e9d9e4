#include "dea/Basis.h"
#include "dea/Forms.h"
#include "dea/RatioRanges.h"
#include "dea/Vectors.h"

#include <algorithm>
#include <cmath>

namespace Tarnwise::Dea {

namespace {

constexpr Double kIsOne = 1e-9;
constexpr Double kLeastGain = 1e-6;
constexpr Double kWorthNothing = 1e-13;  // one side's numbers come to 1 at the prices

// The numbers of the ratio form: inputs first, each column divided by its mean. A side without columns has one of 1 for
// everybody, which belongs to no column (-1).
struct Attributes {
  std::vector<int> Columns;
  std::vector<Double> Means;
  RatioData Data;
};

Double MeanOf(const Column& column, const std::vector<int>& units) {
  Double sum = 0.0;
  for (const int k : units) sum += column.Values[At(k)];
  return sum > 0.0 ? sum / static_cast<Double>(units.size()) : 1.0;
}

Attributes AttributesOf(const Problem& problem, const Checked& checked) {
  Attributes made;
  made.Columns = checked.Inputs.empty() ? std::vector<int>{-1} : checked.Inputs;
  made.Data.Inputs = static_cast<int>(made.Columns.size());
  const std::vector<int> outputs = checked.Outputs.empty() ? std::vector<int>{-1} : checked.Outputs;
  made.Columns.insert(made.Columns.end(), outputs.begin(), outputs.end());
  made.Data.Outputs = static_cast<int>(outputs.size());
  made.Data.Units = static_cast<int>(checked.Units.size());
  for (const int column : made.Columns) {
    made.Means.push_back(column < 0 ? 1.0 : MeanOf(problem.Columns[At(column)], checked.Units));
  }
  for (const int k : checked.Units) {
    for (std::size_t j = 0; j < made.Columns.size(); ++j) {
      const int column = made.Columns[j];
      made.Data.Values.push_back(column < 0 ? 1.0 : problem.Columns[At(column)].Values[At(k)] / made.Means[j]);
    }
  }
  return made;
}

int AttributeOf(const Attributes& attributes, int column) {
  const auto found = std::find(attributes.Columns.begin(), attributes.Columns.end(), column);
  return found == attributes.Columns.end() ? -1 : static_cast<int>(found - attributes.Columns.begin());
}

// A price of raw units as one of columns divided by their means.
Double ScaledBound(const Problem& problem, const Attributes& attributes, const JudgedBound& bound, Double ratio,
                   const Span& own, const Span& reference) {
  const Double price = PricePerUnit(problem.Session->Basis, ratio, own, reference) *
                       (attributes.Means[At(bound.Attribute)] / attributes.Means[At(bound.Reference)]);
  if (std::isfinite(price) && price > 0.0) return price;
  throw Refused(problem.Session->Name + ": column " + problem.Columns[At(bound.Column)].Name +
                ": the bound cannot be computed with for scores and scales of such different size.");
}

std::vector<JudgedBound> BoundsOf(const Problem& problem, const Checked& checked, const Attributes& attributes) {
  std::vector<JudgedBound> bounds;
  for (std::size_t a = 0; a < attributes.Columns.size(); ++a) {
    const int column = attributes.Columns[a];
    if (column < 0 || !checked.Judged[At(column)]) continue;
    JudgedBound bound;
    bound.Column = column;
    bound.Attribute = static_cast<int>(a);
    const int reference = checked.ReferenceOf(problem, column);
    bound.Reference = AttributeOf(attributes, reference);
    const JudgedInterval& interval = *checked.Judged[At(column)];
    for (const Side side : {Side::Low, Side::High}) {
      const bool isLow = side == Side::Low;
      const Double ratio = isLow ? interval.Ratio.Low : interval.Ratio.High;
      if (ratio == 0.0 || ratio == kNoBound) continue;
      bound.Side = side;
      bound.Ratio = isLow ? interval.AsJudged.Low : interval.AsJudged.High;
      bound.Bound =
          ScaledBound(problem, attributes, bound, ratio, checked.Spans[At(column)], checked.Spans[At(reference)]);
      bounds.push_back(bound);
    }
  }
  return bounds;
}

Box& BoxOf(RatioRegion& region, const RatioData& data, int attribute) {
  return attribute < data.Inputs ? region.Inputs : region.Outputs;
}

int PlaceInBox(const RatioData& data, int attribute) {
  return attribute < data.Inputs ? attribute : attribute - data.Inputs;
}

// The region of the bounds, one of them (by its index) left out; -1: none. Each group's reference is at price 1.
RatioRegion RegionOf(const Checked& checked, const Attributes& attributes, const std::vector<JudgedBound>& bounds,
                     int leftOut) {
  const RatioData& data = attributes.Data;
  RatioRegion region;
  region.Inputs = FreeBox(data.Inputs, std::max(0, AttributeOf(attributes, checked.CostReference)));
  region.Outputs =
      FreeBox(data.Outputs, std::max(data.Inputs, AttributeOf(attributes, checked.BenefitReference)) - data.Inputs);
  for (int b = 0; At(b) < bounds.size(); ++b) {
    if (b == leftOut) continue;
    const JudgedBound& bound = bounds[At(b)];
    Box& box = BoxOf(region, data, bound.Attribute);
    const std::size_t at = At(PlaceInBox(data, bound.Attribute));
    (bound.Side == Side::Low ? box.Low : box.High)[at] = bound.Bound;
    region.Rows.push_back(RowOf(bound));
  }
  return region;
}

// One evaluation: what its steps share.
struct Evaluation {
  const Problem& Problem_;
  const Checked& Checked_;
  Attributes Made;
  std::vector<JudgedBound> Bounds;
  RatioTechnology Technology;
  Results& Found;

  bool IsConstant() const { return Technology.Returns == Returns::Constant; }
  int Units() const { return Made.Data.Units; }
};

RatioScore ScoreOf(const Evaluation& evaluation, RatioScorer& scorer, int unit, const Watch& watch) {
  return NamingUnit(evaluation.Problem_, evaluation.Checked_, unit, [&] { return scorer.Score(unit, watch); });
}

void TakeScore(const Evaluation& evaluation, const RatioScore& score, int unit, UnitResult& result) {
  const Attributes& made = evaluation.Made;
  result.Max = score.Score;
  if (!score.Score) return;
  const std::size_t columns = evaluation.Problem_.Columns.size();
  result.Prices.assign(columns, 0.0);
  result.Shares.assign(columns, std::nullopt);
  const Double* const numbers = made.Data.InputsOf(unit);
  Double inputs = 0.0;
  Double outputs = 0.0;
  for (int a = 0; At(a) < made.Columns.size(); ++a) {
    (a < made.Data.Inputs ? inputs : outputs) += score.Prices[At(a)] * numbers[a];
  }
  for (int a = 0; At(a) < made.Columns.size(); ++a) {
    const int column = made.Columns[At(a)];
    if (column < 0) continue;
    result.Prices[At(column)] = score.Prices[At(a)] / made.Means[At(a)];
    const Double worth = a < made.Data.Inputs ? inputs : outputs;
    if (worth > kWorthNothing) result.Shares[At(column)] = score.Prices[At(a)] * numbers[a] / worth;
  }
  for (const auto& [other, lambda] : score.Peers) {
    result.Peers.push_back({evaluation.Checked_.Units[At(other)], lambda});
  }
}

void TakeFree(Evaluation& evaluation, const Watch& watch) {
  RatioScorer scorer(evaluation.Made.Data, RegionOf(evaluation.Checked_, evaluation.Made, {}, -1),
                     evaluation.Technology);
  for (int k = 0; k < evaluation.Units(); ++k) {
    watch.Report(k, evaluation.Units());
    evaluation.Found.Units[At(k)].Free = ScoreOf(evaluation, scorer, k, watch).Score;
  }
  evaluation.Found.WorstViolation = std::fmax(evaluation.Found.WorstViolation, scorer.WorstViolation());
}

void TakeSuper(Evaluation& evaluation, RatioScorer& scorer, const Watch& watch) {
  for (int k = 0; k < evaluation.Units(); ++k) {
    watch.Report(k, evaluation.Units());
    UnitResult& result = evaluation.Found.Units[At(k)];
    if (!result.Max || std::fabs(*result.Max - 1.0) > kIsOne) continue;
    result.Super = NamingUnit(evaluation.Problem_, evaluation.Checked_, k, [&] { return scorer.Super(k, watch); });
  }
}

void TakeMin(Evaluation& evaluation, const RatioRegion& region, const RatioScorer& scorer, const Watch& watch) {
  for (int k = 0; k < evaluation.Units(); ++k) {
    watch.Report(k, evaluation.Units());
    UnitResult& result = evaluation.Found.Units[At(k)];
    const Double least = LeastEfficiency(evaluation.Made.Data, region, scorer.Candidates(), k);
    if (evaluation.Technology.Orientation == Orientation::In) {
      result.Min = result.Max ? std::fmin(least, *result.Max) : least;
    } else if (least > 0.0 && std::isfinite(1.0 / least)) {
      result.Min = result.Max ? std::fmax(1.0 / least, *result.Max) : 1.0 / least;
    }
  }
}

// What a score with less held against it gains on the judged one.
Double GainOf(const Evaluation& evaluation, Double judged, Double without) {
  return evaluation.Technology.Orientation == Orientation::In ? without - judged : judged - without;
}

bool MayBeHeldBack(const Evaluation& evaluation, const UnitResult& result) {
  return result.Max && result.Free && GainOf(evaluation, *result.Max, *result.Free) > kLeastGain;
}

// The bounds that bite in a unit's program are the only ones that can cost it anything.
void TakeHeldBack(Evaluation& evaluation, const std::vector<std::vector<int>>& unitsOfBound, const Watch& watch) {
  for (int b = 0; At(b) < unitsOfBound.size(); ++b) {
    watch.Report(b, static_cast<int>(unitsOfBound.size()));
    if (unitsOfBound[At(b)].empty()) continue;
    const JudgedBound& bound = evaluation.Bounds[At(b)];
    RatioScorer scorer(evaluation.Made.Data, RegionOf(evaluation.Checked_, evaluation.Made, evaluation.Bounds, b),
                       evaluation.Technology);
    for (const int k : unitsOfBound[At(b)]) {
      watch.LookAtFlag();
      UnitResult& result = evaluation.Found.Units[At(k)];
      const Double gain = GainOf(evaluation, *result.Max, *ScoreOf(evaluation, scorer, k, watch).Score);
      if (gain > kLeastGain) result.HeldBackBy.push_back({bound.Column, bound.Side, bound.Ratio, gain});
    }
    evaluation.Found.WorstViolation = std::fmax(evaluation.Found.WorstViolation, scorer.WorstViolation());
  }
  for (UnitResult& result : evaluation.Found.Units) {
    std::stable_sort(result.HeldBackBy.begin(), result.HeldBackBy.end(),
                     [](const HeldBackBy& a, const HeldBackBy& b) { return a.Gain > b.Gain; });
  }
}

void TakeRanks(Evaluation& evaluation, const RatioRegion& region, const Watch& watch) {
  if (evaluation.Units() > kMostRankedUnits) {
    evaluation.Found.Notes.emplace_back("Ranks are worked out for 20,000 units at most.");
    return;
  }
  const RatioData& data = evaluation.Made.Data;
  const auto sure = SureRatioRanks(data, region, watch.Part(0.0, 0.7));
  const auto seen = SeenRatioRanks(data, region, evaluation.Problem_.Options.Seed, watch.Part(0.7, 1.0));
  for (std::size_t k = 0; k < sure.size(); ++k) {
    evaluation.Found.Units[k].Ranks = sure[k];
    evaluation.Found.Units[k].RanksSeen = seen[k];
  }
}

void TakeJudged(Evaluation& evaluation, const Watch& watch) {
  const Options& options = evaluation.Problem_.Options;
  const bool isJudged = evaluation.Problem_.Session.has_value();
  const RatioRegion region = RegionOf(evaluation.Checked_, evaluation.Made, evaluation.Bounds, -1);
  RatioScorer scorer(evaluation.Made.Data, region, evaluation.Technology);
  std::vector<std::vector<int>> unitsOfBound(evaluation.Bounds.size());
  const Watch scoring = watch.Part(0.0, 0.3);
  for (int k = 0; k < evaluation.Units(); ++k) {
    scoring.Report(k, evaluation.Units());
    UnitResult& result = evaluation.Found.Units[At(k)];
    const RatioScore score = ScoreOf(evaluation, scorer, k, watch);
    TakeScore(evaluation, score, k, result);
    if (!isJudged) result.Free = result.Max;
    if (!options.HeldBack || !MayBeHeldBack(evaluation, result)) continue;
    for (const int b : score.Binding) unitsOfBound[At(b)].push_back(k);
  }
  if (evaluation.IsConstant()) TakeSuper(evaluation, scorer, watch.Part(0.3, 0.4));
  if (isJudged && evaluation.IsConstant()) TakeMin(evaluation, region, scorer, watch.Part(0.4, 0.5));
  evaluation.Found.WorstViolation = std::fmax(evaluation.Found.WorstViolation, scorer.WorstViolation());
  TakeHeldBack(evaluation, unitsOfBound, watch.Part(0.5, 0.7));
  if (isJudged && evaluation.IsConstant() && options.Ranks) TakeRanks(evaluation, region, watch.Part(0.7, 1.0));
}

}  // namespace

std::vector<int> RatioDominators(const Problem& problem, const Checked& checked, int unit) {
  if (problem.Options.Returns != Returns::Constant) return {};
  const Attributes made = AttributesOf(problem, checked);
  const RatioRegion region = RegionOf(checked, made, BoundsOf(problem, checked, made), -1);
  return WinnersOver(unit, made.Data.Units,
                     [&](int winner, int loser) { return DominatesSurely(made.Data, region, winner, loser); });
}

void EvaluateRatios(const Problem& problem, const Checked& checked, const Watch& watch, Results& results) {
  Evaluation evaluation{problem, checked, AttributesOf(problem, checked), {}, {}, results};
  evaluation.Technology = {problem.Options.Returns, problem.Options.Orientation};
  if (problem.Session) evaluation.Bounds = BoundsOf(problem, checked, evaluation.Made);
  results.Units.resize(checked.Units.size());
  for (std::size_t k = 0; k < checked.Units.size(); ++k) results.Units[k].Unit = checked.Units[k];
  const Double free = problem.Session ? 0.3 : 0.0;
  if (problem.Session) TakeFree(evaluation, watch.Part(0.0, free));
  TakeJudged(evaluation, watch.Part(free, 1.0));
}

}  // namespace Tarnwise::Dea
