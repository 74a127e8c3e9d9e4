// Problems for tests: the hospitals of the samples, sessions about them, and small ones put together from numbers.
#pragma once

#include "dea/Evaluate.h"

#include <gtest/gtest.h>

#include <limits>

namespace Tarnwise::Dea {

constexpr Double kSame = 1e-9;       // what rounding makes of equal numbers
constexpr Double kSixDigits = 6e-7;  // published with six decimals

constexpr Double kMissing = std::numeric_limits<Double>::quiet_NaN();
constexpr Double no = kMissing;  // in tables of expected numbers

Column InputColumn(const String& name, std::vector<Double> values);  // worst and best: the largest and the least
Column OutputColumn(const String& name, std::vector<Double> values);
Curve CurveThrough(const std::vector<Double>& x, const std::vector<Double>& y);

// Units named "1", "2", .. with these columns.
Problem ProblemOf(std::vector<Column> columns);

// Twelve hospitals A to L: Doctors 0, Nurses 1 (inputs), Outpatients 2, Inpatients 3 (outputs).
Problem Hospitals();

// Doctors over Nurses and Inpatients over Outpatients.
Session HospitalSession(Basis basis, Interval doctors, Interval inpatients, std::optional<Double> cross);
Session BoundsSession();  // raw prices in 0.2 to 5
Session DirectSession();  // what the direct approach gives in the samples
Session TradedSession();  // what the trade-off approach gives
Problem HospitalsJudged(const Session& session, Form form = Form::Ratio);

Judgment JudgmentOf(int column, Double low, Double high);

// The problem with units 0 to n - 1 in another order: unit k of the new one is order[k] of the old one.
Problem WithUnits(const Problem& problem, const std::vector<int>& order);

// What the evaluation refuses the problem with; empty when it does not.
String RefusalOf(const Problem& problem);

// The numbers one of a kind, in the order of units; NaN where absent.
using Field = std::optional<Double> UnitResult::*;
std::vector<Double> All(const Results& results, Field field);

// Compares number by number; NaN equals NaN.
void ExpectAll(const std::vector<Double>& expected, const std::vector<Double>& actual, Double tolerance);

}  // namespace Tarnwise::Dea
