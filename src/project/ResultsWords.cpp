#include "project/ResultsWords.h"

#include "project/Sentences.h"
#include "project/Shown.h"

#include <algorithm>
#include <cmath>

namespace Tarnwise {

namespace {

constexpr double kIsOne = 1e-9;
constexpr double kIsBehind = 1e-9;
constexpr int kDecimals = 3;

// Three decimals; more of them where those would say `mark` for what is not.
String TextBeside(double mark, const std::optional<double>& number) {
  if (!number) return kNoNumber;
  const double apart = std::fabs(*number - mark);
  int decimals = kDecimals;
  while (apart > kIsOne && decimals < 9 && apart < 0.5 * std::pow(10.0, -decimals)) ++decimals;
  return FixedText(*number, decimals);
}

// Ratios with two decimals; small ones as far as they have digits.
String RatioText(double ratio) { return ratio < 0.1 ? SignificantText(ratio, 3) : FixedText(ratio, 2); }

String RankText(const Dea::RankRange& ranks) {
  return ranks.Best == ranks.Worst ? std::to_string(ranks.Best)
                                   : std::to_string(ranks.Best) + "-" + std::to_string(ranks.Worst);
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

}  // namespace

bool IsOne(const std::optional<double>& score) { return score && std::fabs(*score - 1.0) <= kIsOne; }

bool IsBest(const Dea::UnitResult& unit) { return !unit.Distance || *unit.Distance <= kIsBehind; }

String ScoreText(const std::optional<double>& score) { return TextBeside(1.0, score); }

String DistanceText(const std::optional<double>& distance) { return TextBeside(0.0, distance); }

String ThreeDecimals(const std::optional<double>& number) { return number ? FixedText(*number, kDecimals) : kNoNumber; }

String SpanText(const String& low, const String& high) { return low == high ? low : low + " - " + high; }

String RanksText(const Dea::UnitResult& unit) {
  if (!unit.Ranks) return kNoNumber;
  const String sure = RankText(*unit.Ranks);
  const String seen = unit.RanksSeen ? RankText(*unit.RanksSeen) : sure;
  return sure == seen ? sure : sure + ", seen " + seen;
}

String BoundText(const Evaluation& evaluation, const Dea::HeldBackBy& bound) {
  const String& name = evaluation.Problem.Columns[static_cast<std::size_t>(bound.Column)].Name;
  const String gain = bound.Gain < 0.0005 ? SignificantText(bound.Gain, 1) : FixedText(bound.Gain, 3);
  return ShownName(name) + (bound.Side == Dea::Side::Low ? " >= " : " <= ") + RatioText(bound.Ratio) + " (" + gain +
         ")";
}

String HeldBackText(const Evaluation& evaluation, const Dea::UnitResult& unit) {
  constexpr std::size_t kMost = 4;
  String text;
  for (std::size_t b = 0; b < std::min(unit.HeldBackBy.size(), kMost); ++b) {
    text += (b == 0 ? "" : ", ") + BoundText(evaluation, unit.HeldBackBy[b]);
  }
  return unit.HeldBackBy.size() <= kMost ? text
                                         : text + " and " + std::to_string(unit.HeldBackBy.size() - kMost) + " more";
}

String JudgedText(const Evaluation& evaluation, const Dea::UnitResult& unit) {
  const String best = ScoreText(unit.Max);
  if (evaluation.How.Returns != ScoreReturns::Crs) return best;
  const String worst = ScoreText(unit.Min);
  return evaluation.How.Orientation == ScoreOrientation::Out ? SpanText(best, worst) : SpanText(worst, best);
}

String PeersText(const Evaluation& evaluation, const Dea::UnitResult& unit) {
  std::vector<String> peers;
  for (const Dea::Peer& peer : unit.Peers) {
    const String& name = evaluation.Problem.Units[static_cast<std::size_t>(peer.Unit)];
    peers.push_back(ShownName(name) + " " + SignificantText(peer.Lambda, kDecimals));
  }
  return Enumerated(peers);
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
    items.push_back(ShownName(name) + " " + ThreeDecimals(departure.FromChord));
  }
  String text;
  for (const String& item : items) text += (text.empty() ? "" : ", ") + item;
  return "Largest departure of each curve from its chord: " + text + ".";
}

}  // namespace Tarnwise
