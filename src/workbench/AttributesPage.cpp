#include "workbench/AttributesPage.h"

#include "dea/Values.h"
#include "project/Evaluation.h"
#include "project/Shown.h"
#include "workbench/DataModel.h"
#include "workbench/Edits.h"
#include "workbench/Tables.h"
#include "workbench/Texts.h"
#include "workbench/charts/CurveChart.h"

#include <QtWidgets>

namespace Tarnwise {

namespace {

ColumnScale OwnScale(const DataColumn& column) { return {*column.Worst, *column.Best, column.Curve}; }

CurvePicture PictureOf(const DataColumn& column) {
  CurvePicture picture;
  picture.Name = FromText(column.Name);
  picture.Unit = FromText(column.Unit);
  picture.Scale = OwnScale(column);
  picture.Points = CurveOrLine(picture.Scale);
  for (const auto& value : column.Values) {
    if (value) picture.Scores.push_back(*value);
  }
  return picture;
}

// The middle of the widest gap, where a new point is of most use.
ValuePoint NewPoint(const ColumnScale& scale) {
  const std::vector<ValuePoint> points = CurveOrLine(scale);
  std::size_t widest = 0;
  for (std::size_t i = 0; i + 1 < points.size(); ++i) {
    const auto gap = [&points](std::size_t k) { return points[k + 1].Score - points[k].Score; };
    if (gap(i) > gap(widest)) widest = i;
  }
  const double score = (points[widest].Score + points[widest + 1].Score) / 2.0;
  return {score, Dea::ValueFunction(ScaleForDea(scale)).At(score)};
}

}  // namespace

AttributesPage::AttributesPage(Document& document, QWidget* parent) : QWidget(parent), document_(document) {
  Named(this, "attributesPage", tr("Attributes"));
  auto* const layout = new QVBoxLayout(this);
  auto* const splitter = Named(new QSplitter, "attributesSplitter", tr("Divided page"));
  splitter->addWidget(MakeList());
  splitter->addWidget(MakeCurve());
  splitter->addWidget(MakeFields());
  splitter->setStretchFactor(1, 1);
  splitter->setSizes({190, 640, 330});
  splitter->setChildrenCollapsible(false);
  layout->addWidget(splitter);
  connect(&document_, &Document::Changed, this, &AttributesPage::ShowColumns);
  ShowColumns();
}

QWidget* AttributesPage::MakeList() {
  list_ = Named(new QListWidget, "attributeList", tr("Inputs and outputs"));
  list_->setMinimumWidth(140);
  list_->setTextElideMode(Qt::ElideMiddle);
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  connect(list_, &QListWidget::currentRowChanged, this, &AttributesPage::ShowColumn);
  return list_;
}

QWidget* AttributesPage::MakeCurve() {
  auto* const side = new QWidget;
  auto* const layout = new QVBoxLayout(side);
  layout->setContentsMargins(0, 0, 0, 0);
  chart_ = Named(new CurveChart(side), "curveChart", tr("Value curve"));
  chart_->setAccessibleDescription(
      tr("Page Up and Page Down choose a point, arrows move it, Insert adds one, Delete "
         "removes it."));
  layout->addWidget(chart_, 1);
  notes_ = Named(new QLabel, "curveNotes", tr("What is to be said of the curve"));
  notes_->setWordWrap(true);
  layout->addWidget(notes_);
  connect(chart_, &CurveChart::PointMoved, this, [this](int point, double score, double value) {
    EditCurve(tr("Move of a point"), [=](std::vector<ValuePoint> curve) {
      return WithPointMoved(std::move(curve), static_cast<std::size_t>(point), {score, value});
    });
  });
  connect(chart_, &CurveChart::PointSelected, this, [this](int point) { points_->setCurrentCell(point, 0); });
  connect(chart_, &CurveChart::AddWanted, this, &AttributesPage::AddPoint);
  connect(chart_, &CurveChart::RemoveWanted, this, &AttributesPage::RemovePoint);
  return side;
}

QLineEdit* AttributesPage::AddField(QFormLayout& form, const char* name, const QString& title) {
  auto* const field = Named(new QLineEdit, name, QString(title).remove(QLatin1Char('&')));
  form.addRow(title, field);
  return field;
}

QWidget* AttributesPage::MakeFields() {
  auto* const side = new QWidget;
  auto* const layout = new QVBoxLayout(side);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* const form = new QFormLayout;
  form->setRowWrapPolicy(QFormLayout::WrapLongRows);
  layout->addLayout(form);
  description_ = AddField(*form, "description", tr("&Description"));
  unit_ = AddField(*form, "unitOfMeasure", tr("&Unit of measure"));
  worst_ = AddField(*form, "worst", tr("&Worst"));
  best_ = AddField(*form, "best", tr("&Best"));
  connect(description_, &QLineEdit::editingFinished, this, [this] {
    EditColumn(tr("Description"), [this](DataColumn& column) { column.Description = ToText(description_->text()); });
  });
  connect(unit_, &QLineEdit::editingFinished, this, [this] {
    EditColumn(tr("Unit of measure"), [this](DataColumn& column) { column.Unit = ToText(unit_->text()); });
  });
  const auto takeRange = [this] {
    EditColumn(tr("Change of a range"), [this](DataColumn& column) {
      column.Worst = CellOf(ToText(worst_->text()));
      column.Best = CellOf(ToText(best_->text()));
    });
  };
  connect(worst_, &QLineEdit::editingFinished, this, takeRange);
  connect(best_, &QLineEdit::editingFinished, this, takeRange);
  auto* const title = new QLabel(tr("&Points of the curve"));
  points_ = Named(new QTableWidget(0, 2), "curvePoints", tr("Points of the curve"));
  points_->setHorizontalHeaderLabels({tr("Score"), tr("Value")});
  points_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  points_->setSelectionBehavior(QAbstractItemView::SelectRows);
  points_->setSelectionMode(QAbstractItemView::SingleSelection);
  points_->setTabKeyNavigation(false);
  points_->horizontalHeader()->setHighlightSections(false);
  SetCompactRows(*points_);
  NameEditors(*points_);
  title->setBuddy(points_);
  layout->addWidget(title);
  layout->addWidget(points_, 1);
  layout->addLayout(MakePointButtons());
  connect(points_, &QTableWidget::cellChanged, this, [this](int row) { TakePoint(row); });
  connect(points_, &QTableWidget::currentCellChanged, this, [this](int row) {
    if (!showing_) chart_->SelectPoint(row);
  });
  return side;
}

QLayout* AttributesPage::MakePointButtons() {
  auto* const row = new QHBoxLayout;
  auto* const add = Named(new QPushButton(tr("&Add point")), "addPoint", tr("Add point"));
  auto* const remove = Named(new QPushButton(tr("&Remove")), "removePoint", tr("Remove point"));
  auto* const straight = Named(new QPushButton(tr("&Straight")), "straightLine", tr("Straight line"));
  for (QPushButton* const button : {add, remove, straight}) row->addWidget(button);
  connect(add, &QPushButton::clicked, this, &AttributesPage::AddPoint);
  connect(remove, &QPushButton::clicked, this, &AttributesPage::RemovePoint);
  connect(straight, &QPushButton::clicked, this,
          [this] { EditColumn(tr("Straight line"), [](DataColumn& column) { column.Curve.clear(); }); });
  return row;
}

std::optional<std::size_t> AttributesPage::Column() const {
  const QListWidgetItem* const item = list_->currentItem();
  if (item == nullptr) return std::nullopt;
  return static_cast<std::size_t>(item->data(Qt::UserRole).toULongLong());
}

void AttributesPage::ShowColumns() {
  const int row = std::max(0, list_->currentRow());
  {
    const QSignalBlocker quiet(list_);
    list_->clear();
    const auto& columns = document_.Data().Columns;
    for (std::size_t j = 0; j < columns.size(); ++j) {
      if (columns[j].Role == Role::Unused) continue;
      const QString name = FromText(columns[j].Name);
      auto* const item = new QListWidgetItem(tr("%1 (%2)").arg(name, RoleText(columns[j].Role)), list_);
      item->setData(Qt::UserRole, static_cast<qulonglong>(j));
      item->setToolTip(name);
    }
    list_->setCurrentRow(std::min(row, list_->count() - 1));
  }
  ShowColumn();
}

void AttributesPage::ShowColumn() {
  const auto place = Column();
  for (QWidget* const widget : std::initializer_list<QWidget*>{chart_, points_, description_, unit_, worst_, best_}) {
    widget->setEnabled(place.has_value());
  }
  if (!place) {
    notes_->setText(tr("No column is an input or an output yet: give them roles on the page Data."));
    return;
  }
  const DataColumn& column = document_.Data().Columns[*place];
  showing_ = true;
  ShowIn(*description_, FromText(column.Description));
  ShowIn(*unit_, FromText(column.Unit));
  worst_->setText(NumberText(column.Worst));
  best_->setText(NumberText(column.Best));
  chart_->SetTitle(tr("Value curve of %1").arg(FromText(column.Name)));
  chart_->Show(PictureOf(column));
  ShowPoints(CurveOrLine(OwnScale(column)));
  ShowNotes(column);
  showing_ = false;
}

void AttributesPage::ShowPoints(const std::vector<ValuePoint>& points) {
  points_->setRowCount(static_cast<int>(points.size()));
  for (int row = 0; row < points_->rowCount(); ++row) {
    const ValuePoint& point = points[static_cast<std::size_t>(row)];
    const double numbers[] = {point.Score, point.Value};
    for (int c = 0; c < 2; ++c) {
      auto* const item = new QTableWidgetItem(QString::number(numbers[c], 'g', 8));
      item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      points_->setItem(row, c, item);
    }
  }
  points_->setCurrentCell(chart_->SelectedPoint(), 0);
}

void AttributesPage::ShowNotes(const DataColumn& column) {
  const ColumnScale scale = OwnScale(column);
  QStringList notes;
  const auto departure = Dea::DepartureFromChord(ScaleForDea(scale));
  if (!departure) {
    notes += tr("From worst to best the curve comes back to its start, so it has no chord to count by.");
  } else if (*departure > 0.0005) {
    notes += tr("The curve is up to %1 of the range away from its chord; prices of the ratio form go by the chord.")
                 .arg(FromText(FixedText(*departure, 3)));
  } else {
    notes += tr("The curve is its chord.");
  }
  for (const auto& [from, to] : FallsOf(scale)) {
    notes += tr("It falls from %1 to %2, between its points too: move them until it rises.")
                 .arg(FromText(SignificantText(from, 4)), FromText(SignificantText(to, 4)));
  }
  notes_->setText(notes.join(QLatin1Char(' ')));
}

void AttributesPage::EditColumn(const QString& what, const std::function<void(DataColumn&)>& change) {
  const auto place = Column();
  if (!place || showing_) return;
  const bool done = document_.Edit(what, [&](Project& project) { change(project.Columns[*place]); });
  if (!done) ShowColumn();  // as it is
}

void AttributesPage::EditCurve(const QString& what,
                               const std::function<std::vector<ValuePoint>(std::vector<ValuePoint>)>& change) {
  EditColumn(what, [&](DataColumn& column) { column.Curve = change(CurveOrLine(OwnScale(column))); });
}

void AttributesPage::TakePoint(int row) {
  if (showing_) return;
  const auto score = TypedNumber(points_->item(row, 0)->text());
  const auto value = TypedNumber(points_->item(row, 1)->text());
  if (!score || !value) return ShowColumn();
  EditCurve(tr("Change of a point"), [&](std::vector<ValuePoint> curve) {
    curve[static_cast<std::size_t>(row)] = {*score, std::clamp(*value, 0.0, 1.0)};
    return curve;
  });
}

void AttributesPage::AddPoint() {
  const auto place = Column();
  if (!place) return;
  const ValuePoint point = NewPoint(OwnScale(document_.Data().Columns[*place]));
  EditCurve(tr("New point"), [&](std::vector<ValuePoint> curve) { return WithPointAdded(std::move(curve), point); });
}

void AttributesPage::RemovePoint() {
  const int point = chart_->SelectedPoint();
  EditCurve(tr("Removal of a point"), [&](std::vector<ValuePoint> curve) {
    return WithoutPoint(std::move(curve), static_cast<std::size_t>(point));
  });
}

}  // namespace Tarnwise
