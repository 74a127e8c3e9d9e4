// Whoever hears the window instead of seeing it: every control of every page, dialog, menu and editor has a name.
#include "Window.h"
#include "workbench/FileActions.h"
#include "workbench/ImportDialog.h"
#include "workbench/JudgeSession.h"
#include "workbench/charts/BarChart.h"

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
         widget.parentWidget()->inherits("QTabBar") || widget.parentWidget()->inherits("QMenuBar") ||
         widget.parentWidget()->inherits("QComboBoxPrivateContainer");
}

// A label beside a field names it, too.
QString SpokenName(QWidget& widget) {
  QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(&widget);
  return spoken == nullptr ? widget.accessibleName() : spoken->text(QAccessible::Name);
}

int Walk(QWidget& root) {
  int named = 0;
  for (QWidget* const widget : root.findChildren<QWidget*>()) {
    if (!NeedsAName(*widget) || IsInside(*widget)) continue;
    EXPECT_FALSE(SpokenName(*widget).isEmpty())
        << root.windowTitle().toStdString() << ": " << widget->metaObject()->className() << " "
        << widget->objectName().toStdString();
    ++named;
  }
  return named;
}

int WalkMenu(const QMenu& menu) {
  int named = 0;
  for (const QAction* const action : menu.actions()) {
    if (action->isSeparator()) continue;
    EXPECT_FALSE(action->text().isEmpty()) << menu.title().toStdString();
    named += 1 + (action->menu() != nullptr ? WalkMenu(*action->menu()) : 0);
  }
  return named;
}

// Answers the next dialog after a walk through it.
void WalkNext(const QString& button, const std::function<void(QDialog&)>& then = {}) {
  AnswerNext(button, [then](QDialog& dialog) {
    EXPECT_FALSE(dialog.windowTitle().isEmpty());
    Walk(dialog);
    if (then) then(dialog);
  });
}

TEST(SpokenNames, AllControlsOfTheWindowHaveOne) {
  OpenWindow open;
  ASSERT_TRUE(AwaitResults(open.Window));
  EXPECT_GE(Walk(open.Window), 25);
}

TEST(SpokenNames, AllActionsOfTheMenusHaveOne) {
  OpenWindow open;
  int named = 0;
  for (const QAction* const menu : open.Window.menuBar()->actions()) {
    EXPECT_FALSE(menu->text().isEmpty());
    Q_EMIT menu->menu()->aboutToShow();
    named += WalkMenu(*menu->menu());
  }
  EXPECT_GT(named, 15);
}

TEST(SpokenNames, AllControlsOfTheImportHaveOne) {
  const QByteArray table = "Hospital;Doctors\nA;1,5\nB;2,5\n";
  ImportDialog dialog({table.begin(), table.end()}, "table", nullptr);
  EXPECT_GE(Walk(dialog), 7);
}

TEST(SpokenNames, AllDialogsAboutFilesHaveThemAndATitle) {
  const QTemporaryDir folder;
  const QString path = folder.filePath("hospitals.tarnwise");
  OpenWindow open;
  FileActions& files = open.Window.Files();
  WalkNext("Cancel");
  EXPECT_FALSE(open.Window.close());
  WalkNext("Cancel");
  EXPECT_FALSE(files.AskAndSave());
  WalkNext("Cancel");
  EXPECT_FALSE(files.AskAndImportJudgments());
  open.Window.Work().Save(path);
  WalkNext("Cancel");
  EXPECT_FALSE(files.AskAndOpen());
  for (const char* const answer : {"Keep what is here", "Cancel"}) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(answer);
    file.close();
    WalkNext(answer);
    if (QString(answer) == "Cancel") {
      EXPECT_FALSE(files.Save());
    } else {
      files.LookAtFile();
    }
  }
  WalkNext("OK");
  open.Window.Work().Close();
  EXPECT_FALSE(files.Open(folder.filePath("nowhere.tarnwise")));
}

TEST(SpokenNames, AllDialogsOfThePagesHaveThemAndATitle) {
  OpenWindow open;
  ASSERT_TRUE(AwaitResults(open.Window));
  WalkNext("OK");
  QTableView& table = Find<QTableView>(open.Window, "dataTable");
  table.model()->setData(table.model()->index(0, 1), "many");
  WalkNext("Cancel");
  open.Window.Results().Ranges().AskAndSave();
  open.Window.ShowPage(PageKind::Report);
  WalkNext("Cancel");
  QTest::mouseClick(&Find<QPushButton>(open.Window, "savePdf"), Qt::LeftButton);
  WalkNext("OK");
  open.Window.menuBar()->actions().last()->menu()->actions().front()->trigger();
}

TEST(SpokenNames, WhatTheWindowAsksAndShowsWithTheWizardHasThem) {
  OpenWindow open;
  WalkNext("Ignore", [](QDialog&) { WalkNext("Begin"); });
  open.Window.ShowPage(PageKind::Judgments);
  QTest::mouseClick(&Find<QPushButton>(open.Window, "elicit"), Qt::LeftButton);
  ASSERT_NE(open.Window.Wizard(), nullptr);
  EXPECT_TRUE(Find<QLabel>(open.Window, "hint").isVisible());
  EXPECT_FALSE(SpokenName(Find<QWidget>(open.Window, "hintPanel")).isEmpty());
  Walk(open.Window);
  open.Window.close();
  ASSERT_TRUE(QTest::qWaitFor([&] { return open.Window.Wizard() == nullptr; }, kPatience));
}

TEST(SpokenNames, TheChartsMenuHasThem) {
  OpenWindow open;
  ASSERT_TRUE(AwaitResults(open.Window));
  open.Window.ShowPage(PageKind::Results);
  int named = 0;
  QTimer::singleShot(kGlance, qApp, [&named] {
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    named = WalkMenu(*menu);
    menu->close();
  });
  BarChart& chart = open.Window.Results().Ranges();
  QContextMenuEvent asked(QContextMenuEvent::Keyboard, QPoint(20, 20), chart.mapToGlobal(QPoint(20, 20)));
  QCoreApplication::sendEvent(&chart, &asked);
  EXPECT_EQ(named, 4);
}

TEST(SpokenNames, WhatIsTypedIntoACellIsCalledAfterIt) {
  OpenWindow open;
  QTableView& table = Find<QTableView>(open.Window, "dataTable");
  table.edit(table.model()->index(1, 2));
  const auto* const editor = table.viewport()->findChild<QLineEdit*>();
  ASSERT_NE(editor, nullptr);
  EXPECT_EQ(editor->accessibleName(), "Nurses, Hospital B");
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
