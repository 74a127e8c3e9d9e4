#include "project/ResultsTable.h"

#include "project/Sentences.h"
#include "project/Shown.h"
#include "project/TextTable.h"

#include <algorithm>
#include <cmath>

namespace Tarnwise {

namespace {

constexpr double kIsOne = 1e-9;
constexpr double kIsBehind = 1e-9;
constexpr int kDecimals = 3;
constexpr const char* kNone = "-";

bool IsOne(const std::optional<double>& score) { return score && std::fabs(*score - 1.0) <= kIsOne; }

bool IsBest(const Dea::UnitResult& unit) { return !unit.Distance || *unit.Distance <= kIsBehind; }

// Three decimals; more of them where those would say `mark` for what is not.
String TextBeside(double mark, const std::optional<double>& number) {
  if (!number) return kNone;
  const double apart = std::fabs(*number - mark);
  int decimals = kDecimals;
  while (apart > kIsOne && decimals < 9 && apart < 0.5 * std::pow(10.0, -decimals)) ++decimals;
  return FixedText(*number, decimals);
}

String ScoreText(const std::optional<double>& score) { return TextBeside(1.0, score); }

String NumberText(const std::optional<double>& number) { return number ? FixedText(*number, kDecimals) : kNone; }

String SpanText(const String& low, const String& high) { return low == high ? low : low + " - " + high; }

String RankText(const Dea::RankRange& ranks) {
  return ranks.Best == ranks.Worst ? std::to_string(ranks.Best)
                                   : std::to_string(ranks.Best) + "-" + std::to_string(ranks.Worst);
}

String RanksText(const Dea::UnitResult& unit) {
  if (!unit.Ranks) return kNone;
  const String sure = RankText(*unit.Ranks);
  const String seen = unit.RanksSeen ? RankText(*unit.RanksSeen) : sure;
  return sure == seen ? sure : sure + ", seen " + seen;
}

// Ratios with two decimals; small ones as far as they have digits.
String RatioText(double ratio) { return ratio < 0.1 ? SignificantText(ratio, 3) : FixedText(ratio, 2); }

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
  TableCell JudgedCell(const Dea::UnitResult& unit) const;
  String PeersText(const Dea::UnitResult& unit) const;
  String HeldBackText(const Dea::UnitResult& unit) const;

  void AddFree();
  void AddJudged();
  void AddValues();
};

TableCell Table::JudgedCell(const Dea::UnitResult& unit) const {
  TableCell cell = ScoreCell(unit.Max);
  if (!IsConstant()) return cell;
  const bool out = From.How.Orientation == ScoreOrientation::Out;
  cell.Text = out ? SpanText(ScoreText(unit.Max), ScoreText(unit.Min)) : SpanText(ScoreText(unit.Min), cell.Text);
  return cell;
}

String Table::PeersText(const Dea::UnitResult& unit) const {
  std::vector<String> peers;
  for (const Dea::Peer& peer : unit.Peers) {
    peers.push_back(ShownName(UnitName(peer.Unit)) + " " + SignificantText(peer.Lambda, kDecimals));
  }
  return Enumerated(peers);
}

String Table::HeldBackText(const Dea::UnitResult& unit) const {
  constexpr std::size_t kMost = 4;
  String text;
  for (std::size_t b = 0; b < std::min(unit.HeldBackBy.size(), kMost); ++b) {
    text += (b == 0 ? "" : ", ") + BoundText(From, unit.HeldBackBy[b]);
  }
  return unit.HeldBackBy.size() <= kMost ? text
                                         : text + " and " + std::to_string(unit.HeldBackBy.size() - kMost) + " more";
}

void Table::AddFree() {
  Rows.push_back(IsConstant() ? Header({"unit", "efficiency", "super", "peers"})
                              : Header({"unit", "efficiency", "peers"}));
  for (const Dea::UnitResult& unit : From.Results.Units) {
    TableRow row{{WholeName(UnitName(unit.Unit))}, ScoreCell(unit.Max)};
    if (IsConstant()) row.push_back({unit.Super ? FixedText(*unit.Super, kDecimals) : String()});
    row.push_back({PeersText(unit), Ink::Faint});
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
    row.push_back({HeldBackText(unit)});
    Rows.push_back(row);
  }
}

void Table::AddValues() {
  TableRow header = Header({"unit", "value", "distance", "loses at most"});
  if (HasRanks()) header.push_back({"ranks", Ink::Strong});
  Rows.push_back(header);
  for (const Dea::UnitResult& unit : From.Results.Units) {
    const String value = unit.Value ? SpanText(NumberText(unit.Value->Low), NumberText(unit.Value->High)) : kNone;
    TableRow row{{WholeName(UnitName(unit.Unit))},
                 {value},
                 {TextBeside(0.0, unit.Distance), unit.Distance && IsBest(unit) ? Ink::Good : Ink::Plain},
                 {TextBeside(0.0, unit.Regret)}};
    if (HasRanks()) row.push_back({RanksText(unit)});
    Rows.push_back(row);
  }
}

int Count(const Evaluation& evaluation, std::optional<double> Dea::UnitResult::*score) {
  const auto& units = evaluation.Results.Units;
  return static_cast<int>(
      std::count_if(units.begin(), units.end(), [score](const Dea::UnitResult& unit) { return IsOne(unit.*score); }));
}

String OfUnits(int count, const Evaluation& evaluation) {
  const std::size_t all = evaluation.Results.Units.size();
  return std::to_string(count) + " of " + CountOf(all, "unit") + (all == 1 ? " is " : " are ");
}

String RatioSummary(const Evaluation& evaluation) {
  String text = OfUnits(Count(evaluation, &Dea::UnitResult::Free), evaluation) + "efficient without judgments";
  if (!evaluation.How.Session) return text + ".";
  return text + ", " + std::to_string(Count(evaluation, &Dea::UnitResult::Max)) + " with them.";
}

String ValueSummary(const Evaluation& evaluation) {
  const auto& units = evaluation.Results.Units;
  const auto best = std::count_if(units.begin(), units.end(), IsBest);
  return OfUnits(static_cast<int>(best), evaluation) +
         "best at some of the weights. Distance: how far behind the best " +
         "other unit, in shares of the way from all worst to all best; below 0 a lead.";
}

String HowText(const Project& project, const Evaluation& evaluation) {
  const Asked& how = evaluation.How;
  String text = how.Form == ScoreForm::Value
                    ? String("Value form")
                    : "Ratio form, returns " + String(NameOf(how.Returns)) + ", orientation " + NameOf(how.Orientation);
  text += how.Session ? "; " + SessionTitle(project, *how.Session) : String("; no judgments");
  if (how.Session && how.Widen > 1.0) text += "; intervals widened " + SignificantText(how.Widen, 4) + " times";
  return text + ".";
}

String DeparturesText(const Evaluation& evaluation) {
  const auto& departures = evaluation.Results.Departures;
  const auto isNone = [](const Dea::Departure& departure) { return departure.FromChord == 0.0; };
  if (std::all_of(departures.begin(), departures.end(), isNone)) return "Every value curve is its chord.";
  std::vector<String> items;
  for (const Dea::Departure& departure : departures) {
    const String& name = evaluation.Problem.Columns[static_cast<std::size_t>(departure.Column)].Name;
    items.push_back(ShownName(name) + " " + NumberText(departure.FromChord));
  }
  String text;
  for (const String& item : items) text += (text.empty() ? "" : ", ") + item;
  return "Largest departure of each curve from its chord: " + text + ".";
}

}  // namespace

String BoundText(const Evaluation& evaluation, const Dea::HeldBackBy& bound) {
  const String& name = evaluation.Problem.Columns[static_cast<std::size_t>(bound.Column)].Name;
  const String gain = bound.Gain < 0.0005 ? SignificantText(bound.Gain, 1) : FixedText(bound.Gain, kDecimals);
  return ShownName(name) + (bound.Side == Dea::Side::Low ? " >= " : " <= ") + RatioText(bound.Ratio) + " (" + gain +
         ")";
}

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
