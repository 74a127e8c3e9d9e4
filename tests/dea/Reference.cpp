#include "Reference.h"

#include "dea/Values.h"
#include "runtime/At.h"

#include <algorithm>
#include <cmath>

namespace Tarnwise::Dea {

namespace {

bool IsInput(const Problem& problem, std::size_t j) { return problem.Columns[j].Use == Role::Input; }

// All units' numbers of one side, each column over its mean; a side without columns is 1 for everybody.
struct SideData {
  std::vector<std::size_t> Columns;
  std::vector<double> Means;
  std::vector<std::vector<double>> Of;  // unit, column
};

SideData SideOf(const Problem& problem, Role role) {
  SideData side;
  const std::vector<int> units = UnitsThatCount(problem);
  side.Of.resize(units.size());
  for (std::size_t j = 0; j < problem.Columns.size(); ++j) {
    if (problem.Columns[j].Use != role) continue;
    double sum = 0.0;
    for (const int k : units) sum += problem.Columns[j].Values[At(k)];
    const double mean = sum > 0.0 ? sum / static_cast<double>(units.size()) : 1.0;
    side.Columns.push_back(j);
    side.Means.push_back(mean);
    for (std::size_t k = 0; k < units.size(); ++k) side.Of[k].push_back(problem.Columns[j].Values[At(units[k])] / mean);
  }
  if (side.Columns.empty()) {
    for (auto& unit : side.Of) unit.push_back(1.0);
  }
  return side;
}

using Rays = std::vector<std::vector<double>>;

// The extreme directions of one side's prices (over the means), reference at 1.
Rays RaysOf(const SideData& side, const RawBounds& bounds) {
  if (side.Columns.empty()) return {{1.0}};
  Rays corners{{}};
  const std::size_t reference = At(bounds.References[side.Columns.front()]);
  const double referenceMean = side.Means[At(
      static_cast<int>(std::find(side.Columns.begin(), side.Columns.end(), reference) - side.Columns.begin()))];
  for (std::size_t c = 0; c < side.Columns.size(); ++c) {
    const double scale = side.Means[c] / referenceMean;
    const double low = bounds.Low[side.Columns[c]] * scale;
    const double high = bounds.High[side.Columns[c]] * scale;
    Rays more;
    for (const auto& corner : corners) {
      more.push_back(corner);
      more.back().push_back(low);
      if (high == kInfinite || high == low) continue;
      more.push_back(corner);
      more.back().push_back(high);
    }
    corners = std::move(more);
  }
  for (std::size_t c = 0; c < side.Columns.size(); ++c) {
    if (bounds.High[side.Columns[c]] < kInfinite) continue;
    corners.emplace_back(side.Columns.size(), 0.0);
    corners.back()[c] = 1.0;
  }
  return corners;
}

double Product(const std::vector<double>& a, const std::vector<double>& b) {
  double sum = 0.0;
  for (std::size_t j = 0; j < a.size(); ++j) sum += a[j] * b[j];
  return sum;
}

double LeastOver(const Rays& rays, const std::vector<double>& a, const std::vector<double>& b) {
  double least = kInfinite;
  for (const auto& ray : rays) {
    const double under = Product(ray, b);
    if (under > 0.0) least = std::fmin(least, Product(ray, a) / under);
  }
  return least;
}

bool AnyAbove(const std::vector<double>& numbers) {
  return std::any_of(numbers.begin(), numbers.end(), [](double x) { return x > 0.0; });
}

double LeastProduct(const SideData& inputs, const SideData& outputs, const Rays& v, const Rays& u, int a, int b) {
  const double first = LeastOver(u, outputs.Of[At(a)], outputs.Of[At(b)]);
  return first == 0.0 ? 0.0 : first * LeastOver(v, inputs.Of[At(b)], inputs.Of[At(a)]);
}

std::vector<std::vector<double>> Goodness(const Problem& problem) {
  std::vector<std::vector<double>> all;
  const std::vector<int> units = UnitsThatCount(problem);
  for (const int k : units) {
    all.emplace_back();
    for (std::size_t j = 0; j < problem.Columns.size(); ++j) {
      const double value = ValueFunction(ScaleInUse(problem, static_cast<int>(j))).At(problem.Columns[j].Values[At(k)]);
      all.back().push_back(IsInput(problem, j) ? 1.0 - value : value);
    }
  }
  return all;
}

// Extreme weights of the value form, not normalised.
Rays ValueRays(const Problem& problem) {
  const RawBounds bounds = WeightsOf(problem);
  const std::optional<double> cross = CrossOf(problem);
  Rays groups[2];
  for (const Role role : {Role::Output, Role::Input}) {
    SideData side = SideOf(problem, role);
    if (side.Columns.empty()) continue;
    std::fill(side.Means.begin(), side.Means.end(), 1.0);
    for (const auto& ray : RaysOf(side, bounds)) {
      std::vector<double> whole(problem.Columns.size(), 0.0);
      for (std::size_t c = 0; c < side.Columns.size(); ++c) whole[side.Columns[c]] = ray[c];
      groups[role == Role::Input].push_back(whole);
    }
  }
  Rays rays;
  if (!cross || groups[0].empty() || groups[1].empty()) {
    for (const Rays& group : groups) rays.insert(rays.end(), group.begin(), group.end());
    return rays;
  }
  // With both references in a fixed relation: one group's corner with the other's, and directions without a reference
  // alone.
  for (const auto& b : groups[0]) {
    for (const auto& c : groups[1]) {
      const bool bCorner = b[At(ReferenceOf(problem, Role::Output))] > 0.0;
      const bool cCorner = c[At(ReferenceOf(problem, Role::Input))] > 0.0;
      if (!bCorner) rays.push_back(b);
      if (!cCorner) rays.push_back(c);
      if (!bCorner || !cCorner) continue;
      for (const double r : {*cross / problem.Options.CrossBand, *cross * problem.Options.CrossBand}) {
        rays.push_back(b);
        for (std::size_t j = 0; j < c.size(); ++j) rays.back()[j] += r * c[j];
      }
    }
  }
  return rays;
}

double Sum(const std::vector<double>& numbers) {
  double sum = 0.0;
  for (const double x : numbers) sum += x;
  return sum;
}

double LeastDifference(const Problem& problem, int a, int b) {
  const auto all = Goodness(problem);
  double least = kInfinite;
  for (const auto& ray : ValueRays(problem)) {
    least = std::fmin(least, (Product(ray, all[At(a)]) - Product(ray, all[At(b)])) / Sum(ray));
  }
  return least;
}

}  // namespace

std::vector<int> UnitsThatCount(const Problem& problem) {
  std::vector<int> units;
  for (std::size_t k = 0; k < problem.Units.size(); ++k) {
    bool counts = true;
    bool anyInput = FirstOf(problem, Role::Input) < 0 || problem.Options.Form == Form::Value;
    for (std::size_t j = 0; j < problem.Columns.size(); ++j) {
      const double x = problem.Columns[j].Values[k];
      if (std::isnan(x)) counts = false;
      if (IsInput(problem, j) && x > 0.0) anyInput = true;
    }
    if (counts && anyInput) units.push_back(static_cast<int>(k));
  }
  return units;
}

std::optional<double> ReferenceMax(const Problem& problem, const RawBounds& bounds, int unit, int without,
                                   Solver solver) {
  const SideData inputs = SideOf(problem, Role::Input);
  const SideData outputs = SideOf(problem, Role::Output);
  const std::size_t m = inputs.Of[0].size();
  const std::size_t s = outputs.Of[0].size();
  const bool out = problem.Options.Orientation == Orientation::Out;
  const Returns returns = problem.Options.Returns;
  // v, u, and the two parts of u0 that may be there.
  const bool plus = returns == Returns::Variable || returns == Returns::NonDecreasing;
  const bool minus = returns == Returns::Variable || returns == Returns::NonIncreasing;
  const std::size_t columns = m + s + (plus ? 1 : 0) + (minus ? 1 : 0);
  DenseProgram program;
  program.IsFree.assign(columns, false);
  const auto rowOf = [&](int k) {
    std::vector<double> row(columns, 0.0);
    for (std::size_t i = 0; i < m; ++i) row[i] = -inputs.Of[At(k)][i];
    for (std::size_t r = 0; r < s; ++r) row[m + r] = outputs.Of[At(k)][r];
    if (plus) row[m + s] = 1.0;
    if (minus) row[columns - 1] = -1.0;
    return row;
  };
  const std::vector<double> own = rowOf(unit);
  program.Costs.assign(columns, 0.0);
  DenseProgram::Row normal;
  normal.Low = normal.High = 1.0;
  normal.Entries.assign(columns, 0.0);
  for (std::size_t j = 0; j < columns; ++j) {
    const bool isNormal = out ? j >= m && j < m + s : j < m;
    (isNormal ? normal.Entries : program.Costs)[j] = isNormal ? std::fabs(own[j]) : -own[j];
  }
  program.Rows.push_back(normal);
  for (int k = 0; At(k) < inputs.Of.size(); ++k) {
    if (k != without) program.Rows.push_back({-kInfinite, 0.0, rowOf(k)});
  }
  const auto addBounds = [&](const SideData& side, std::size_t first) {
    for (std::size_t c = 0; c < side.Columns.size(); ++c) {
      const std::size_t reference = At(bounds.References[side.Columns[c]]);
      if (reference == side.Columns[c]) continue;
      const std::size_t at =
          At(static_cast<int>(std::find(side.Columns.begin(), side.Columns.end(), reference) - side.Columns.begin()));
      const double scale = side.Means[c] / side.Means[at];
      for (const bool low : {true, false}) {
        const double bound = (low ? bounds.Low : bounds.High)[side.Columns[c]] * scale;
        if (bound == 0.0 || bound == kInfinite) continue;
        DenseProgram::Row row;
        row.High = 0.0;
        row.Entries.assign(columns, 0.0);
        row.Entries[first + at] = low ? bound : -bound;
        row.Entries[first + c] = low ? -1.0 : 1.0;
        program.Rows.push_back(row);
      }
    }
  };
  addBounds(inputs, 0);
  addBounds(outputs, m);
  const std::optional<double> least = solver(program);
  if (!least) return std::nullopt;
  return out ? *least : -*least;
}

double ReferenceMin(const Problem& problem, const RawBounds& bounds, int unit) {
  const SideData inputs = SideOf(problem, Role::Input);
  const SideData outputs = SideOf(problem, Role::Output);
  if (!AnyAbove(outputs.Of[At(unit)])) return 0.0;
  const Rays v = RaysOf(inputs, bounds);
  const Rays u = RaysOf(outputs, bounds);
  double least = 1.0;
  for (int k = 0; At(k) < inputs.Of.size(); ++k) {
    if (AnyAbove(outputs.Of[At(k)])) least = std::fmin(least, LeastProduct(inputs, outputs, v, u, unit, k));
  }
  return least;
}

bool ReferenceDominates(const Problem& problem, const RawBounds& bounds, int winner, int loser) {
  const SideData inputs = SideOf(problem, Role::Input);
  const SideData outputs = SideOf(problem, Role::Output);
  if (!AnyAbove(outputs.Of[At(winner)])) return false;
  if (!AnyAbove(outputs.Of[At(loser)])) return true;
  return LeastProduct(inputs, outputs, RaysOf(inputs, bounds), RaysOf(outputs, bounds), winner, loser) > 1.0 + 1e-9;
}

std::optional<double> ReferenceDistance(const Problem& problem, int unit, Solver solver) {
  const auto all = Goodness(problem);
  if (all.size() == 1) return std::nullopt;
  const RawBounds bounds = WeightsOf(problem);
  const std::size_t q = problem.Columns.size();
  DenseProgram program;
  program.Costs.assign(q + 1, 0.0);
  program.Costs[q] = 1.0;
  program.IsFree.assign(q + 1, false);
  program.IsFree[q] = true;
  program.Rows.push_back({1.0, 1.0, std::vector<double>(q + 1, 1.0)});
  program.Rows.back().Entries[q] = 0.0;
  for (std::size_t k = 0; k < all.size(); ++k) {
    if (k == At(unit)) continue;
    DenseProgram::Row row{-kInfinite, 0.0, std::vector<double>(q + 1, -1.0)};
    for (std::size_t j = 0; j < q; ++j) row.Entries[j] = all[k][j] - all[At(unit)][j];
    program.Rows.push_back(row);
  }
  const auto bind = [&](int column, int reference, double low, double high) {
    if (low > 0.0) {
      program.Rows.push_back({-kInfinite, 0.0, std::vector<double>(q + 1, 0.0)});
      program.Rows.back().Entries[At(reference)] = low;
      program.Rows.back().Entries[At(column)] = -1.0;
    }
    if (high < kInfinite) {
      program.Rows.push_back({-kInfinite, 0.0, std::vector<double>(q + 1, 0.0)});
      program.Rows.back().Entries[At(reference)] = -high;
      program.Rows.back().Entries[At(column)] = 1.0;
    }
  };
  for (std::size_t j = 0; j < q; ++j) {
    if (bounds.References[j] != static_cast<int>(j))
      bind(static_cast<int>(j), bounds.References[j], bounds.Low[j], bounds.High[j]);
  }
  if (const std::optional<double> cross = CrossOf(problem)) {
    bind(ReferenceOf(problem, Role::Input), ReferenceOf(problem, Role::Output), *cross / problem.Options.CrossBand,
         *cross * problem.Options.CrossBand);
  }
  return solver(program);
}

Interval ReferenceValue(const Problem& problem, int unit) {
  const auto all = Goodness(problem);
  Interval range{kInfinite, -kInfinite};
  for (const auto& ray : ValueRays(problem)) {
    const double value = Product(ray, all[At(unit)]) / Sum(ray);
    range.Low = std::fmin(range.Low, value);
    range.High = std::fmax(range.High, value);
  }
  return range;
}

double ReferenceRegret(const Problem& problem, int unit) {
  double most = 0.0;
  for (int k = 0; At(k) < UnitsThatCount(problem).size(); ++k)
    most = std::fmax(most, -LeastDifference(problem, unit, k));
  return most;
}

bool ReferenceValueDominates(const Problem& problem, int winner, int loser) {
  return LeastDifference(problem, winner, loser) > 1e-9;
}

bool HasOutputs(const Problem& problem, int unit) {
  bool any = false;
  for (const Column& column : problem.Columns) {
    if (column.Use != Role::Output) continue;
    any = true;
    if (column.Values[At(unit)] > 0.0) return true;
  }
  return !any;
}

bool IsSame(const std::optional<double>& a, const std::optional<double>& b, double tolerance) {
  return a.has_value() == b.has_value() && (!a || std::fabs(*a - *b) <= tolerance * std::fmax(1.0, std::fabs(*a)));
}

}  // namespace Tarnwise::Dea
