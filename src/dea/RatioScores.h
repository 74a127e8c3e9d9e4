// Greatest efficiencies in the ratio form, by linear programs over a pool.
#pragma once

#include "dea/Pool.h"
#include "dea/Region.h"

namespace Tarnwise::Dea {

// Numbers of units, each with its inputs first; none negative, each unit with an input above zero. Columns should be of
// a like size: divided by their mean.
struct RatioData {
  int Units = 0;
  int Inputs = 0;
  int Outputs = 0;
  std::vector<Double> Values;  // unit after unit

  const Double* InputsOf(int unit) const { return &Values[At(unit) * At(Inputs + Outputs)]; }
  const Double* OutputsOf(int unit) const { return InputsOf(unit) + Inputs; }
};

// The prices that are allowed: two boxes, and the same as conditions on prices, inputs first. Conditions without boxes
// are allowed too (free boxes): then only what every price allows is pruned.
struct RatioRegion {
  Box Inputs;
  Box Outputs;
  std::vector<PriceRow> Rows;
};

struct RatioTechnology {
  Dea::Returns Returns = Returns::Constant;
  Dea::Orientation Orientation = Orientation::In;
};

struct RatioScore {
  std::optional<Double> Score;  // absent: no number (out, without an output)
  std::vector<Double> Prices;   // inputs first; v.x = 1 (out: u.y = 1)
  std::vector<std::pair<int, Double>> Peers;
  std::vector<int> Binding;  // indices of Rows: dropping any other one changes nothing
};

bool HasOutputs(const RatioData& data, int unit);

class RatioScorer {
 public:
  RatioScorer(const RatioData& data, RatioRegion region, RatioTechnology technology);  // data has to outlive it
  RatioScorer(const RatioScorer&) = delete;
  RatioScorer& operator=(const RatioScorer&) = delete;

  RatioScore Score(int unit, const Watch& watch);

  // The score without the unit itself, constant returns only. Absent when nothing bounds it, and for a single unit.
  std::optional<Double> Super(int unit, const Watch& watch);

  // Units that no other one dominates for certain: all that a worst case has to look at.
  const std::vector<int>& Candidates() const { return pool_->Candidates(); }
  Double WorstViolation() const { return pool_->WorstViolation(); }
  int Repairs() const { return pool_->Repairs(); }

 private:
  void Scale();
  PoolShape Shape() const;
  bool Dominates(int winner, int loser) const;
  UnitProgram ProgramOf(int unit) const;
  Double RightSideSize(int unit) const;
  RatioScore ScoreFrom(int unit, const PoolAnswer& answer) const;
  std::vector<int> TightRows(const std::vector<Double>& prices) const;
  void SetPrices(int unit, const PoolAnswer& answer, RatioScore& score) const;

  bool IsConstant() const { return technology_.Returns == Returns::Constant; }
  bool IsOut() const { return technology_.Orientation == Orientation::Out; }
  bool IsSolvedOut() const { return IsOut() && !IsConstant(); }  // constant returns: out is one over in
  int Attributes() const { return data_.Inputs + data_.Outputs; }
  const Double* ScaledOf(int unit) const { return &scaled_[At(unit) * At(Attributes())]; }
  Double LargestInput(int unit) const;
  Double LargestOutput(int unit) const;

  const RatioData& data_;
  RatioRegion region_;
  RatioTechnology technology_;
  std::vector<Double> factors_;  // of the attributes: what they are multiplied by in the programs
  std::vector<Double> scaled_;   // the data times these
  std::unique_ptr<Pool> pool_;
};

}  // namespace Tarnwise::Dea
