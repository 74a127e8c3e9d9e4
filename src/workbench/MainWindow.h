// The analyst's window: its pages, the line at the top that says what is missing, and the menus.
#pragma once

#include "workbench/Advice.h"
#include "workbench/Document.h"

#include <QMainWindow>

class QAction;
class QLabel;
class QPushButton;
class QTabWidget;

namespace Tarnwise {

class AttributesPage;
class DataPage;
class FileActions;
class JudgeSession;
class JudgmentsPage;
class ReportPage;
class ResultsPage;
struct JudgmentSession;

class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  MainWindow();
  ~MainWindow() override;

  Document& Work() { return document_; }
  FileActions& Files() { return *files_; }
  ResultsPage& Results() { return *results_; }
  bool Open(const QString& path);
  void ShowPage(PageKind page);
  JudgeSession* Wizard() const { return wizard_; }  // null: not open

 protected:
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void MakePages();
  QWidget* MakeAdvice();
  void MakeMenus();
  void MakeFileMenu();
  void MakeEditMenu();
  void ShowState();
  void Paste();
  void KeepState();
  void RestoreState();
  void RestorePage();

  void Elicit(std::optional<std::size_t> resume);
  bool MayJudge();
  bool WantsToBegin(const JudgeSession& session);
  void TakeJudgments(const JudgmentSession& session, bool again);
  void LockForWizard(bool locked);

  Document document_;
  FileActions* files_;
  QTabWidget* tabs_ = nullptr;
  DataPage* data_ = nullptr;
  AttributesPage* attributes_ = nullptr;
  JudgmentsPage* judgments_ = nullptr;
  ResultsPage* results_ = nullptr;
  ReportPage* report_ = nullptr;
  QLabel* advice_ = nullptr;
  QPushButton* go_ = nullptr;
  QAction* undo_ = nullptr;
  QAction* redo_ = nullptr;
  QAction* save_ = nullptr;
  std::vector<QAction*> locked_;  // while the wizard is open
  std::optional<int> lastPage_;   // of the last time, until a project is there to show on it
  JudgeSession* wizard_ = nullptr;
  std::optional<std::size_t> stored_;  // the session that the open wizard handed over
};

}  // namespace Tarnwise
