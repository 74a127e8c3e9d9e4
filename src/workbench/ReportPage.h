// The page Report: what the results come to as a document, as it would be saved, and its ways into files.
#pragma once

#include "workbench/SaveReport.h"

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;
class QTextBrowser;

namespace Tarnwise {

class ResultsPage;

class ReportPage : public QWidget {
  Q_OBJECT

 public:
  explicit ReportPage(ResultsPage& results, QWidget* parent = nullptr);

  // Of any kind, or where there is nothing to save says so.
  void AskAndSave(std::optional<ReportKind> kind);

 Q_SIGNALS:
  void Told(const QString& text);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QWidget* MakeButtons();
  QWidget* MakePreview();
  void ShowState();
  void ShowReport();

  ResultsPage& results_;
  std::vector<QPushButton*> saves_;
  QLabel* message_ = nullptr;
  QPushButton* compute_ = nullptr;
  QPushButton* cancel_ = nullptr;
  QProgressBar* progress_ = nullptr;
  QTextBrowser* preview_ = nullptr;
  SharedEvaluation shown_;
};

}  // namespace Tarnwise
