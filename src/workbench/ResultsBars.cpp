#include "workbench/ResultsBars.h"

#include <QCoreApplication>

#include <algorithm>

namespace Tarnwise {

namespace {

struct BarsTr {
  Q_DECLARE_TR_FUNCTIONS(ResultsBars)
};

Bar ScoreBar(const Evaluation& evaluation, const Dea::UnitResult& unit) {
  Bar bar;
  if (evaluation.How.Form == ScoreForm::Value) {
    if (unit.Value) {
      bar.Low = unit.Value->Low;
      bar.High = unit.Value->High;
    }
  } else if (unit.Max) {
    const double other = unit.Min.value_or(*unit.Max);
    bar.Low = std::min(*unit.Max, other);
    bar.High = std::max(*unit.Max, other);
    bar.Mark = unit.Free;
  }
  bar.IsNothing = !bar.High;
  return bar;
}

Bar RankBar(const Dea::RankRange& ranks) {
  Bar bar;
  bar.Low = ranks.Best;
  bar.High = ranks.Worst;
  bar.IsNothing = false;
  return bar;
}

void PutScores(const Evaluation& evaluation, const Dea::UnitResult& unit, BarRow& row) {
  row.First = ScoreBar(evaluation, unit);
  row.Value = row.First.IsNothing ? BarsTr::tr("no score")
                                  : BarsTr::tr("%1 to %2").arg(ScoreLabel(row.First.Low), ScoreLabel(row.First.High));
  if (row.First.Mark) row.Value += BarsTr::tr(", without judgments %1").arg(ScoreLabel(row.First.Mark));
}

void PutRanks(const Dea::UnitResult& unit, BarRow& row) {
  row.Value = unit.Ranks ? BarsTr::tr("ranks %1").arg(RanksLabel(unit)) : BarsTr::tr("no rank");
  if (!unit.Ranks) return;
  row.First = RankBar(*unit.Ranks);
  const auto& seen = unit.RanksSeen;
  if (seen && (seen->Best != unit.Ranks->Best || seen->Worst != unit.Ranks->Worst)) row.Second = RankBar(*seen);
}

}  // namespace

bool HasRanks(const Evaluation& evaluation) {
  const auto& units = evaluation.Results.Units;
  return evaluation.How.Session.has_value() && !units.empty() && units.front().Ranks;
}

BarRow BarRowOf(const Evaluation& evaluation, const Dea::UnitResult& unit, BarKind kind) {
  BarRow row;
  row.Name = QString::fromStdString(evaluation.Problem.Units[static_cast<std::size_t>(unit.Unit)]);
  if (kind == BarKind::Ranks) {
    PutRanks(unit, row);
  } else {
    PutScores(evaluation, unit, row);
  }
  return row;
}

std::pair<double, double> BarsShown(const std::vector<BarRow>& rows, const Evaluation& evaluation, BarKind kind) {
  const bool factors = evaluation.How.Form == ScoreForm::Ratio && evaluation.How.Orientation == ScoreOrientation::Out;
  const bool fromOne = factors || kind == BarKind::Ranks;
  double low = 1.0;
  double high = fromOne ? 1.1 : 0.0;
  for (const BarRow& row : rows) {
    for (const auto& end : {row.First.Low, row.First.High, row.First.Mark}) {
      if (!end) continue;
      low = std::min(low, *end);
      high = std::max(high, *end);
    }
  }
  if (high <= low) low = high - 0.1;
  const double margin = 0.04 * (high - low);
  return {fromOne ? low - margin : std::max(0.0, low - margin), high + margin};
}

QString BarsLabel(const Evaluation& evaluation, BarKind kind) {
  if (kind == BarKind::Ranks) return BarsTr::tr("rank; hatched: seen in weights drawn from the judgments");
  return evaluation.How.Form == ScoreForm::Ratio ? BarsTr::tr("efficiency; the tick is that without judgments")
                                                 : BarsTr::tr("value");
}

}  // namespace Tarnwise
