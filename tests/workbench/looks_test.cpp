// What the pages look like on the palettes of people's desktops. With TARNWISE_LOOKS the pictures stay there to look
// at.
#include "Window.h"
#include "workbench/ImportDialog.h"
#include "workbench/JudgmentsPage.h"
#include "workbench/charts/Chart.h"

#include <cmath>

namespace Tarnwise {
namespace {

QPalette Dark() {
  QPalette dark(QColor(0x31, 0x36, 0x3b), QColor(0x31, 0x36, 0x3b));
  dark.setColor(QPalette::Base, QColor(0x1b, 0x1e, 0x20));
  dark.setColor(QPalette::AlternateBase, QColor(0x23, 0x26, 0x29));
  for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText, QPalette::ToolTipText}) {
    dark.setColor(role, QColor(0xfc, 0xfc, 0xfc));
    dark.setColor(QPalette::Disabled, role, QColor(0x8a, 0x8e, 0x92));
  }
  dark.setColor(QPalette::ToolTipBase, QColor(0x23, 0x26, 0x29));
  dark.setColor(QPalette::PlaceholderText, QColor(0xa1, 0xa9, 0xb1));
  dark.setColor(QPalette::Highlight, QColor(0x3d, 0xae, 0xe9));
  return dark;
}

// Windows' "Contrast Black" and the like.
QPalette HighContrast() {
  QPalette black(Qt::black, Qt::black);
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    for (const auto role :
         {QPalette::Window, QPalette::Base, QPalette::AlternateBase, QPalette::Button, QPalette::ToolTipBase}) {
      black.setColor(group, role, Qt::black);
    }
    const bool off = group == QPalette::Disabled;
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText, QPalette::ToolTipText,
                            QPalette::Light, QPalette::Mid, QPalette::PlaceholderText}) {
      black.setColor(group, role, off ? QColor(0x3f, 0xf2, 0x3f) : QColor(Qt::white));
    }
    black.setColor(group, QPalette::Highlight, QColor(0x1a, 0xeb, 0xff));
    black.setColor(group, QPalette::HighlightedText, Qt::black);
  }
  return black;
}

void Keep(QWidget& widget, const QString& name) {
  const QString folder = qEnvironmentVariable("TARNWISE_LOOKS");
  if (folder.isEmpty()) return;
  EXPECT_TRUE(widget.grab().save(folder + "/" + name + ".png"));
}

double Luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double Contrast(const QColor& a, const QColor& b) {
  const double x = Luminance(a) + 0.05;
  const double y = Luminance(b) + 0.05;
  return x > y ? x / y : y / x;
}

Project WithLongNames() {
  Project project = JudgedHospitals();
  project.Columns[0].Curve = {{15.0, 0.0}, {30.0, 0.62}, {37.5, 0.6}, {60.0, 1.0}};
  project.Columns[1].Values[4].reset();
  project.Columns[2].Values[6] = 0.0;
  project.Columns[0].Name = "Doctors, whole posts and those of the university's clinics that serve here by contract";
  project.Units[2] = "Hospital C with the children's clinic and the house for convalescents beyond the river";
  project.Sessions[0].Attributes[0].Name = project.Columns[0].Name;
  project.Sessions.push_back(project.Sessions[0]);
  project.Sessions[1].Attributes[1].High.reset();
  return project;
}

void KeepPages(MainWindow& window, const QString& name) {
  const std::pair<PageKind, const char*> pages[] = {{PageKind::Data, "data"},
                                                    {PageKind::Attributes, "attributes"},
                                                    {PageKind::Judgments, "judgments"},
                                                    {PageKind::Results, "results"},
                                                    {PageKind::Report, "report"}};
  for (const auto& [page, of] : pages) {
    window.ShowPage(page);
    QTest::qWait(50);
    Keep(window, name + "-" + of);
  }
}

void KeepHint(MainWindow& window, const QString& name) {
  auto& judgments = Find<JudgmentsPage>(window, "judgmentsPage");
  window.ShowPage(PageKind::Judgments);
  judgments.ShowWizardOpen(true);
  judgments.ShowHint(
      "Doctors must stay at or above 1.00: Nurses, on the next lower judged rank, is judged up to 1.00.");
  QCoreApplication::processEvents();
  Keep(window, name + "-hint");
  judgments.ShowWizardOpen(false);
}

void KeepImport(MainWindow& window, const QString& name) {
  const QByteArray table = "Klinik;Ärzte;Pflege\nAdlershof;20,5;151\nBuch;19;131,25\n";
  ImportDialog dialog({table.begin(), table.end()}, "kliniken.csv", &window);
  dialog.show();
  QCoreApplication::processEvents();
  Keep(dialog, name + "-import");
}

// The smaller size is that of a screen of 1920 x 1080 at 200 %.
void LookAtPages(const QString& palette) {
  OpenWindow open(WithLongNames());
  open.Window.resize(1180, 760);
  ASSERT_TRUE(AwaitResults(open.Window));
  Find<QComboBox>(open.Window, "compare").setCurrentIndex(2);
  KeepPages(open.Window, palette);
  KeepHint(open.Window, palette);
  KeepImport(open.Window, palette);
  open.Window.ShowPage(PageKind::Results);
  Find<QComboBox>(open.Window, "bars").setCurrentIndex(1);
  Find<QTableView>(open.Window, "results").selectRow(3);
  QTest::qWait(50);
  Keep(open.Window, palette + "-ranks");
  open.Window.resize(960, 500);
  QTest::qWait(50);
  EXPECT_LE(open.Window.width(), 960);
  EXPECT_LE(open.Window.height(), 500);
  KeepPages(open.Window, palette + "-small");
  MainWindow empty;
  empty.resize(1180, 760);
  empty.show();
  QCoreApplication::processEvents();
  Keep(empty, palette + "-empty");
}

void LookAtPagesOn(const QPalette& palette, const QString& name) {
  const QPalette former = QApplication::palette();
  QApplication::setPalette(palette);
  LookAtPages(name);
  QApplication::setPalette(former);
}

TEST(WorkbenchLook, PagesOnALightPalette) { LookAtPages("light"); }

TEST(WorkbenchLook, PagesOnADarkPalette) { LookAtPagesOn(Dark(), "dark"); }

TEST(WorkbenchLook, PagesInHighContrast) { LookAtPagesOn(HighContrast(), "contrast"); }

TEST(WorkbenchLook, InksOfChartsAreReadableOnAllPalettes) {
  for (const QPalette& palette : {QApplication::palette(), Dark(), HighContrast()}) {
    const ChartInk ink = InkFor(palette);
    EXPECT_GE(Contrast(ink.Text, ink.Paper), 4.5);
    EXPECT_GE(Contrast(ink.Faint, ink.Paper), 4.5);
    EXPECT_GE(Contrast(ink.Strong, ink.Paper), 3.0);
    EXPECT_GE(Contrast(ink.Second, ink.Paper), 3.0);
    EXPECT_GE(Contrast(ink.Warning, ink.Paper), 3.0);
    // The two series differ in lightness too, and one is hatched.
    EXPECT_GE(Contrast(ink.Strong, ink.Second), 1.3);
  }
}

}  // namespace
}  // namespace Tarnwise
