// What the pages look like on the palettes of people's desktops. With TARNWISE_LOOKS the pictures stay there to look
// at.
#include "Window.h"
#include "workbench/ImportDialog.h"
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

void LookAtPages(const QString& palette) {
  Project project = JudgedHospitals();
  project.Columns[0].Curve = {{15.0, 0.0}, {30.0, 0.62}, {37.5, 0.6}, {60.0, 1.0}};
  project.Columns[1].Values[4].reset();
  project.Columns[2].Values[6] = 0.0;
  project.Columns[0].Name = "Doctors, whole posts and those of the university's clinics that serve here by contract";
  project.Sessions[0].Attributes[0].Name = project.Columns[0].Name;
  project.Sessions.push_back(project.Sessions[0]);
  project.Sessions[1].Attributes[1].High.reset();
  OpenWindow open(project);
  open.Window.resize(1180, 760);
  ASSERT_TRUE(AwaitResults(open.Window));
  Find<QComboBox>(open.Window, "compare").setCurrentIndex(2);
  const std::pair<PageKind, const char*> pages[] = {{PageKind::Data, "data"},
                                                    {PageKind::Attributes, "attributes"},
                                                    {PageKind::Judgments, "judgments"},
                                                    {PageKind::Results, "results"}};
  for (const auto& [page, name] : pages) {
    open.Window.ShowPage(page);
    QTest::qWait(50);
    Keep(open.Window, palette + "-" + name);
  }
  const QByteArray table = "Klinik;Ärzte;Pflege\nAdlershof;20,5;151\nBuch;19;131,25\n";
  ImportDialog dialog({table.begin(), table.end()}, "kliniken.csv", &open.Window);
  dialog.show();
  QCoreApplication::processEvents();
  Keep(dialog, palette + "-import");
}

TEST(WorkbenchLook, PagesOnALightPalette) { LookAtPages("light"); }

TEST(WorkbenchLook, PagesOnADarkPalette) {
  const QPalette former = QApplication::palette();
  QApplication::setPalette(Dark());
  LookAtPages("dark");
  QApplication::setPalette(former);
}

TEST(WorkbenchLook, InksOfChartsAreReadableOnBothPalettes) {
  for (const QPalette& palette : {QApplication::palette(), Dark()}) {
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
