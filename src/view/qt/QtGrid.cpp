// Grids: a table to look at, its first row the heading that stays when the others scroll.
#include "view/GridColumns.h"
#include "view/qt/QtForm.h"
#include "view/qt/QtKinds.h"
#include "view/qt/QtPaint.h"

#include <QHeaderView>
#include <QTableWidget>
#include <algorithm>

namespace Tarnwise {

namespace {

constexpr int kGridRowHeight = 26;
constexpr double kPixelsPerTwip = 1.0 / 15.0;

class GridWidget : public QTableWidget {
 public:
  using QTableWidget::QTableWidget;
  std::vector<int> Widths;  // twips

  void SpreadColumns() {
    const std::vector<int> pixels = ColumnWidths(Widths, kPixelsPerTwip, viewport()->width());
    for (int i = 0; i < static_cast<int>(pixels.size()); ++i) setColumnWidth(i, pixels[static_cast<std::size_t>(i)]);
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QTableWidget::resizeEvent(event);
    SpreadColumns();
  }
};

QWidget* MakeGrid(QtForm& form, Control& control, QWidget& parent) {
  auto* const table = new GridWidget(&parent);
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setSelectionMode(QAbstractItemView::NoSelection);
  table->setAlternatingRowColors(true);
  table->setTabKeyNavigation(false);
  table->setWordWrap(false);
  table->verticalHeader()->hide();
  table->verticalHeader()->setDefaultSectionSize(kGridRowHeight);
  table->horizontalHeader()->setSectionsClickable(false);
  table->horizontalHeader()->setHighlightSections(false);
  table->horizontalHeader()->setMinimumSectionSize(1);  // the proportions come first
  table->horizontalHeader()->setFixedHeight(kGridRowHeight + 2);
  table->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  table->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  form.Watch(*table->viewport(), control);
  return table;
}

void SetCell(QTableWidget& table, int row, int col, const QString& text) {
  QTableWidgetItem* item = row < 0 ? table.horizontalHeaderItem(col) : table.item(row, col);
  if (item == nullptr) {
    item = new QTableWidgetItem;
    item->setTextAlignment(Qt::AlignCenter);
    if (row < 0)
      table.setHorizontalHeaderItem(col, item);
    else
      table.setItem(row, col, item);
  }
  if (item->text() != text) item->setText(text);
}

void SyncGrid(QtForm& /*form*/, Control& control, QWidget& widget) {
  auto& grid = static_cast<Grid&>(control);
  auto& table = static_cast<GridWidget&>(widget);
  const int rows = std::max(grid.Rows() - 1, 0);
  if (table.rowCount() != rows) table.setRowCount(rows);
  if (table.columnCount() != grid.Cols()) table.setColumnCount(grid.Cols());
  for (int row = 0; row < grid.Rows(); ++row) {
    for (int col = 0; col < grid.Cols(); ++col) {
      SetCell(table, row - 1, col, Text(grid.TextMatrix[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)]));
    }
  }
  if (table.Widths == grid.ColWidth) return;
  table.Widths = grid.ColWidth;
  table.SpreadColumns();
}

}  // namespace

const QtKind kQtGrid{MakeGrid, SyncGrid};

}  // namespace Tarnwise
