#include "Hangs.h"
#include "TestForm.h"

#include <QCheckBox>
#include <QLabel>

namespace Tarnwise {

class QtFocus : public QtFormTest {};

TEST_F(QtFocus, TheFirstControlInTabOrderHasItAndTabGoesOn) {
  Show();
  EXPECT_EQ(Keyboard(), WidgetOf(form->txtFirst));
  Key(Qt::Key_Tab);
  EXPECT_EQ(form->ActiveControl, &form->txtSecond);
  EXPECT_EQ(Keyboard(), WidgetOf(form->txtSecond));
  Key(Qt::Key_Backtab);
  EXPECT_EQ(form->ActiveControl, &form->txtFirst);
}

TEST_F(QtFocus, AClickMovesItBeforeTheButtonIsToldOfTheClick) {
  form->txtFirst.LostFocus = [this] { form->Log.push_back("lost"); };
  form->cmdGo.GotFocus = [this] { form->Log.push_back("got"); };
  form->cmdGo.Click = [this] { form->Log.push_back("click"); };
  Show();
  Click(form->cmdGo);
  EXPECT_EQ(Joined(form->Log), "lost got click");
}

TEST_F(QtFocus, AMessageOnTheWayEndsTheClick) {
  form->txtFirst.LostFocus = [this] {
    platform->MessageBox("wrong", 48, "KESTA");
    platform->SetFocus(form->txtFirst);
  };
  form->cmdGo.Click = [this] { form->Log.push_back("click"); };
  Show();
  Click(form->cmdGo);
  EXPECT_EQ(Joined(form->Log), "");
  EXPECT_EQ(platform->MessagesShown(), 1);
  EXPECT_EQ(Keyboard(), WidgetOf(form->txtFirst));
  EXPECT_FALSE(As<QPushButton>(form->cmdGo).isDown());
}

TEST_F(QtFocus, AControlThatIsDisabledKeepsItInTheTreeAndTabGoesOnFromThere) {
  Show();
  form->txtFirst.Enabled = false;
  platform->SyncAll();
  EXPECT_EQ(form->ActiveControl, &form->txtFirst);
  EXPECT_EQ(Keyboard(), &Window());
  Type("1");
  EXPECT_EQ(form->txtFirst.Text(), "");
  Key(Qt::Key_Tab);
  EXPECT_EQ(form->ActiveControl, &form->txtSecond);
  EXPECT_EQ(Keyboard(), WidgetOf(form->txtSecond));
}

TEST_F(QtFocus, AControlThatIsEnabledInTheSameHandlerCanTakeIt) {
  form->txtSecond.Enabled = false;
  form->cmdGo.Click = [this] {
    form->txtSecond.Enabled = true;
    platform->SetFocus(form->txtSecond);
  };
  Show();
  Click(form->cmdGo);
  EXPECT_EQ(Keyboard(), WidgetOf(form->txtSecond));
}

TEST_F(QtFocus, SpacePressesTheButtonThatHasIt) {
  form->cmdGo.Click = [this] { form->Log.push_back("click"); };
  Show();
  Input::MoveFocus(form->cmdGo);
  Key(Qt::Key_Space);
  Key(Qt::Key_Return);
  EXPECT_EQ(Joined(form->Log), "click click");
}

TEST_F(QtFocus, TheFormSaysWhatACheckBoxShows) {
  CheckBox box{*form, form.get(), "chkBox"};
  Place(box, 150, 2500, 1500, 300);
  box.TabIndex = 9;
  Show();
  QTest::mouseClick(WidgetOf(box), Qt::LeftButton, Qt::NoModifier, QPoint(8, 10));
  EXPECT_EQ(box.Value, 1);
  box.Click = [&box] { box.Value = 1; };
  QTest::mouseClick(WidgetOf(box), Qt::LeftButton, Qt::NoModifier, QPoint(8, 10));
  EXPECT_TRUE(As<QCheckBox>(box).isChecked());
  platform->Release(*form);
}

TEST_F(QtFocus, TheCloseButtonAsksTheFormAndLeavesTheWindow) {
  Show();
  Window().close();
  EXPECT_EQ(Joined(form->Log), "close");
  EXPECT_TRUE(Window().isVisible());
  Key(Qt::Key_Escape);
  EXPECT_EQ(Joined(form->Log), "close");
}

TEST_F(QtFocus, ALabelsMnemonicGoesToTheControlBehindIt) {
  Label label{*form, &form->picRows, "lblName"};
  TextBox box{*form, &form->picRows, "txtName"};
  label.Caption = "&Name:";
  Place(label, 150, 1800, 900, 300);
  Place(box, 1200, 1800, 900, 375);
  label.TabIndex = box.TabIndex = 30;
  Show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Window(), kHangs));
  EXPECT_EQ(As<QLabel>(label).buddy(), WidgetOf(box));
  Key(Qt::Key_N, Qt::AltModifier);
  EXPECT_EQ(form->ActiveControl, &box);
  platform->Release(*form);
}

TEST_F(QtFocus, AMnemonicPressesOnlyWhatAPersonCanReach) {
  form->cmdGo.Click = [this] { form->Log.push_back("click"); };
  Show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Window(), kHangs));
  Key(Qt::Key_G, Qt::AltModifier);
  EXPECT_EQ(Joined(form->Log), "click");
  EXPECT_EQ(form->ActiveControl, &form->cmdGo);
  form->cmdGo.Enabled = false;
  platform->SyncAll();
  Key(Qt::Key_G, Qt::AltModifier);
  EXPECT_EQ(Joined(form->Log), "click");
}

}  // namespace Tarnwise
