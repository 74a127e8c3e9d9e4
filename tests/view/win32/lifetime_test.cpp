// Forms, controls and the toolkit itself that go while a message of theirs is being answered. That no window is left is
// checked at the end of every test.
#include "TestForm.h"

#include <commctrl.h>

namespace Tarnwise {

class WinLifetime : public WinFormTest {
 protected:
  template <class Made>
  std::shared_ptr<TestForm> Other(Made made) {
    auto other = std::make_shared<TestForm>(platform, "frmOther");
    platform->Created(*other);
    made(*other);
    platform->Show(*other);
    TakeMessages();
    return other;
  }
};

TEST_F(WinLifetime, AFormMayBeHiddenInItsOwnClickAndComeBack) {
  form->cmdGo.Click = [this] { platform->Hide(*form); };
  Show();
  const HWND window = Window();
  Click(form->cmdGo);
  EXPECT_FALSE(IsWindowVisible(window));
  Show();
  EXPECT_EQ(Window(), window);
  EXPECT_TRUE(IsWindowVisible(window));
  EXPECT_TRUE(Until([this] { return GetFocus() == WindowOf(form->cmdGo); })) << "the focus is the system's to give";
}

TEST_F(WinLifetime, AFormMayBeReleasedInItsOwnClick) {
  form->cmdGo.Click = [this] { platform->Release(*form); };
  Show();
  const HWND window = Window();
  Click(form->cmdGo);
  EXPECT_EQ(toolkit->FormOf(*form), nullptr);
  EXPECT_FALSE(IsWindowVisible(window));
  EXPECT_TRUE(Until([window] { return IsWindow(window) == 0; }));
}

TEST_F(WinLifetime, EverythingMayBeLetGoInAClick) {
  form->cmdGo.Click = [this] {
    platform->Release(*form);
    form.reset();
    platform.reset();
    toolkit.reset();
  };
  Show();
  const HWND window = Window();
  Click(form->cmdGo);
  EXPECT_EQ(form, nullptr);
  EXPECT_TRUE(Until([window] { return IsWindow(window) == 0; }));
}

TEST_F(WinLifetime, EverythingMayBeLetGoInATickAKeyAndATool) {
  const auto letGo = [this] {
    platform->Release(*form);
    form.reset();
    platform.reset();
    toolkit.reset();
  };
  const auto again = [this] {
    toolkit = std::make_shared<WinToolkit>();
    platform = std::make_shared<Platform>(toolkit);
    form = std::make_shared<TestForm>(platform);
    platform->Created(*form);
  };
  form->tmrBlink.Tick = letGo;
  form->tmrBlink.Interval = 10;
  toolkit->RealTimers = true;
  Show();
  EXPECT_TRUE(Until([this] { return form == nullptr; }));
  again();
  form->txtFirst.KeyPress = [letGo](KeyEvent&) { letGo(); };
  Show();
  Type(L"1");
  EXPECT_EQ(form, nullptr);
  again();
  form->tbMoves.ButtonClick = [letGo](const String&) { letGo(); };
  Show();
  ClickAt(WindowOf(form->tbMoves), {10, 10});
  EXPECT_EQ(form, nullptr);
}

TEST_F(WinLifetime, AFormMayBeReleasedInAKeyAndInALostFocus) {
  form->txtFirst.KeyDown = [this](KeyEvent&) { platform->Release(*form); };
  Show();
  SendMessageW(GetFocus(), WM_KEYDOWN, '1', 1);
  EXPECT_TRUE(form->Released);
  const auto second =
      Other([this](TestForm& made) { made.txtFirst.LostFocus = [this, &made] { platform->Release(made); }; });
  Click(second->cmdGo);
  EXPECT_TRUE(second->Released);
}

TEST_F(WinLifetime, AFormMayBeReleasedByWhateverItsControlsTell) {
  const auto list = Other([this](TestForm& made) { made.lstRows.Click = [this, &made] { platform->Release(made); }; });
  ClickAt(WindowOf(list->lstRows), {10, 10});
  EXPECT_TRUE(list->Released);
  const auto bar = Other(
      [this](TestForm& made) { made.tbMoves.ButtonClick = [this, &made](const String&) { platform->Release(made); }; });
  ClickAt(WindowOf(bar->tbMoves), {10, 10});
  EXPECT_TRUE(bar->Released);
  const auto check = Other([this](TestForm& made) { made.chkBox.Click = [this, &made] { platform->Release(made); }; });
  ClickAt(WindowOf(check->chkBox), {6, 10});
  EXPECT_TRUE(check->Released);
  const auto scroll =
      Other([this](TestForm& made) { made.vsrBar.Change = [this, &made] { platform->Release(made); }; });
  const HWND window = WindowOf(scroll->vsrBar);
  SendMessageW(GetParent(window), WM_VSCROLL, SB_LINEDOWN, reinterpret_cast<LPARAM>(window));
  EXPECT_TRUE(scroll->Released);
  const auto combo = Other([this](TestForm& made) { made.cmbRows.Click = [this, &made] { platform->Release(made); }; });
  ClickAt(WindowOf(combo->cmbRows), {10, 10});
  SendKey(VK_DOWN);
  SendKey(VK_RETURN, L"\r");
  TakeMessages();
  EXPECT_TRUE(combo->Released);
  const auto closed = Other([](TestForm&) {});
  closed->Screen().Release(*closed);
}

TEST_F(WinLifetime, AFormMayBeReleasedByItsCloseButtonAndAMnemonic) {
  form->cmdGo.Click = [this] { platform->Release(*form); };
  Show();
  SendAlt('g');
  EXPECT_TRUE(form->Released);
  struct Closing : TestForm {
    using TestForm::TestForm;
    void CloseBox() override { Screen().Release(*this); }
  };
  const auto closing = std::make_shared<Closing>(platform);
  platform->Created(*closing);
  platform->Show(*closing);
  SendMessageW(WindowOf(*closing), WM_CLOSE, 0, 0);
  EXPECT_TRUE(closing->Released);
}

TEST_F(WinLifetime, AControlMayBeUnloadedInItsOwnClick) {
  ControlArray<CommandButton> extra(*form, form.get(), "cmdExtra",
                                    [](CommandButton& button) { Place(button, 150, 5000, 1500, 375); });
  extra[0].Click = [&extra] { extra.Unload(0); };
  Show();
  const HWND window = WindowOf(extra[0]);
  ClickAt(window, MiddleOf(window));
  EXPECT_EQ(extra.Count(), 0);
  EXPECT_FALSE(IsWindowVisible(window));
  EXPECT_TRUE(Until([window] { return IsWindow(window) == 0; }));
  EXPECT_EQ(form->ActiveControl, nullptr);
  SendKey(VK_TAB, L"\t");
  EXPECT_NE(form->ActiveControl, nullptr);
  platform->Release(*form);
}

TEST_F(WinLifetime, AListATextBoxAndATimerMayBeUnloadedInTheirOwnEvents) {
  ControlArray<ListBox> lists(*form, form.get(), "lstExtra", [](ListBox& list) {
    Place(list, 3000, 4800, 1500, 900);
    list.List = std::vector<String>{"a", "b"};
  });
  ControlArray<TextBox> boxes(*form, form.get(), "txtExtra", [](TextBox& box) {
    Place(box, 6200, 5000, 1500, 375);
    box.TabIndex = 40;
  });
  ControlArray<Timer> timers(*form, form.get(), "tmrExtra", [](Timer& timer) { timer.Interval = 10; });
  toolkit->RealTimers = true;
  lists[0].Click = [&lists] { lists.Unload(0); };
  boxes[0].KeyPress = [&boxes](KeyEvent&) { boxes.Unload(0); };
  timers[0].Tick = [&timers] { timers.Unload(0); };
  Show();
  EXPECT_TRUE(Until([&timers] { return timers.Count() == 0; }));
  ClickAt(WindowOf(lists[0]), {10, 10});
  EXPECT_EQ(lists.Count(), 0);
  Input::MoveFocus(boxes[0]);
  platform->SyncAll();
  Type(L"1");
  EXPECT_EQ(boxes.Count(), 0);
  platform->Release(*form);
}

TEST_F(WinLifetime, AHandlerMayTakeAwayWhatALostFocusWasFor) {
  ControlArray<CommandButton> extra(*form, form.get(), "cmdExtra",
                                    [](CommandButton& button) { Place(button, 150, 5000, 1500, 375); });
  form->txtFirst.LostFocus = [&extra] { extra.Unload(0); };
  extra[0].Click = [this] { form->Log.push_back("click"); };
  Show();
  const HWND window = WindowOf(extra[0]);
  ClickAt(window, MiddleOf(window));
  EXPECT_EQ(Joined(form->Log), "");
  EXPECT_EQ(extra.Count(), 0);
  platform->Release(*form);
}

TEST_F(WinLifetime, AWindowThatTheHostDestroysHidesItsFormWhichCanBeShownAgain) {
  Show();
  DestroyWindow(Window());
  EXPECT_FALSE(form->Visible);
  EXPECT_FALSE(form->Released);
  Show();
  EXPECT_TRUE(IsWindowVisible(Window()));
  NoteClick(form->cmdGo);
  Click(form->cmdGo);
  EXPECT_EQ(Joined(form->Log), "cmdGo");
}

TEST_F(WinLifetime, ManyFormsLeaveNothingBehind) {
  const DWORD before = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
  const long windows = WindowsAlive();
  for (int i = 0; i < 10; ++i) {
    const auto other = Other([](TestForm&) {});
    platform->Release(*other);
  }
  EXPECT_TRUE(Until([windows] { return WindowsAlive() == windows; }));
  EXPECT_LE(GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS), before + 10);
}

}  // namespace Tarnwise
