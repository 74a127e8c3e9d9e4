#include "workbench/DataModel.h"

#include "modelfiles/WholeFile.h"
#include "runtime/At.h"
#include "workbench/Edits.h"
#include "workbench/Texts.h"

#include <QApplication>
#include <QBrush>
#include <QFont>
#include <QPalette>

namespace Tarnwise {

namespace {

// A tint of the platform's paper on which its text can still be read.
QBrush Tint(const QColor& colour) {
  const QColor paper = QApplication::palette().color(QPalette::Base);
  constexpr float kShare = 0.25F;
  return QColor::fromRgbF(paper.redF() + (colour.redF() - paper.redF()) * kShare,
                          paper.greenF() + (colour.greenF() - paper.greenF()) * kShare,
                          paper.blueF() + (colour.blueF() - paper.blueF()) * kShare);
}

QVariant GroundOf(CellKind kind) {
  switch (kind) {
    case CellKind::Ordinary: return {};
    case CellKind::Missing: return Tint(QColor(0x99, 0x99, 0x99));
    case CellKind::Zero: return Tint(QColor(0xe6, 0x9f, 0x00));
    case CellKind::Negative: return Tint(QColor(0xd5, 0x40, 0x00));
  }
  return {};
}

constexpr qsizetype kLongestHead = 30;  // of a column; the tooltip has all of it

}  // namespace

CellKind KindOf(const std::optional<double>& value) {
  if (!value) return CellKind::Missing;
  return *value == 0.0 ? CellKind::Zero : *value < 0.0 ? CellKind::Negative : CellKind::Ordinary;
}

CellCounts CountCells(const Project& project) {
  CellCounts counts;
  for (const DataColumn& column : project.Columns) {
    if (column.Role == Role::Unused) continue;
    for (const auto& value : column.Values) {
      const CellKind kind = KindOf(value);
      counts.Missing += kind == CellKind::Missing ? 1 : 0;
      counts.Zero += kind == CellKind::Zero ? 1 : 0;
      counts.Negative += kind == CellKind::Negative ? 1 : 0;
    }
  }
  return counts;
}

QString RoleText(Role role) {
  switch (role) {
    case Role::Input: return DataModel::tr("input");
    case Role::Output: return DataModel::tr("output");
    case Role::Unused: return DataModel::tr("not used");
  }
  return {};
}

DataModel::DataModel(Document& document) : document_(document) {
  connect(&document_, &Document::Changed, this, [this] {
    const int rows = static_cast<int>(document_.Data().Units.size());
    const int columns = document_.IsEmpty() ? 0 : static_cast<int>(document_.Data().Columns.size()) + 1;
    if (rows == rows_ && columns == columns_) {
      if (rows > 0 && columns > 0) Q_EMIT dataChanged(index(0, 0), index(rows - 1, columns - 1));
      if (columns > 0) Q_EMIT headerDataChanged(Qt::Horizontal, 0, columns - 1);
      return;
    }
    beginResetModel();
    rows_ = rows;
    columns_ = columns;
    endResetModel();
  });
}

int DataModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int DataModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : columns_; }

const std::optional<double>& DataModel::ValueAt(const QModelIndex& index) const {
  return document_.Data().Columns[At(index.column() - 1)].Values[At(index.row())];
}

QVariant DataModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (index.column() == 0) {
    const bool text = role == Qt::DisplayRole || role == Qt::EditRole || role == Qt::ToolTipRole;
    return text ? FromText(document_.Data().Units[At(index.row())]) : QVariant();
  }
  const auto& value = ValueAt(index);
  const bool used = document_.Data().Columns[At(index.column() - 1)].Role != Role::Unused;
  switch (role) {
    case Qt::DisplayRole: return value ? NumberText(value) : tr("missing");
    case Qt::EditRole: return NumberText(value);
    case Qt::TextAlignmentRole: return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
    case Qt::BackgroundRole: return used ? GroundOf(KindOf(value)) : QVariant();
    case Qt::ForegroundRole:
      return used ? QVariant() : QBrush(QApplication::palette().color(QPalette::Disabled, QPalette::Text));
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole: return Explained(index);
    default: return {};
  }
}

QVariant DataModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Vertical) return role == Qt::DisplayRole ? section + 1 : QVariant();
  if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
  if (section == 0) return tr("Unit");
  const DataColumn& column = document_.Data().Columns[At(section - 1)];
  const QString name = FromText(column.Name);
  const bool cut = role == Qt::DisplayRole && name.size() > kLongestHead;
  return (cut ? name.left(kLongestHead - 1) + "…" : name) + "\n" + RoleText(column.Role);
}

Qt::ItemFlags DataModel::flags(const QModelIndex& index) const {
  return index.isValid() ? QAbstractTableModel::flags(index) | Qt::ItemIsEditable : Qt::NoItemFlags;
}

bool DataModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole || !index.isValid()) return false;
  const String text = ToText(value.toString());
  return document_.Edit(tr("Change of a cell"),
                        [&](Project& project) { PutBlock(project, At(index.row()), At(index.column()), {{text}}); });
}

QString DataModel::Explained(const QModelIndex& index) const {
  if (!index.isValid()) return {};
  const QString unit = FromText(document_.Data().Units[At(index.row())]);
  if (index.column() == 0) return unit;
  const DataColumn& column = document_.Data().Columns[At(index.column() - 1)];
  const QString place = tr("%1, %2: ").arg(unit, FromText(column.Name));
  if (column.Role == Role::Unused) return place + tr("the column is not used.");
  switch (KindOf(ValueAt(index))) {
    case CellKind::Missing: return place + tr("missing. The unit is left out of the results, and listed there.");
    case CellKind::Zero:
      return place + (column.Role == Role::Input
                          ? tr("zero. Without judgments a zero input can make a unit efficient by itself.")
                          : tr("zero. The unit makes nothing of this output."));
    case CellKind::Negative:
      return place + tr("negative. The ratio form refuses negative numbers; the value form takes them.");
    case CellKind::Ordinary: break;
  }
  return place + NumberText(ValueAt(index)) + (column.Unit.empty() ? QString() : " " + FromText(column.Unit));
}

QModelIndex DataModel::NextParticular(const QModelIndex& from) const {
  const int cells = rows_ * std::max(0, columns_ - 1);
  const int start = from.isValid() ? from.row() * (columns_ - 1) + std::max(0, from.column() - 1) : -1;
  for (int step = 1; step <= cells; ++step) {
    const int cell = (start + step) % cells;
    const QModelIndex place = index(cell / (columns_ - 1), cell % (columns_ - 1) + 1);
    const DataColumn& column = document_.Data().Columns[At(place.column() - 1)];
    if (column.Role != Role::Unused && KindOf(ValueAt(place)) != CellKind::Ordinary) return place;
  }
  return {};
}

ColumnsModel::ColumnsModel(Document& document) : document_(document) {
  connect(&document_, &Document::Changed, this, [this, rows = 0]() mutable {
    const int now = static_cast<int>(document_.Data().Columns.size());
    if (now == rows && now > 0) return void(Q_EMIT dataChanged(index(0, 0), index(now - 1, kFields - 1)));
    beginResetModel();
    rows = now;
    endResetModel();
  });
}

int ColumnsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(document_.Data().Columns.size());
}

int ColumnsModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kFields; }

QVariant ColumnsModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  if (role == Qt::TextAlignmentRole && (index.column() == kWorst || index.column() == kBest)) {
    return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
  }
  if (role != Qt::DisplayRole && role != Qt::EditRole && role != Qt::ToolTipRole) return {};
  const DataColumn& column = document_.Data().Columns[At(index.row())];
  switch (index.column()) {
    case kName: return FromText(column.Name);
    case kRole: return role == Qt::EditRole ? QVariant(static_cast<int>(column.Role)) : RoleText(column.Role);
    case kWorst: return NumberText(column.Worst);
    case kBest: return NumberText(column.Best);
    case kUnit: return FromText(column.Unit);
    default: return {};
  }
}

QVariant ColumnsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Vertical || role != Qt::DisplayRole) return {};
  const QString titles[] = {tr("Column"), tr("Role"), tr("Worst"), tr("Best"), tr("Unit of measure")};
  return titles[section];
}

Qt::ItemFlags ColumnsModel::flags(const QModelIndex& index) const {
  return index.isValid() ? QAbstractTableModel::flags(index) | Qt::ItemIsEditable : Qt::NoItemFlags;
}

bool ColumnsModel::SetNumber(std::size_t column, int field, const QString& text) {
  return document_.Edit(tr("Change of a range"), [&](Project& project) {
    const auto number = CellOf(ToText(text));
    (field == kWorst ? project.Columns[column].Worst : project.Columns[column].Best) = number;
  });
}

bool ColumnsModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole || !index.isValid()) return false;
  const std::size_t column = At(index.row());
  const String text = ToText(value.toString());
  switch (index.column()) {
    case kName:
      return document_.Edit(tr("New name of a column"), [&](Project& project) { RenameColumn(project, column, text); });
    case kRole:
      return document_.Edit(tr("New role of a column"),
                            [&](Project& project) { SetRole(project, column, static_cast<Role>(value.toInt())); });
    case kUnit:
      return document_.Edit(tr("New unit of measure"), [&](Project& project) { project.Columns[column].Unit = text; });
    default: return SetNumber(column, index.column(), value.toString());
  }
}

}  // namespace Tarnwise
