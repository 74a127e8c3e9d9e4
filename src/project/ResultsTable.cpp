#include "project/ResultsTable.h"

#include "project/ResultsWords.h"
#include "project/Sentences.h"
#include "project/Shown.h"
#include "project/TextTable.h"

#include <algorithm>
#include <cmath>

namespace Tarnwise {

namespace {

TableRow Header(const std::vector<const char*>& texts) {
  TableRow row;
  for (const char* const text : texts) row.push_back({text, Ink::Strong});
  return row;
}

struct Table {
  const Evaluation& From;
  std::vector<TableRow> Rows;

  const String& UnitName(int unit) const { return From.Problem.Units[static_cast<std::size_t>(unit)]; }
  bool IsConstant() const { return From.How.Returns == ScoreReturns::Crs; }
  bool IsJudged() const { return From.How.Session.has_value(); }
  bool HasRanks() const { return !From.Results.Units.empty() && From.Results.Units.front().Ranks; }

  TableCell ScoreCell(const std::optional<double>& score) const {
    return {ScoreText(score), IsOne(score) ? Ink::Good : Ink::Plain};
  }
  TableCell JudgedCell(const Dea::UnitResult& unit) const {
    return {JudgedText(From, unit), IsOne(unit.Max) ? Ink::Good : Ink::Plain};
  }

  void AddFree();
  void AddJudged();
  void AddValues();
};

void Table::AddFree() {
  Rows.push_back(IsConstant() ? Header({"unit", "efficiency", "super", "peers"})
                              : Header({"unit", "efficiency", "peers"}));
  for (const Dea::UnitResult& unit : From.Results.Units) {
    TableRow row{{WholeName(UnitName(unit.Unit))}, ScoreCell(unit.Max)};
    if (IsConstant()) row.push_back({unit.Super ? ThreeDecimals(*unit.Super) : String()});
    row.push_back({PeersText(From, unit), Ink::Faint});
    Rows.push_back(row);
  }
}

void Table::AddJudged() {
  TableRow header = Header({"unit", "no judgments", IsConstant() ? "judged" : "judged, at best"});
  if (HasRanks()) header.push_back({"ranks", Ink::Strong});
  header.push_back({"held back by", Ink::Strong});
  Rows.push_back(header);
  for (const Dea::UnitResult& unit : From.Results.Units) {
    TableRow row{{WholeName(UnitName(unit.Unit))}, ScoreCell(unit.Free), JudgedCell(unit)};
    if (HasRanks()) row.push_back({RanksText(unit)});
    row.push_back({HeldBackText(From, unit)});
    Rows.push_back(row);
  }
}

void Table::AddValues() {
  TableRow header = Header({"unit", "value", "distance", "loses at most"});
  if (HasRanks()) header.push_back({"ranks", Ink::Strong});
  Rows.push_back(header);
  for (const Dea::UnitResult& unit : From.Results.Units) {
    const String value =
        unit.Value ? SpanText(ThreeDecimals(unit.Value->Low), ThreeDecimals(unit.Value->High)) : kNoNumber;
    TableRow row{{WholeName(UnitName(unit.Unit))},
                 {value},
                 {DistanceText(unit.Distance), unit.Distance && IsBest(unit) ? Ink::Good : Ink::Plain},
                 {DistanceText(unit.Regret)}};
    if (HasRanks()) row.push_back({RanksText(unit)});
    Rows.push_back(row);
  }
}

}  // namespace

String ResultsTable(const Project& project, const Evaluation& evaluation, bool colours) {
  const Dea::Results& results = evaluation.Results;
  const bool isValue = evaluation.How.Form == ScoreForm::Value;
  Table table{evaluation, {}};
  if (isValue) {
    table.AddValues();
  } else if (evaluation.How.Session) {
    table.AddJudged();
  } else {
    table.AddFree();
  }
  String text = TableText(table.Rows, colours) + "\n";
  const auto line = [&text](const String& words) { text += words + "\n"; };
  line(HowText(project, evaluation));
  line(isValue ? ValueSummary(evaluation) : RatioSummary(evaluation));
  if (isValue && evaluation.How.Session) line(CrossText(project, evaluation.How));
  for (const Dea::Equivalence& equivalence : results.Equivalences) {
    line(EquivalenceText(project, evaluation.Problem, equivalence));
  }
  line(DeparturesText(evaluation));
  for (const Dea::LeftOut& left : results.LeftOut) {
    line("Left out: " + WholeName(table.UnitName(left.Unit)) + " (" + left.Reason + ").");
  }
  line("Worst violation of any condition: " + SignificantText(results.WorstViolation, 2) + ".");
  return text;
}

}  // namespace Tarnwise
