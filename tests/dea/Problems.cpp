#include "Problems.h"

#include <algorithm>
#include <cmath>

namespace Tarnwise::Dea {

namespace {

Column ColumnOf(const String& name, Role role, std::vector<Double> values) {
  Column column;
  column.Name = name;
  column.Use = role;
  Double least = std::numeric_limits<Double>::infinity();
  Double most = -least;
  for (const Double x : values) {
    if (std::isnan(x)) continue;
    least = std::fmin(least, x);
    most = std::fmax(most, x);
  }
  column.Range.Worst = role == Role::Input ? most : least;
  column.Range.Best = role == Role::Input ? least : most;
  column.Values = std::move(values);
  return column;
}

}  // namespace

Column InputColumn(const String& name, std::vector<Double> values) {
  return ColumnOf(name, Role::Input, std::move(values));
}

Column OutputColumn(const String& name, std::vector<Double> values) {
  return ColumnOf(name, Role::Output, std::move(values));
}

Curve CurveThrough(const std::vector<Double>& x, const std::vector<Double>& y) {
  Curve curve;
  curve.N = static_cast<int>(x.size());
  std::copy(x.begin(), x.end(), curve.X.begin());
  std::copy(y.begin(), y.end(), curve.Y.begin());
  return curve;
}

Problem ProblemOf(std::vector<Column> columns) {
  Problem problem;
  const std::size_t units = columns.empty() ? 0 : columns.front().Values.size();
  for (std::size_t k = 0; k < units; ++k) problem.Units.push_back(std::to_string(k + 1));
  problem.Columns = std::move(columns);
  return problem;
}

Problem Hospitals() {
  Problem problem = ProblemOf({
      InputColumn("Doctors", {20, 19, 25, 27, 22, 55, 33, 31, 30, 50, 53, 38}),
      InputColumn("Nurses", {151, 131, 160, 168, 158, 255, 235, 206, 244, 268, 306, 284}),
      OutputColumn("Outpatients", {100, 150, 160, 180, 94, 230, 220, 152, 190, 250, 260, 250}),
      OutputColumn("Inpatients", {90, 50, 55, 72, 66, 90, 88, 80, 100, 100, 147, 120}),
  });
  for (std::size_t k = 0; k < problem.Units.size(); ++k) problem.Units[k] = String("Hospital ") + "ABCDEFGHIJKL"[k];
  const std::vector<Scale> scales{
      {55, 19, CurveThrough({15, 24, 33, 42, 51, 60}, {0, 0.18, 0.37, 0.57, 0.78, 1})},
      {306, 131, CurveThrough({120, 320}, {0, 1})},
      {94, 260, CurveThrough({90, 126, 162, 198, 234, 270}, {0, 0.25, 0.48, 0.68, 0.85, 1})},
      {50, 147, CurveThrough({40, 67.5, 95, 122.5, 150}, {0, 0.29, 0.55, 0.79, 1})},
  };
  for (std::size_t j = 0; j < scales.size(); ++j) problem.Columns[j].Range = scales[j];
  return problem;
}

Judgment JudgmentOf(int column, Double low, Double high) {
  Judgment judgment;
  judgment.Column = column;
  judgment.Low = low;
  judgment.High = high;
  return judgment;
}

Session HospitalSession(Basis basis, Interval doctors, Interval inpatients, std::optional<Double> cross) {
  Session session;
  session.Basis = basis;
  session.BenefitReference = 2;
  session.CostReference = 1;
  session.Cross = cross;
  session.Judgments = {JudgmentOf(0, doctors.Low, doctors.High), JudgmentOf(3, inpatients.Low, inpatients.High)};
  return session;
}

// Nurses over doctors in 0.2 to 5 is the same as doctors over nurses in 0.2 to 5.
Session BoundsSession() { return HospitalSession(Basis::Unit, {0.2, 5}, {0.2, 5}, std::nullopt); }
Session DirectSession() { return HospitalSession(Basis::Range, {3, 4.09}, {2, 2.5}, 1.15); }
Session TradedSession() { return HospitalSession(Basis::Scale, {1.3857, 2.0955}, {1.2015, 1.2015}, 1.0983); }

Problem HospitalsJudged(const Session& session, Form form) {
  Problem problem = Hospitals();
  problem.Session = session;
  problem.Options.Form = form;
  return problem;
}

Problem WithUnits(const Problem& problem, const std::vector<int>& order) {
  Problem changed = problem;
  changed.Units.clear();
  for (const int k : order) changed.Units.push_back(problem.Units[static_cast<std::size_t>(k)]);
  for (std::size_t j = 0; j < problem.Columns.size(); ++j) {
    changed.Columns[j].Values.clear();
    for (const int k : order) {
      changed.Columns[j].Values.push_back(problem.Columns[j].Values[static_cast<std::size_t>(k)]);
    }
  }
  return changed;
}

String RefusalOf(const Problem& problem) {
  try {
    Evaluate(problem);
  } catch (const Refused& refused) {
    return refused.what();
  }
  return {};
}

std::vector<Double> All(const Results& results, Field field) {
  std::vector<Double> numbers;
  for (const UnitResult& unit : results.Units) numbers.push_back((unit.*field).value_or(kMissing));
  return numbers;
}

void ExpectAll(const std::vector<Double>& expected, const std::vector<Double>& actual, Double tolerance) {
  ASSERT_EQ(expected.size(), actual.size());
  for (std::size_t k = 0; k < expected.size(); ++k) {
    if (std::isnan(expected[k])) {
      EXPECT_TRUE(std::isnan(actual[k])) << "unit " << k << " is " << actual[k];
    } else {
      EXPECT_NEAR(expected[k], actual[k], tolerance) << "unit " << k;
    }
  }
}

}  // namespace Tarnwise::Dea
