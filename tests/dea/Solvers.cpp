#include "Solvers.h"

#include <coin/Clp_C_Interface.h>
#include <glpk.h>

#include <stdexcept>

namespace Tarnwise::Dea {

namespace {

// The matrix column after column.
struct Packed {
  std::vector<CoinBigIndex> Starts;
  std::vector<int> Rows;
  std::vector<double> Entries;
};

Packed PackedOf(const DenseProgram& program) {
  Packed packed;
  packed.Starts.push_back(0);
  for (std::size_t j = 0; j < program.Costs.size(); ++j) {
    for (std::size_t i = 0; i < program.Rows.size(); ++i) {
      if (program.Rows[i].Entries[j] == 0.0) continue;
      packed.Rows.push_back(static_cast<int>(i));
      packed.Entries.push_back(program.Rows[i].Entries[j]);
    }
    packed.Starts.push_back(static_cast<CoinBigIndex>(packed.Rows.size()));
  }
  return packed;
}

int TypeOf(const DenseProgram::Row& row) {
  if (row.Low == row.High) return GLP_FX;
  if (row.Low > -kInfinite) return row.High < kInfinite ? GLP_DB : GLP_LO;
  return row.High < kInfinite ? GLP_UP : GLP_FR;
}

glp_prob* ForGlpk(const DenseProgram& program) {
  glp_prob* const made = glp_create_prob();
  glp_add_rows(made, static_cast<int>(program.Rows.size()));
  glp_add_cols(made, static_cast<int>(program.Costs.size()));
  for (std::size_t i = 0; i < program.Rows.size(); ++i) {
    const DenseProgram::Row& row = program.Rows[i];
    glp_set_row_bnds(made, static_cast<int>(i) + 1, TypeOf(row), row.Low, row.High);
    std::vector<int> columns{0};
    std::vector<double> entries{0.0};
    for (std::size_t j = 0; j < row.Entries.size(); ++j) {
      if (row.Entries[j] == 0.0) continue;
      columns.push_back(static_cast<int>(j) + 1);
      entries.push_back(row.Entries[j]);
    }
    glp_set_mat_row(made, static_cast<int>(i) + 1, static_cast<int>(columns.size()) - 1, columns.data(),
                    entries.data());
  }
  for (std::size_t j = 0; j < program.Costs.size(); ++j) {
    const int column = static_cast<int>(j) + 1;
    glp_set_col_bnds(made, column, program.IsFree[j] ? GLP_FR : GLP_LO, 0.0, 0.0);
    glp_set_obj_coef(made, column, program.Costs[j]);
  }
  return made;
}

std::optional<double> SolvedByGlpk(const DenseProgram& program, bool exactly) {
  glp_prob* const made = ForGlpk(program);
  glp_smcp how;
  glp_init_smcp(&how);
  how.msg_lev = GLP_MSG_OFF;
  how.tol_bnd = 1e-10;
  how.tol_dj = 1e-10;
  const int terminal = glp_term_out(GLP_OFF);
  if (!exactly) glp_scale_prob(made, GLP_SF_GM | GLP_SF_EQ);
  int code = glp_simplex(made, &how);
  if (exactly) code = glp_exact(made, &how);
  const int status = glp_get_status(made);
  const double cost = glp_get_obj_val(made);
  glp_delete_prob(made);
  glp_term_out(terminal);
  if (code != 0) throw std::runtime_error("GLPK gave up");
  if (status != GLP_OPT) return std::nullopt;
  return cost;
}

}  // namespace

std::optional<double> LeastCostByClp(const DenseProgram& program) {
  const Packed packed = PackedOf(program);
  std::vector<double> rowLow, rowHigh, low, high;
  for (const DenseProgram::Row& row : program.Rows) {
    rowLow.push_back(row.Low > -kInfinite ? row.Low : -1e60);
    rowHigh.push_back(row.High < kInfinite ? row.High : 1e60);
  }
  for (const bool isFree : program.IsFree) {
    low.push_back(isFree ? -1e60 : 0.0);
    high.push_back(1e60);
  }
  Clp_Simplex* const model = Clp_newModel();
  Clp_setLogLevel(model, 0);
  Clp_loadProblem(model, static_cast<int>(program.Costs.size()), static_cast<int>(program.Rows.size()),
                  packed.Starts.data(), packed.Rows.data(), packed.Entries.data(), low.data(), high.data(),
                  program.Costs.data(), rowLow.data(), rowHigh.data());
  Clp_setPrimalTolerance(model, 1e-10);
  Clp_setDualTolerance(model, 1e-10);
  Clp_scaling(model, 3);
  Clp_primal(model, 0);
  const int status = Clp_status(model);
  const double cost = Clp_objectiveValue(model);
  Clp_deleteModel(model);
  if (status > 2) throw std::runtime_error("Clp gave up");
  if (status != 0) return std::nullopt;
  return cost;
}

std::optional<double> LeastCostByGlpk(const DenseProgram& program) { return SolvedByGlpk(program, false); }

std::optional<double> LeastCostExactly(const DenseProgram& program) { return SolvedByGlpk(program, true); }

}  // namespace Tarnwise::Dea
