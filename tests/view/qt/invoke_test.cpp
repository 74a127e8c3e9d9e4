// What comes without the mouse and the keyboard: a screen reader's invoking. And the wheel.
#include "TestForm.h"

#include <QAccessible>
#include <QScrollBar>
#include <QWheelEvent>

namespace Tarnwise {

class QtInvoke : public QtFormTest {
 protected:
  void Invoke(const Control& control) const {
    QAccessibleInterface* const read = QAccessible::queryAccessibleInterface(WidgetOf(control));
    read->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTest::qWait(150);  // the widget shows itself pressed for a while
  }
};

TEST_F(QtInvoke, ClicksAButtonAndMovesTheFocusAsAPressDoes) {
  form->txtFirst.LostFocus = [this] { form->Log.push_back("lost"); };
  form->cmdGo.Click = [this] { form->Log.push_back("click"); };
  Show();
  Invoke(form->cmdGo);
  Invoke(form->cmdGo);
  EXPECT_EQ(Joined(form->Log), "lost click click");
  EXPECT_EQ(form->ActiveControl, &form->cmdGo);
  form->cmdGo.Enabled = false;
  platform->SyncAll();
  Invoke(form->cmdGo);
  EXPECT_EQ(Joined(form->Log), "lost click click");
}

class QtWheel : public QtFormTest {
 protected:
  QtWheel() {
    Place(vsrBar, 8550, 150, 255, 3000);
    vsrBar.Max = 1000;
    vsrBar.SmallChange = 100;
    vsrBar.LargeChange = 250;
    vsrBar.Change = [this] { form->Log.push_back(std::to_string(vsrBar.Value())); };
  }
  ~QtWheel() override { platform->Release(*form); }
  void Turn(const Control& over, int by, Qt::KeyboardModifiers held = Qt::NoModifier) const {
    QWidget* const widget = WidgetOf(over);
    const QPointF at = widget->rect().center();
    QWheelEvent turned(at, widget->mapToGlobal(at), {}, {0, by}, Qt::NoButton, held, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &turned);
  }

  VScrollBar vsrBar{*form, form.get(), "vsrBar"};
};

TEST_F(QtWheel, OverABarTurnsItThreeStepsANotchWhateverIsHeld) {
  Show();
  Turn(vsrBar, -120);
  Turn(vsrBar, -120, Qt::ControlModifier);
  Turn(vsrBar, 120, Qt::ShiftModifier);
  EXPECT_EQ(Joined(form->Log), "300 600 300");
  EXPECT_EQ(As<QScrollBar>(vsrBar).value(), 300);
  form->Log.clear();
  for (int i = 0; i < 4; ++i) Turn(vsrBar, -20);
  EXPECT_EQ(Joined(form->Log), "400 500") << "parts of a notch add up";
}

TEST_F(QtWheel, OverAContainerTurnsTheBarInIt) {
  Show();
  Turn(form->picRow[0], -120);
  EXPECT_EQ(Joined(form->Log), "300");
  EXPECT_EQ(As<QScrollBar>(vsrBar).value(), 300);
}

}  // namespace Tarnwise
