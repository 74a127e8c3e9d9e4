// Results in words and short numbers, for tables and reports.
#pragma once

#include "project/Evaluation.h"
#include "project/Signs.h"

namespace Tarnwise {

bool IsOne(const std::optional<double>& score);
bool IsBest(const Dea::UnitResult& unit);  // for some of the weights, in the value form

// Three decimals; more of them where those would say 1 (of a distance: 0) for what is not.
String ScoreText(const std::optional<double>& score, const ResultsSigns& signs = kPlainSigns);
String DistanceText(const std::optional<double>& distance, const ResultsSigns& signs = kPlainSigns);
String ThreeDecimals(const std::optional<double>& number, const ResultsSigns& signs = kPlainSigns);

// "0.809 - 0.854"; one number where both are the same.
String SpanText(const String& low, const String& high, const ResultsSigns& signs = kPlainSigns);
String RanksText(const Dea::UnitResult& unit, const ResultsSigns& signs = kPlainSigns);  // "4-11, seen 5-11"

// "Inpatients >= 2.00 (0.146)": the bound as it stands in the session, and what dropping it alone would gain.
String BoundText(const Evaluation& evaluation, const Dea::HeldBackBy& bound, const ResultsSigns& signs = kPlainSigns);
// The four bounds that cost most.
String HeldBackText(const Evaluation& evaluation, const Dea::UnitResult& unit, const ResultsSigns& signs = kPlainSigns);

// The judged range of a unit's efficiency, the least number first; off constant returns its best case alone.
String JudgedText(const Evaluation& evaluation, const Dea::UnitResult& unit);
// "Hospital A 0.787, .."
String PeersText(const Evaluation& evaluation, const Dea::UnitResult& unit, const ResultsSigns& signs = kPlainSigns);

// Sentences about all units, about what was asked for, and about the curves.
String RatioSummary(const Evaluation& evaluation);
String ValueSummary(const Evaluation& evaluation);
String HowText(const Project& project, const Evaluation& evaluation);
String DeparturesText(const Evaluation& evaluation);

}  // namespace Tarnwise
