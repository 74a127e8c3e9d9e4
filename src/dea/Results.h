// What comes out. What does not exist in the form, the returns or the orientation that was asked for is absent.
#pragma once

#include "dea/Problem.h"

namespace Tarnwise::Dea {

struct Interval {
  Double Low = 0.0;
  Double High = 0.0;
};

struct RankRange {
  int Best = 0;
  int Worst = 0;
};

struct Peer {
  int Unit = 0;  // index into Problem::Units
  Double Lambda = 0.0;
};

// A bound that costs the unit something: dropped alone, it would change the greatest score by the gain.
struct HeldBackBy {
  int Column = 0;
  Dea::Side Side = Side::Low;
  Double Ratio = 0.0;  // as it stands in the session
  Double Gain = 0.0;   // positive in both orientations
};

// Scores of orientation out are factors, 1 or more. An absent score is one that does not exist for this unit (null in
// files), or not in what was asked for.
struct UnitResult {
  int Unit = 0;  // index into Problem::Units

  // Ratio form.
  std::optional<Double> Free;   // without judgments
  std::optional<Double> Max;    // the best case under the judgments; without a session that of Free
  std::optional<Double> Min;    // the worst case; constant returns and a session only
  std::optional<Double> Super;  // without the unit itself; constant returns and a greatest score of 1 only
  std::vector<Double> Prices;   // one for each column, per raw unit; empty without a score
  std::vector<std::optional<Double>> Shares;  // one for each column; absent in a group that is worth nothing
  std::vector<Peer> Peers;
  std::vector<Dea::HeldBackBy> HeldBackBy;  // the largest gain first

  // Value form.
  std::optional<Interval> Value;
  std::optional<Double> Distance;  // to the best other unit; negative: a lead; absent for a single unit
  std::optional<Double> Regret;    // the most that it loses to the best unit

  // Both, with a session and at most 20,000 units; the ratio form with constant returns only.
  std::optional<RankRange> Ranks;
  std::optional<RankRange> RanksSeen;
};

struct LeftOut {
  int Unit = 0;
  String Reason;
  std::optional<int> Lacking;  // the column without a value; else all inputs are zero
};

// One raw unit of the column is worth so many of the reference's, as judged.
struct Equivalence {
  int Column = 0;
  int Of = 0;
  Double Low = 0.0;            // 0: no bound
  std::optional<Double> High;  // absent: no bound
};

struct Departure {
  int Column = 0;
  std::optional<Double>
      FromChord;  // in shares of the values over the range; absent where the curve comes back to its start
};

struct Results {
  std::vector<UnitResult> Units;      // those evaluated, in the problem's order
  std::vector<Dea::LeftOut> LeftOut;  // in the problem's order
  std::vector<Equivalence> Equivalences;
  std::vector<Departure> Departures;
  Double WorstViolation = 0.0;  // the certificate: how far any unit passes what the prices of any score allow
  std::vector<String> Notes;
};

}  // namespace Tarnwise::Dea
