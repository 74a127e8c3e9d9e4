// Random problems as project files, by way of `tarnwise solve --json`, against their definitions solved by another
// library. TARNWISE_ROUNDS in the environment sets how many problems of each kind there are.
#include "RandomProblems.h"
#include "Reference.h"
#include "modelfiles/Json.h"
#include "program/SolveCommand.h"
#include "project/ProjectFile.h"
#include "support/TemporaryFolder.h"

#include <cmath>
#include <sstream>

namespace Tarnwise::Dea {
namespace {

constexpr Double kAnswersDiffer = 1e-7;  // relative to what is 1 or more

ColumnScale ScaleFor(const Scale& from) {
  ColumnScale scale{from.Worst, from.Best, {}};
  if (!from.ValueCurve) return scale;
  for (std::size_t k = 0; k < static_cast<std::size_t>(from.ValueCurve->N); ++k) {
    scale.Curve.push_back({from.ValueCurve->X[k], from.ValueCurve->Y[k]});
  }
  return scale;
}

JudgmentSession SessionFor(const Problem& problem) {
  const Session& from = *problem.Session;
  const auto name = [&problem](std::optional<int> column) {
    return column ? problem.Columns[static_cast<std::size_t>(*column)].Name : String();
  };
  JudgmentSession session;
  session.Basis = static_cast<JudgmentBasis>(from.Basis);
  session.BenefitReference = name(from.BenefitReference);
  session.CostReference = name(from.CostReference);
  if (from.Cross) session.Cross = SessionCross{from.Cross, true, {}};
  for (const Judgment& judgment : from.Judgments) {
    SessionAttribute attribute;
    attribute.Name = name(judgment.Column);
    attribute.Judged = judgment.Judged;
    attribute.Low = judgment.Low;
    attribute.High = judgment.High;
    if (judgment.Snapshot) attribute.Snapshot = ScaleFor(*judgment.Snapshot);
    session.Attributes.push_back(attribute);
  }
  return session;
}

Project ProjectFor(const Problem& problem) {
  Project project;
  project.Units = problem.Units;
  for (const Column& from : problem.Columns) {
    DataColumn column;
    column.Name = from.Name;
    column.Role = from.Use == Role::Input ? Tarnwise::Role::Input : Tarnwise::Role::Output;
    const ColumnScale scale = ScaleFor(from.Range);
    column.Worst = scale.Worst;
    column.Best = scale.Best;
    column.Curve = scale.Curve;
    for (const Double x : from.Values) column.Values.push_back(std::isnan(x) ? std::nullopt : std::optional(x));
    project.Columns.push_back(column);
  }
  if (problem.Session) project.Sessions.push_back(SessionFor(problem));
  return project;
}

struct Solved {
  int Status = 0;
  String Errors;
  Json Results;
};

Solved Solve(const Problem& problem) {
  const TemporaryFolder folder;
  SolveOptions options;
  options.Project = folder.Write("random.tarnwise", ProjectText(ProjectFor(problem)));
  options.Json = "-";
  options.Wishes.Form = problem.Options.Form == Form::Ratio ? "ratio" : "value";
  options.Wishes.Returns =
      std::vector<String>{"crs", "vrs", "nirs", "ndrs"}[static_cast<std::size_t>(problem.Options.Returns)];
  options.Wishes.Orientation = problem.Options.Orientation == Orientation::In ? "in" : "out";
  std::ostringstream out;
  std::ostringstream err;
  Solved answer;
  answer.Status = SolveProject(options, {out, err});
  answer.Errors = err.str();
  if (answer.Status == 0) answer.Results = Json::parse(out.str());
  return answer;
}

std::optional<Double> NumberAt(const Json& unit, const char* key) {
  if (unit.at(key).is_null()) return std::nullopt;
  return unit.at(key).get<Double>();
}

void ExpectSame(const std::optional<Double>& expected, const Json& unit, const char* key) {
  const std::optional<Double> found = NumberAt(unit, key);
  EXPECT_TRUE(IsSame(expected, found, kAnswersDiffer))
      << unit.at("name") << " " << key << ": " << expected.value_or(NAN) << " is " << found.value_or(NAN);
}

// By the second library; where that gives up or disagrees, rational arithmetic decides.
template <typename Reference>
void ExpectSolved(const Json& unit, const char* key, Reference reference) {
  std::optional<Double> expected;
  try {
    expected = reference(LeastCostByClp);
    if (IsSame(expected, NumberAt(unit, key), kAnswersDiffer)) return;
  } catch (const std::runtime_error&) {
  }
  ExpectSame(reference(LeastCostExactly), unit, key);
}

void CheckRatios(const Problem& problem, const Json& results) {
  const RawBounds free = PricesOf(problem, false);
  const RawBounds judged = PricesOf(problem, true);
  const bool in = problem.Options.Orientation == Orientation::In;
  const std::vector<int> units = UnitsThatCount(problem);
  ASSERT_EQ(results.at("units").size(), units.size());
  for (int k = 0; k < static_cast<int>(units.size()); ++k) {
    const Json& unit = results.at("units").at(static_cast<std::size_t>(k));
    const int place = units[static_cast<std::size_t>(k)];
    EXPECT_EQ(unit.at("name"), problem.Units[static_cast<std::size_t>(place)]);
    if (!in && !HasOutputs(problem, place)) {
      EXPECT_TRUE(unit.at("max").is_null() && unit.at("free").is_null());
      EXPECT_TRUE(unit.at("prices").empty() && unit.at("peers").empty());
      continue;
    }
    ExpectSolved(unit, "free", [&](Solver solver) { return ReferenceMax(problem, free, k, -1, solver); });
    ExpectSolved(unit, "max", [&](Solver solver) { return ReferenceMax(problem, judged, k, -1, solver); });
    if (problem.Options.Returns != Returns::Constant) continue;
    if (problem.Session) {
      const Double least = ReferenceMin(problem, judged, k);
      ExpectSame(in ? std::optional(least) : least > 0.0 ? std::optional(1.0 / least) : std::nullopt, unit, "min");
    }
    if (unit.at("super").is_null()) continue;
    ExpectSolved(unit, "super", [&](Solver solver) { return ReferenceMax(problem, judged, k, k, solver); });
  }
}

void CheckValues(const Problem& problem, const Json& results) {
  const std::vector<int> units = UnitsThatCount(problem);
  ASSERT_EQ(results.at("units").size(), units.size());
  for (int k = 0; k < static_cast<int>(units.size()); ++k) {
    const Json& unit = results.at("units").at(static_cast<std::size_t>(k));
    ExpectSolved(unit, "distance", [&](Solver solver) { return ReferenceDistance(problem, k, solver); });
    ExpectSame(ReferenceRegret(problem, k), unit, "regret");
    const Interval range = ReferenceValue(problem, k);
    EXPECT_NEAR(unit.at("value").at(0).get<Double>(), range.Low, kAnswersDiffer) << unit.at("name");
    EXPECT_NEAR(unit.at("value").at(1).get<Double>(), range.High, kAnswersDiffer) << unit.at("name");
  }
}

void Check(const Problem& problem) {
  const Solved answer = Solve(problem);
  if (UnitsThatCount(problem).empty()) {
    EXPECT_EQ(answer.Status, 2);
    EXPECT_NE(answer.Errors, "");
    return;
  }
  ASSERT_EQ(answer.Status, 0) << answer.Errors;
  EXPECT_LE(answer.Results.at("worstViolation").get<Double>(), 1e-9);
  EXPECT_EQ(answer.Results.at("leftOut").size(), problem.Units.size() - UnitsThatCount(problem).size());
  if (problem.Options.Form == Form::Ratio) {
    CheckRatios(problem, answer.Results);
  } else {
    CheckValues(problem, answer.Results);
  }
}

class EndToEnd : public testing::TestWithParam<int> {};

TEST_P(EndToEnd, ProjectFilesGiveWhatTheirDefinitionsSay) {
  const auto kind = static_cast<Kind>(GetParam());
  for (int round = 0; round < Rounds(12) && !HasFailure(); ++round) {
    Chance chance(static_cast<std::uint64_t>(7001 * GetParam() + round) + 400013);
    Problem problem = RandomProblem(chance, kind, round % 4 == 3 ? Extent{40, 6} : Extent());
    problem.Options.Returns = static_cast<Returns>(chance.Whole(0, 3));
    for (const Form form : {Form::Ratio, Form::Value}) {
      for (const Orientation orientation : {Orientation::In, Orientation::Out}) {
        if (form == Form::Value && orientation == Orientation::Out) continue;
        problem.Options.Form = form;
        problem.Options.Orientation = orientation;
        SCOPED_TRACE(NameOf(kind) + ", round " + std::to_string(round) + ", form " +
                     std::to_string(static_cast<int>(form)) + ", returns " +
                     std::to_string(static_cast<int>(problem.Options.Returns)) + ", orientation " +
                     std::to_string(static_cast<int>(orientation)));
        Check(problem);
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(AllKinds, EndToEnd, testing::Range(0, kKinds),
                         [](const auto& kind) { return NameOf(static_cast<Kind>(kind.param)); });

}  // namespace
}  // namespace Tarnwise::Dea
