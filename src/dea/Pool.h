// Linear programs of many units over one small pool of columns. Each unit's program has a column for every unit; only a
// few of them matter, and they matter for many units. So a program is solved over the pool, all candidates are priced
// with its prices, the one that passes them most joins, and so on until none does: then the solution holds over all
// units, and what the worst of them still passes is its certificate. Units that lie beside each other share their
// prices, so those of all solutions are kept, and most programs are solved by finding the right ones. A unit that a
// pool unit dominates whatever the prices are is no candidate any more.
#pragma once

#include "dea/LinearProgram.h"

#include <functional>
#include <utility>

namespace Tarnwise::Dea {

// What the programs of all units share. The first SizedRows rows are the inputs, entered with a minus: a violation is
// measured against what the unit's inputs cost. With none of them it is absolute.
struct PoolShape {
  std::vector<RowKind> Rows;
  int SizedRows = 0;
  int Units = 0;
  std::vector<Double> Columns;              // unit after unit
  std::vector<std::vector<Double>> Bounds;  // columns of the bounds on prices
  std::function<bool(int winner, int loser)> Dominates;
};

// What is a unit's own: its free column and its right-hand side.
struct UnitProgram {
  int Unit = 0;
  Double Cost = 1.0;
  std::vector<Double> Own;
  std::vector<Double> RightSide;
  bool WithoutItself = false;
  Double CostOfItself = 0.0;  // where positive: it is there, at this cost
};

struct PoolAnswer {
  bool Reached = false;  // false: the units of the pool cannot do what the right-hand side asks for
  Double Objective = 0.0;
  std::vector<Double> Prices;                   // of the rows
  std::vector<std::pair<int, Double>> Lambdas;  // of units, those that are positive
};

class Pool {
 public:
  explicit Pool(PoolShape shape);

  // A unit that is not left out of its own program joins when the others do not reach it.
  PoolAnswer Solve(const UnitProgram& unit, const Watch& watch);

  void Join(int unit);
  bool Holds(int unit) const { return columnOf_[At(unit)] >= 0; }
  const std::vector<int>& Candidates() const { return candidates_; }
  int CandidateBesides(int unit) const;             // -1: there is none
  Double WorstViolation() const { return worst_; }  // of all answers so far
  int Repairs() const { return program_.Repairs(); }

 private:
  struct Worst {
    int Unit = -1;
    Double Violation = 0.0;
  };

  // Prices that no unit passes, and the basis they belong to. Times a factor they are prices of any unit's program, so
  // they bound its objective, and the largest bound is where its solution lies if it lies on a facet that is known.
  struct Facet {
    RowsAndColumns Basis;
    std::vector<Double> Prices;
    Double Violation = 0.0;
  };

  const Double* ColumnOf(int unit) const;
  Double ViolationOf(const Double* column) const;
  Worst WorstViolation(const UnitProgram& unit) const;
  void Prune(int winner);
  void SetItself(const UnitProgram& unit, bool restore);
  PoolAnswer Answer(Double violation);
  Outcome SolveFromItself(const UnitProgram& unit, const Watch& watch);
  PoolAnswer SolveSet(const UnitProgram& unit, const Watch& watch);
  void Keep(const UnitProgram& unit, Double violation);
  const Facet* BestFacet(const UnitProgram& unit) const;

  PoolShape shape_;
  LinearProgram program_;
  std::vector<int> columnOf_;               // column of a unit in the program, -1 outside the pool
  std::vector<int> unitOf_;                 // unit of a column, from FirstUnit on
  std::vector<int> candidates_;             // all that no pool unit dominates, ascending
  std::vector<Double> candidateColumns_;    // the same, side by side
  std::vector<std::vector<int>> prunedBy_;  // by a unit: those that count again where it is left out
  std::vector<Facet> facets_;
  Double worst_ = 0.0;
};

}  // namespace Tarnwise::Dea
