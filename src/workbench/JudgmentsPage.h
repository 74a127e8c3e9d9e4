// The page Judgments: the sessions, their intervals on a logarithmic axis, and what each says in own units.
#pragma once

#include "workbench/Document.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTableWidget;

namespace Tarnwise {

class BarChart;
struct BarRow;

// "Doctors", "3 .. 4.09 times Nurses", "1 Doctors = 14.583 .. 19.882 Nurses": a row for each used column of a session.
struct JudgmentLine {
  QString Attribute;
  QString Judged;
  QString OwnUnits;
  std::optional<double> Low;
  std::optional<double> High;
  std::optional<double> Ratio;
  bool IsReference = false;
  bool IsJudged = false;
};
std::vector<JudgmentLine> JudgmentLinesOf(const Project& project, std::size_t session);

// "2024-05-17 09:30, by Dr. Müller: First try"
QString SessionLabel(const Project& project, std::size_t session);

class JudgmentsPage : public QWidget {
  Q_OBJECT

 public:
  explicit JudgmentsPage(Document& document, QWidget* parent = nullptr);

  BarChart& Intervals() const { return *chart_; }
  void ShowWizardOpen(bool open);
  void ShowHint(const QString& hint);
  void ChooseSession(std::size_t session);

 Q_SIGNALS:
  void ElicitWanted(std::optional<std::size_t> resume);  // nothing: from the start
  void ImportWanted();

 private:
  QWidget* MakeSessions();
  QWidget* MakeJudgments();
  QWidget* MakeHint();
  void ConnectSessions();
  void ShowSessions();
  void ShowSession();
  void ShowTable(const std::vector<JudgmentLine>& lines);
  void ShowChart(const std::vector<JudgmentLine>& lines, const std::vector<JudgmentLine>& other);
  void ShowCross(const JudgmentSession& session);
  std::optional<std::size_t> Session() const;
  std::optional<std::size_t> Compared() const;
  void EditSession(const QString& what, const std::function<void(JudgmentSession&)>& change);

  Document& document_;
  QListWidget* sessions_ = nullptr;
  QPushButton* elicit_ = nullptr;
  QPushButton* resume_ = nullptr;
  QPushButton* import_ = nullptr;
  QPushButton* remove_ = nullptr;
  QLineEdit* by_ = nullptr;
  QLineEdit* note_ = nullptr;
  QComboBox* compare_ = nullptr;
  BarChart* chart_ = nullptr;
  QTableWidget* table_ = nullptr;
  QLabel* cross_ = nullptr;
  QWidget* hintPanel_ = nullptr;
  QLabel* hint_ = nullptr;
  bool open_ = false;
};

}  // namespace Tarnwise
