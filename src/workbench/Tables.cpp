#include "workbench/Tables.h"

#include <QHeaderView>
#include <QTableView>

namespace Tarnwise {

void SetCompactRows(QTableView& table) {
  constexpr int kMargin = 8;
  table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + kMargin);
}

}  // namespace Tarnwise
