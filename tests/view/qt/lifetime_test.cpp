#include "TestForm.h"

#include <QTimer>

namespace Tarnwise {

class QtLifetime : public QtFormTest {};

TEST_F(QtLifetime, AFormMayBeReleasedInItsOwnClick) {
  form->cmdGo.Click = [this] { platform->Release(*form); };
  Show();
  const QPointer<QWidget> window = &Window();
  Click(form->cmdGo);
  EXPECT_EQ(toolkit->FormOf(*form), nullptr);
  EXPECT_FALSE(window->isVisible());
  QCoreApplication::processEvents();
  EXPECT_TRUE(window.isNull());
}

TEST_F(QtLifetime, EverythingMayBeLetGoInAClick) {
  form->cmdGo.Click = [this] {
    platform->Release(*form);
    form.reset();
    platform.reset();
    toolkit.reset();
  };
  Show();
  const QPointer<QWidget> window = &Window();
  Click(form->cmdGo);
  EXPECT_EQ(form, nullptr);
  QCoreApplication::processEvents();
  EXPECT_TRUE(window.isNull());
}

TEST_F(QtLifetime, AFormMayBeReleasedInAKeyAndInALostFocus) {
  form->txtFirst.KeyDown = [this](KeyEvent&) { platform->Release(*form); };
  Show();
  QWidget* const box = Keyboard();
  QTest::keyPress(box, Qt::Key_1);
  EXPECT_TRUE(form->Released);

  auto second = std::make_shared<TestForm>(platform, "frmSecond");
  platform->Created(*second);
  second->txtFirst.LostFocus = [&] { platform->Release(*second); };
  platform->Show(*second);
  QTest::mouseClick(WidgetOf(second->cmdGo), Qt::LeftButton);
  EXPECT_TRUE(second->Released);
}

TEST_F(QtLifetime, AControlMayBeUnloadedInItsOwnClick) {
  ControlArray<CommandButton> extra(*form, form.get(), "cmdExtra",
                                    [](CommandButton& button) { Place(button, 150, 3000, 1500, 375); });
  extra[0].Click = [&extra] { extra.Unload(0); };
  Show();
  const QPointer<QWidget> widget = WidgetOf(extra[0]);
  QTest::mouseClick(widget, Qt::LeftButton);
  EXPECT_EQ(extra.Count(), 0);
  QCoreApplication::processEvents();
  EXPECT_TRUE(widget.isNull());
}

TEST_F(QtLifetime, ModalFormsNestAndTheOuterOneComesBack) {
  auto inner = std::make_shared<TestForm>(platform, "frmInner");
  platform->Created(*inner);
  inner->cmdGo.Click = [&] {
    platform->Hide(*inner);
    platform->Show(*form);
  };
  form->cmdGo.Click = [&] {
    form->Log.push_back("go");
    platform->Hide(*form);
    platform->ShowModal(*inner);
    form->Log.push_back("back");
  };
  form->cmdSource.Click = [&] { platform->Hide(*form); };
  QTimer::singleShot(0, [&] { Click(form->cmdGo); });
  QTimer::singleShot(50, [&] {
    EXPECT_EQ(platform->ActiveForm(), inner.get());
    EXPECT_FALSE(Window().isVisible());
    QTest::mouseClick(WidgetOf(inner->cmdGo), Qt::LeftButton);
  });
  QTimer::singleShot(100, [&] {
    EXPECT_EQ(Joined(form->Log), "go back");
    EXPECT_TRUE(Window().isVisible());
    EXPECT_TRUE(platform->IsModal(*form));
    Click(form->cmdSource);
  });
  platform->ShowModal(*form);
  EXPECT_FALSE(form->Visible);
  platform->Release(*inner);
}

TEST_F(QtLifetime, WhatAModalFormChangesIsSeenThoughAnotherHandlerStillRuns) {
  auto inner = std::make_shared<TestForm>(platform, "frmInner");
  platform->Created(*inner);
  inner->cmdSource.Click = [&] { inner->cmdGo.Caption = "new"; };
  form->cmdGo.Click = [&] { platform->ShowModal(*inner); };
  Show();
  QTimer::singleShot(0, [&] {
    Click(inner->cmdSource);
    EXPECT_EQ(As<QPushButton>(inner->cmdGo).text(), "new");
    platform->Hide(*inner);
  });
  Click(form->cmdGo);
  platform->Release(*inner);
}

TEST_F(QtLifetime, AMessageBoxInAHandlerIsAnsweredAndTheHandlerGoesOn) {
  form->cmdGo.Click = [this] {
    platform->MessageBox("one", 64, "KESTA");
    form->Log.push_back("after");
  };
  Show();
  Click(form->cmdGo);
  EXPECT_EQ(Joined(form->Log), "after");
}

TEST_F(QtLifetime, TimersStopWithTheirForm) {
  toolkit->RealTimers = true;
  Timer timer{*form, form.get(), "Timer1"};
  int ticks = 0;
  timer.Tick = [&] {
    if (++ticks == 2) platform->Release(*form);
  };
  timer.Interval = 5;
  Show();
  QTest::qWait(100);
  EXPECT_EQ(ticks, 2);
}

TEST_F(QtLifetime, AHandlerThatHidesAndShowsKeepsTheModalCall) {
  form->cmdGo.Click = [this] {
    platform->Hide(*form);
    platform->Show(*form);
  };
  form->cmdSource.Click = [this] { platform->Hide(*form); };
  QTimer::singleShot(0, [&] { Click(form->cmdGo); });
  QTimer::singleShot(50, [&] {
    EXPECT_TRUE(platform->IsModal(*form));
    Click(form->cmdSource);
  });
  platform->ShowModal(*form);
  EXPECT_FALSE(platform->IsModal(*form));
}

}  // namespace Tarnwise
