// The page Results: what is asked for at the top, the table with the ranges beside it, and the chosen unit below.
#pragma once

#include "workbench/Document.h"
#include "workbench/SaveReport.h"

#include <QWidget>

class QComboBox;
class QDoubleSpinBox;
class QGridLayout;
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
  void Cancel();
  void Hide(bool hidden);  // while somebody judges
  bool IsBusy() const;
  bool IsSolving() const;
  SharedEvaluation Shown() const { return model_->Shown(); }
  Found Newest() const { return {shownOf_, model_->Shown()}; }
  QString Message() const;  // what is said of the results, or why there are none
  BarChart& Ranges() const { return *chart_; }

 Q_SIGNALS:
  void Told(const QString& text);  // for the status line
  void StateChanged();             // computing, computed, or why not
  void Progressed(int ofAThousand);

 private:
  QLayout* MakeChoices();
  QLayout* MakeSearch();
  QWidget* MakeTables();
  QComboBox* AddChoice(QGridLayout& grid, const char* name, const QString& title, const QStringList& choices);
  static void AddField(QGridLayout& grid, const QString& title, QWidget& field);
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
  QComboBox* bars_ = nullptr;
  QProgressBar* progress_ = nullptr;
  QLabel* summary_ = nullptr;
  QTableView* table_ = nullptr;
  BarChart* chart_ = nullptr;
  QTextBrowser* details_ = nullptr;
  std::shared_ptr<const Project> solving_;
  std::shared_ptr<const Project> shownOf_;
  bool showing_ = false;
  bool hidden_ = false;
};

}  // namespace Tarnwise
