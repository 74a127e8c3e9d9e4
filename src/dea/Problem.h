// What is to be evaluated: the units' numbers, their scales, the judgments of one session, and how. Plain numbers and
// indices; names stand here for refusals and notes only.
#pragma once

#include "curves/Akima.h"

#include <tarnwise/Scalars.h>

#include <cstdint>
#include <optional>
#include <vector>

namespace Tarnwise::Dea {

enum class Role { Input, Output };
enum class Basis {
  Range,
  Scale,
  Unit
};  // what one unit of a judged attribute is: worst to best, the whole curve, itself
enum class Form { Ratio, Value };
enum class Returns { Constant, Variable, NonIncreasing, NonDecreasing };
enum class Orientation { In, Out };
enum class Side { Low, High };

// The performance range of an attribute and its value curve; without a curve the straight line that rises with the
// score from 0 at one end of the range to 1 at the other.
struct Scale {
  Double Worst = 0.0;
  Double Best = 0.0;
  std::optional<Curve> ValueCurve;
};

// A used column: one number for each unit, NaN where there is none.
struct Column {
  String Name;
  Role Use = Role::Input;
  Scale Range;
  std::vector<Double> Values;
};

// What a session says of one column. Ratios are to the reference of the column's group, on the session's basis; a zero
// bound is no bound on its side. Of a reference only the snapshot is looked at.
struct Judgment {
  int Column = 0;  // index into Problem::Columns
  bool Judged = true;
  Double Low = 0.0;
  Double High = 0.0;
  std::optional<Scale> Snapshot;  // the scale that was judged, where it was kept: it replaces the column's own
};

struct Session {
  String Name = "the session";  // as refusals and notes call it: "session 0"
  Dea::Basis Basis = Basis::Range;
  std::optional<int> BenefitReference;  // needed where the group has more than one column
  std::optional<int> CostReference;
  std::optional<Double> Cross;      // weight of the cost reference to that of the benefit reference; absent: not judged
  std::vector<Judgment> Judgments;  // at most one for a column; a column without one is not judged
};

struct Options {
  Dea::Form Form = Form::Ratio;
  Dea::Returns Returns = Returns::Constant;        // ratio form only
  Dea::Orientation Orientation = Orientation::In;  // ratio form only
  std::uint64_t Seed = 1;                          // of the weights that are drawn for the ranks seen
  Double Widen = 1.0;                              // at least 1: every interval this much wider in log ratio
  Double CrossBand = 1.0;                          // b, at least 1: the cross ratio R lies in R / b to R b
  bool Ranks = true;                               // ranks and ranks seen, where there are any
  bool HeldBack = true;                            // what each bound costs each unit, where there are any
};

struct Problem {
  std::vector<String> Units;
  std::vector<Column> Columns;
  std::optional<Dea::Session> Session;
  Dea::Options Options;
};

}  // namespace Tarnwise::Dea
