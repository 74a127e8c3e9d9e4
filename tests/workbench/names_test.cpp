#include "Window.h"
#include "workbench/ImportDialog.h"
#include "workbench/charts/Chart.h"

namespace Tarnwise {
namespace {

// What people act on or read, and that has no text of its own that a reader of the screen would say.
bool NeedsAName(const QWidget& widget) {
  if (qobject_cast<const QScrollBar*>(&widget) != nullptr) return false;
  if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget)) return button->text().isEmpty();
  return qobject_cast<const QComboBox*>(&widget) != nullptr || qobject_cast<const QLineEdit*>(&widget) != nullptr ||
         qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr ||
         qobject_cast<const QAbstractItemView*>(&widget) != nullptr ||
         qobject_cast<const QTextEdit*>(&widget) != nullptr || qobject_cast<const QProgressBar*>(&widget) != nullptr ||
         qobject_cast<const QTabWidget*>(&widget) != nullptr || qobject_cast<const Chart*>(&widget) != nullptr;
}

// Parts that Qt makes inside a widget speak with its name.
bool IsInside(const QWidget& widget) {
  const QString name = widget.objectName();
  return name.startsWith(QLatin1String("qt_")) || qobject_cast<const QHeaderView*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(widget.parentWidget()) != nullptr || widget.inherits("QTableCornerButton") ||
         widget.inherits("QComboBoxListView") || widget.inherits("QLineEditIconButton") ||
         widget.parentWidget()->inherits("QTabBar") || widget.parentWidget()->inherits("QMenuBar");
}

int Walk(QWidget& root) {
  int named = 0;
  for (QWidget* const widget : root.findChildren<QWidget*>()) {
    if (!NeedsAName(*widget) || IsInside(*widget)) continue;
    EXPECT_FALSE(widget->accessibleName().isEmpty())
        << widget->metaObject()->className() << " " << widget->objectName().toStdString();
    ++named;
  }
  return named;
}

TEST(SpokenNames, AllControlsOfTheWindowHaveOne) {
  OpenWindow open;
  ASSERT_TRUE(AwaitResults(open.Window));
  EXPECT_GT(Walk(open.Window), 25);
}

TEST(SpokenNames, AllControlsOfTheImportHaveOne) {
  const QByteArray table = "Hospital;Doctors\nA;1,5\nB;2,5\n";
  ImportDialog dialog({table.begin(), table.end()}, "table", nullptr);
  EXPECT_GE(Walk(dialog), 7);
}

TEST(SpokenNames, ChartsHaveChildrenWithValues) {
  OpenWindow open;
  ASSERT_TRUE(AwaitResults(open.Window));
  open.Window.ShowPage(PageKind::Results);
  QCoreApplication::processEvents();
  QAccessibleInterface* const chart = QAccessible::queryAccessibleInterface(&Find<QWidget>(open.Window, "rangeChart"));
  ASSERT_NE(chart, nullptr);
  ASSERT_GT(chart->childCount(), 3);
  EXPECT_EQ(chart->child(1)->text(QAccessible::Name), "Hospital B");
  EXPECT_EQ(chart->child(1)->text(QAccessible::Value), "0.809 to 0.854, without judgments 1.000");
}

}  // namespace
}  // namespace Tarnwise
