#include "workbench/DataPage.h"

#include "workbench/Edits.h"
#include "workbench/Tables.h"
#include "workbench/Texts.h"

#include <QtWidgets>

#include <algorithm>
#include <set>

namespace Tarnwise {

namespace {

// The role of a column, chosen from a list.
class RoleDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                        const QModelIndex& /*index*/) const override {
    auto* const box = Named(new QComboBox(parent), "roleEditor", DataPage::tr("Role"));
    for (const Role role : {Role::Input, Role::Output, Role::Unused}) box->addItem(RoleText(role));
    connect(box, &QComboBox::activated, this, [this, box] {
      auto* const self = const_cast<RoleDelegate*>(this);
      Q_EMIT self->commitData(box);
      Q_EMIT self->closeEditor(box);
    });
    return box;
  }
  void setEditorData(QWidget* editor, const QModelIndex& index) const override {
    static_cast<QComboBox*>(editor)->setCurrentIndex(index.data(Qt::EditRole).toInt());
  }
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override {
    model->setData(index, static_cast<QComboBox*>(editor)->currentIndex());
  }
};

QPushButton* Button(const char* name, const QString& text) {
  return Named(new QPushButton(text), name, QString(text).remove(QLatin1Char('&')));
}

}  // namespace

DataPage::DataPage(Document& document, QWidget* parent)
    : QWidget(parent), document_(document), data_(new DataModel(document)), columns_(new ColumnsModel(document)) {
  data_->setParent(this);
  columns_->setParent(this);
  Named(this, "dataPage", tr("Data"));
  auto* const layout = new QVBoxLayout(this);
  auto* const splitter = Named(new QSplitter, "dataSplitter", tr("Divided page"));
  filled_ = splitter;
  splitter->addWidget(MakeTable());
  splitter->addWidget(MakeColumns());
  splitter->setStretchFactor(0, 1);
  splitter->setSizes({690, 470});
  splitter->setChildrenCollapsible(false);
  invitation_ = MakeInvitation();
  layout->addWidget(invitation_);
  layout->addWidget(filled_);
  connect(&document_, &Document::Changed, this, &DataPage::ShowState);
  ShowState();
}

QWidget* DataPage::MakeInvitation() {
  auto* const invitation = new QWidget;
  auto* const layout = new QVBoxLayout(invitation);
  auto* const title = new QLabel(tr("Start with a table: a row for each unit, a column for each input and output."));
  title->setWordWrap(true);
  title->setAlignment(Qt::AlignCenter);
  auto* const open = Button("openData", tr("&Open a CSV file or a project…"));
  auto* const paste = Button("pasteData", tr("&Paste from a spreadsheet"));
  auto* const drop = new QLabel(tr("Or drag a file onto this window."));
  drop->setAlignment(Qt::AlignCenter);
  layout->addStretch();
  layout->addWidget(title);
  layout->addWidget(open, 0, Qt::AlignCenter);
  layout->addWidget(paste, 0, Qt::AlignCenter);
  layout->addWidget(drop);
  layout->addStretch();
  connect(open, &QPushButton::clicked, this, &DataPage::OpenWanted);
  connect(paste, &QPushButton::clicked, this, &DataPage::PasteWanted);
  return invitation;
}

QWidget* DataPage::MakeTable() {
  auto* const side = new QWidget;
  auto* const layout = new QVBoxLayout(side);
  layout->setContentsMargins(0, 0, 0, 0);
  table_ = Named(new QTableView, "dataTable", tr("Units and their numbers"));
  table_->setModel(data_);
  table_->setTabKeyNavigation(false);
  table_->setWordWrap(false);
  SetCompactRows(*table_);
  NameEditors(*table_);
  table_->horizontalHeader()->setDefaultAlignment(Qt::AlignCenter);
  layout->addWidget(table_, 1);
  explained_ = Named(new QLabel, "cellExplained", tr("What the chosen cell means"));
  explained_->setWordWrap(true);
  layout->addWidget(explained_);
  auto* const row = new QHBoxLayout;
  counts_ = Named(new QLabel, "cellCounts", tr("Cells to look at"));
  counts_->setWordWrap(true);
  row->addWidget(counts_, 1);
  AddButtons(*row);
  layout->addLayout(row);
  connect(table_->selectionModel(), &QItemSelectionModel::currentChanged, this, &DataPage::Explain);
  auto* const copy = new QShortcut(QKeySequence::Copy, table_, nullptr, nullptr, Qt::WidgetShortcut);
  connect(copy, &QShortcut::activated, this, &DataPage::Copy);
  return side;
}

void DataPage::AddButtons(QBoxLayout& layout) {
  next_ = Button("nextCell", tr("&Next such cell"));
  auto* const add = Button("addUnit", tr("&Add unit"));
  auto* const remove = Button("removeUnits", tr("&Remove units"));
  for (QPushButton* const button : {next_, add, remove}) layout.addWidget(button);
  connect(next_, &QPushButton::clicked, this, [this] {
    const QModelIndex next = data_->NextParticular(table_->currentIndex());
    if (next.isValid()) table_->setCurrentIndex(next);
    table_->setFocus();
  });
  connect(add, &QPushButton::clicked, this, [this] {
    std::size_t number = document_.Data().Units.size() + 1;
    const auto& units = document_.Data().Units;
    const auto name = [&number] { return ToText(tr("Unit %1").arg(number)); };
    while (std::find(units.begin(), units.end(), name()) != units.end()) ++number;
    document_.Edit(tr("New unit"), [&](Project& project) { AddUnit(project, name()); });
    table_->setCurrentIndex(data_->index(data_->rowCount() - 1, 0));
    table_->setFocus();
  });
  connect(remove, &QPushButton::clicked, this, [this] {
    std::set<std::size_t> units;
    for (const QModelIndex& index : table_->selectionModel()->selectedIndexes()) {
      units.insert(static_cast<std::size_t>(index.row()));
    }
    document_.Edit(tr("Removal of units"), [&](Project& project) {
      RemoveUnits(project, {units.begin(), units.end()});
    });
  });
}

QWidget* DataPage::MakeColumns() {
  auto* const side = new QWidget;
  auto* const layout = new QVBoxLayout(side);
  layout->setContentsMargins(0, 0, 0, 0);
  columnsTable_ = Named(new QTableView, "columnsTable", tr("Columns, with role and range"));
  columnsTable_->setModel(columns_);
  columnsTable_->setItemDelegateForColumn(ColumnsModel::kRole, new RoleDelegate(columnsTable_));
  columnsTable_->setTabKeyNavigation(false);
  columnsTable_->setEditTriggers(QAbstractItemView::AllEditTriggers);
  columnsTable_->verticalHeader()->hide();
  columnsTable_->horizontalHeader()->setHighlightSections(false);
  SetCompactRows(*columnsTable_);
  NameEditors(*columnsTable_);
  columnsTable_->horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
  columnsTable_->horizontalHeader()->setStretchLastSection(true);
  layout->addWidget(columnsTable_, 1);
  auto* const hint =
      new QLabel(tr("Inputs are better when they are less, outputs when they are more. Worst and best "
                    "are the range that judgments compare."));
  hint->setWordWrap(true);
  layout->addWidget(hint);
  auto* const range = Button("rangeFromData", tr("Range from the &data"));
  layout->addWidget(range, 0, Qt::AlignLeft);
  connect(range, &QPushButton::clicked, this, [this] {
    const int column = columnsTable_->currentIndex().row();
    if (column < 0) return;
    document_.Edit(tr("Range from the data"),
                   [&](Project& project) { SetRangeFromData(project, static_cast<std::size_t>(column)); });
  });
  return side;
}

void DataPage::ShowState() {
  const bool empty = document_.IsEmpty();
  invitation_->setVisible(empty);
  filled_->setVisible(!empty);
  const CellCounts counts = CountCells(document_.Data());
  const bool any = counts.Missing + counts.Zero + counts.Negative > 0;
  counts_->setText(any ? tr("In used columns: %1 missing, %2 zero, %3 negative.")
                             .arg(counts.Missing)
                             .arg(counts.Zero)
                             .arg(counts.Negative)
                       : tr("Used columns have no missing, zero or negative cells."));
  next_->setEnabled(any);
  columnsTable_->resizeColumnsToContents();
  for (int j = 0; j < ColumnsModel::kFields; ++j) {
    columnsTable_->setColumnWidth(j, std::clamp(columnsTable_->columnWidth(j) + 8, 60, 170));
  }
  for (int j = 0; j < std::min(data_->columnCount(), 40); ++j) {
    const int width = std::max(table_->horizontalHeader()->sectionSizeHint(j), j == 0 ? 140 : 80);
    if (table_->columnWidth(j) < width) table_->setColumnWidth(j, std::min(width, 260));
  }
  Explain();
}

void DataPage::Explain() { explained_->setText(data_->Explained(table_->currentIndex())); }

void DataPage::Copy() const {
  QItemSelection selection = table_->selectionModel()->selection();
  if (selection.isEmpty()) return;
  const QItemSelectionRange range = selection.first();
  QStringList lines;
  for (int row = range.top(); row <= range.bottom(); ++row) {
    QStringList cells;
    for (int column = range.left(); column <= range.right(); ++column) {
      cells += data_->index(row, column).data(Qt::EditRole).toString();
    }
    lines += cells.join(QLatin1Char('\t'));
  }
  QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

void DataPage::Paste() {
  const QModelIndex from = table_->currentIndex();
  if (!from.isValid()) return;
  const String text = ToText(QGuiApplication::clipboard()->text());
  document_.Edit(tr("Paste"), [&](Project& project) {
    PutBlock(project, static_cast<std::size_t>(from.row()), static_cast<std::size_t>(from.column()), BlockOf(text));
  });
}

}  // namespace Tarnwise
