// What a report says of the results, for all units and for each.
#include "project/Report.h"
#include "project/ReportCharts.h"
#include "project/ResultsWords.h"
#include "project/Shown.h"

#include <algorithm>

namespace Tarnwise {

namespace {

constexpr std::size_t kMostReasons = 200;

String RankPart(const Dea::UnitResult& unit) {
  const bool isOne = unit.Ranks && unit.Ranks->Best == unit.Ranks->Worst;
  return (isOne ? ", rank " : ", ranks ") + RanksText(unit);
}

struct Scores {
  const Evaluation& From;

  bool IsValue() const { return From.How.Form == ScoreForm::Value; }
  bool IsJudged() const { return From.How.Session.has_value(); }
  bool IsConstant() const { return From.How.Returns == ScoreReturns::Crs; }
  bool HasRanks() const { return !From.Results.Units.empty() && From.Results.Units.front().Ranks; }
  const String& Name(const Dea::UnitResult& unit) const {
    return From.Problem.Units[static_cast<std::size_t>(unit.Unit)];
  }
  String Value(const Dea::UnitResult& unit) const {
    return unit.Value ? SpanText(ThreeDecimals(unit.Value->Low), ThreeDecimals(unit.Value->High)) : String(kNoNumber);
  }

  std::vector<String> Header() const;
  std::vector<String> Row(const Dea::UnitResult& unit) const;
  String Reason(const Dea::UnitResult& unit) const;
  String RatioReason(const Dea::UnitResult& unit) const;
  String ValueReason(const Dea::UnitResult& unit) const;
};

std::vector<String> Scores::Header() const {
  std::vector<String> header{"Unit"};
  if (IsValue()) {
    header.insert(header.end(), {"Value", "Distance", "Loses at most"});
  } else if (IsJudged()) {
    header.insert(header.end(), {"No judgments", IsConstant() ? "Judged" : "Judged, at best"});
  } else {
    header.emplace_back("Efficiency");
  }
  if (!IsValue() && IsConstant()) header.emplace_back("Super");
  if (HasRanks()) header.emplace_back("Ranks");
  return header;
}

std::vector<String> Scores::Row(const Dea::UnitResult& unit) const {
  std::vector<String> row{Name(unit)};
  if (IsValue()) {
    row.insert(row.end(), {Value(unit), DistanceText(unit.Distance), DistanceText(unit.Regret)});
  } else if (IsJudged()) {
    row.insert(row.end(), {ScoreText(unit.Free), JudgedText(From, unit)});
  } else {
    row.push_back(ScoreText(unit.Max));
  }
  if (!IsValue() && IsConstant()) row.push_back(ThreeDecimals(unit.Super));
  if (HasRanks()) row.push_back(RanksText(unit));
  return row;
}

String Scores::RatioReason(const Dea::UnitResult& unit) const {
  String text = "efficiency " + (IsJudged() ? JudgedText(From, unit) + ", without judgments " + ScoreText(unit.Free)
                                            : ScoreText(unit.Max));
  if (HasRanks()) text += RankPart(unit);
  text += ".";
  if (!unit.HeldBackBy.empty()) text += " Held back by " + HeldBackText(From, unit) + ".";
  const bool isOwnPeer = unit.Peers.size() == 1 && unit.Peers.front().Unit == unit.Unit;
  if (!unit.Peers.empty() && !isOwnPeer) text += " Compared with " + PeersText(From, unit) + ".";
  if (IsOne(unit.Max)) text += " No other unit is better at its best weights.";
  return text;
}

String Scores::ValueReason(const Dea::UnitResult& unit) const {
  String text = "value " + Value(unit);
  if (HasRanks()) text += RankPart(unit);
  text += ".";
  if (!unit.Distance) return text;
  if (*unit.Distance < 0.0 && IsBest(unit)) {
    text += " At its best weights it is " + DistanceText(-*unit.Distance) + " ahead of the next one.";
  } else if (IsBest(unit)) {
    text += " At its best weights nobody is ahead of it.";
  } else {
    text += " Even at its best weights it is " + DistanceText(unit.Distance) + " behind the best one.";
  }
  return text + " It loses at most " + DistanceText(unit.Regret) + ".";
}

String Scores::Reason(const Dea::UnitResult& unit) const {
  return Name(unit) + ": " + (IsValue() ? ValueReason(unit) : RatioReason(unit));
}

// Prices and shares at the best weights, a column for each attribute.
ReportTable SharesTable(const Scores& scores, std::size_t count) {
  ReportTable table{"Shares in the group's worth, at the weights that are best for the unit", {"Unit"}, {}, 1};
  for (const Dea::Column& column : scores.From.Problem.Columns) table.Header.push_back(ShownName(column.Name));
  for (std::size_t k = 0; k < count; ++k) {
    const Dea::UnitResult& unit = scores.From.Results.Units[k];
    std::vector<String> row{scores.Name(unit)};
    for (std::size_t j = 0; j < scores.From.Problem.Columns.size(); ++j) {
      row.push_back(unit.Shares.empty() ? String(kNoNumber) : ThreeDecimals(unit.Shares[j]));
    }
    table.Rows.push_back(std::move(row));
  }
  return table;
}

String ChartText(const Scores& scores) {
  if (scores.IsValue()) return "Bars: from the least to the greatest value, best units first.";
  if (!scores.IsJudged()) return "Efficiencies without judgments, best units first.";
  return "Bars: efficiencies under the judgments, from least to greatest; ticks: without judgments. Best units first.";
}

void SayShown(std::size_t shown, std::size_t all, Report& report) {
  if (shown >= all) return;
  report.Paragraph("The first " + std::to_string(shown) + " of " + std::to_string(all) +
                   " units are shown; tarnwise solve --csv gives all of them.");
}

}  // namespace

void AddScores(const Evaluation& evaluation, Report& report) {
  const Scores scores{evaluation};
  const auto& units = evaluation.Results.Units;
  report.Section(scores.IsValue() ? "Values" : "Efficiencies");
  ReportTable table{"Scores", scores.Header(), {}, 1};
  for (std::size_t k = 0; k < std::min(units.size(), kMostUnitsShown); ++k) table.Rows.push_back(scores.Row(units[k]));
  report.Add(std::move(table));
  SayShown(kMostUnitsShown, units.size(), report);
  report.Add(ScoresChart(evaluation), ChartText(scores));
  if (scores.HasRanks()) {
    report.Add(RanksChart(evaluation),
               "Light bars: all ranks that the judgments leave open; dark lines: the ranks seen "
               "in weights drawn from them.");
  }
}

void AddReasons(const Evaluation& evaluation, Report& report) {
  const Scores scores{evaluation};
  const auto& units = evaluation.Results.Units;
  const std::size_t count = std::min(units.size(), kMostReasons);
  report.Section("Unit by unit");
  std::vector<String> reasons;
  for (std::size_t k = 0; k < count; ++k) reasons.push_back(scores.Reason(units[k]));
  report.List(std::move(reasons));
  if (!scores.IsValue()) report.Add(SharesTable(scores, count));
  SayShown(kMostReasons, units.size(), report);
}

}  // namespace Tarnwise
