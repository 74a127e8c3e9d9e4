// Scroll bars, the keyboard of tool bars, timers.
#include "TestForm.h"

#include <commctrl.h>

namespace Tarnwise {

class WinScrolling : public WinFormTest {
 protected:
  WinScrolling() {
    form->vsrBar.Max = 1000;
    form->vsrBar.SmallChange = 100;
    form->vsrBar.LargeChange = 500;
    form->vsrBar.TabIndex = 30;
    form->vsrBar.Change = [this] { form->Log.push_back(std::to_string(form->vsrBar.Value())); };
    form->vsrBar.Scroll = [this] { form->Log.push_back("s" + std::to_string(form->vsrBar.Value())); };
  }
  int Shown() const {
    SCROLLINFO now{sizeof now, SIF_POS, 0, 0, 0, 0, 0};
    GetScrollInfo(WindowOf(form->vsrBar), SB_CTL, &now);
    return now.nPos;
  }
  void Send(int code, int position = 0) const {
    if (code == SB_THUMBTRACK || code == SB_THUMBPOSITION) {
      SCROLLINFO place{sizeof place, SIF_POS, 0, 0, 0, position, 0};
      SetScrollInfo(WindowOf(form->vsrBar), SB_CTL, &place, FALSE);
    }
    SendMessageW(Window(), WM_VSCROLL, MAKEWPARAM(code, position), reinterpret_cast<LPARAM>(WindowOf(form->vsrBar)));
  }
};

TEST_F(WinScrolling, StepsAndPagesStayInTheRange) {
  Show();
  for (const int code : {SB_LINEDOWN, SB_PAGEDOWN, SB_PAGEDOWN, SB_LINEUP, SB_PAGEUP, SB_TOP, SB_BOTTOM}) {
    Send(code);
    Send(SB_ENDSCROLL);
    EXPECT_EQ(Shown(), form->vsrBar.Value);
  }
  EXPECT_EQ(Joined(form->Log), "100 600 1000 900 400 0 1000");
}

TEST_F(WinScrolling, DraggingScrollsAndItsEndIsAChange) {
  Show();
  Send(SB_THUMBTRACK, 250);
  Send(SB_THUMBTRACK, 300);
  Send(SB_THUMBPOSITION, 300);
  Send(SB_ENDSCROLL);
  EXPECT_EQ(Joined(form->Log), "s250 s300 300");
  EXPECT_EQ(Shown(), 300);
}

TEST_F(WinScrolling, TheKeyboardScrolls) {
  Show();
  Input::MoveFocus(form->vsrBar);
  EXPECT_EQ(GetFocus(), WindowOf(form->vsrBar));
  for (const int code : {VK_DOWN, VK_NEXT, VK_NEXT, VK_UP, VK_PRIOR, VK_HOME, VK_HOME, VK_END}) SendKey(code);
  EXPECT_EQ(Joined(form->Log), "100 600 1000 900 400 0 1000");
  EXPECT_EQ(Shown(), 1000);
}

TEST_F(WinScrolling, TheMousePressesTheArrow) {
  form->txtFirst.LostFocus = [this] { form->Log.push_back("lost"); };
  Show();
  const HWND bar = WindowOf(form->vsrBar);
  RECT client{};
  GetClientRect(bar, &client);
  const POINT arrow{client.right / 2, client.bottom - 4};
  // Windows scrolls in a loop of its own until the button comes up.
  PostMessageW(bar, WM_LBUTTONUP, 0, At(arrow));
  PressAt(bar, arrow);
  TakeMessages();
  EXPECT_EQ(Joined(form->Log), "lost 100");
  EXPECT_EQ(Shown(), 100);
}

TEST_F(WinScrolling, TheWheelTurnsTheBarOfTheContainerItIsOver) {
  Show();
  SendMessageW(WindowOf(form->picRow[0]), WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), 0);
  EXPECT_EQ(Joined(form->Log), "300");
  SendMessageW(WindowOf(form->picRow[0]), WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), 0);
  EXPECT_EQ(Joined(form->Log), "300 0");
}

TEST_F(WinScrolling, TheWheelOverABarTurnsItThreeStepsANotchWhateverIsHeld) {
  Show();
  const HWND bar = WindowOf(form->vsrBar);
  POINT at = MiddleOf(bar);
  ClientToScreen(bar, &at);
  const auto turn = [&](HWND window, int by, int keys = 0) {
    SendMessageW(window, WM_MOUSEWHEEL, MAKEWPARAM(keys, static_cast<WORD>(by)), At(at));
  };
  turn(bar, -WHEEL_DELTA);
  turn(bar, -WHEEL_DELTA, MK_CONTROL);
  turn(bar, WHEEL_DELTA, MK_SHIFT);
  EXPECT_EQ(Joined(form->Log), "300 600 300");
  EXPECT_EQ(Shown(), 300);
  form->Log.clear();
  for (int i = 0; i < 4; ++i) turn(bar, -WHEEL_DELTA / 6);
  EXPECT_EQ(Joined(form->Log), "400 500") << "parts of a notch add up";
  form->Log.clear();
  turn(WindowOf(form->txtFirst), -WHEEL_DELTA);
  EXPECT_EQ(Joined(form->Log), "800") << "sent to the keyboard's window it is the pointer's place that counts";
}

TEST_F(WinScrolling, TheRangeFollowsItsRecord) {
  Show();
  form->vsrBar.Max = 4000;
  form->vsrBar.Value = 3500;
  platform->SyncAll();
  SCROLLINFO now{sizeof now, SIF_ALL, 0, 0, 0, 0, 0};
  GetScrollInfo(WindowOf(form->vsrBar), SB_CTL, &now);
  EXPECT_EQ(now.nMin, 0);
  EXPECT_EQ(now.nMax - static_cast<int>(now.nPage) + 1, 4000);
  EXPECT_EQ(now.nPos, 3500);
  EXPECT_EQ(Joined(form->Log), "");
}

class WinToolbarKeys : public WinFormTest {
 protected:
  WinToolbarKeys() {
    form->tbMoves.ButtonClick = [this](const String& key) { form->Log.push_back(key); };
  }
  bool IsMarked(int button) const {
    const LRESULT state = SendMessageW(WindowOf(form->tbMoves), TB_GETSTATE, static_cast<WPARAM>(button), 0);
    return (state & TBSTATE_MARKED) != 0;
  }
  LRESULT Hot() const { return SendMessageW(WindowOf(form->tbMoves), TB_GETHOTITEM, 0, 0); }
};

TEST_F(WinToolbarKeys, TabGoesThereAndArrowsChooseWhatSpaceAndReturnPress) {
  Show();
  Input::MoveFocus(form->lstRows);
  SendKey(VK_TAB, L"\t");
  EXPECT_EQ(form->ActiveControl, &form->tbMoves);
  EXPECT_EQ(GetFocus(), WindowOf(form->tbMoves));
  EXPECT_TRUE(IsMarked(1));
  SendKey(VK_SPACE, L" ");
  SendKey(VK_RIGHT);
  EXPECT_FALSE(IsMarked(1));
  EXPECT_TRUE(IsMarked(2));
  EXPECT_EQ(Hot(), 1);
  SendKey(VK_RIGHT);
  SendKey(VK_RETURN, L"\r");
  SendKey(VK_LEFT);
  SendKey(VK_UP);
  SendKey(VK_SPACE, L" ");
  TakeMessages();
  EXPECT_EQ(Joined(form->Log), "Up Down Up");
}

TEST_F(WinToolbarKeys, TheMarkGoesWithTheKeyboard) {
  Show();
  Input::MoveFocus(form->tbMoves);
  platform->SyncAll();
  EXPECT_TRUE(IsMarked(1));
  SendKey(VK_TAB, L"\t");
  EXPECT_EQ(form->ActiveControl, &form->tsTab);
  EXPECT_FALSE(IsMarked(1));
  EXPECT_EQ(Hot(), -1);
}

TEST_F(WinToolbarKeys, PressNoDisabledButton) {
  form->tbMoves.Buttons[0].Enabled = false;
  Show();
  Input::MoveFocus(form->tbMoves);
  SendKey(VK_SPACE, L" ");
  EXPECT_EQ(Joined(form->Log), "");
  SendKey(VK_DOWN);
  SendKey(VK_SPACE, L" ");
  EXPECT_EQ(Joined(form->Log), "Down");
}

class WinTimers : public WinFormTest {
 protected:
  WinTimers() {
    toolkit->RealTimers = true;
    form->tmrBlink.Tick = [this] { ++ticks; };
    form->tmrBlink.Interval = 20;
  }
  int ticks = 0;
};

TEST_F(WinTimers, TickAndStop) {
  Show();
  EXPECT_TRUE(Until([this] { return ticks >= 3; }));
  form->tmrBlink.Interval = 0;
  platform->SyncAll();
  ticks = 0;
  Wait(100);
  EXPECT_EQ(ticks, 0);
  form->tmrBlink.Interval = 20;
  platform->SyncAll();
  EXPECT_TRUE(Until([this] { return ticks >= 1; }));
  form->tmrBlink.Enabled = false;
  platform->SyncAll();
  ticks = 0;
  Wait(100);
  EXPECT_EQ(ticks, 0);
}

TEST_F(WinTimers, ATickThatWasUnderWayWhenItWasStoppedIsNone) {
  form->tmrBlink.Interval = 10000;
  Show();
  // The number of the form's only timer.
  SendMessageW(Window(), WM_TIMER, 1, 0);
  EXPECT_EQ(ticks, 1);
  form->tmrBlink.Interval = 0;
  platform->SyncAll();
  SendMessageW(Window(), WM_TIMER, 1, 0);
  EXPECT_EQ(ticks, 1);
}

TEST_F(WinTimers, StopWithTheirForm) {
  form->tmrBlink.Tick = [this] {
    if (++ticks == 2) platform->Release(*form);
  };
  Show();
  EXPECT_TRUE(Until([this] { return ticks == 2; }));
  Wait(100);
  EXPECT_EQ(ticks, 2);
}

TEST_F(WinTimers, TickOnWhileAMessageBoxIsUp) {
  toolkit->AutoAnswer = false;
  form->tmrBlink.Tick = [this] {
    if (++ticks != 3) return;
    const HWND box = FindWindowW(L"#32770", L"KESTA");
    ASSERT_NE(box, nullptr);
    PostMessageW(box, WM_COMMAND, IDOK, 0);
  };
  Show();
  ticks = 0;
  platform->MessageBox("text", 64, "KESTA");
  EXPECT_GE(ticks, 3);
  toolkit->AutoAnswer = true;
}

TEST_F(WinTimers, WaitForAScriptWhereItDrives) {
  toolkit->RealTimers = false;
  Show();
  Wait(100);
  EXPECT_EQ(ticks, 0);
}

}  // namespace Tarnwise
