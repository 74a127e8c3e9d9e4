// Results as a table to sort and filter, and a unit's result in sentences.
#pragma once

#include "project/Evaluation.h"

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>

#include <memory>

namespace Tarnwise {

using SharedEvaluation = std::shared_ptr<const Evaluation>;

enum class ResultField { Unit, Free, Min, Max, Super, ValueLow, ValueHigh, Distance, Regret, Ranks, HeldBackBy, Peers };

class ResultsModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  using QAbstractTableModel::QAbstractTableModel;

  void Show(SharedEvaluation evaluation);  // null: nothing
  const SharedEvaluation& Shown() const { return evaluation_; }
  const Dea::UnitResult& ResultOf(int row) const { return evaluation_->Results.Units[static_cast<std::size_t>(row)]; }
  QString UnitName(int row) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  // Qt::UserRole: what it is sorted by.
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QVariant NumberAt(const Dea::UnitResult& unit, ResultField field) const;
  QString TextAt(const Dea::UnitResult& unit, ResultField field) const;
  static String NumberText(const Dea::UnitResult& unit, ResultField field);

  SharedEvaluation evaluation_;
  std::vector<ResultField> fields_;
};

// Rows whose unit's name holds the text, and, where asked for, only those that are efficient or best at some weights.
class ResultsFilter : public QSortFilterProxyModel {
  Q_OBJECT

 public:
  explicit ResultsFilter(ResultsModel& model);
  void SetText(const QString& text);
  void SetOnlyBest(bool on);

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

 private:
  void FilterAnew();

  ResultsModel& model_;
  QString text_;
  bool onlyBest_ = false;
};

// The greatest score is 1, or no unit is ahead.
bool IsBest(const Evaluation& evaluation, const Dea::UnitResult& unit);
QString ScoreLabel(const std::optional<double>& score);
QString RanksLabel(const Dea::UnitResult& unit);  // empty without ranks

// One sentence of all units, as "12 of 12 units are efficient without judgments: 14 attributes for 12 units let every
// unit pick its own weights."
QString SummaryText(const Evaluation& evaluation);

// Why a unit has no result.
QString ReasonText(const Evaluation& evaluation, const Dea::LeftOut& left);

// What is known of a unit, as HTML: its range, what holds it back, prices, shares, peers, and the units given, which
// are better than it at all weights.
QString DetailsOf(const Evaluation& evaluation, const Dea::UnitResult& unit, const std::vector<int>& dominators);

}  // namespace Tarnwise
