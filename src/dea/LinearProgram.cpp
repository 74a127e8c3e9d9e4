#include "dea/LinearProgram.h"

#include <glpk.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace Tarnwise::Dea {

namespace {

// What the solver counts as zero. Answers are checked relative to what they are made of, which is stricter.
constexpr double kSolverTolerance = 1e-10;
constexpr Double kStands = 1e-10;
constexpr Double kStandsAtLast = 1e-8;
constexpr int kIterations = 300;  // in one go, so that a cancel is seen in time
constexpr int kMilliseconds = 50;
constexpr int kMostGoes = 20;

// What an answer shows of the sizes of rows and columns is the better the nearer it is, so rescaling is tried again.
constexpr std::array kEfforts{Effort::Usual,    Effort::Rescaled, Effort::Rescaled, Effort::Rescaled,
                              Effort::Rescaled, Effort::Anew,     Effort::Rescaled, Effort::Rescaled,
                              Effort::Rescaled, Effort::Rescaled, Effort::Rational};

// The library's memory belongs to the thread. An error is fatal to it: it prints, calls the hook, and may not go on.
struct Environment {
  int Programs = 0;
  unsigned Generation = 0;  // of the memory: programs of an earlier one are gone
  bool Hooked = false;
  String Error;
};

Environment& OfThread() {
  static thread_local Environment environment;
  return environment;
}

int KeepText(void*, const char* text) {
  if (glp_at_error() != 0) OfThread().Error += text;
  return 1;  // nothing goes to the terminal
}

struct InsideSolver {};

void LeaveSolver(void*) { throw InsideSolver(); }

void InstallHooks() {
  if (OfThread().Hooked) return;
  glp_term_hook(KeepText, nullptr);
  glp_error_hook(LeaveSolver, nullptr);
  OfThread().Hooked = true;
}

void ForgetEnvironment() {
  glp_free_env();
  OfThread().Hooked = false;
  ++OfThread().Generation;
}

[[noreturn]] void ReportError() {
  const String text = OfThread().Error;
  OfThread().Error.clear();
  ForgetEnvironment();
  throw SolverFault("The solver of linear programs failed: " + text);
}

// Runs what calls the library; the one place where its errors arrive.
template <typename Work>
void InSolver(Work work) {
  InstallHooks();
  try {
    work();
  } catch (const InsideSolver&) {
    ReportError();
  }
}

void WantFinite(const std::vector<Double>& numbers) {
  for (const Double x : numbers) {
    if (!std::isfinite(x)) throw SolverFault("A number of a linear program is not finite.");
  }
}

int TypeOf(RowKind kind) { return kind == RowKind::Equal ? GLP_FX : kind == RowKind::AtLeast ? GLP_LO : GLP_UP; }

int TypeOf(Domain domain) { return domain == Domain::Zero ? GLP_FX : domain == Domain::Free ? GLP_FR : GLP_LO; }

Double PowerOfTwo(Double x) { return std::exp2(std::round(std::log2(x))); }

}  // namespace

struct LinearProgram::Solver {
  explicit Solver(const std::vector<RowKind>& rows) {
    InSolver([&] {
      Program = glp_create_prob();
      glp_add_rows(Program, static_cast<int>(rows.size()));
      for (std::size_t i = 0; i < rows.size(); ++i) {
        glp_set_row_bnds(Program, static_cast<int>(i) + 1, TypeOf(rows[i]), 0.0, 0.0);
      }
    });
    Generation = OfThread().Generation;
    ++OfThread().Programs;
  }
  ~Solver() {
    if (IsLost()) return;
    glp_delete_prob(Program);
    if (--OfThread().Programs == 0) ForgetEnvironment();
  }
  Solver(const Solver&) = delete;
  Solver& operator=(const Solver&) = delete;

  bool IsLost() const { return Generation != OfThread().Generation; }
  void WantAlive() const {
    if (IsLost()) throw SolverFault("A linear program was lost when the solver failed at another one.");
  }

  void SetColumn(const ProgramData& data, int column) {
    std::array<int, 64> rows{};
    std::array<double, 64> entries{};
    int count = 0;
    for (int i = 0; i < data.RowCount(); ++i) {
      const Double entry = data.ColumnAt(column)[i];
      if (entry == 0.0) continue;
      ++count;
      rows[At(count)] = i + 1;
      entries[At(count)] = entry;
    }
    glp_set_mat_col(Program, column + 1, count, rows.data(), entries.data());
  }

  RowsAndColumns Basis(const ProgramData& data) const {
    RowsAndColumns basis;
    for (int i = 0; i < data.RowCount(); ++i) {
      if (glp_get_row_stat(Program, i + 1) != GLP_BS) basis.Rows.push_back(i);
    }
    for (int j = 0; j < data.ColumnCount(); ++j) {
      if (glp_get_col_stat(Program, j + 1) == GLP_BS) basis.Columns.push_back(j);
    }
    return basis;
  }

  glp_prob* Program = nullptr;
  unsigned Generation = 0;
  bool IsScaled = false;
};

LinearProgram::LinearProgram(std::vector<RowKind> rows) : solver_(std::make_unique<Solver>(rows)) {
  data_.RightSide.assign(rows.size(), 0.0);
  data_.Rows = std::move(rows);
}

LinearProgram::~LinearProgram() = default;

int LinearProgram::AddColumn(Double cost, const std::vector<Double>& entries, Domain domain) {
  const int column = data_.ColumnCount();
  WantFinite(entries);
  solver_->WantAlive();
  data_.Costs.push_back(0.0);
  data_.Domains.push_back(domain);
  data_.Entries.insert(data_.Entries.end(), entries.begin(), entries.end());
  InSolver([&] {
    glp_add_cols(solver_->Program, 1);
    solver_->SetColumn(data_, column);
  });
  SetDomain(column, domain);
  SetCost(column, cost);
  return column;
}

void LinearProgram::SetEntries(int column, const std::vector<Double>& entries) {
  WantFinite(entries);
  std::copy(entries.begin(), entries.end(),
            data_.Entries.begin() + static_cast<std::ptrdiff_t>(At(column) * data_.Rows.size()));
  changedColumns_.push_back(column);
}

void LinearProgram::SetCost(int column, Double cost) {
  WantFinite({cost});
  solver_->WantAlive();
  InSolver([&] { glp_set_obj_coef(solver_->Program, column + 1, cost); });
  data_.Costs[At(column)] = cost;
}

void LinearProgram::SetDomain(int column, Domain domain) {
  solver_->WantAlive();
  InSolver([&] { glp_set_col_bnds(solver_->Program, column + 1, TypeOf(domain), 0.0, 0.0); });
  data_.Domains[At(column)] = domain;
}

void LinearProgram::SetRightSide(const std::vector<Double>& rightSide) {
  WantFinite(rightSide);
  data_.RightSide = rightSide;
  rightSideChanged_ = true;
}

// Most programs are solved without the solver, so it is told of changes when it is needed.
void LinearProgram::Synchronise() {
  solver_->WantAlive();
  std::sort(changedColumns_.begin(), changedColumns_.end());
  changedColumns_.erase(std::unique(changedColumns_.begin(), changedColumns_.end()), changedColumns_.end());
  InSolver([&] {
    for (const int column : changedColumns_) solver_->SetColumn(data_, column);
    for (int i = 0; rightSideChanged_ && i < data_.RowCount(); ++i) {
      const Double side = data_.RightSide[At(i)];
      glp_set_row_bnds(solver_->Program, i + 1, TypeOf(data_.Rows[At(i)]), side, side);
    }
  });
  changedColumns_.clear();
  rightSideChanged_ = false;
}

bool LinearProgram::Take(const RowsAndColumns& basis) {
  solution_ = SolutionAt(data_, basis);
  return solution_.Exists && ValueError(data_, solution_) <= kStands;
}

void LinearProgram::StartFrom(const RowsAndColumns& basis) {
  solver_->WantAlive();
  InSolver([&] {
    glp_std_basis(solver_->Program);
    for (const int row : basis.Rows) {
      const int status = data_.Rows[At(row)] == RowKind::AtMost ? GLP_NU : GLP_NL;
      glp_set_row_stat(solver_->Program, row + 1, status);
    }
    for (const int column : basis.Columns) glp_set_col_stat(solver_->Program, column + 1, GLP_BS);
  });
}

Double LinearProgram::Objective() const {
  Double sum = 0.0;
  for (std::size_t j = 0; j < data_.Costs.size(); ++j) sum += data_.Costs[j] * solution_.Values[j];
  return sum;
}

Outcome LinearProgram::Solve(Method method, const Watch& watch) {
  Synchronise();
  Unscale();
  for (const Effort effort : kEfforts) {
    if (effort != Effort::Usual) ++repairs_;
    if (effort == Effort::Rescaled) Rescale();
    const bool hasNone = FindsNone(effort == Effort::Usual ? method : Method::Primal, effort, watch);
    if (hasNone && (method == Method::Dual || effort == Effort::Rational)) return Outcome::Infeasible;
    if (Stands(effort)) return Outcome::Optimal;  // whatever the solver thinks of it
  }
  throw SolverFault("A linear program has no solution that stands the check.");
}

// Lets the solver go on from its basis. Whether it says that there is no solution.
bool LinearProgram::FindsNone(Method method, Effort effort, const Watch& watch) {
  glp_smcp how;
  glp_init_smcp(&how);
  how.msg_lev = GLP_MSG_OFF;
  how.meth = method == Method::Dual ? GLP_DUAL : GLP_PRIMAL;
  how.tol_bnd = kSolverTolerance;
  how.tol_dj = kSolverTolerance;
  how.it_lim = kIterations;
  how.tm_lim = kMilliseconds;
  glp_prob* const program = solver_->Program;
  int code = GLP_EITLIM;
  int status = GLP_UNDEF;
  if (effort == Effort::Anew) InSolver([&] { glp_std_basis(program); });
  for (int go = 0; (code == GLP_EITLIM || code == GLP_ETMLIM) && go < kMostGoes; ++go) {
    watch.LookAtFlag();
    InSolver([&] {
      code = effort == Effort::Rational ? glp_exact(program, &how) : glp_simplex(program, &how);
      if (code == GLP_EBADB || code == GLP_ESING || code == GLP_ECOND) {
        glp_std_basis(program);
        how.meth = GLP_PRIMAL;
        code = glp_simplex(program, &how);
      }
      status = glp_get_status(program);
    });
  }
  return code == 0 && status == GLP_NOFEAS;
}

bool LinearProgram::Stands(Effort effort) {
  basis_ = solver_->Basis(data_);
  solution_ = SolutionAt(data_, basis_);
  const Double most = effort == Effort::Rational ? kStandsAtLast : kStands;
  return solution_.Exists && PriceError(data_, solution_) <= most && ValueError(data_, solution_) <= most;
}

void LinearProgram::Unscale() {
  if (!solver_->IsScaled) return;
  InSolver([&] { glp_unscale_prob(solver_->Program); });
  solver_->IsScaled = false;
}

// The solver's zero is absolute, and where a row's or a column's numbers are small it sees nothing wrong. So rows are
// brought to the size of what they ask for, and columns to that of the rows, or of what their prices come to.
void LinearProgram::Rescale() {
  const RowsAndColumnsSizes sizes = SizesOf(data_, solution_);
  solver_->IsScaled = true;
  InSolver([&] {
    for (int i = 0; i < data_.RowCount(); ++i) {
      glp_set_rii(solver_->Program, i + 1, PowerOfTwo(1.0 / sizes.Rows[At(i)]));
    }
    for (int j = 0; j < data_.ColumnCount(); ++j) {
      glp_set_sjj(solver_->Program, j + 1, PowerOfTwo(1.0 / sizes.Columns[At(j)]));
    }
  });
}

}  // namespace Tarnwise::Dea
