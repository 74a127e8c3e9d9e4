#include "workbench/ResultsModel.h"

#include "project/ResultsWords.h"
#include "project/Shown.h"
#include "workbench/Texts.h"

#include <algorithm>

namespace Tarnwise {

namespace {

std::vector<ResultField> FieldsOf(const Evaluation& evaluation) {
  const bool judged = evaluation.How.Session.has_value();
  const bool ranked = judged && !evaluation.Results.Units.empty() && evaluation.Results.Units.front().Ranks;
  std::vector<ResultField> fields = {ResultField::Unit};
  const auto add = [&fields](std::initializer_list<ResultField> more) { fields.insert(fields.end(), more); };
  if (evaluation.How.Form == ScoreForm::Value) {
    add({ResultField::ValueLow, ResultField::ValueHigh, ResultField::Distance, ResultField::Regret});
    if (ranked) add({ResultField::Ranks});
    return fields;
  }
  const bool constant = evaluation.How.Returns == ScoreReturns::Crs;
  add({ResultField::Free});
  if (!judged) {
    if (constant) add({ResultField::Super});
    add({ResultField::Peers});
    return fields;
  }
  if (constant) add({ResultField::Min});
  add({ResultField::Max});
  if (ranked) add({ResultField::Ranks});
  add({ResultField::HeldBackBy});
  return fields;
}

QString BoundOf(const Evaluation& evaluation, const Dea::HeldBackBy& bound) {
  return FromText(BoundText(evaluation, bound, Signs()));
}

QString NameOfUnit(const Evaluation& evaluation, int unit) {
  return FromText(evaluation.Problem.Units[static_cast<std::size_t>(unit)]);
}

QVariant Number(const std::optional<double>& number) { return number ? QVariant(*number) : QVariant(); }

QString Escaped(const QString& text) { return text.toHtmlEscaped(); }

QString Row(const QStringList& cells, const char* tag) {
  QString row = QStringLiteral("<tr>");
  const QString name = QString::fromLatin1(tag);
  for (qsizetype i = 0; i < cells.size(); ++i) {
    row += "<" + name + (i == 0 ? " align=\"left\"" : " align=\"right\"") + " style=\"padding-right:18px\">" +
           cells[i] + "</" + name + ">";
  }
  return row + "</tr>";
}

QString PricesTable(const Evaluation& evaluation, const Dea::UnitResult& unit) {
  if (unit.Prices.empty()) return {};
  QString table = "<table>" + Row({ResultsModel::tr("At its best"), ResultsModel::tr("Price of a unit"),
                                   ResultsModel::tr("Share of its group")},
                                  "th");
  for (std::size_t j = 0; j < unit.Prices.size(); ++j) {
    const QString share = unit.Shares[j] ? QString::number(100.0 * *unit.Shares[j], 'f', 1) + " %" : QString();
    table += Row(
        {Escaped(FromText(evaluation.Problem.Columns[j].Name)), FromText(SignificantText(unit.Prices[j], 4)), share},
        "td");
  }
  return table + "</table>";
}

QString RangeSentence(const Evaluation& evaluation, const Dea::UnitResult& unit) {
  const QString name = "<b>" + Escaped(NameOfUnit(evaluation, unit.Unit)) + "</b>";
  if (evaluation.How.Form == ScoreForm::Value) {
    const QString range = unit.Value ? FromText(SpanText(ThreeDecimals(unit.Value->Low, Signs()),
                                                         ThreeDecimals(unit.Value->High, Signs()), Signs()))
                                     : QString();
    const bool leads = unit.Distance && *unit.Distance <= 0.0;
    return ResultsModel::tr("%1 has a value of %2; ").arg(name, range) +
           (leads ? ResultsModel::tr("it is best at some of the weights.")
                  : ResultsModel::tr("it is at least %1 of the whole range behind the best.")
                        .arg(FromText(DistanceText(unit.Distance, Signs()))));
  }
  if (!evaluation.How.Session || !unit.Max) {
    return ResultsModel::tr("%1 is %2 efficient without judgments.").arg(name, ScoreLabel(unit.Free));
  }
  const bool isPoint = unit.Min && ScoreLabel(unit.Min) == ScoreLabel(unit.Max);
  const QString range = isPoint ? ScoreLabel(unit.Max)
                        : unit.Min
                            ? ResultsModel::tr("between %1 and %2").arg(ScoreLabel(unit.Min), ScoreLabel(unit.Max))
                            : ResultsModel::tr("at best %1").arg(ScoreLabel(unit.Max));
  QString sentence =
      ResultsModel::tr("With these judgments %1 is %2 efficient (without: %3)").arg(name, range, ScoreLabel(unit.Free));
  if (unit.Ranks) sentence += ResultsModel::tr(", on rank %1").arg(RanksLabel(unit));
  return sentence + ".";
}

QString BoundsList(const Evaluation& evaluation, const Dea::UnitResult& unit) {
  if (!evaluation.How.Session || evaluation.How.Form == ScoreForm::Value) return {};
  if (unit.HeldBackBy.empty()) return "<p>" + ResultsModel::tr("No single bound holds it back.") + "</p>";
  QString list = "<p>" + ResultsModel::tr("Held back by these bounds; in brackets what it would gain without:") + " ";
  QStringList bounds;
  for (const Dea::HeldBackBy& bound : unit.HeldBackBy) bounds += Escaped(BoundOf(evaluation, bound));
  return list + bounds.join(QStringLiteral(", ")) + "</p>";
}

QString Dominated(const Evaluation& evaluation, const std::vector<int>& dominators) {
  if (!evaluation.How.Session) return {};
  if (dominators.empty()) return "<p>" + ResultsModel::tr("No unit is better at all of the judged weights.") + "</p>";
  constexpr std::size_t kMost = 20;
  QStringList names;
  for (std::size_t i = 0; i < std::min(kMost, dominators.size()); ++i) {
    names += Escaped(NameOfUnit(evaluation, dominators[i]));
  }
  if (dominators.size() > kMost) names += ResultsModel::tr("and %1 more").arg(dominators.size() - kMost);
  return "<p>" + ResultsModel::tr("Better at all of the judged weights: %1.").arg(names.join(QStringLiteral(", "))) +
         "</p>";
}

}  // namespace

bool IsBest(const Evaluation& evaluation, const Dea::UnitResult& unit) {
  if (evaluation.How.Form == ScoreForm::Value) return IsBest(unit);
  return IsOne(unit.Max);
}

QString RanksLabel(const Dea::UnitResult& unit) { return unit.Ranks ? FromText(RanksText(unit, Signs())) : QString(); }

QString ScoreLabel(const std::optional<double>& score) { return FromText(ScoreText(score, Signs())); }

void ResultsModel::Show(SharedEvaluation evaluation) {
  beginResetModel();
  evaluation_ = std::move(evaluation);
  fields_ = evaluation_ ? FieldsOf(*evaluation_) : std::vector<ResultField>();
  endResetModel();
}

QString ResultsModel::UnitName(int row) const { return NameOfUnit(*evaluation_, ResultOf(row).Unit); }

int ResultsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() || !evaluation_ ? 0 : static_cast<int>(evaluation_->Results.Units.size());
}

int ResultsModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(fields_.size());
}

QVariant ResultsModel::NumberAt(const Dea::UnitResult& unit, ResultField field) const {
  switch (field) {
    case ResultField::Free: return Number(unit.Free);
    case ResultField::Min: return Number(unit.Min);
    case ResultField::Max: return Number(unit.Max);
    case ResultField::Super: return Number(unit.Super);
    case ResultField::ValueLow: return unit.Value ? QVariant(unit.Value->Low) : QVariant();
    case ResultField::ValueHigh: return unit.Value ? QVariant(unit.Value->High) : QVariant();
    case ResultField::Distance: return Number(unit.Distance);
    case ResultField::Regret: return Number(unit.Regret);
    case ResultField::Ranks: return unit.Ranks ? QVariant(unit.Ranks->Best * 1e6 + unit.Ranks->Worst) : QVariant();
    case ResultField::HeldBackBy: return unit.HeldBackBy.empty() ? 0.0 : unit.HeldBackBy.front().Gain;
    default: return {};
  }
}

QString ResultsModel::TextAt(const Dea::UnitResult& unit, ResultField field) const {
  switch (field) {
    case ResultField::Unit: return NameOfUnit(*evaluation_, unit.Unit);
    case ResultField::Ranks: return RanksLabel(unit);
    case ResultField::HeldBackBy: return FromText(HeldBackText(*evaluation_, unit, Signs()));
    case ResultField::Peers: return FromText(PeersText(*evaluation_, unit, Signs()));
    default: return FromText(NumberText(unit, field));
  }
}

String ResultsModel::NumberText(const Dea::UnitResult& unit, ResultField field) {
  const auto valueEnd = [&unit](double Dea::Interval::*end) {
    return unit.Value ? std::optional((*unit.Value).*end) : std::nullopt;
  };
  switch (field) {
    case ResultField::Free: return ScoreText(unit.Free, Signs());
    case ResultField::Min: return ScoreText(unit.Min, Signs());
    case ResultField::Max: return ScoreText(unit.Max, Signs());
    case ResultField::Super: return ThreeDecimals(unit.Super, Signs());
    case ResultField::ValueLow: return ThreeDecimals(valueEnd(&Dea::Interval::Low), Signs());
    case ResultField::ValueHigh: return ThreeDecimals(valueEnd(&Dea::Interval::High), Signs());
    case ResultField::Distance: return DistanceText(unit.Distance, Signs());
    case ResultField::Regret: return DistanceText(unit.Regret, Signs());
    default: return {};
  }
}

QVariant ResultsModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const ResultField field = fields_[static_cast<std::size_t>(index.column())];
  const Dea::UnitResult& unit = ResultOf(index.row());
  const bool isText = field == ResultField::Unit || field == ResultField::HeldBackBy || field == ResultField::Peers;
  switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole: return TextAt(unit, field);
    case Qt::UserRole: {
      const QVariant number = NumberAt(unit, field);
      return number.isValid() || !isText ? number : QVariant(TextAt(unit, field));
    }
    case Qt::TextAlignmentRole: return static_cast<int>((isText ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    default: return {};
  }
}

QVariant ResultsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Vertical || role != Qt::DisplayRole) return {};
  if (static_cast<std::size_t>(section) >= fields_.size()) return {};
  const bool judged = evaluation_->How.Session.has_value();
  const bool out = evaluation_->How.Orientation == ScoreOrientation::Out;
  switch (fields_[static_cast<std::size_t>(section)]) {
    case ResultField::Unit: return tr("Unit");
    case ResultField::Free: return judged ? tr("No judgments") : tr("Efficiency");
    case ResultField::Min: return out ? tr("Worst") : tr("Least");
    case ResultField::Max: return out ? tr("Best") : tr("Greatest");
    case ResultField::Super: return tr("Without itself");
    case ResultField::ValueLow: return tr("Value, least");
    case ResultField::ValueHigh: return tr("Value, greatest");
    case ResultField::Distance: return tr("Distance");
    case ResultField::Regret: return tr("Loses at most");
    case ResultField::Ranks: return tr("Ranks");
    case ResultField::HeldBackBy: return tr("Held back by");
    case ResultField::Peers: return tr("Peers");
  }
  return {};
}

ResultsFilter::ResultsFilter(ResultsModel& model) : model_(model) {
  setSourceModel(&model);
  setSortRole(Qt::UserRole);
  setSortCaseSensitivity(Qt::CaseInsensitive);
}

void ResultsFilter::SetText(const QString& text) {
  text_ = text;
  FilterAnew();
}

void ResultsFilter::SetOnlyBest(bool on) {
  onlyBest_ = on;
  FilterAnew();
}

// Every stretch of rows that goes is told by itself, and views take their time with each: many rows come as new ones.
void ResultsFilter::FilterAnew() {
  constexpr int kManyRows = 2000;
  if (model_.rowCount() <= kManyRows) return invalidateFilter();
  setSourceModel(nullptr);
  setSourceModel(&model_);
}

bool ResultsFilter::filterAcceptsRow(int row, const QModelIndex& /*parent*/) const {
  if (onlyBest_ && !IsBest(*model_.Shown(), model_.ResultOf(row))) return false;
  return text_.isEmpty() || model_.UnitName(row).contains(text_, Qt::CaseInsensitive);
}

QString SummaryText(const Evaluation& evaluation) {
  const auto& units = evaluation.Results.Units;
  const auto best =
      std::count_if(units.begin(), units.end(), [&](const Dea::UnitResult& unit) { return IsBest(evaluation, unit); });
  if (evaluation.How.Form == ScoreForm::Value) {
    return ResultsModel::tr("%1 of %2 are best at some of the weights.").arg(best).arg(UnitsText(units.size()));
  }
  const QString counted = ResultsModel::tr("%1 of %2 are efficient").arg(best).arg(UnitsText(units.size()));
  if (evaluation.How.Session) return ResultsModel::tr("%1 under the judgments.").arg(counted);
  const bool all = static_cast<std::size_t>(best) == units.size();
  if (!all) return ResultsModel::tr("%1 without judgments.").arg(counted);
  return ResultsModel::tr("%1 without judgments: %2 for %3 let every unit pick its own weights.")
      .arg(counted, AttributesText(evaluation.Problem.Columns.size()), UnitsText(units.size()));
}

QString ReasonText(const Evaluation& evaluation, const Dea::LeftOut& left) {
  if (!left.Lacking) return ResultsModel::tr("all inputs are zero");
  const Dea::Column& column = evaluation.Problem.Columns[static_cast<std::size_t>(*left.Lacking)];
  return ResultsModel::tr("no value in column %1").arg(FromText(column.Name));
}

QString DetailsOf(const Evaluation& evaluation, const Dea::UnitResult& unit, const std::vector<int>& dominators) {
  QString html = "<p>" + RangeSentence(evaluation, unit) + "</p>" + BoundsList(evaluation, unit) +
                 Dominated(evaluation, dominators);
  if (!unit.Peers.empty()) {
    html +=
        "<p>" + ResultsModel::tr("Peers: %1.").arg(Escaped(FromText(PeersText(evaluation, unit, Signs())))) + "</p>";
  }
  return html + PricesTable(evaluation, unit);
}

}  // namespace Tarnwise
