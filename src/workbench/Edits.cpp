#include "workbench/Edits.h"

#include "modelfiles/WholeFile.h"
#include "project/CsvRows.h"
#include "project/ImportTable.h"
#include "project/NumberText.h"
#include "project/Shown.h"

#include <algorithm>
#include <cmath>

namespace Tarnwise {

namespace {

constexpr std::size_t kMostPoints = 11;

bool HasNumber(const DataColumn& column) {
  return std::any_of(column.Values.begin(), column.Values.end(), [](const auto& value) { return value.has_value(); });
}

void TakeRange(DataColumn& column) {
  if (!HasNumber(column)) throw ModelFault("column " + ShownName(column.Name) + " has no numbers");
  const ColumnScale range = RangeFromData(column);
  column.Worst = range.Worst;
  column.Best = range.Best;
}

void PutCell(Project& project, std::size_t unit, std::size_t column, const String& text) {
  if (column == 0) {
    project.Units[unit] = OnOneLine(text);
    return;
  }
  project.Columns[column - 1].Values[unit] = CellOf(text);
  project.Columns[column - 1].ValuesAsTheyCame.clear();
}

// The nearest score beside the one that is kept free for its neighbour.
double Beside(double neighbour, double direction) { return std::nextafter(neighbour, neighbour + direction); }

}  // namespace

void SetRole(Project& project, std::size_t column, Role role) {
  DataColumn& changed = project.Columns[column];
  changed.Role = role;
  if (role == Role::Unused) return;
  if (!changed.Worst || !changed.Best) TakeRange(changed);
  const bool falls = *changed.Worst > *changed.Best;
  if (*changed.Worst != *changed.Best && falls != (role == Role::Input)) std::swap(changed.Worst, changed.Best);
}

void SetRangeFromData(Project& project, std::size_t column) { TakeRange(project.Columns[column]); }

void RenameColumn(Project& project, std::size_t column, const String& name) {
  const String former = project.Columns[column].Name;
  const String given = OnOneLine(name);
  if (given != former && FindColumn(project, given) != nullptr) {
    throw ModelFault("there is a column " + Shown(given) + " already");
  }
  const auto rename = [&](String& text) {
    if (text == former) text = given;
  };
  project.Columns[column].Name = given;
  for (JudgmentSession& session : project.Sessions) {
    rename(session.BenefitReference);
    rename(session.CostReference);
    for (SessionAttribute& attribute : session.Attributes) rename(attribute.Name);
  }
}

void AddUnit(Project& project, const String& name) {
  project.Units.push_back(name);
  for (DataColumn& column : project.Columns) {
    column.Values.emplace_back();
    column.ValuesAsTheyCame.clear();
  }
}

void RemoveUnits(Project& project, std::vector<std::size_t> units) {
  std::sort(units.begin(), units.end(), std::greater<>());
  for (const std::size_t unit : units) {
    const auto at = static_cast<std::ptrdiff_t>(unit);
    project.Units.erase(project.Units.begin() + at);
    for (DataColumn& column : project.Columns) {
      column.Values.erase(column.Values.begin() + at);
      column.ValuesAsTheyCame.clear();
    }
  }
}

void PutBlock(Project& project, std::size_t unit, std::size_t column, const std::vector<std::vector<String>>& texts) {
  if (unit + texts.size() > project.Units.size()) {
    throw ModelFault("the " + CountOf(texts.size(), "row") + " do not fit below " + Shown(project.Units[unit]));
  }
  for (std::size_t r = 0; r < texts.size(); ++r) {
    for (std::size_t c = 0; c < texts[r].size(); ++c) {
      if (column + c > project.Columns.size()) {
        throw ModelFault(CountOf(texts[r].size(), "column") + " do not fit here: there are only " +
                         std::to_string(project.Columns.size() + 1 - column) + " from this one on");
      }
      PutCell(project, unit + r, column + c, texts[r][c]);
    }
  }
}

std::vector<std::vector<String>> BlockOf(const String& text) {
  std::vector<std::vector<String>> block;
  CsvRows rows(text, '\t');
  while (rows.Next()) {
    std::vector<String> cells;
    for (const CsvCell& cell : rows.Cells()) cells.emplace_back(WithoutBlanks(cell.Text));
    block.push_back(std::move(cells));
  }
  return block;
}

std::optional<double> CellOf(const String& text) {
  const String cell(WithoutBlanks(text));
  if (IsMissingText(cell)) return std::nullopt;
  if (const auto number = NumberIn(cell, {'.', '\0'})) return number;
  if (const auto number = NumberIn(cell, {',', '\0'})) return number;
  throw ModelFault(Shown(cell) + " is no number");
}

std::vector<ValuePoint> CurveOrLine(const ColumnScale& scale) {
  if (!scale.Curve.empty()) return scale.Curve;
  return {{std::fmin(scale.Worst, scale.Best), 0.0}, {std::fmax(scale.Worst, scale.Best), 1.0}};
}

std::vector<ValuePoint> WithPointMoved(std::vector<ValuePoint> curve, std::size_t point, ValuePoint to) {
  if (point > 0) to.Score = std::fmax(to.Score, Beside(curve[point - 1].Score, 1.0));
  if (point + 1 < curve.size()) to.Score = std::fmin(to.Score, Beside(curve[point + 1].Score, -1.0));
  curve[point] = {to.Score, std::clamp(to.Value, 0.0, 1.0)};
  return curve;
}

std::vector<ValuePoint> WithPointAdded(std::vector<ValuePoint> curve, ValuePoint point) {
  if (curve.size() == kMostPoints) throw ModelFault("a curve has 11 points at most");
  const auto after = std::find_if(curve.begin(), curve.end(),
                                  [&point](const ValuePoint& other) { return other.Score >= point.Score; });
  if (after != curve.end() && after->Score == point.Score) {
    throw ModelFault("the curve has a point at " + ShortestText(point.Score) + " already");
  }
  curve.insert(after, {point.Score, std::clamp(point.Value, 0.0, 1.0)});
  return curve;
}

std::vector<ValuePoint> WithoutPoint(std::vector<ValuePoint> curve, std::size_t point) {
  if (curve.size() <= 2) throw ModelFault("a curve has 2 points at least");
  curve.erase(curve.begin() + static_cast<std::ptrdiff_t>(point));
  return curve;
}

}  // namespace Tarnwise
