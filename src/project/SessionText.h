// A session of judgments in the analyst's own units, a line each.
#pragma once

#include "project/SessionModel.h"

namespace Tarnwise {

// What a ratio of one attribute to the reference is going to compare.
enum class JudgedBy { Both, DirectComparisons, TradeOffs };
struct Meaning {
  JudgedBy By = JudgedBy::Both;
  double Ratio = 1.5;
  String Attribute;
  ColumnScale Scale;  // from its worst to its best
  String Reference;
  ColumnScale ReferenceScale;
  bool IsExample = false;  // no reference is chosen yet, this one stands for it
};
std::vector<Meaning> MeaningsOf(const SessionModel& model);

// What a ratio is going to mean in each group of more than one attribute: "1.5 means: Doctors from 60 to 15 is worth
// 1.5 times Nurses from 320 to 120." Trade-offs have a line of their own where a curve goes beyond worst and best.
std::vector<String> MeaningLines(const SessionModel& model);

// What was judged, in the columns' order: "Doctors 3 .. 4.09 times Nurses", "Beds not judged", "Staff 1 times Nurses
// (same rank)"; then the cross ratio. References have no line.
std::vector<String> JudgmentLines(const Project& project, std::size_t session);

// Everything that was not judged: attributes, and "Nurses to Outpatients", the cross ratio.
std::vector<String> NotJudged(const Project& project, std::size_t session);

}  // namespace Tarnwise
