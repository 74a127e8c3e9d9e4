#include "RandomProblems.h"

#include "runtime/At.h"

#include <rapidcheck.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace Tarnwise::Dea {

namespace {

Double NumberOf(Chance& chance, Kind kind) {
  switch (kind) {
    case Kind::Zeros: return chance.OneIn(5) ? 0.0 : chance.Real(1, 10);
    case Kind::Ties: return chance.Whole(1, 4);
    case Kind::Spread: return chance.InLog(0.001, 1000);
    case Kind::Missing: return chance.OneIn(25) ? kMissing : chance.Real(1, 10);
    default: return chance.Real(10, 20);
  }
}

// Units on x1 * x2 = constant with equal outputs, moved off it by little.
void MakeLean(Chance& chance, Problem& problem) {
  for (std::size_t k = 0; k < problem.Units.size(); ++k) {
    const Double angle = chance.Real(0.1, 1.4);
    for (Column& column : problem.Columns) {
      const Double place = column.Use == Role::Input
                               ? 2.0 - std::sin(angle + static_cast<Double>(&column - problem.Columns.data()))
                               : 1.0 + 0.2 * std::cos(angle + static_cast<Double>(&column - problem.Columns.data()));
      column.Values[k] = place * (chance.OneIn(2) ? 1.0 : 1.0 + chance.Real(0.0, 0.01));
    }
  }
}

void MakeDoubles(Chance& chance, Problem& problem) {
  const int units = static_cast<int>(problem.Units.size());
  for (int k = units / 2; k < units; ++k) {
    const int original = chance.Whole(0, units / 2);
    const Double times = chance.OneIn(2) ? 1.0 : 2.0;
    for (Column& column : problem.Columns) column.Values[At(k)] = times * column.Values[At(original)];
  }
}

void MakeSizes(Chance& chance, Problem& problem) {
  for (std::size_t k = 0; k < problem.Units.size(); ++k) {
    const Double size = chance.InLog(0.001, 1000);
    for (Column& column : problem.Columns) column.Values[k] *= size;
  }
}

void MakeColumns(Chance& chance, Problem& problem) {
  for (Column& column : problem.Columns) {
    const Double size = std::pow(10.0, chance.Whole(-9, 9));
    for (Double& value : column.Values) value *= size;
  }
}

// Worst and best somewhat beyond the numbers; a rising curve of 2 to 6 points half the time.
Scale ScaleOver(Chance& chance, const Column& column) {
  Double least = kMissing;
  Double most = kMissing;
  for (const Double x : column.Values) {
    least = std::fmin(least, x);
    most = std::fmax(most, x);
  }
  if (std::isnan(least)) least = most = 1.0;
  const Double more = most > least ? most - least : std::fabs(most) + 1.0;
  const Double low = least - chance.Real(0.0, 0.2) * more;
  const Double high = most + chance.Real(0.01, 0.2) * more;
  Scale scale;
  scale.Worst = column.Use == Role::Input ? high : low;
  scale.Best = column.Use == Role::Input ? low : high;
  if (chance.OneIn(2)) return scale;
  Curve curve;
  curve.N = chance.Whole(2, 6);
  std::vector<Double> values{0.0, 1.0};
  while (static_cast<int>(values.size()) < curve.N) values.push_back(chance.Real(0.0, 1.0));
  std::sort(values.begin(), values.end());
  for (int k = 0; k < curve.N; ++k) {
    curve.X[At(k)] = low + (high - low) * k / (curve.N - 1);
    curve.Y[At(k)] = values[At(k)];
  }
  scale.ValueCurve = curve;
  return scale;
}

Judgment RandomJudgment(Chance& chance, int column) {
  const Double low = chance.OneIn(4) ? chance.InLog(0.01, 20) : chance.InLog(0.3, 1.5);
  const Double high = low * (chance.OneIn(4) ? chance.InLog(1, 100) : chance.Real(1, 2));
  switch (chance.Whole(0, 7)) {
    case 0: return JudgmentOf(column, low, low);
    case 1: return JudgmentOf(column, 0.0, high);
    case 2: return JudgmentOf(column, low, 0.0);
    default: return JudgmentOf(column, low, high);
  }
}

int AnyOf(Chance& chance, const Problem& problem, Role role) {
  std::vector<int> group;
  for (std::size_t j = 0; j < problem.Columns.size(); ++j) {
    if (problem.Columns[j].Use == role) group.push_back(static_cast<int>(j));
  }
  return group.empty() ? -1 : group[At(chance.Whole(0, static_cast<int>(group.size()) - 1))];
}

Session RandomSession(Chance& chance, const Problem& problem) {
  Session session;
  session.Basis = static_cast<Basis>(chance.Whole(0, 2));
  const int benefit = AnyOf(chance, problem, Role::Output);
  const int cost = AnyOf(chance, problem, Role::Input);
  if (benefit >= 0) session.BenefitReference = benefit;
  if (cost >= 0) session.CostReference = cost;
  if (!chance.OneIn(3)) session.Cross = chance.InLog(0.3, 3.0);
  for (int j = 0; At(j) < problem.Columns.size(); ++j) {
    if (chance.OneIn(6)) continue;
    Judgment judgment = RandomJudgment(chance, j);
    judgment.Judged = !chance.OneIn(10);
    if (chance.OneIn(4)) judgment.Snapshot = ScaleOver(chance, problem.Columns[At(j)]);
    session.Judgments.push_back(judgment);
  }
  return session;
}

}  // namespace

String NameOf(Kind kind) {
  return std::vector<String>{
      "Plain", "Zeros", "Ties", "Doubles", "Lean", "Sizes", "Columns", "Spread", "Missing"}[static_cast<std::size_t>(
      kind)];
}

Problem RandomProblem(Chance& chance, Kind kind, const Extent& extent) {
  const int units = chance.Whole(1, extent.MostUnits);
  const int inputs = chance.OneIn(12) ? 0 : chance.Whole(1, extent.MostPerSide);
  const int outputs = chance.OneIn(12) && inputs > 0 ? 0 : chance.Whole(1, extent.MostPerSide);
  std::vector<Column> columns;
  for (int j = 0; j < inputs + outputs; ++j) {
    std::vector<Double> values;
    for (int k = 0; k < units; ++k) values.push_back(NumberOf(chance, kind));
    const String name = "Column " + std::to_string(j + 1);
    columns.push_back(j < inputs ? InputColumn(name, values) : OutputColumn(name, values));
  }
  Problem problem = ProblemOf(columns);
  if (kind == Kind::Lean) MakeLean(chance, problem);
  if (kind == Kind::Doubles) MakeDoubles(chance, problem);
  if (kind == Kind::Sizes) MakeSizes(chance, problem);
  if (kind == Kind::Columns) MakeColumns(chance, problem);
  for (Column& column : problem.Columns) column.Range = ScaleOver(chance, column);
  if (!chance.OneIn(4)) problem.Session = RandomSession(chance, problem);
  return problem;
}

int Rounds(int otherwise) {
  const char* const text = std::getenv("TARNWISE_ROUNDS");
  return text != nullptr ? std::atoi(text) : otherwise;
}

Chance AnyChance() { return Chance(*rc::gen::arbitrary<std::uint64_t>()); }

}  // namespace Tarnwise::Dea
