// Benchmarks of efficiencies: random data from 10 to 20, three inputs and three outputs; judged: every price from 0.5
// to 2 times that of its group's reference, per raw unit. Compare the rows of one run; the names say what belongs
// together:
//   Dea/Scores/*       free, greatest and least efficiencies of all units, as built
//   Dea/Cold/LpSolve*  one program a unit, set up as R Benchmarking's dea.dual does it: the prices' program with a row
//   for
//                      each unit, kept; for each unit another objective, another first row, the default basis
//   Dea/Cold/Glpk*     one program a unit, built and solved by GLPK from nothing
//   Dea/All            what `solve` computes for 1,000 judged units: ranks, draws and held-back bounds too
//   Dea/Value          the value form of 1,000 judged units
//   Dea/Cancel         how long it takes from the flag to the answer, in the worst of several moments
// Items are units; the cold programs of the larger problem are measured for its first 50 units.
#include "dea/Evaluate.h"

#include <benchmark/benchmark.h>
#include <glpk.h>
#include <lpsolve/lp_lib.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <random>
#include <thread>

namespace {

using namespace Tarnwise::Dea;
using Tarnwise::Double;

constexpr int kInputs = 3;
constexpr int kOutputs = 3;
constexpr int kColumns = kInputs + kOutputs;
constexpr Double kLow = 0.5;
constexpr Double kHigh = 2.0;

Problem RandomUnits(int units, bool judged) {
  std::mt19937_64 engine(7);
  Problem problem;
  for (int k = 0; k < units; ++k) problem.Units.push_back("Unit " + std::to_string(k + 1));
  for (int j = 0; j < kColumns; ++j) {
    Column column;
    column.Name = "Column " + std::to_string(j + 1);
    column.Use = j < kInputs ? Role::Input : Role::Output;
    column.Range.Worst = j < kInputs ? 20 : 10;
    column.Range.Best = j < kInputs ? 10 : 20;
    for (int k = 0; k < units; ++k) {
      column.Values.push_back(10.0 + 10.0 * static_cast<Double>(engine() >> 11U) * 0x1p-53);
    }
    problem.Columns.push_back(column);
  }
  if (!judged) return problem;
  Session session;
  session.Basis = Basis::Unit;
  session.CostReference = 0;
  session.BenefitReference = kInputs;
  for (int j = 0; j < kColumns; ++j) {
    Judgment judgment;
    judgment.Column = j;
    judgment.Low = kLow;
    judgment.High = kHigh;
    session.Judgments.push_back(judgment);
  }
  problem.Session = session;
  return problem;
}

void CountUnits(benchmark::State& state, int units) {
  state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * units);
}

void Scores(benchmark::State& state, bool judged) {
  const int units = static_cast<int>(state.range(0));
  Problem problem = RandomUnits(units, judged);
  problem.Options.Ranks = false;
  problem.Options.HeldBack = false;
  for (auto _ : state) benchmark::DoNotOptimize(Evaluate(problem));
  CountUnits(state, units);
}
BENCHMARK_CAPTURE(Scores, Free, false)->Name("Dea/Scores/Free")->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Scores, Judged, true)
    ->Name("Dea/Scores/Judged")
    ->Arg(1000)
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond);

// Prices j from 1 on, the inputs first; the reference of a group is its first column.
struct BoundRow {
  int Reference, Column;
  Double OfReference, OfColumn;
};

std::vector<BoundRow> BoundRows() {
  std::vector<BoundRow> rows;
  for (int j = 1; j <= kColumns; ++j) {
    const int reference = j <= kInputs ? 1 : kInputs + 1;
    if (j == reference) continue;
    rows.push_back({reference, j, kLow, -1.0});
    rows.push_back({reference, j, -kHigh, 1.0});
  }
  return rows;
}

Double NumberOf(const Problem& problem, int unit, int j) {
  const Double x = problem.Columns[static_cast<std::size_t>(j - 1)].Values[static_cast<std::size_t>(unit)];
  return j <= kInputs ? -x : x;
}

lprec* PriceProgram(const Problem& problem) {
  const int units = static_cast<int>(problem.Units.size());
  const std::vector<BoundRow> bounds = BoundRows();
  lprec* const program = make_lp(1 + units + static_cast<int>(bounds.size()), kColumns);
  set_verbose(program, NEUTRAL);
  for (int j = 1; j <= kColumns; ++j) {
    std::vector<Double> column{0.0, 0.0};
    for (int k = 0; k < units; ++k) column.push_back(NumberOf(problem, k, j));
    for (const BoundRow& row : bounds) {
      column.push_back(row.Reference == j ? row.OfReference : row.Column == j ? row.OfColumn : 0.0);
    }
    set_column(program, j, column.data());
  }
  for (int i = 1; i <= get_Nrows(program); ++i) set_constr_type(program, i, LE);
  set_maxim(program);
  set_rh(program, 1, 1.0);
  return program;
}

Double SolveFor(lprec* program, const Problem& problem, int unit) {
  std::vector<Double> objective(kColumns + 1, 0.0);
  std::vector<Double> first(kColumns + 1, 0.0);
  for (int j = 1; j <= kColumns; ++j) {
    (j <= kInputs ? first : objective)[static_cast<std::size_t>(j)] = std::abs(NumberOf(problem, unit, j));
  }
  set_obj_fn(program, objective.data());
  set_row(program, 1, first.data());
  default_basis(program);
  solve(program);
  return get_objective(program);
}

int MeasuredUnits(const benchmark::State& state) {
  return state.range(0) > 1000 ? 50 : static_cast<int>(state.range(0));
}

// What was measured has to be the same scores.
bool Agrees(benchmark::State& state, const Problem& problem, const std::vector<Double>& scores) {
  Problem plain = problem;
  plain.Options.Ranks = false;
  plain.Options.HeldBack = false;
  const Results results = Evaluate(plain);
  for (std::size_t k = 0; k < scores.size(); ++k) {
    if (std::abs(*results.Units[k].Max - scores[k]) < 1e-6) continue;
    state.SkipWithError("the scores differ");
    return false;
  }
  return true;
}

void ColdByLpSolve(benchmark::State& state) {
  const Problem problem = RandomUnits(static_cast<int>(state.range(0)), true);
  const int measured = MeasuredUnits(state);
  std::vector<Double> scores(static_cast<std::size_t>(measured));
  for (auto _ : state) {
    lprec* const program = PriceProgram(problem);
    for (int k = 0; k < measured; ++k) scores[static_cast<std::size_t>(k)] = SolveFor(program, problem, k);
    delete_lp(program);
  }
  CountUnits(state, measured);
  Agrees(state, problem, scores);
}
BENCHMARK(ColdByLpSolve)->Name("Dea/Cold/LpSolveJudged")->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

void AddColumn(glp_prob* program, const std::vector<Double>& entries) {
  std::vector<int> rows{0};
  std::vector<double> numbers{0.0};
  for (std::size_t i = 1; i < entries.size(); ++i) {
    if (entries[i] == 0.0) continue;
    rows.push_back(static_cast<int>(i));
    numbers.push_back(entries[i]);
  }
  const int column = glp_add_cols(program, 1);
  glp_set_mat_col(program, column, static_cast<int>(rows.size()) - 1, rows.data(), numbers.data());
  glp_set_col_bnds(program, column, GLP_LO, 0.0, 0.0);
}

// The envelopment form.
Double ColdScore(const Problem& problem, int unit) {
  glp_prob* const program = glp_create_prob();
  glp_add_rows(program, kColumns);
  std::vector<Double> entries(kColumns + 1, 0.0);
  for (int j = 1; j <= kColumns; ++j) {
    const Double x = NumberOf(problem, unit, j);
    glp_set_row_bnds(program, j, GLP_LO, j <= kInputs ? 0.0 : x, 0.0);
    entries[static_cast<std::size_t>(j)] = j <= kInputs ? -x : 0.0;
  }
  AddColumn(program, entries);
  glp_set_obj_coef(program, 1, 1.0);
  for (int k = 0; k < static_cast<int>(problem.Units.size()); ++k) {
    for (int j = 1; j <= kColumns; ++j) entries[static_cast<std::size_t>(j)] = NumberOf(problem, k, j);
    AddColumn(program, entries);
  }
  for (const BoundRow& row : BoundRows()) {
    std::fill(entries.begin(), entries.end(), 0.0);
    entries[static_cast<std::size_t>(row.Reference)] = row.OfReference;
    entries[static_cast<std::size_t>(row.Column)] = row.OfColumn;
    AddColumn(program, entries);
  }
  glp_smcp how;
  glp_init_smcp(&how);
  how.msg_lev = GLP_MSG_OFF;
  glp_simplex(program, &how);
  const Double score = glp_get_obj_val(program);
  glp_delete_prob(program);
  return score;
}

void ColdByGlpk(benchmark::State& state) {
  const Problem problem = RandomUnits(static_cast<int>(state.range(0)), true);
  const int measured = MeasuredUnits(state);
  std::vector<Double> scores(static_cast<std::size_t>(measured));
  for (auto _ : state) {
    for (int k = 0; k < measured; ++k) scores[static_cast<std::size_t>(k)] = ColdScore(problem, k);
  }
  CountUnits(state, measured);
  Agrees(state, problem, scores);
}
BENCHMARK(ColdByGlpk)->Name("Dea/Cold/GlpkJudged")->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

void Everything(benchmark::State& state) {
  const Problem problem = RandomUnits(1000, true);
  for (auto _ : state) benchmark::DoNotOptimize(Evaluate(problem));
  CountUnits(state, 1000);
}
BENCHMARK(Everything)->Name("Dea/All")->Unit(benchmark::kMillisecond);

void Values(benchmark::State& state) {
  Problem problem = RandomUnits(1000, true);
  problem.Options.Form = Form::Value;
  problem.Options.Ranks = false;
  for (auto _ : state) benchmark::DoNotOptimize(Evaluate(problem));
  CountUnits(state, 1000);
}
BENCHMARK(Values)->Name("Dea/Value")->Unit(benchmark::kMillisecond);

using Clock = std::chrono::steady_clock;

// Milliseconds from the flag to the answer when it is set that long after the start; 0 when it was done by then.
Double AnswerAfter(const Problem& problem, int milliseconds) {
  std::atomic<bool> cancel{false};
  std::atomic<Clock::rep> set{0};
  std::thread other([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
    set = Clock::now().time_since_epoch().count();
    cancel = true;
  });
  Double waited = 0.0;
  try {
    Evaluate(problem, Watch{nullptr, &cancel});
  } catch (const Cancelled&) {
    const Clock::duration since(Clock::now().time_since_epoch().count() - set);
    waited = std::chrono::duration<Double, std::milli>(since).count();
  }
  other.join();
  return waited;
}

void CancelledAtAnyTime(benchmark::State& state) {
  const Problem problem = RandomUnits(20000, true);
  Double worst = 0.0;
  for (auto _ : state) {
    for (const int after : {1, 20, 50, 100, 200, 400, 800, 1600}) worst = std::max(worst, AnswerAfter(problem, after));
  }
  state.counters["WorstMilliseconds"] = worst;
}
BENCHMARK(CancelledAtAnyTime)->Name("Dea/Cancel")->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
