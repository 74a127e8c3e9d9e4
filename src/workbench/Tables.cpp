#include "workbench/Tables.h"

#include <QHeaderView>
#include <QStyledItemDelegate>
#include <QTableView>

namespace Tarnwise {

namespace {

class NamedEditors : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QWidget* const editor = QStyledItemDelegate::createEditor(parent, option, index);
    if (editor == nullptr) return nullptr;
    const QString column = index.model()->headerData(index.column(), Qt::Horizontal).toString().section('\n', 0, 0);
    const QString row =
        index.column() == 0 ? QString::number(index.row() + 1) : index.siblingAtColumn(0).data().toString();
    editor->setAccessibleName(column + ", " + row);
    return editor;
  }
};

}  // namespace

void SetCompactRows(QTableView& table) {
  constexpr int kMargin = 8;
  table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + kMargin);
}

void NameEditors(QTableView& table) { table.setItemDelegate(new NamedEditors(&table)); }

}  // namespace Tarnwise
