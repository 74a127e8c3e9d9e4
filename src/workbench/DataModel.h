// The units and their columns as a table to see and edit; and the columns themselves, a row each, with role and range.
#pragma once

#include "workbench/Document.h"

#include <QAbstractTableModel>

namespace Tarnwise {

// What is particular about a cell of a column.
enum class CellKind { Ordinary, Missing, Zero, Negative };
CellKind KindOf(const std::optional<double>& value);

struct CellCounts {
  std::size_t Missing = 0;
  std::size_t Zero = 0;
  std::size_t Negative = 0;
};
CellCounts CountCells(const Project& project);  // of used columns

// Column 0 holds the units' names.
class DataModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  explicit DataModel(Document& document);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

  // What the cell is, and what that means for the results: a sentence.
  QString Explained(const QModelIndex& index) const;
  // The next cell behind that one that is not ordinary, in a used column; invalid where there is none.
  QModelIndex NextParticular(const QModelIndex& from) const;

 private:
  const std::optional<double>& ValueAt(const QModelIndex& index) const;

  Document& document_;
  int rows_ = 0;
  int columns_ = 0;
};

class ColumnsModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Field { kName, kRole, kWorst, kBest, kUnit, kFields };
  explicit ColumnsModel(Document& document);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

 private:
  bool SetNumber(std::size_t column, int field, const QString& text);

  Document& document_;
};

QString RoleText(Role role);

}  // namespace Tarnwise
