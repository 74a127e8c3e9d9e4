// What is refused, left out or noted, and that the texts say where.
#include "Problems.h"

#include <algorithm>
#include <cmath>

namespace Tarnwise::Dea {
namespace {

constexpr Double kInfinity = std::numeric_limits<Double>::infinity();

bool Mentions(const String& text, const std::vector<String>& words) {
  return std::all_of(words.begin(), words.end(), [&](const String& word) { return text.find(word) != String::npos; });
}

void ExpectRefused(const Problem& problem, const std::vector<String>& words) {
  const String text = RefusalOf(problem);
  EXPECT_TRUE(!text.empty() && Mentions(text, words)) << "'" << text << "'";
}

void ExpectNoted(const Problem& problem, const std::vector<String>& words) {
  const Results results = Evaluate(problem);
  const bool found = std::any_of(results.Notes.begin(), results.Notes.end(),
                                 [&](const Note& note) { return Mentions(note.Text, words); });
  EXPECT_TRUE(found) << words.front();
}

Session& SessionOf(Problem& problem) { return *problem.Session; }

Problem Judged(Form form = Form::Ratio) {
  Problem problem = HospitalsJudged(DirectSession(), form);
  SessionOf(problem).Name = "session 0";
  return problem;
}

TEST(Refusals, ANegativeNumberInTheRatioFormNamesColumnAndUnit) {
  Problem problem = Hospitals();
  problem.Columns[1].Values[3] = -4.5;
  ExpectRefused(problem, {"Nurses", "Hospital D", "-4.5", "negative"});
  problem.Options.Form = Form::Value;
  EXPECT_EQ("", RefusalOf(problem));
}

TEST(Refusals, NumbersBeyondAllMeasure) {
  for (const Double bad : {kInfinity, 1e101, 1e-101}) {
    Problem problem = Hospitals();
    problem.Columns[2].Values[0] = bad;
    ExpectRefused(problem, {"Outpatients", "Hospital A", bad > 1.0 ? "too large" : "too small"});
  }
}

TEST(Refusals, NothingToEvaluate) {
  ExpectRefused(Problem{}, {"no unit"});
  Problem problem = Hospitals();
  problem.Columns.clear();
  ExpectRefused(problem, {"No column is used"});
  problem = Hospitals();
  for (Double& x : problem.Columns[0].Values) x = kMissing;
  ExpectRefused(problem, {"No unit is left", "Hospital A", "Doctors"});
}

TEST(Refusals, MoreThan31Columns) {
  std::vector<Column> columns;
  for (int j = 0; j < 32; ++j) columns.push_back(InputColumn("Column " + std::to_string(j), {1, 2}));
  ExpectRefused(ProblemOf(columns), {"32", "31"});
  columns.pop_back();
  EXPECT_EQ("", RefusalOf(ProblemOf(columns)));
}

TEST(Refusals, AColumnOfAnotherLength) {
  Problem problem = Hospitals();
  problem.Columns[3].Values.pop_back();
  ExpectRefused(problem, {"Inpatients", "11", "12"});
}

TEST(Refusals, WorstAndBestTheWrongWayRound) {
  for (const std::size_t j : {0U, 2U}) {
    Problem problem = Hospitals();
    std::swap(problem.Columns[j].Range.Worst, problem.Columns[j].Range.Best);
    ExpectRefused(problem, {problem.Columns[j].Name, "wrong way round"});
  }
  Problem problem = Judged();
  SessionOf(problem).Judgments[0].Snapshot = Scale{19, 55, std::nullopt};
  ExpectRefused(problem, {"session 0", "Doctors", "wrong way round"});
}

TEST(Refusals, CurvesThatAreNone) {
  Problem problem = Hospitals();
  problem.Columns[0].Range.ValueCurve = CurveThrough({15, 15, 20}, {0, 0.5, 1});
  ExpectRefused(problem, {"Doctors", "ascend"});
  problem.Columns[0].Range.ValueCurve = CurveThrough({15}, {0});
  ExpectRefused(problem, {"Doctors", "2 to 11"});
  problem.Columns[0].Range.ValueCurve = CurveThrough({15, 20}, {0, kInfinity});
  ExpectRefused(problem, {"Doctors", "point"});
  problem.Columns[0].Range.ValueCurve->N = 12;
  ExpectRefused(problem, {"Doctors", "2 to 11"});
}

TEST(Refusals, Bounds) {
  const std::vector<std::pair<Interval, String>> rows{
      {{3, 2}, "low 3 is above high 2"}, {{-1, 2}, "negative"},         {{1, -2}, "negative"},
      {{kMissing, 2}, "no number"},      {{1, kInfinity}, "no number"},
  };
  for (const auto& [bounds, word] : rows) {
    Problem problem = Judged();
    SessionOf(problem).Judgments[0].Low = bounds.Low;
    SessionOf(problem).Judgments[0].High = bounds.High;
    ExpectRefused(problem, {"session 0", "Doctors", word});
    SessionOf(problem).Judgments[0].Judged = false;
    EXPECT_EQ("", RefusalOf(problem));
  }
}

TEST(Refusals, References) {
  Problem problem = Judged();
  SessionOf(problem).CostReference = 2;
  ExpectRefused(problem, {"session 0", "cost reference", "Outpatients"});
  SessionOf(problem).CostReference.reset();
  ExpectRefused(problem, {"session 0", "cost reference", "missing"});
  SessionOf(problem).CostReference = 7;
  ExpectRefused(problem, {"session 0", "cost reference"});
}

TEST(Refusals, AGroupOfOneNeedsNoReference) {
  Problem problem = Judged();
  problem.Columns.erase(problem.Columns.begin());
  SessionOf(problem).Judgments = {JudgmentOf(2, 2, 2.5)};
  SessionOf(problem).BenefitReference = 1;
  SessionOf(problem).CostReference.reset();
  EXPECT_EQ("", RefusalOf(problem));
}

TEST(Refusals, JudgmentsTwiceOrOfNothing) {
  Problem problem = Judged();
  SessionOf(problem).Judgments.push_back(JudgmentOf(0, 1, 2));
  ExpectRefused(problem, {"session 0", "Doctors", "twice"});
  SessionOf(problem).Judgments.back().Column = 9;
  ExpectRefused(problem, {"session 0", "not used"});
}

TEST(Refusals, TheCrossRatio) {
  for (const Double bad : {0.0, -1.0, kMissing, kInfinity}) {
    Problem problem = Judged();
    SessionOf(problem).Cross = bad;
    ExpectRefused(problem, {"session 0", "cross ratio"});
  }
}

// worst = best: a range is needed where something was judged by it, or for the values of a straight line.
TEST(Refusals, ARangeThatIsAPoint) {
  struct Row {
    const char* Name;
    Dea::Basis Basis;
    Dea::Form Form;
    std::size_t Column;
    bool Refused;
  };
  for (const Row& row : {Row{"judged, range", Basis::Range, Form::Ratio, 0, true},
                         Row{"reference of a judged one, range", Basis::Range, Form::Ratio, 1, true},
                         Row{"judged, scale", Basis::Scale, Form::Ratio, 0, true},
                         Row{"judged, unit", Basis::Unit, Form::Ratio, 0, false},
                         Row{"judged, unit, value form", Basis::Unit, Form::Value, 0, true}}) {
    SCOPED_TRACE(row.Name);
    Problem problem = HospitalsJudged(HospitalSession(row.Basis, {3, 4}, {2, 2.5}, 1.15), row.Form);
    problem.Columns[row.Column].Range.Worst = problem.Columns[row.Column].Range.Best = 30;
    EXPECT_EQ(row.Refused, !RefusalOf(problem).empty()) << RefusalOf(problem);
  }
}

TEST(Refusals, ALineOverAPointHasNoValues) {
  Problem problem = Hospitals();
  problem.Columns[1].Range = {200, 200, std::nullopt};
  EXPECT_EQ("", RefusalOf(problem));
  problem.Options.Form = Form::Value;
  ExpectRefused(problem, {"Nurses", "worst and best are the same"});
  problem.Columns[1].Range.ValueCurve = CurveThrough({120, 320}, {0, 1});
  EXPECT_EQ("", RefusalOf(problem));
}

TEST(Refusals, ACurveWithoutADifferenceBetweenWorstAndBest) {
  for (const auto& [basis, form, refused] :
       {std::tuple{Basis::Range, Form::Ratio, false}, std::tuple{Basis::Scale, Form::Ratio, true},
        std::tuple{Basis::Range, Form::Value, true}, std::tuple{Basis::Scale, Form::Value, true}}) {
    Problem problem = HospitalsJudged(HospitalSession(basis, {3, 4}, {2, 2.5}, 1.15), form);
    problem.Columns[0].Range.ValueCurve = CurveThrough({15, 60}, {0.4, 0.4});
    EXPECT_EQ(refused, !RefusalOf(problem).empty()) << RefusalOf(problem);
  }
}

TEST(Refusals, Options) {
  Problem problem = Judged();
  problem.Options.Widen = 0.9;
  ExpectRefused(problem, {"widens"});
  problem.Options.Widen = 1.0;
  problem.Options.CrossBand = kMissing;
  ExpectRefused(problem, {"band"});
}

TEST(LeftOutUnits, AreThoseWithoutAValueOrWithoutInputs) {
  Problem problem = Hospitals();
  problem.Columns[2].Values[4] = kMissing;
  problem.Columns[0].Values[1] = problem.Columns[1].Values[1] = 0.0;
  Results results = Evaluate(problem);
  ASSERT_EQ(2U, results.LeftOut.size());
  EXPECT_EQ(1, results.LeftOut[0].Unit);
  EXPECT_TRUE(Mentions(results.LeftOut[0].Reason, {"inputs", "zero"}));
  EXPECT_EQ(4, results.LeftOut[1].Unit);
  EXPECT_TRUE(Mentions(results.LeftOut[1].Reason, {"Outpatients"}));
  EXPECT_EQ(10U, results.Units.size());
  problem.Options.Form = Form::Value;
  results = Evaluate(problem);
  ASSERT_EQ(1U, results.LeftOut.size());
  EXPECT_EQ(4, results.LeftOut[0].Unit);
}

TEST(Notes, AZeroBoundIsNone) {
  Problem problem = Judged();
  SessionOf(problem).Judgments[0].Low = 0.0;
  ExpectNoted(problem, {"session 0", "Doctors", "low bound", "zero"});
  Results results = Evaluate(problem);
  EXPECT_EQ(0.0, results.Equivalences[0].Low);
  EXPECT_TRUE(results.Equivalences[0].High);
  SessionOf(problem).Judgments[0] = JudgmentOf(0, 3, 0);
  ExpectNoted(problem, {"session 0", "Doctors", "high bound", "zero"});
  results = Evaluate(problem);
  EXPECT_FALSE(results.Equivalences[0].High);
  SessionOf(problem).Judgments[0] = JudgmentOf(0, 0, 0);
  EXPECT_EQ(1U, Evaluate(problem).Equivalences.size());
  ExpectNoted(problem, {"session 0", "Doctors", "not judged"});
}

TEST(Notes, WhatIsNotJudged) {
  Problem problem = Judged();
  SessionOf(problem).Judgments.pop_back();
  ExpectNoted(problem, {"session 0", "Inpatients", "not judged"});
}

TEST(Notes, ZeroInputs) {
  Problem problem = Hospitals();
  problem.Columns[0].Values[6] = 0.0;
  ExpectNoted(problem, {"Doctors", "Hospital G", "zero"});
}

TEST(Notes, ClampedScores) {
  Problem problem = Judged(Form::Value);
  problem.Columns[1].Values[6] = 400;
  ExpectNoted(problem, {"Nurses", "Hospital G"});
}

TEST(Snapshots, ReplaceTheColumnsScale) {
  Problem problem = Judged();
  Problem changed = problem;
  for (std::size_t j = 0; j < 4; ++j) {
    Judgment judgment = JudgmentOf(static_cast<int>(j), 1, 1);
    if (j == 0) judgment = SessionOf(problem).Judgments[0];
    if (j == 3) judgment = SessionOf(problem).Judgments[1];
    judgment.Snapshot = problem.Columns[j].Range;
    SessionOf(changed).Judgments.push_back(judgment);
    changed.Columns[j].Range = {problem.Columns[j].Use == Role::Input ? 1000.0 : 1.0,
                                problem.Columns[j].Use == Role::Input ? 1.0 : 1000.0, std::nullopt};
  }
  SessionOf(changed).Judgments.erase(SessionOf(changed).Judgments.begin(), SessionOf(changed).Judgments.begin() + 2);
  for (const Form form : {Form::Ratio, Form::Value}) {
    problem.Options.Form = changed.Options.Form = form;
    const Results expected = Evaluate(problem);
    const Results actual = Evaluate(changed);
    for (std::size_t k = 0; k < 12; ++k) {
      EXPECT_EQ(expected.Units[k].Max, actual.Units[k].Max);
      EXPECT_EQ(expected.Units[k].Distance, actual.Units[k].Distance);
    }
    for (std::size_t j = 0; j < 4; ++j) EXPECT_EQ(expected.Departures[j].FromChord, actual.Departures[j].FromChord);
  }
}

}  // namespace
}  // namespace Tarnwise::Dea
