// A host that shows the first step again while a later one is open.
#include "Person.h"
#include "forms/WizardForm.h"
#include "support/Models.h"

#include <tarnwise/TRN_DEA.h>

#include <deque>

namespace Tarnwise {

class XShownAgain : public testing::Test {
 protected:
  XShownAgain() {
    toolkit->RealTimers = false;
    toolkit->Pump = [this] { return Step(); };
    WriteModel(folder.File("model.kst"), ModelOf(2, 2));
    dea.GetCurFileData(String("C:/KESTA"), 1, folder.File("model.kst"));
    dea.ShowTarnwise();
    Person::TurnTo(First());
  }

  bool Step() {
    if (steps.empty()) return false;
    const std::function<void()> step = std::move(steps.front());
    steps.pop_front();
    step();
    return true;
  }
  Form& FormOf(std::size_t number) const { return *platform->Forms().at(number); }
  QWidget& WindowOf(std::size_t number) const { return toolkit->FormOf(FormOf(number))->Window(); }
  QWidget& First() const { return WindowOf(0); }
  QWidget& Button(std::size_t number, const char* name) const {
    return *toolkit->FormOf(FormOf(number))->WidgetOf(*FormOf(number).Find(name));
  }

  TemporaryFolder folder;
  std::shared_ptr<QtToolkit> toolkit = std::make_shared<QtToolkit>();
  std::shared_ptr<Platform> platform = std::make_shared<Platform>(toolkit);
  TRN_DEA dea{platform};
  std::deque<std::function<void()>> steps;
  Person person;
};

TEST_F(XShownAgain, ItStandsBehindTheLaterOneAndTakesNoPressUntilThatIsGone) {
  bool asked = false;
  steps = {[this] {
             Person::TurnTo(WindowOf(1));
             dea.ShowTarnwise();
             ASSERT_TRUE(QTest::qWaitForWindowExposed(&First(), kHangs));
             EXPECT_TRUE(First().isVisible());
             EXPECT_TRUE(WindowOf(1).isActiveWindow());
             EXPECT_EQ(QApplication::topLevelAt(WindowOf(1).geometry().center()), &WindowOf(1)) << "it is in front";
           },
           [this] {
             First().move(200, 230);
             WindowOf(1).move(0, 0);
             QTest::qWait(200);
             person.ClickInVain(Button(0, "cmdNext"));
             person.ClickInVain(Button(0, "cmdHelp"));
             EXPECT_EQ(platform->Forms().size(), 2U);
             EXPECT_EQ(platform->ActiveForm(), &FormOf(1));
             EXPECT_TRUE(First().isVisible()) << "its Next would have hidden it";
             QTest::mouseClick(&Button(0, "cmdNext"), Qt::LeftButton);
             EXPECT_TRUE(First().isVisible()) << "whichever way a press comes";
           },
           [this, &asked] {
             asked = true;
             person.Click(Button(1, "cmdBack"), 1);
           }};
  QTest::keyClick(First().focusWidget(), Qt::Key_N, Qt::AltModifier);
  EXPECT_TRUE(asked);
  ASSERT_EQ(platform->Forms().size(), 1U);
  EXPECT_TRUE(First().isVisible());
  EXPECT_TRUE(QTest::qWaitForWindowActive(&First(), kHangs)) << "it has the keyboard";
  bool again = false;
  steps = {[this, &again] { again = platform->Forms().size() == 2U && !First().isVisible(); }};
  person.Click(Button(0, "cmdNext"), 1);
  EXPECT_TRUE(again) << "and takes a press";
}

}  // namespace Tarnwise
