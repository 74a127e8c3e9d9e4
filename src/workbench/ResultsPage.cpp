#include "workbench/ResultsPage.h"

#include "dea/Evaluate.h"
#include "modelfiles/WholeFile.h"
#include "project/ProjectChecks.h"
#include "workbench/JudgmentsPage.h"
#include "workbench/ResultsBars.h"
#include "workbench/Solver.h"
#include "workbench/Tables.h"
#include "workbench/Texts.h"

#include <QtWidgets>

#include <cmath>

namespace Tarnwise {

namespace {

constexpr std::size_t kAtOnce = 2000;  // units that are computed without asking

constexpr ScoreForm kForms[] = {ScoreForm::Ratio, ScoreForm::Value};
constexpr ScoreReturns kReturns[] = {ScoreReturns::Crs, ScoreReturns::Vrs, ScoreReturns::Nirs, ScoreReturns::Ndrs};
constexpr ScoreOrientation kOrientations[] = {ScoreOrientation::In, ScoreOrientation::Out};

template <class Value, std::size_t kCount>
void Choose(QComboBox& box, const Value (&values)[kCount], Value value) {
  box.setCurrentIndex(static_cast<int>(std::find(values, values + kCount, value) - values));
}

}  // namespace

ResultsPage::ResultsPage(Document& document, QWidget* parent)
    : QWidget(parent),
      document_(document),
      model_(new ResultsModel(this)),
      filter_(new ResultsFilter(*model_)),
      solver_(new Solver(this)),
      soon_(new QTimer(this)),
      chartSoon_(new QTimer(this)) {
  Named(this, "resultsPage", tr("Results"));
  filter_->setParent(this);
  soon_->setSingleShot(true);
  soon_->setInterval(0);
  connect(soon_, &QTimer::timeout, this, &ResultsPage::Compute);
  auto* const layout = new QVBoxLayout(this);
  layout->addLayout(MakeChoices());
  layout->addLayout(MakeSearch());
  summary_ = Named(new QLabel, "summary", tr("Summary"));
  summary_->setWordWrap(true);
  layout->addWidget(summary_);
  layout->addWidget(MakeTables(), 1);
  ConnectSolver();
  connect(&document_, &Document::Changed, this, &ResultsPage::ShowDocument);
  ShowDocument();
}

QComboBox* ResultsPage::AddChoice(QGridLayout& grid, const char* name, const QString& title,
                                  const QStringList& choices) {
  auto* const box = Named(new QComboBox, name, QString(title).remove(QLatin1Char('&')));
  box->addItems(choices);
  box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  box->setMinimumContentsLength(12);
  AddField(grid, title, *box);
  connect(box, &QComboBox::activated, this, &ResultsPage::TakeChoice);
  return box;
}

// Below its title, in a column of its own.
void ResultsPage::AddField(QGridLayout& grid, const QString& title, QWidget& field) {
  auto* const label = new QLabel(title);
  label->setBuddy(&field);
  const int column = grid.columnCount();
  grid.addWidget(label, 0, column);
  grid.addWidget(&field, 1, column);
  grid.setColumnStretch(column, 1);
}

QLayout* ResultsPage::MakeChoices() {
  auto* const grid = new QGridLayout;
  session_ = AddChoice(*grid, "resultsSession", tr("&Judgments"), {});
  form_ = AddChoice(*grid, "form", tr("F&orm"), {tr("Ratio (efficiency)"), tr("Value (distance)")});
  returns_ = AddChoice(*grid, "returns", tr("&Returns to scale"),
                       {tr("Constant"), tr("Variable"), tr("Not increasing"), tr("Not decreasing")});
  orientation_ = AddChoice(*grid, "orientation", tr("Orien&tation"), {tr("Inputs"), tr("Outputs")});
  widen_ = Named(new QDoubleSpinBox, "widen", tr("Widen all intervals by this factor"));
  widen_->setRange(1.0, 3.0);
  widen_->setSingleStep(0.1);
  widen_->setPrefix(QStringLiteral("× "));
  widen_->setKeyboardTracking(false);
  widen_->setLocale(QLocale::c());
  AddField(*grid, tr("&Widen intervals by"), *widen_);
  connect(widen_, &QDoubleSpinBox::valueChanged, this, &ResultsPage::ComputeSoon);
  return grid;
}

QLayout* ResultsPage::MakeSearch() {
  auto* const row = new QHBoxLayout;
  find_ = Named(new QLineEdit, "find", tr("Find a unit"));
  find_->setPlaceholderText(tr("Find a unit"));
  find_->setClearButtonEnabled(true);
  onlyBest_ = Named(new QCheckBox(tr("Only e&fficient ones")), "onlyBest", tr("Only efficient units"));
  compute_ = Named(new QPushButton(tr("&Compute")), "compute", tr("Compute the results"));
  progress_ = Named(new QProgressBar, "progress", tr("Progress"));
  progress_->setRange(0, 1000);
  progress_->setMaximumWidth(220);
  cancel_ = Named(new QPushButton(tr("Ca&ncel")), "cancel", tr("Cancel the computation"));
  bars_ = Named(new QComboBox, "bars", tr("What the chart shows"));
  bars_->addItems({tr("Chart of scores"), tr("Chart of ranks")});
  save_ = Named(new QPushButton(tr("Save &picture…")), "savePicture", tr("Save the range chart as a picture"));
  row->addWidget(find_, 1);
  row->addWidget(onlyBest_);
  row->addWidget(progress_);
  row->addWidget(cancel_);
  row->addWidget(compute_);
  row->addWidget(bars_);
  row->addWidget(save_);
  connect(find_, &QLineEdit::textChanged, filter_, &ResultsFilter::SetText);
  connect(onlyBest_, &QCheckBox::toggled, filter_, &ResultsFilter::SetOnlyBest);
  connect(compute_, &QPushButton::clicked, this, &ResultsPage::Compute);
  connect(cancel_, &QPushButton::clicked, this, &ResultsPage::Cancel);
  connect(bars_, &QComboBox::currentIndexChanged, this, &ResultsPage::ShowChart);
  connect(save_, &QPushButton::clicked, this, [this] { chart_->AskAndSave(); });
  return row;
}

QWidget* ResultsPage::MakeTables() {
  auto* const above = Named(new QSplitter, "rangesSplitter", tr("Divided page"));
  table_ = Named(new QTableView, "results", tr("Results of the units"));
  table_->setModel(filter_);
  table_->setSortingEnabled(true);
  table_->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setSelectionMode(QAbstractItemView::SingleSelection);
  table_->setTabKeyNavigation(false);
  table_->setWordWrap(false);
  table_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  table_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  table_->verticalHeader()->hide();
  table_->horizontalHeader()->setHighlightSections(false);
  SetCompactRows(*table_);
  table_->horizontalHeader()->setStretchLastSection(true);
  chart_ = Named(new BarChart(above), "rangeChart", tr("Ranges of the units"));
  above->addWidget(table_);
  above->addWidget(chart_);
  above->setStretchFactor(0, 3);
  above->setStretchFactor(1, 2);
  above->setSizes({790, 370});
  above->setChildrenCollapsible(false);
  details_ = Named(new QTextBrowser, "details", tr("The chosen unit"));
  details_->setTabChangesFocus(true);
  auto* const splitter = Named(new QSplitter(Qt::Vertical), "resultsSplitter", tr("Divided page"));
  splitter->addWidget(above);
  splitter->addWidget(details_);
  splitter->setStretchFactor(0, 1);
  splitter->setSizes({390, 190});
  splitter->setChildrenCollapsible(false);
  chartSoon_->setSingleShot(true);
  connect(chartSoon_, &QTimer::timeout, this, &ResultsPage::ShowChart);
  const auto showChart = [this] { chartSoon_->start(); };
  connect(filter_, &QAbstractItemModel::layoutChanged, this, showChart);
  connect(filter_, &QAbstractItemModel::rowsInserted, this, showChart);
  connect(filter_, &QAbstractItemModel::rowsRemoved, this, showChart);
  connect(filter_, &QAbstractItemModel::modelReset, this, showChart);
  connect(filter_, &QAbstractItemModel::modelReset, this, &ResultsPage::FitColumns);
  connect(table_->verticalScrollBar(), &QScrollBar::valueChanged, this, &ResultsPage::AlignChart);
  connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &ResultsPage::ShowUnit);
  connect(chart_, &BarChart::RowClicked, this, [this](int row) { table_->selectRow(row); });
  connect(chart_, &BarChart::Scrolled, this,
          [this](int pixels) { table_->verticalScrollBar()->setValue(table_->verticalScrollBar()->value() + pixels); });
  return splitter;
}

void ResultsPage::ConnectSolver() {
  connect(solver_, &Solver::Began, this, [this] { ShowBusy(true); });
  connect(solver_, &Solver::Progressed, this, [this](double share) {
    progress_->setValue(static_cast<int>(1000.0 * share));
    Q_EMIT Progressed(progress_->value());
  });
  connect(solver_, &Solver::Solved, this, &ResultsPage::ShowResults);
  connect(solver_, &Solver::Failed, this, [this](const QString& reason) { ShowMessage(reason); });
  connect(solver_, &Solver::Cancelled, this, [this] { ShowMessage(tr("Cancelled. “Compute” starts again.")); });
}

void ResultsPage::Cancel() { solver_->Cancel(); }

bool ResultsPage::IsSolving() const { return solver_->IsBusy(); }

QString ResultsPage::Message() const { return summary_->text(); }

bool ResultsPage::IsBusy() const { return solver_->IsBusy() || soon_->isActive() || chartSoon_->isActive(); }

void ResultsPage::ShowSessions() {
  const Project& project = document_.Data();
  session_->clear();
  session_->addItem(tr("None"));
  for (std::size_t i = 0; i < project.Sessions.size(); ++i) session_->addItem(SessionLabel(project, i));
  const auto used = SessionInUse(project);
  session_->setCurrentIndex(used ? static_cast<int>(*used) + 1 : 0);
}

void ResultsPage::ShowDocument() {
  showing_ = true;
  ShowSessions();
  const ProjectUse use = document_.Data().Use.value_or(ProjectUse());
  Choose(*form_, kForms, use.Form.value_or(ScoreForm::Ratio));
  Choose(*returns_, kReturns, use.Returns.value_or(ScoreReturns::Crs));
  Choose(*orientation_, kOrientations, use.Orientation.value_or(ScoreOrientation::In));
  showing_ = false;
  ComputeSoon();
}

// What was asked for is kept in the project.
void ResultsPage::TakeChoice() {
  if (showing_) return;
  document_.Edit(tr("Choice of results"), [this](Project& project) {
    ProjectUse use = project.Use.value_or(ProjectUse());
    const int session = session_->currentIndex() - 1;
    use.NoSession = session < 0 && !project.Sessions.empty();
    use.Session = session < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(session));
    use.Form = kForms[form_->currentIndex()];
    use.Returns = kReturns[returns_->currentIndex()];
    use.Orientation = kOrientations[orientation_->currentIndex()];
    project.Use = use;
  });
}

Asked ResultsPage::Wanted() const {
  Wishes wishes;
  wishes.Widen = widen_->value();
  return AskedOf(document_.Data(), wishes);
}

void ResultsPage::ComputeSoon() {
  const bool ratio = form_->currentIndex() == 0;
  returns_->setEnabled(ratio);
  orientation_->setEnabled(ratio);
  widen_->setEnabled(session_->currentIndex() > 0);
  if (document_.Data().Units.size() <= kAtOnce) return soon_->start();
  solver_->Cancel();
  ShowMessage(tr("%1 units: “Compute” works the results out.").arg(document_.Data().Units.size()));
}

void ResultsPage::Compute() {
  if (hidden_) return;
  try {
    CheckForResults(document_.Data());
    solving_ = document_.Shared();
    solver_->Start(solving_, Wanted());
  } catch (const ModelFault& fault) {
    ShowMessage(FromText(fault.what()));
  }
}

void ResultsPage::Hide(bool hidden) {
  hidden_ = hidden;
  if (!hidden) return ComputeSoon();
  solver_->Cancel();
  ShowMessage(tr("Results are hidden while somebody judges."));
}

void ResultsPage::ShowBusy(bool busy) {
  progress_->setVisible(busy);
  cancel_->setVisible(busy);
  compute_->setVisible(!busy);
  if (busy) progress_->setValue(0);
  if (busy) Q_EMIT StateChanged();
}

void ResultsPage::ShowMessage(const QString& text) {
  ShowBusy(false);
  model_->Show(nullptr);
  details_->clear();
  summary_->setText(text);
  Q_EMIT StateChanged();
}

void ResultsPage::ShowResults(const SharedEvaluation& evaluation) {
  if (hidden_) return;
  shownOf_ = solving_;
  const QString chosen = table_->currentIndex().siblingAtColumn(0).data().toString();
  ShowBusy(false);
  model_->Show(evaluation);
  QStringList lines = {SummaryText(*evaluation)};
  for (const String& note : evaluation->Results.Notes) lines += FromText(note);
  for (const Dea::LeftOut& left : evaluation->Results.LeftOut) {
    if (lines.size() > 4) break;
    lines += tr("Left out: %1 (%2).")
                 .arg(FromText(evaluation->Problem.Units[static_cast<std::size_t>(left.Unit)]),
                      ReasonText(*evaluation, left));
  }
  if (evaluation->Results.LeftOut.size() > 3)
    lines += tr("%1 units are left out.").arg(evaluation->Results.LeftOut.size());
  summary_->setText(lines.join(QLatin1Char('\n')));
  for (int row = 0; row < filter_->rowCount() && !chosen.isEmpty(); ++row) {
    if (filter_->index(row, 0).data().toString() == chosen) table_->selectRow(row);
  }
  if (!table_->currentIndex().isValid() && filter_->rowCount() > 0) table_->selectRow(0);
  ShowUnit();
  Q_EMIT StateChanged();
  Q_EMIT Told(
      tr("Computed; the worst violation of any condition is %1.").arg(evaluation->Results.WorstViolation, 0, 'g', 2));
}

void ResultsPage::FitColumns() {
  for (int c = 0; c < filter_->columnCount(); ++c) {
    table_->resizeColumnToContents(c);
    table_->setColumnWidth(c, std::clamp(table_->columnWidth(c) + 10, 70, c == 0 ? 260 : 320));
  }
}

void ResultsPage::ShowChart() {
  std::vector<BarRow> rows;
  const SharedEvaluation& evaluation = model_->Shown();
  bars_->setEnabled(evaluation && HasRanks(*evaluation));
  const BarKind kind = bars_->isEnabled() && bars_->currentIndex() == 1 ? BarKind::Ranks : BarKind::Scores;
  const int count = evaluation ? filter_->rowCount() : 0;
  rows.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) {
    const int source = filter_->mapToSource(filter_->index(i, 0)).row();
    rows.push_back(BarRowOf(*evaluation, model_->ResultOf(source), kind));
  }
  if (evaluation) {
    const auto [low, high] = BarsShown(rows, *evaluation, kind);
    chart_->SetShown(low, high);
    chart_->SetAxisLabel(BarsLabel(*evaluation, kind));
    chart_->SetTitle(QString::fromStdString(document_.Data().Name));
    const bool scores = evaluation->How.Form == ScoreForm::Ratio && kind == BarKind::Scores;
    chart_->SetReferenceLine(scores ? std::optional(1.0) : std::nullopt);
  }
  chart_->SetRows(std::move(rows));
  chart_->Select(table_->currentIndex().row());
  AlignChart();
}

void ResultsPage::AlignChart() {
  const int top = table_->viewport()->geometry().top();
  const int below = table_->height() - table_->viewport()->geometry().bottom() - 1;
  chart_->StandBeside(top, table_->verticalHeader()->defaultSectionSize(), table_->verticalScrollBar()->value(), below);
}

void ResultsPage::ShowUnit() {
  const QModelIndex current = table_->currentIndex();
  if (!model_->Shown() || !current.isValid()) return details_->clear();
  chart_->Select(current.row());
  const Dea::UnitResult& unit = model_->ResultOf(filter_->mapToSource(current).row());
  std::vector<int> dominators;
  try {
    dominators = Dea::DominatorsOf(model_->Shown()->Problem, unit.Unit);
  } catch (const std::exception& fault) {
    Q_EMIT Told(QString::fromUtf8(fault.what()));
  }
  details_->setHtml(DetailsOf(*model_->Shown(), unit, dominators));
}

}  // namespace Tarnwise
