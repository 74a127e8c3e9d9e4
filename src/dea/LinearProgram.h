// A small linear program that is changed and solved again and again, from the basis it has. Its answers are worked out
// anew from the final basis and checked against the program, so they do not inherit the solver's tolerances.
//
// What a thread makes it has to use and destroy: the solver keeps its memory per thread. After a fault inside the
// solver (SolverFault) all programs of that thread are lost and say so; new ones work.
#pragma once

#include "dea/BasicSolution.h"
#include "dea/Watch.h"

#include <memory>

namespace Tarnwise::Dea {

enum class Method { Primal, Dual };  // Dual where only right-hand sides, domains or a basic column changed
enum class Outcome { Optimal, Infeasible };
enum class Effort { Usual, Rescaled, Anew, Rational };  // ways of solving, one after the other

class LinearProgram {
 public:
  explicit LinearProgram(std::vector<RowKind> rows);
  ~LinearProgram();
  LinearProgram(const LinearProgram&) = delete;
  LinearProgram& operator=(const LinearProgram&) = delete;

  const ProgramData& Data() const { return data_; }

  // Columns are numbered from 0 as they come; entries are one for each row. SolverFault for a number that is not
  // finite.
  int AddColumn(Double cost, const std::vector<Double>& entries, Domain domain);
  void SetEntries(int column, const std::vector<Double>& entries);
  void SetCost(int column, Double cost);
  void SetDomain(int column, Domain domain);
  void SetRightSide(const std::vector<Double>& rightSide);

  // The basis of the last optimal solution; and whether a basis of this program (rows and columns as numbered here)
  // has values that stand the check. If so they are the solution: prices are taken on trust.
  const RowsAndColumns& Basis() const { return basis_; }
  bool Take(const RowsAndColumns& basis);

  // The next Solve begins here.
  void StartFrom(const RowsAndColumns& basis);

  // Infeasible is taken on trust after Dual, else proven. SolverFault when no way of solving gives an answer that
  // stands the check, or the program has no lower end.
  Outcome Solve(Method method, const Watch& watch);

  // Of the last optimal solution. Prices of AtLeast rows are not negative.
  const std::vector<Double>& Values() const { return solution_.Values; }
  const std::vector<Double>& Prices() const { return solution_.Prices; }
  Double RoundingOfPrices() const { return solution_.RoundingOfPrices; }
  Double Objective() const;

  // How often an answer did not stand the check and the program was solved in another way.
  int Repairs() const { return repairs_; }

 private:
  struct Solver;  // what of it belongs to the library

  bool FindsNone(Method method, Effort effort, const Watch& watch);
  bool Stands(Effort effort);
  void Unscale();
  void Rescale();

  void Synchronise();

  ProgramData data_;
  std::vector<int> changedColumns_;  // what the solver has not been told yet
  bool rightSideChanged_ = false;
  BasicSolution solution_;
  RowsAndColumns basis_;
  int repairs_ = 0;
  std::unique_ptr<Solver> solver_;
};

}  // namespace Tarnwise::Dea
