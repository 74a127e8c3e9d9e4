// The page Data: units and numbers, and beside them the columns with their roles and ranges.
#pragma once

#include "workbench/DataModel.h"

#include <QWidget>

class QBoxLayout;
class QLabel;
class QPushButton;
class QTableView;

namespace Tarnwise {

class DataPage : public QWidget {
  Q_OBJECT

 public:
  explicit DataPage(Document& document, QWidget* parent = nullptr);

  void Paste();  // the clipboard's cells, from the current one on

 Q_SIGNALS:
  void OpenWanted();
  void PasteWanted();  // a whole table, there being none yet

 private:
  QWidget* MakeTable();
  QWidget* MakeColumns();
  QWidget* MakeInvitation();
  void AddButtons(QBoxLayout& layout);
  void ShowState();
  void Explain();
  void Copy() const;

  Document& document_;
  DataModel* data_;
  ColumnsModel* columns_;
  QTableView* table_ = nullptr;
  QTableView* columnsTable_ = nullptr;
  QLabel* counts_ = nullptr;
  QLabel* explained_ = nullptr;
  QPushButton* next_ = nullptr;
  QWidget* filled_ = nullptr;
  QWidget* invitation_ = nullptr;
};

}  // namespace Tarnwise
