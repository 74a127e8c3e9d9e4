#include "project/CsvText.h"
#include "project/ResultsText.h"
#include "project/ResultsWords.h"

#include <algorithm>

namespace Tarnwise {

namespace {

// Which columns there are.
struct Layout {
  const Evaluation& From;
  bool IsValue = false;
  bool IsJudged = false;
  bool HasLeast = false;
  bool IsConstant = false;
  bool HasRanks = false;
};

Layout LayoutOf(const Evaluation& evaluation) {
  Layout layout{evaluation};
  layout.IsValue = evaluation.How.Form == ScoreForm::Value;
  layout.IsJudged = evaluation.How.Session.has_value();
  layout.IsConstant = evaluation.How.Returns == ScoreReturns::Crs;
  layout.HasLeast = layout.IsJudged && layout.IsConstant;
  const auto& units = evaluation.Results.Units;
  layout.HasRanks =
      std::any_of(units.begin(), units.end(), [](const Dea::UnitResult& unit) { return unit.Ranks.has_value(); });
  return layout;
}

void PutHeader(const Layout& layout, String& out) {
  CsvRow row;
  row.Text("unit");
  const auto names = [&row](bool there, std::initializer_list<const char*> texts) {
    for (const char* const text : texts) {
      if (there) row.Text(text);
    }
  };
  names(layout.IsValue, {"valueLow", "valueHigh", "distance", "regret"});
  names(!layout.IsValue, {"free", "max"});
  names(!layout.IsValue && layout.HasLeast, {"min"});
  names(!layout.IsValue && layout.IsConstant, {"super"});
  names(layout.HasRanks, {"rankBest", "rankWorst", "rankSeenBest", "rankSeenWorst"});
  names(!layout.IsValue && layout.IsJudged, {"heldBackBy"});
  if (!layout.IsValue) {
    for (const Dea::Column& column : layout.From.Problem.Columns) row.Text("price " + column.Name);
    for (const Dea::Column& column : layout.From.Problem.Columns) row.Text("share " + column.Name);
  }
  row.Text("leftOut").PutTo(out);
}

void PutRanks(CsvRow& row, const std::optional<Dea::RankRange>& ranks) {
  row.Whole(ranks ? std::optional(ranks->Best) : std::nullopt);
  row.Whole(ranks ? std::optional(ranks->Worst) : std::nullopt);
}

String AllBounds(const Evaluation& evaluation, const Dea::UnitResult& unit) {
  String text;
  for (const Dea::HeldBackBy& bound : unit.HeldBackBy)
    text += (text.empty() ? "" : ", ") + BoundText(evaluation, bound);
  return text;
}

void PutUnit(const Layout& layout, const Dea::UnitResult& unit, const String& leftOut, String& out) {
  CsvRow row;
  row.Text(layout.From.Problem.Units[static_cast<std::size_t>(unit.Unit)]);
  if (layout.IsValue) {
    row.Number(unit.Value ? std::optional(unit.Value->Low) : std::nullopt);
    row.Number(unit.Value ? std::optional(unit.Value->High) : std::nullopt);
    row.Number(unit.Distance).Number(unit.Regret);
  } else {
    row.Number(unit.Free).Number(unit.Max);
    if (layout.HasLeast) row.Number(unit.Min);
    if (layout.IsConstant) row.Number(unit.Super);
  }
  if (layout.HasRanks) {
    PutRanks(row, unit.Ranks);
    PutRanks(row, unit.RanksSeen);
  }
  if (!layout.IsValue) {
    if (layout.IsJudged) row.Text(AllBounds(layout.From, unit));
    for (std::size_t j = 0; j < layout.From.Problem.Columns.size(); ++j) {
      row.Number(unit.Prices.empty() ? std::nullopt : std::optional(unit.Prices[j]));
    }
    for (std::size_t j = 0; j < layout.From.Problem.Columns.size(); ++j) {
      row.Number(unit.Shares.empty() ? std::nullopt : unit.Shares[j]);
    }
  }
  row.Text(leftOut).PutTo(out);
}

}  // namespace

String ResultsCsv(const Evaluation& evaluation) {
  const Layout layout = LayoutOf(evaluation);
  String text;
  PutHeader(layout, text);
  auto left = evaluation.Results.LeftOut.begin();
  auto found = evaluation.Results.Units.begin();
  for (int k = 0; k < static_cast<int>(evaluation.Problem.Units.size()); ++k) {
    if (left != evaluation.Results.LeftOut.end() && left->Unit == k) {
      Dea::UnitResult nothing;
      nothing.Unit = k;
      PutUnit(layout, nothing, left->Reason, text);
      ++left;
    } else {
      PutUnit(layout, *found, {}, text);
      ++found;
    }
  }
  return text;
}

}  // namespace Tarnwise
