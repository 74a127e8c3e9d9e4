#include "workbench/JudgmentsPage.h"

#include "modelfiles/WholeFile.h"
#include "project/Sentences.h"
#include "project/Shown.h"
#include "workbench/Tables.h"
#include "workbench/Texts.h"
#include "workbench/charts/BarChart.h"

#include <QtWidgets>

#include <cmath>

namespace Tarnwise {

namespace {

QString RatioText(double ratio) { return QString::number(ratio, 'g', 5); }

QString IntervalText(const std::optional<double>& low, const std::optional<double>& high) {
  if (!low) return JudgmentsPage::tr("at most %1").arg(RatioText(*high));
  if (!high) return JudgmentsPage::tr("at least %1").arg(RatioText(*low));
  return *low == *high ? RatioText(*low) : RatioText(*low) + " – " + RatioText(*high);
}

// What a ratio compares.
QString MeaningOf(JudgmentBasis basis) {
  switch (basis) {
    case JudgmentBasis::Range:
      return JudgmentsPage::tr("weight of the attribute's step from worst to best, in steps of its group's reference");
    case JudgmentBasis::Scale:
      return JudgmentsPage::tr("weight of the attribute's whole curve, in curves of its group's reference");
    case JudgmentBasis::Unit: return JudgmentsPage::tr("price of one unit, in prices of its group's reference");
  }
  return {};
}

// A zero bound is none.
std::optional<double> BoundOf(const std::optional<double>& bound) {
  return bound && *bound > 0.0 ? bound : std::nullopt;
}

// Sentences in own units, by the columns' names; none where the session can't be computed with.
std::map<String, QString> OwnUnits(const Project& project, std::size_t session) {
  std::map<String, QString> texts;
  try {
    Asked asked;
    asked.Session = session;
    const JudgedProblem judged = JudgedProblemOf(project, asked);
    for (const Dea::Equivalence& equivalence : judged.Equivalences) {
      const String& name = judged.Problem.Columns[static_cast<std::size_t>(equivalence.Column)].Name;
      texts[name] = FromText(EquivalenceText(project, judged.Problem, equivalence, Signs()));
    }
  } catch (const ModelFault&) {
    texts.clear();
  }
  return texts;
}

JudgmentLine LineOf(const JudgmentSession& session, const DataColumn& column) {
  JudgmentLine line;
  line.Attribute = FromText(column.Name);
  const String& reference = ReferenceIn(session, column.Role);
  line.IsReference = column.Name == reference;
  if (line.IsReference) {
    line.Judged = JudgmentsPage::tr("reference");
    line.Low = line.High = line.Ratio = 1.0;
    return line;
  }
  line.IsJudged = IsJudged(session, column.Name);
  if (!line.IsJudged) {
    line.Judged = JudgmentsPage::tr("not judged");
    return line;
  }
  const SessionAttribute& attribute = *FindAttribute(session, column.Name);
  line.Low = BoundOf(attribute.Low);
  line.High = BoundOf(attribute.High);
  line.Ratio = BoundOf(attribute.Ratio);
  const bool same = line.Low == 1.0 && line.High == 1.0;
  line.Judged = same ? JudgmentsPage::tr("1 times %1 (same rank)").arg(FromText(reference))
                     : JudgmentsPage::tr("%1 times %2").arg(IntervalText(line.Low, line.High), FromText(reference));
  return line;
}

Bar BarOf(const JudgmentLine& line) {
  Bar bar;
  bar.IsNothing = !line.IsJudged && !line.IsReference;
  bar.Low = line.Low;
  bar.High = line.High;
  bar.Mark = line.Ratio;
  return bar;
}

// A range of ratios that holds all bounds and 1, wide enough to look at.
std::pair<double, double> RatiosShown(const std::vector<JudgmentLine>& lines) {
  double low = 0.5;
  double high = 2.0;
  for (const JudgmentLine& line : lines) {
    for (const auto& bound : {line.Low, line.High}) {
      if (!bound) continue;
      low = std::min(low, *bound);
      high = std::max(high, *bound);
    }
  }
  return {low / 1.3, high * 1.3};
}

QLineEdit* AddField(QFormLayout& form, const char* name, const QString& title) {
  auto* const field = Named(new QLineEdit, name, QString(title).remove(QLatin1Char('&')));
  form.addRow(title, field);
  return field;
}

}  // namespace

std::vector<JudgmentLine> JudgmentLinesOf(const Project& project, std::size_t session) {
  const std::map<String, QString> units = OwnUnits(project, session);
  std::vector<JudgmentLine> lines;
  for (const Role role : {Role::Input, Role::Output}) {
    for (const std::size_t j : ColumnsIn(project, role)) {
      lines.push_back(LineOf(project.Sessions[session], project.Columns[j]));
      const auto found = units.find(project.Columns[j].Name);
      if (lines.back().IsJudged && found != units.end()) lines.back().OwnUnits = found->second;
    }
  }
  return lines;
}

QString SessionLabel(const Project& project, std::size_t session) {
  const JudgmentSession& judged = project.Sessions[session];
  QString label = JudgmentsPage::tr("Session %1").arg(session);
  if (!judged.Made.empty()) label = TimeText(judged.Made);
  if (!judged.By.empty()) label += ", " + FromText(ShownName(judged.By));
  if (!judged.Note.empty()) label += ": " + FromText(ShownName(judged.Note));
  return label;
}

JudgmentsPage::JudgmentsPage(Document& document, QWidget* parent) : QWidget(parent), document_(document) {
  Named(this, "judgmentsPage", tr("Judgments"));
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(MakeHint());
  auto* const splitter = Named(new QSplitter, "judgmentsSplitter", tr("Divided page"));
  splitter->addWidget(MakeSessions());
  splitter->addWidget(MakeJudgments());
  splitter->setStretchFactor(1, 1);
  splitter->setSizes({280, 880});
  splitter->setChildrenCollapsible(false);
  layout->addWidget(splitter, 1);
  connect(&document_, &Document::Changed, this, &JudgmentsPage::ShowSessions);
  ShowSessions();
}

QWidget* JudgmentsPage::MakeHint() {
  auto* const panel = Named(new QFrame, "hintPanel", tr("Hints while the wizard is open"));
  panel->setFrameShape(QFrame::StyledPanel);
  panel->setAutoFillBackground(true);
  panel->setBackgroundRole(QPalette::ToolTipBase);
  panel->setForegroundRole(QPalette::ToolTipText);
  auto* const layout = new QVBoxLayout(panel);
  hint_ = Named(new QLabel, "hint", tr("Hint"));
  hint_->setWordWrap(true);
  hint_->setForegroundRole(QPalette::ToolTipText);
  layout->addWidget(hint_);
  panel->hide();
  hintPanel_ = panel;
  return panel;
}

QWidget* JudgmentsPage::MakeSessions() {
  auto* const side = new QWidget;
  auto* const layout = new QVBoxLayout(side);
  layout->setContentsMargins(0, 0, 0, 0);
  elicit_ = Named(new QPushButton(tr("&Elicit…")), "elicit", tr("Elicit judgments from the start"));
  resume_ = Named(new QPushButton(tr("Elicit from this &session…")), "resume", tr("Elicit from this session"));
  import_ = Named(new QPushButton(tr("&Import from a model…")), "importJudgments", tr("Import from a model"));
  for (QPushButton* const button : {elicit_, resume_, import_}) layout->addWidget(button);
  sessions_ = Named(new QListWidget, "sessions", tr("Sessions of judgments"));
  sessions_->setWordWrap(true);
  layout->addWidget(sessions_, 1);
  auto* const form = new QFormLayout;
  form->setRowWrapPolicy(QFormLayout::WrapLongRows);
  by_ = AddField(*form, "by", tr("&Judged by"));
  note_ = AddField(*form, "note", tr("&Note"));
  compare_ = Named(new QComboBox, "compare", tr("Compare with"));
  compare_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  form->addRow(tr("&Compare with"), compare_);
  layout->addLayout(form);
  remove_ = Named(new QPushButton(tr("&Remove session")), "removeSession", tr("Remove session"));
  layout->addWidget(remove_, 0, Qt::AlignLeft);
  ConnectSessions();
  return side;
}

void JudgmentsPage::ConnectSessions() {
  connect(import_, &QPushButton::clicked, this, &JudgmentsPage::ImportWanted);
  connect(elicit_, &QPushButton::clicked, this, [this] { Q_EMIT ElicitWanted(std::nullopt); });
  connect(resume_, &QPushButton::clicked, this, [this] { Q_EMIT ElicitWanted(Session()); });
  connect(sessions_, &QListWidget::currentRowChanged, this, &JudgmentsPage::ShowSession);
  connect(compare_, &QComboBox::currentIndexChanged, this, &JudgmentsPage::ShowSession);
  connect(by_, &QLineEdit::editingFinished, this, [this] {
    EditSession(tr("Name of the judge"), [this](JudgmentSession& session) { session.By = ToText(by_->text()); });
  });
  connect(note_, &QLineEdit::editingFinished, this, [this] {
    EditSession(tr("Note"), [this](JudgmentSession& session) { session.Note = ToText(note_->text()); });
  });
  connect(remove_, &QPushButton::clicked, this, [this] {
    const auto session = Session();
    if (!session) return;
    document_.Edit(tr("Removal of a session"), [&](Project& project) {
      project.Sessions.erase(project.Sessions.begin() + static_cast<std::ptrdiff_t>(*session));
      if (project.Use) project.Use->Session.reset();
    });
  });
}

QWidget* JudgmentsPage::MakeJudgments() {
  auto* const splitter = Named(new QSplitter(Qt::Vertical), "intervalsSplitter", tr("Divided page"));
  chart_ = Named(new BarChart(splitter), "intervalChart", tr("Judged intervals"));
  chart_->SetLogarithmic(true);
  auto* const below = new QWidget;
  auto* const layout = new QVBoxLayout(below);
  layout->setContentsMargins(0, 0, 0, 0);
  table_ = Named(new QTableWidget(0, 3), "judgments", tr("What was judged"));
  table_->setHorizontalHeaderLabels({tr("Attribute"), tr("Judged"), tr("In own units")});
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setTabKeyNavigation(false);
  table_->verticalHeader()->hide();
  table_->horizontalHeader()->setHighlightSections(false);
  SetCompactRows(*table_);
  table_->horizontalHeader()->setStretchLastSection(true);
  layout->addWidget(table_, 1);
  cross_ = Named(new QLabel, "cross", tr("Ratio of the two references"));
  cross_->setWordWrap(true);
  layout->addWidget(cross_);
  splitter->addWidget(chart_);
  splitter->addWidget(below);
  splitter->setStretchFactor(0, 3);
  splitter->setStretchFactor(1, 2);
  splitter->setChildrenCollapsible(false);
  connect(table_, &QTableWidget::currentCellChanged, this, [this](int row) { chart_->Select(row); });
  connect(chart_, &BarChart::RowClicked, this, [this](int row) { table_->setCurrentCell(row, 0); });
  return splitter;
}

std::optional<std::size_t> JudgmentsPage::Session() const {
  const int row = sessions_->currentRow();
  return row < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(row));
}

std::optional<std::size_t> JudgmentsPage::Compared() const {
  const int other = compare_->currentIndex() - 1;
  return other < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(other));
}

void JudgmentsPage::ShowSessions() {
  const Project& project = document_.Data();
  const int count = static_cast<int>(project.Sessions.size());
  const auto used = SessionInUse(project);
  const bool others = count != sessions_->count();
  const int row = others && used ? static_cast<int>(*used) : std::min(sessions_->currentRow(), count - 1);
  const int compared = compare_->currentIndex();
  {
    const QSignalBlocker quietSessions(sessions_);
    const QSignalBlocker quietCompare(compare_);
    sessions_->clear();
    compare_->clear();
    compare_->addItem(tr("nothing"));
    for (std::size_t i = 0; i < project.Sessions.size(); ++i) {
      sessions_->addItem(SessionLabel(project, i));
      compare_->addItem(SessionLabel(project, i));
    }
    sessions_->setCurrentRow(row);
    compare_->setCurrentIndex(compared >= 0 && compared <= count ? compared : 0);
  }
  ShowSession();
}

void JudgmentsPage::ShowSession() {
  const auto session = Session();
  for (QWidget* const widget : std::initializer_list<QWidget*>{by_, note_, remove_, resume_}) {
    widget->setEnabled(session.has_value() && !open_);
  }
  compare_->setEnabled(document_.Data().Sessions.size() > 1);
  elicit_->setEnabled(!open_);
  import_->setEnabled(!open_);
  if (!session) {
    by_->clear();
    note_->clear();
    cross_->setText(tr("No judgments yet. “Elicit…” asks a decision maker for them, step by step."));
    table_->setRowCount(0);
    chart_->SetReferenceLine(std::nullopt);
    return chart_->SetRows({});
  }
  const JudgmentSession& judged = document_.Data().Sessions[*session];
  ShowIn(*by_, FromText(judged.By));
  ShowIn(*note_, FromText(judged.Note));
  const std::vector<JudgmentLine> lines = JudgmentLinesOf(document_.Data(), *session);
  const auto compared = Compared();
  ShowTable(lines);
  ShowChart(lines, compared ? JudgmentLinesOf(document_.Data(), *compared) : std::vector<JudgmentLine>());
  ShowCross(judged);
}

void JudgmentsPage::ShowTable(const std::vector<JudgmentLine>& lines) {
  table_->setRowCount(static_cast<int>(lines.size()));
  for (int row = 0; row < table_->rowCount(); ++row) {
    const JudgmentLine& line = lines[static_cast<std::size_t>(row)];
    const QString texts[] = {line.Attribute, line.Judged, line.OwnUnits};
    for (int c = 0; c < 3; ++c) {
      auto* const item = new QTableWidgetItem(texts[c]);
      item->setToolTip(texts[c]);
      if (!line.IsJudged) item->setForeground(InkFor(palette()).Faint);
      table_->setItem(row, c, item);
    }
  }
  table_->resizeColumnToContents(0);
  table_->resizeColumnToContents(1);
  table_->setColumnWidth(0, std::min(table_->columnWidth(0), 240));
  table_->setColumnWidth(1, std::min(table_->columnWidth(1), 300));
}

void JudgmentsPage::ShowChart(const std::vector<JudgmentLine>& lines, const std::vector<JudgmentLine>& other) {
  std::vector<BarRow> rows;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    BarRow row;
    row.Name = lines[i].Attribute;
    row.Value = lines[i].Judged;
    row.First = BarOf(lines[i]);
    if (i < other.size()) {
      row.Second = BarOf(other[i]);
      row.Value += tr("; compared: %1").arg(other[i].Judged);
    }
    if (row.First.IsNothing && row.Second.IsNothing) row.Note = lines[i].Judged;
    rows.push_back(row);
  }
  std::vector<JudgmentLine> all = lines;
  all.insert(all.end(), other.begin(), other.end());
  const auto [low, high] = RatiosShown(all);
  chart_->SetShown(low, high);
  chart_->SetReferenceLine(1.0);
  chart_->SetAxisLabel(MeaningOf(document_.Data().Sessions[*Session()].Basis));
  const QString title = SessionLabel(document_.Data(), *Session());
  chart_->SetTitle(
      other.empty() ? title : tr("%1 (full), %2 (hatched)").arg(title, SessionLabel(document_.Data(), *Compared())));
  chart_->SetRows(std::move(rows));
}

void JudgmentsPage::ShowCross(const JudgmentSession& session) {
  if (!session.Cross || !session.Cross->Judged || !session.Cross->Ratio) {
    return cross_->setText(tr("The two references were not compared with each other."));
  }
  cross_->setText(
      tr("%1 is worth %2 times %3 (used by the value form only).")
          .arg(FromText(session.CostReference), RatioText(*session.Cross->Ratio), FromText(session.BenefitReference)));
}

void JudgmentsPage::EditSession(const QString& what, const std::function<void(JudgmentSession&)>& change) {
  const auto session = Session();
  if (session) document_.Edit(what, [&](Project& project) { change(project.Sessions[*session]); });
}

void JudgmentsPage::ShowWizardOpen(bool open) {
  open_ = open;
  hintPanel_->setVisible(open);
  ShowHint({});
  ShowSession();
}

void JudgmentsPage::ShowHint(const QString& hint) {
  hint_->setText(hint.isEmpty() ? tr("The wizard is open. Data, attributes and results wait until it ends.") : hint);
  hint_->setAccessibleDescription(hint);
  if (!hint.isEmpty()) {
    QAccessibleEvent news(hint_, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&news);
  }
}

void JudgmentsPage::ChooseSession(std::size_t session) { sessions_->setCurrentRow(static_cast<int>(session)); }

}  // namespace Tarnwise
