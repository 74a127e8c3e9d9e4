#include "project/JsonMembers.h"
#include "project/ResultsText.h"

namespace Tarnwise {

namespace {

// What stands in the results of what was asked for.
struct Writer {
  const Evaluation& From;
  String& Out;

  bool IsJudged() const { return From.How.Session.has_value(); }
  bool IsConstant() const { return From.How.Returns == ScoreReturns::Crs; }
  const Dea::Results& Results() const { return From.Results; }
  const String& ColumnName(int column) const { return From.Problem.Columns[static_cast<std::size_t>(column)].Name; }
  const String& UnitName(int unit) const { return From.Problem.Units[static_cast<std::size_t>(unit)]; }

  void PutRanks(JsonMembers& members, const char* key, const std::optional<Dea::RankRange>& ranks) const;
  void PutByColumn(const std::vector<std::optional<double>>& numbers) const;
  void PutPeers(const std::vector<Dea::Peer>& peers) const;
  void PutHeldBackBy(const std::vector<Dea::HeldBackBy>& bounds) const;
  void PutRatioUnit(JsonMembers& members, const Dea::UnitResult& unit) const;
  void PutValueUnit(JsonMembers& members, const Dea::UnitResult& unit) const;
  void PutUnit(const Dea::UnitResult& unit) const;
  void PutTop() const;

  template <class Items, class PutItem>
  void PutList(const Items& items, PutItem putItem) const {
    Out += '[';
    const char* before = "";
    for (const auto& item : items) {
      Out += before;
      putItem(item);
      before = kOnOneLine;
    }
    Out += ']';
  }
};

// Absent above the number of units for which ranks are worked out.
void Writer::PutRanks(JsonMembers& members, const char* key, const std::optional<Dea::RankRange>& ranks) const {
  if (ranks) members.Json(key, "[" + std::to_string(ranks->Best) + ", " + std::to_string(ranks->Worst) + "]");
}

void Writer::PutByColumn(const std::vector<std::optional<double>>& numbers) const {
  JsonMembers members(Out, kOnOneLine);
  for (std::size_t j = 0; j < numbers.size(); ++j) {
    if (numbers[j]) members.Full(ColumnName(static_cast<int>(j)), numbers[j]);
  }
  Out += '}';
}

void Writer::PutPeers(const std::vector<Dea::Peer>& peers) const {
  JsonMembers members(Out, kOnOneLine);
  for (const Dea::Peer& peer : peers) members.Full(UnitName(peer.Unit), peer.Lambda);
  Out += '}';
}

void Writer::PutHeldBackBy(const std::vector<Dea::HeldBackBy>& bounds) const {
  PutList(bounds, [this](const Dea::HeldBackBy& bound) {
    JsonMembers members(Out, kOnOneLine);
    members.NeededText("attribute", ColumnName(bound.Column));
    members.NeededText("bound", bound.Side == Dea::Side::Low ? "low" : "high");
    members.Full("ratio", bound.Ratio);
    members.Full("gain", bound.Gain);
    Out += '}';
  });
}

void Writer::PutRatioUnit(JsonMembers& members, const Dea::UnitResult& unit) const {
  members.Full("free", unit.Free);
  members.Full("max", unit.Max);
  if (IsConstant()) {
    if (IsJudged()) members.Full("min", unit.Min);
    members.Full("super", unit.Super);
    PutRanks(members, "ranks", unit.Ranks);
    PutRanks(members, "ranksSeen", unit.RanksSeen);
  }
  members.Key("prices");
  PutByColumn({unit.Prices.begin(), unit.Prices.end()});
  members.Key("shares");
  PutByColumn(unit.Shares);
  members.Key("peers");
  PutPeers(unit.Peers);
  if (!IsJudged()) return;
  members.Key("heldBackBy");
  PutHeldBackBy(unit.HeldBackBy);
}

void Writer::PutValueUnit(JsonMembers& members, const Dea::UnitResult& unit) const {
  members.Key("value") += '[';
  PutFull(Out, unit.Value ? std::optional(unit.Value->Low) : std::nullopt);
  Out += kOnOneLine;
  PutFull(Out, unit.Value ? std::optional(unit.Value->High) : std::nullopt);
  Out += ']';
  members.Full("distance", unit.Distance);
  members.Full("regret", unit.Regret);
  PutRanks(members, "ranks", unit.Ranks);
  PutRanks(members, "ranksSeen", unit.RanksSeen);
}

void Writer::PutUnit(const Dea::UnitResult& unit) const {
  JsonMembers members(Out, kOnOneLine);
  members.NeededText("name", UnitName(unit.Unit));
  if (From.How.Form == ScoreForm::Ratio) {
    PutRatioUnit(members, unit);
  } else {
    PutValueUnit(members, unit);
  }
  Out += '}';
}

void Writer::PutTop() const {
  JsonMembers top(Out, kTopLines);
  top.NeededText("form", NameOf(From.How.Form));
  top.NeededText("returns", NameOf(From.How.Returns));
  top.NeededText("orientation", NameOf(From.How.Orientation));
  top.Json("session", From.How.Session ? std::to_string(*From.How.Session) : String("null"));
  PutLines(top.Key("units"), Results().Units, "  ", [this](const Dea::UnitResult& unit) { PutUnit(unit); });
  PutLines(top.Key("leftOut"), Results().LeftOut, "  ", [this](const Dea::LeftOut& left) {
    JsonMembers members(Out, kOnOneLine);
    members.NeededText("name", UnitName(left.Unit));
    members.NeededText("reason", left.Reason);
    Out += '}';
  });
  PutLines(top.Key("equivalences"), Results().Equivalences, "  ", [this](const Dea::Equivalence& equivalence) {
    JsonMembers members(Out, kOnOneLine);
    members.NeededText("attribute", ColumnName(equivalence.Column));
    members.NeededText("of", ColumnName(equivalence.Of));
    members.Full("low", equivalence.Low);
    members.Full("high", equivalence.High);
    Out += '}';
  });
  PutLines(top.Key("departures"), Results().Departures, "  ", [this](const Dea::Departure& departure) {
    JsonMembers members(Out, kOnOneLine);
    members.NeededText("attribute", ColumnName(departure.Column));
    members.Full("fromChord", departure.FromChord);
    Out += '}';
  });
  top.Full("worstViolation", Results().WorstViolation);
  PutLines(top.Key("notes"), Results().Notes, "  ", [this](const String& note) { Out += JsonQuotes(note, "notes"); });
  Out += "\n}\n";
}

}  // namespace

String ResultsJson(const Evaluation& evaluation) {
  String text;
  Writer{evaluation, text}.PutTop();
  return text;
}

}  // namespace Tarnwise
