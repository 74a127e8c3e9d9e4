// The page Attributes: one column at a time, its description, range and value curve, on a chart and in a table.
#pragma once

#include "workbench/Document.h"

#include <QWidget>

class QFormLayout;
class QLabel;
class QLineEdit;
class QLayout;
class QListWidget;
class QTableWidget;

namespace Tarnwise {

class CurveChart;

class AttributesPage : public QWidget {
  Q_OBJECT

 public:
  explicit AttributesPage(Document& document, QWidget* parent = nullptr);

  CurveChart& Curve() const { return *chart_; }

 private:
  QWidget* MakeList();
  QWidget* MakeCurve();
  QWidget* MakeFields();
  QLineEdit* AddField(QFormLayout& form, const char* name, const QString& title);
  QLayout* MakePointButtons();

  void ShowColumns();
  void ShowColumn();
  void ShowPoints(const std::vector<ValuePoint>& points);
  void ShowNotes(const DataColumn& column);
  std::optional<std::size_t> Column() const;  // that is shown

  void EditColumn(const QString& what, const std::function<void(DataColumn&)>& change);
  void EditCurve(const QString& what, const std::function<std::vector<ValuePoint>(std::vector<ValuePoint>)>& change);
  void TakePoint(int row);
  void AddPoint();
  void RemovePoint();

  Document& document_;
  QListWidget* list_ = nullptr;
  CurveChart* chart_ = nullptr;
  QTableWidget* points_ = nullptr;
  QLineEdit* description_ = nullptr;
  QLineEdit* unit_ = nullptr;
  QLineEdit* worst_ = nullptr;
  QLineEdit* best_ = nullptr;
  QLabel* notes_ = nullptr;
  bool showing_ = false;
};

}  // namespace Tarnwise
