// Somebody who has a table and no manual: from a CSV file with semicolons and decimal commas to judged ranges, by what
// the window shows.
#include "Window.h"
#include "workbench/JudgeSession.h"
#include "workbench/charts/BarChart.h"

namespace Tarnwise {
namespace {

const char* const kTable =
    "Klinik;Ärzte;Pflege;Ambulant;Stationär\n"
    "Adlershof;20,5;151;100;90\nBuch;19;131,25;150;50\nCölln;25;160;160;55\nDahlem;27;168;180;72\n"
    "Erkner;22;158;94,5;66\nFriedenau;55;255;230;90\n";

// The widget of the wizard's step that takes input; null while there is none of that name.
QWidget* OnStep(const QString& name) {
  const QWidget* const modal = QApplication::activeModalWidget();
  for (QWidget* const widget : QApplication::allWidgets()) {
    if (widget->objectName() != name || !widget->isVisible() || !widget->isEnabled()) continue;
    if (modal == nullptr || widget->window() == modal) return widget;
  }
  return nullptr;
}

using Step = std::function<bool()>;

// Works through the steps one by one, each as soon as it can be done.
class WizardUser : public QObject {
 public:
  WizardUser(std::vector<Step> steps, std::function<void()> giveUp)
      : steps_(std::move(steps)), giveUp_(std::move(giveUp)) {
    Act();
  }

 private:
  // A click may run all steps of the wizard that follow inside itself, so the next act is arranged before.
  void Act() {
    QTimer::singleShot(kGlance, this, &WizardUser::Act);
    if (next_ == steps_.size()) return;
    const std::size_t at = next_++;
    if (steps_[at]()) {
      tries_ = 0;
    } else {
      next_ = at;
      if (++tries_ == kPatience / kGlance) GiveUp();
    }
  }
  void GiveUp() {
    ADD_FAILURE() << "the wizard's user can't do step " << next_;
    QWidget* const step = QApplication::activeModalWidget();
    const QString folder = qEnvironmentVariable("TARNWISE_LOOKS");
    if (step != nullptr && !folder.isEmpty()) step->grab().save(folder + "/stuck.png");
    next_ = steps_.size();
    giveUp_();
  }

  std::vector<Step> steps_;
  std::function<void()> giveUp_;
  std::size_t next_ = 0;
  int tries_ = 0;
};

Step Click(const QString& name) {
  return [name] {
    QWidget* const widget = OnStep(name);
    if (widget == nullptr) return false;
    QTest::mouseClick(widget, Qt::LeftButton);
    return true;
  };
}

Step Drag(const QString& from, const QString& to) {
  return [from, to] {
    QWidget* const source = OnStep(from);
    const QWidget* const target = OnStep(to);
    if (source == nullptr || target == nullptr) return false;
    QTest::mousePress(source, Qt::LeftButton);
    const QPointF global = target->mapToGlobal(QPointF(target->rect().center()));
    for (int i = 1; i <= 4; ++i) {
      const QPointF start = source->mapToGlobal(QPointF(source->rect().center()));
      const QPointF at = start + (global - start) * i / 4.0;
      QMouseEvent move(QEvent::MouseMove, source->mapFromGlobal(at), at, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
      QCoreApplication::sendEvent(source, &move);
    }
    QTest::mouseRelease(source, Qt::LeftButton, Qt::NoModifier, source->mapFromGlobal(global.toPoint()));
    return true;
  };
}

Step Type(const QString& name, const QString& text) {
  return [name, text] {
    QWidget* const box = OnStep(name);
    if (box == nullptr) return false;
    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(box->width() - 3, box->height() / 2));
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(box, text);
    QTest::keyClick(box, Qt::Key_Return);
    return true;
  };
}

Step Choose(int row) {
  return [row] {
    auto* const box = qobject_cast<QComboBox*>(OnStep("imgcmbTargetAtt"));
    if (box == nullptr) return false;
    QTest::mousePress(box, Qt::LeftButton);
    QTest::keyClick(box->view(), Qt::Key_Home);
    for (int i = 0; i < row; ++i) QTest::keyClick(box->view(), Qt::Key_Down);
    QTest::keyClick(box->view(), Qt::Key_Return);
    return true;
  };
}

// What the window's panel says meanwhile.
Step Read(QWidget& window, const char* label, const QString& part) {
  return [&window, label, part] {
    const QString text = Find<QLabel>(window, label).text();
    EXPECT_TRUE(text.contains(part)) << text.toStdString();
    return true;
  };
}

// Inpatients before outpatients, doctors before nurses; 2 to 2.5 times, 3 to 4.09 times.
std::vector<Step> DirectJudgments(QWidget& window) {
  return {Click("cmdNext"),
          Drag("cmdAttA(1)", "picOrder(0)"),
          Click("cmdAdd"),
          Drag("cmdAttA(0)", "picOrder(1)"),
          Drag("cmdAttA1(0)", "picOrder1(0)"),
          Click("cmdAdd1"),
          Drag("cmdAttA1(1)", "picOrder1(1)"),
          Click("cmdNext"),
          Click("cmdAttButtons(0)"),
          Click("cmdAttButtons1(1)"),
          Click("cmdNext"),
          Choose(0),
          Type("txtWRUpper", "4.09"),
          Type("txtWRLower", "0.5"),
          Read(window, "hint", "Ärzte must stay at or above 1.00: Pflege, on the next lower judged rank"),
          Type("txtWRLower", "3"),
          Read(window, "hint", "The wizard is open."),
          Click("cmdEnter"),
          Choose(3),
          Type("txtWRUpper", "2.5"),
          Type("txtWRLower", "2"),
          Click("cmdEnter"),
          Choose(1),
          Click("cmdEnter"),
          Click("cmdNext"),
          Click("cmdFinish")};
}

QString WriteTable(const QTemporaryDir& folder) {
  const QString path = folder.filePath("kliniken.csv");
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(kTable);
  return path;
}

// By keys, as the boxes stand beside each other: units, two inputs, two outputs.
void SetRoles(QDialog& dialog) {
  EXPECT_TRUE(Find<QLabel>(dialog, "understood").text().contains("separator semicolon, decimal sign comma"));
  auto& preview = Find<QTableWidget>(dialog, "preview");
  for (int column = 1; column <= 4; ++column) {
    QWidget* const box = preview.cellWidget(0, column);
    box->setFocus();
    QTest::keyClick(box, Qt::Key_End);
    if (column <= 2) QTest::keyClick(box, Qt::Key_Up);
  }
}

void SaveAs(const QString& path, const std::function<void()>& then = {}) {
  AnswerNext("Save", [path, then](QDialog& dialog) {
    QLineEdit& name = Find<QLineEdit>(dialog, "fileNameEdit");
    name.setText(path);
    if (then) then();
  });
}

TEST(Newcomer, GetsFromATableToJudgedRangesAndAPicture) {
  const QTemporaryDir folder;
  const QString project = folder.filePath("kliniken.tarnwise");
  MainWindow window;
  window.show();
  AnswerNext("Import", SetRoles);
  ASSERT_TRUE(window.Open(WriteTable(folder)));
  ASSERT_TRUE(AwaitResults(window));
  EXPECT_TRUE(Find<QLabel>(window, "advice").text().contains("Elicit"));

  QTest::mouseClick(&Find<QPushButton>(window, "adviceGo"), Qt::LeftButton);
  AnswerNext("Save", [&](QDialog&) { SaveAs(project, [] { AnswerNext("Begin"); }); });
  QTest::mouseClick(&Find<QPushButton>(window, "elicit"), Qt::LeftButton);
  ASSERT_NE(window.Wizard(), nullptr);
  EXPECT_FALSE(Find<QWidget>(window, "dataPage").isEnabled());
  const WizardUser user(DirectJudgments(window), [&window] { window.Wizard()->End(); });
  ASSERT_TRUE(QTest::qWaitFor([&] { return window.Wizard() == nullptr; }, kPatience));

  Document onDisk;
  onDisk.Open(project);
  ASSERT_EQ(onDisk.Data().Sessions.size(), 1U);
  EXPECT_EQ(onDisk.Data().Sessions[0].CostReference, "Pflege");
  ASSERT_TRUE(AwaitResults(window));
  const Dea::UnitResult& buch = window.Results().Shown()->Results.Units[1];
  EXPECT_LT(*buch.Max, 1.0);
  EXPECT_LE(*buch.Min, *buch.Max);
  QTest::mouseClick(&window.Results().Ranges(), Qt::LeftButton, Qt::NoModifier,
                    window.Results().Ranges().Items()[1].Place.center());
  EXPECT_TRUE(Find<QTextBrowser>(window, "details").toPlainText().contains("With these judgments Buch is between"));
  const QString picture = folder.filePath("ranges.png");
  SaveAs(picture);
  QTest::mouseClick(&Find<QPushButton>(window, "savePicture"), Qt::LeftButton);
  EXPECT_FALSE(QImage(picture).isNull());
}

TEST(Newcomer, WhoEndsTheWizardKeepsWhatWasThere) {
  OpenWindow open;
  AnswerNext("Ignore", [](QDialog&) { AnswerNext("Begin"); });
  open.Window.ShowPage(PageKind::Judgments);
  QTest::mouseClick(&Find<QPushButton>(open.Window, "elicit"), Qt::LeftButton);
  ASSERT_NE(open.Window.Wizard(), nullptr);
  EXPECT_FALSE(open.Window.close());
  ASSERT_TRUE(QTest::qWaitFor([&] { return open.Window.Wizard() == nullptr; }, kPatience));
  EXPECT_EQ(open.Window.Work().Data(), JudgedHospitals());
  EXPECT_TRUE(Find<QWidget>(open.Window, "dataPage").isEnabled());
}

}  // namespace
}  // namespace Tarnwise
