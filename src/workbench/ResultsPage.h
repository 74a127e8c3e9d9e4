// The page Results: what is asked for at the top, the table with the ranges beside it, and the chosen unit below.
#pragma once

#include "workbench/Document.h"
#include "workbench/ResultsModel.h"

#include <QWidget>

class QBoxLayout;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QLayout;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QTableView;
class QTextBrowser;
class QCheckBox;
class QTimer;

namespace Tarnwise {

class BarChart;
class Solver;

class ResultsPage : public QWidget {
  Q_OBJECT

 public:
  explicit ResultsPage(Document& document, QWidget* parent = nullptr);

  void Compute();
  void Hide(bool hidden);  // while somebody judges
  bool IsBusy() const;
  SharedEvaluation Shown() const { return model_->Shown(); }
  BarChart& Ranges() const { return *chart_; }

 Q_SIGNALS:
  void Told(const QString& text);  // for the status line

 private:
  QLayout* MakeChoices();
  QLayout* MakeSearch();
  QWidget* MakeTables();
  QComboBox* AddChoice(QBoxLayout& layout, const char* name, const QString& title, const QStringList& choices);
  void ConnectSolver();

  void ShowDocument();
  void ShowSessions();
  void TakeChoice();
  Asked Wanted() const;
  void ComputeSoon();
  void ShowResults(const SharedEvaluation& evaluation);
  void ShowMessage(const QString& text);
  void ShowBusy(bool busy);
  void FitColumns();
  void ShowChart();
  void AlignChart();
  void ShowUnit();

  Document& document_;
  ResultsModel* model_;
  ResultsFilter* filter_;
  Solver* solver_;
  QTimer* soon_;
  QTimer* chartSoon_;  // once for many changes of the rows
  QComboBox* session_ = nullptr;
  QComboBox* form_ = nullptr;
  QComboBox* returns_ = nullptr;
  QComboBox* orientation_ = nullptr;
  QDoubleSpinBox* widen_ = nullptr;
  QLineEdit* find_ = nullptr;
  QCheckBox* onlyBest_ = nullptr;
  QPushButton* compute_ = nullptr;
  QPushButton* cancel_ = nullptr;
  QPushButton* save_ = nullptr;
  QProgressBar* progress_ = nullptr;
  QLabel* summary_ = nullptr;
  QTableView* table_ = nullptr;
  BarChart* chart_ = nullptr;
  QTextBrowser* details_ = nullptr;
  bool showing_ = false;
  bool hidden_ = false;
};

}  // namespace Tarnwise
