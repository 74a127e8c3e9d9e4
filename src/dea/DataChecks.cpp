#include "dea/DataChecks.h"

#include "dea/SessionChecks.h"
#include "dea/Vectors.h"
#include "dea/Watch.h"
#include "runtime/Sizes.h"
#include "runtime/Text.h"

#include <cmath>

namespace Tarnwise::Dea {

namespace {

// What is smaller would be lost in a product with others.
constexpr Double kSmallest = 1e-100;

String CellName(const Problem& problem, const Column& column, std::size_t unit) {
  return "Column " + column.Name + ", unit " + problem.Units[unit];
}

void CheckSizes(const Problem& problem) {
  if (problem.Units.empty()) throw Refused("There is no unit.");
  if (problem.Columns.empty()) throw Refused("No column is used: there is neither an input nor an output.");
  if (problem.Columns.size() > At(kMaxAtts)) {
    throw Refused(std::to_string(problem.Columns.size()) + " columns are used; the judgment of ratios takes at most " +
                  std::to_string(kMaxAtts) + ".");
  }
  for (const Column& column : problem.Columns) {
    if (column.Values.size() == problem.Units.size()) continue;
    throw Refused("Column " + column.Name + " has " + std::to_string(column.Values.size()) + " values for " +
                  std::to_string(problem.Units.size()) + " units.");
  }
}

void CheckCell(const Problem& problem, const Column& column, std::size_t unit) {
  const Double value = column.Values[unit];
  if (std::isnan(value)) return;
  const Double size = std::fabs(value);
  if (size > kLargest) throw Refused(CellName(problem, column, unit) + ": the number is too large to compute with.");
  if (size > 0.0 && size < kSmallest) {
    throw Refused(CellName(problem, column, unit) + ": the number is too small to compute with; 0 can be.");
  }
  if (problem.Options.Form == Form::Ratio && value < 0.0) {
    throw Refused(CellName(problem, column, unit) + ": " + NumberText(value) +
                  " is negative. The ratio form takes no negative numbers; the value form does.");
  }
}

void CheckCells(const Problem& problem) {
  for (const Column& column : problem.Columns) {
    for (std::size_t k = 0; k < problem.Units.size(); ++k) CheckCell(problem, column, k);
  }
}

void CheckOptions(const Options& options) {
  if (!(options.Widen >= 1.0 && options.Widen <= 1000.0))
    throw Refused("The factor that widens intervals has to be 1 or more.");
  if (!(options.CrossBand >= 1.0 && options.CrossBand <= kLargest)) {
    throw Refused("The band of the cross ratio has to be 1 or more.");
  }
}

// Why the unit cannot be evaluated; nothing when it can.
std::optional<LeftOut> WhyLeftOut(const Problem& problem, const Checked& checked, int unit) {
  for (int j = 0; At(j) < problem.Columns.size(); ++j) {
    const Column& column = problem.Columns[At(j)];
    if (std::isnan(column.Values[At(unit)])) return LeftOut{unit, "no value in column " + column.Name, j};
  }
  if (problem.Options.Form != Form::Ratio || checked.Inputs.empty()) return std::nullopt;
  for (const int i : checked.Inputs) {
    if (problem.Columns[At(i)].Values[At(unit)] != 0.0) return std::nullopt;
  }
  return LeftOut{unit, "all inputs are zero", std::nullopt};
}

void ChooseUnits(const Problem& problem, Checked& checked) {
  for (int k = 0; At(k) < problem.Units.size(); ++k) {
    if (auto left = WhyLeftOut(problem, checked, k)) {
      checked.LeftOut.push_back(std::move(*left));
    } else {
      checked.Units.push_back(k);
    }
  }
  if (checked.Units.empty()) {
    throw Refused("No unit is left to evaluate. Unit " + problem.Units.front() + ": " + checked.LeftOut.front().Reason +
                  ".");
  }
}

// The names of some units, and how many more there are.
String SomeOf(const Problem& problem, const std::vector<int>& units) {
  constexpr std::size_t kNamed = 5;
  String text;
  for (std::size_t k = 0; k < units.size() && k < kNamed; ++k) {
    text += (k == 0 ? "" : ", ") + problem.Units[static_cast<std::size_t>(units[k])];
  }
  return units.size() <= kNamed ? text : text + " and " + std::to_string(units.size() - kNamed) + " more";
}

void NoteZeroInputs(const Problem& problem, Checked& checked) {
  for (const int i : checked.Inputs) {
    const Column& column = problem.Columns[At(i)];
    std::vector<int> zeros;
    for (const int k : checked.Units) {
      if (column.Values[At(k)] == 0.0) zeros.push_back(k);
    }
    if (zeros.empty()) continue;
    checked.Notes.push_back("Column " + column.Name + " is zero for " + SomeOf(problem, zeros) +
                            ": as long as it is not judged, an input of zero can make a unit efficient by itself.");
  }
}

void NoteClampedScores(const Problem& problem, Checked& checked) {
  for (std::size_t j = 0; j < problem.Columns.size(); ++j) {
    const ValueFunction value(checked.Scales[j]);
    std::vector<int> beyond;
    for (const int k : checked.Units) {
      const Double at = value.Unclamped(problem.Columns[j].Values[At(k)]);
      if (at < -1e-9 || at > 1.0 + 1e-9) beyond.push_back(k);
    }
    if (beyond.empty()) continue;
    checked.Notes.push_back("Column " + problem.Columns[j].Name +
                            ": scores beyond the values 0 to 1 count as the end: " + SomeOf(problem, beyond) + ".");
  }
}

}  // namespace

Checked Check(const Problem& problem) {
  CheckSizes(problem);
  CheckOptions(problem.Options);
  CheckCells(problem);
  Checked checked;
  for (std::size_t j = 0; j < problem.Columns.size(); ++j) {
    (problem.Columns[j].Use == Role::Input ? checked.Inputs : checked.Outputs).push_back(static_cast<int>(j));
  }
  CheckSession(problem, checked);
  ChooseUnits(problem, checked);
  if (problem.Options.Form == Form::Ratio) {
    NoteZeroInputs(problem, checked);
  } else {
    NoteClampedScores(problem, checked);
  }
  return checked;
}

}  // namespace Tarnwise::Dea
