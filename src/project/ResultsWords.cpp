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
String TextBeside(double mark, const std::optional<double>& number, const ResultsSigns& signs) {
  if (!number) return signs.NoNumber;
  const double apart = std::fabs(*number - mark);
  int decimals = kDecimals;
  while (apart > kIsOne && decimals < 9 && apart < 0.5 * std::pow(10.0, -decimals)) ++decimals;
  return FixedText(*number, decimals);
}

// Ratios with two decimals; small ones as far as they have digits.
String RatioText(double ratio) { return ratio < 0.1 ? SignificantText(ratio, 3) : FixedText(ratio, 2); }

String RankText(const Dea::RankRange& ranks, const ResultsSigns& signs) {
  return ranks.Best == ranks.Worst ? std::to_string(ranks.Best)
                                   : std::to_string(ranks.Best) + signs.RankSpan + std::to_string(ranks.Worst);
}

// The first ones, and how many more there are.
String FirstOf(const std::vector<String>& items, std::size_t most, const ResultsSigns& signs) {
  String text;
  for (std::size_t i = 0; i < std::min(items.size(), most); ++i) text += (i == 0 ? "" : ", ") + items[i];
  if (items.size() <= most) return text;
  String more = signs.More;
  const std::size_t place = more.find("%1");
  if (place != String::npos) more.replace(place, 2, std::to_string(items.size() - most));
  return text + more;
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

String ScoreText(const std::optional<double>& score, const ResultsSigns& signs) {
  return TextBeside(1.0, score, signs);
}

String DistanceText(const std::optional<double>& distance, const ResultsSigns& signs) {
  return TextBeside(0.0, distance, signs);
}

String ThreeDecimals(const std::optional<double>& number, const ResultsSigns& signs) {
  return number ? FixedText(*number, kDecimals) : signs.NoNumber;
}

String SpanText(const String& low, const String& high, const ResultsSigns& signs) {
  return low == high ? low : low + signs.Span + high;
}

String RanksText(const Dea::UnitResult& unit, const ResultsSigns& signs) {
  if (!unit.Ranks) return signs.NoNumber;
  const String sure = RankText(*unit.Ranks, signs);
  const String seen = unit.RanksSeen ? RankText(*unit.RanksSeen, signs) : sure;
  return sure == seen ? sure : sure + signs.Seen + seen;
}

String BoundText(const Evaluation& evaluation, const Dea::HeldBackBy& bound, const ResultsSigns& signs) {
  const String& name = evaluation.Problem.Columns[static_cast<std::size_t>(bound.Column)].Name;
  const String gain = bound.Gain < 0.0005 ? SignificantText(bound.Gain, 1) : FixedText(bound.Gain, 3);
  return ShownName(name) + (bound.Side == Dea::Side::Low ? signs.AtLeast : signs.AtMost) + RatioText(bound.Ratio) +
         " (" + gain + ")";
}

String HeldBackText(const Evaluation& evaluation, const Dea::UnitResult& unit, const ResultsSigns& signs) {
  constexpr std::size_t kMost = 4;
  std::vector<String> bounds;
  for (const Dea::HeldBackBy& bound : unit.HeldBackBy) bounds.push_back(BoundText(evaluation, bound, signs));
  return FirstOf(bounds, kMost, signs);
}

String JudgedText(const Evaluation& evaluation, const Dea::UnitResult& unit) {
  const String best = ScoreText(unit.Max);
  if (evaluation.How.Returns != ScoreReturns::Crs) return best;
  const String worst = ScoreText(unit.Min);
  return evaluation.How.Orientation == ScoreOrientation::Out ? SpanText(best, worst) : SpanText(worst, best);
}

String PeersText(const Evaluation& evaluation, const Dea::UnitResult& unit, const ResultsSigns& signs) {
  constexpr std::size_t kMost = 10;
  std::vector<String> peers;
  for (const Dea::Peer& peer : unit.Peers) {
    const String& name = evaluation.Problem.Units[static_cast<std::size_t>(peer.Unit)];
    peers.push_back(ShownName(name) + " " + SignificantText(peer.Lambda, kDecimals));
  }
  return FirstOf(peers, kMost, signs);
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
