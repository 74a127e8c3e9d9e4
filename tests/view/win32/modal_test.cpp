#include "TestForm.h"

#include <thread>

namespace Tarnwise {

class WinModal : public WinFormTest {
 protected:
  WinModal() {
    host = CreateWindowExW(0, L"STATIC", L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 700, 500, 200, 100, nullptr,
                           nullptr, nullptr, nullptr);
    form->cmdGo.Click = [this] { platform->Hide(*form); };
  }
  ~WinModal() override { DestroyWindow(host); }

  std::shared_ptr<TestForm> Other() {
    auto other = std::make_shared<TestForm>(platform, "frmOther");
    platform->Created(*other);
    return other;
  }

  HWND host = nullptr;
};

TEST_F(WinModal, OtherWindowsOfTheThreadAreDisabledAndEnabledAgain) {
  const auto other = Other();
  platform->Show(*other);
  const HWND disabled = CreateWindowExW(0, L"STATIC", L"disabled", WS_POPUP | WS_VISIBLE | WS_DISABLED, 0, 0, 50, 50,
                                        nullptr, nullptr, nullptr, nullptr);
  bool ran = false;
  Later(20, [&] {
    ran = true;
    EXPECT_TRUE(platform->IsModal(*form));
    EXPECT_TRUE(IsWindowEnabled(Window()));
    EXPECT_FALSE(IsWindowEnabled(host));
    EXPECT_FALSE(IsWindowEnabled(WindowOf(*other)));
    Click(form->cmdGo);
  });
  platform->ShowModal(*form);
  EXPECT_TRUE(ran);
  EXPECT_FALSE(platform->IsModal(*form));
  EXPECT_TRUE(IsWindowEnabled(host));
  EXPECT_TRUE(IsWindowEnabled(WindowOf(*other)));
  EXPECT_FALSE(IsWindowEnabled(disabled));
  DestroyWindow(disabled);
  platform->Release(*other);
}

TEST_F(WinModal, AnotherFormShownMeanwhileIsSeenAndTakesNoPressUntilItIsThrough) {
  const auto other = Other();
  other->cmdGo.Click = [this] { form->Log.push_back("click"); };
  form->Left = 3000;
  bool ran = false;
  const auto pressed = [&] {
    ClickReally(WindowOf(other->cmdGo), MiddleOf(WindowOf(other->cmdGo)));
    Wait(50);
  };
  Later(20, [&] {
    ran = true;
    platform->Show(*other);
    EXPECT_TRUE(IsWindowVisible(WindowOf(*other)));
    EXPECT_FALSE(IsWindowEnabled(WindowOf(*other)));
    EXPECT_EQ(GetActiveWindow(), Window());
    HWND above = GetWindow(WindowOf(*other), GW_HWNDPREV);
    while (above != nullptr && above != Window()) above = GetWindow(above, GW_HWNDPREV);
    EXPECT_EQ(above, Window()) << "it stands behind the one that is open";
    pressed();
    SendMessageW(WindowOf(other->cmdGo), BM_CLICK, 0, 0);
    Click(other->cmdGo);
    SendMessageW(WindowOf(*other), WM_CLOSE, 0, 0);
    EXPECT_EQ(Joined(form->Log), "");
    EXPECT_EQ(Joined(other->Log), "");
    EXPECT_EQ(GetActiveWindow(), Window());
    Click(form->cmdGo);
  });
  platform->ShowModal(*form);
  EXPECT_TRUE(ran);
  EXPECT_TRUE(IsWindowEnabled(WindowOf(*other)));
  EXPECT_TRUE(IsWindowEnabled(host));
  platform->Show(*other);
  EXPECT_EQ(GetActiveWindow(), WindowOf(*other)) << "shown once more it comes to the front";
  pressed();
  EXPECT_EQ(Joined(form->Log), "click");
  platform->Release(*other);
}

TEST_F(WinModal, TheHostsWindowIsTheActiveOneAfterwards) {
  SetActiveWindow(host);
  ASSERT_EQ(GetActiveWindow(), host);
  Later(20, [&] {
    EXPECT_EQ(GetActiveWindow(), Window());
    EXPECT_EQ(GetFocus(), WindowOf(form->txtFirst));
    Click(form->cmdGo);
  });
  platform->ShowModal(*form);
  EXPECT_EQ(GetActiveWindow(), host);
}

TEST_F(WinModal, FormsNestAndTheOuterOneComesBack) {
  const auto inner = Other();
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
  Later(10, [&] { Click(form->cmdGo); });
  Later(100, [&] {
    EXPECT_EQ(platform->ActiveForm(), inner.get());
    EXPECT_FALSE(IsWindowVisible(Window()));
    EXPECT_FALSE(IsWindowEnabled(host));
    Click(inner->cmdGo);
  });
  Later(200, [&] {
    EXPECT_EQ(Joined(form->Log), "go back");
    EXPECT_TRUE(IsWindowVisible(Window()));
    EXPECT_TRUE(IsWindowEnabled(Window()));
    EXPECT_TRUE(platform->IsModal(*form));
    EXPECT_FALSE(IsWindowEnabled(host));
    Click(form->cmdSource);
  });
  platform->ShowModal(*form);
  EXPECT_FALSE(form->Visible);
  EXPECT_TRUE(IsWindowEnabled(host));
  platform->Release(*inner);
}

TEST_F(WinModal, AnInnerFormLeavesTheOuterOneUsableAndTheHostDisabled) {
  const auto inner = Other();
  form->cmdSource.Click = [&] { platform->ShowModal(*inner); };
  inner->cmdGo.Click = [&] { platform->Release(*inner); };
  Later(10, [&] { Click(form->cmdSource); });
  Later(100, [&] {
    EXPECT_FALSE(IsWindowEnabled(Window()));
    SendMessageW(Window(), WM_CLOSE, 0, 0);
    EXPECT_EQ(Joined(form->Log), "");
    Click(inner->cmdGo);
  });
  Later(200, [&] {
    EXPECT_TRUE(inner->Released);
    EXPECT_TRUE(IsWindowEnabled(Window()));
    EXPECT_FALSE(IsWindowEnabled(host));
    EXPECT_EQ(GetActiveWindow(), Window());
    Click(form->cmdGo);
  });
  platform->ShowModal(*form);
  EXPECT_TRUE(IsWindowEnabled(host));
}

TEST_F(WinModal, WhatAModalFormChangesIsSeenThoughAnotherHandlerStillRuns) {
  const auto inner = Other();
  inner->cmdSource.Click = [&] { inner->cmdGo.Caption = "new"; };
  form->cmdGo.Click = [&] { platform->ShowModal(*inner); };
  Show();
  Later(20, [&] {
    Click(inner->cmdSource);
    EXPECT_EQ(TextOf(WindowOf(inner->cmdGo)), L"new");
    platform->Hide(*inner);
  });
  Click(form->cmdGo);
  EXPECT_FALSE(inner->Visible);
  platform->Release(*inner);
}

TEST_F(WinModal, AHandlerThatHidesAndShowsKeepsTheCall) {
  form->cmdGo.Click = [this] {
    platform->Hide(*form);
    platform->Show(*form);
  };
  form->cmdSource.Click = [this] { platform->Hide(*form); };
  Later(10, [&] { Click(form->cmdGo); });
  Later(100, [&] {
    EXPECT_TRUE(platform->IsModal(*form));
    EXPECT_FALSE(IsWindowEnabled(host));
    EXPECT_EQ(GetActiveWindow(), Window());
    Click(form->cmdSource);
  });
  platform->ShowModal(*form);
  EXPECT_FALSE(platform->IsModal(*form));
}

TEST_F(WinModal, AQuitEndsTheCallAndIsPassedOn) {
  Later(20, [] { PostQuitMessage(7); });
  platform->ShowModal(*form);
  EXPECT_TRUE(form->Visible);
  EXPECT_TRUE(IsWindowEnabled(host));
  MSG message{};
  EXPECT_EQ(GetMessageW(&message, nullptr, 0, 0), 0);
  EXPECT_EQ(message.wParam, 7U);
}

TEST_F(WinModal, ANestedQuitEndsAllCalls) {
  const auto inner = Other();
  form->cmdSource.Click = [&] { platform->ShowModal(*inner); };
  Later(10, [&] { Click(form->cmdSource); });
  Later(100, [] { PostQuitMessage(5); });
  platform->ShowModal(*form);
  EXPECT_TRUE(IsWindowEnabled(host));
  EXPECT_TRUE(IsWindowEnabled(Window()));
  MSG message{};
  EXPECT_EQ(GetMessageW(&message, nullptr, 0, 0), 0);
  EXPECT_EQ(message.wParam, 5U);
  platform->Release(*inner);
}

TEST_F(WinModal, AWindowThatTheHostDestroysEndsItsCall) {
  Later(20, [this] { DestroyWindow(Window()); });
  platform->ShowModal(*form);
  EXPECT_FALSE(form->Visible);
  EXPECT_FALSE(platform->IsModal(*form));
  EXPECT_TRUE(IsWindowEnabled(host));
}

TEST_F(WinModal, ReleasedInItsOwnClickEndsItsCall) {
  form->cmdGo.Click = [this] { platform->Release(*form); };
  Later(20, [this] { Click(form->cmdGo); });
  platform->ShowModal(*form);
  EXPECT_TRUE(form->Released);
  EXPECT_TRUE(IsWindowEnabled(host));
}

// A screen reader's press is sent, not posted: nothing comes through the queue.
TEST_F(WinModal, APressSentByAnotherThreadEndsTheCall) {
  std::thread presser;
  ULONGLONG pressed = 0;
  form->cmdGo.Click = [&] {
    pressed = GetTickCount64();
    platform->Hide(*form);
  };
  Later(20, [&] {
    presser = std::thread([button = WindowOf(form->cmdGo)] {
      Sleep(50);
      DWORD_PTR answer = 0;
      SendMessageTimeoutW(button, WM_LBUTTONDOWN, MK_LBUTTON, At({10, 10}), SMTO_NORMAL, 5000, &answer);
      SendMessageTimeoutW(button, WM_LBUTTONUP, 0, At({10, 10}), SMTO_NORMAL, 5000, &answer);
    });
  });
  Later(4000, [] {});  // would wake a call that does not notice
  platform->ShowModal(*form);
  presser.join();
  EXPECT_FALSE(form->Visible);
  EXPECT_LT(GetTickCount64() - pressed, 1000U);
  Wait(1);
}

TEST_F(WinModal, AMessageBoxInAHandlerIsAnsweredAndTheHandlerGoesOn) {
  form->cmdSource.Click = [this] {
    platform->MessageBox("one", 64, "KESTA");
    form->Log.push_back("after");
  };
  Show();
  Click(form->cmdSource);
  EXPECT_EQ(Joined(form->Log), "after");
  EXPECT_TRUE(IsWindowEnabled(Window()));
}

TEST_F(WinModal, AMessageBoxShowsItsTextOverItsFormAndWaits) {
  toolkit->AutoAnswer = false;
  Show();
  bool seen = false;
  Later(50, [&] {
    const HWND box = FindWindowW(L"#32770", L"KESTA");
    ASSERT_NE(box, nullptr);
    seen = true;
    EXPECT_EQ(GetWindow(box, GW_OWNER), Window());
    EXPECT_FALSE(IsWindowEnabled(Window()));
    EXPECT_EQ(TextOf(GetDlgItem(box, 0xFFFF)), L"na\xEFve");
    PostMessageW(box, WM_COMMAND, IDOK, 0);
  });
  Later(4000, [] {
    const HWND box = FindWindowW(L"#32770", L"KESTA");
    if (box != nullptr) EndDialog(box, IDOK);
  });
  platform->MessageBox("na\xC3\xAFve", 48, "KESTA");
  EXPECT_TRUE(seen);
  EXPECT_TRUE(IsWindowEnabled(Window()));
  EXPECT_EQ(GetActiveWindow(), Window());
  EXPECT_EQ(GetFocus(), WindowOf(form->txtFirst));
  toolkit->AutoAnswer = true;
}

TEST_F(WinModal, AFormReleasedWhileItsMessageBoxIsUpIsGoneAfterwards) {
  toolkit->AutoAnswer = false;
  form->cmdSource.Click = [this] { platform->MessageBox("one", 64, "KESTA"); };
  Show();
  Later(50, [&] {
    platform->Release(*form);
    const HWND box = FindWindowW(L"#32770", L"KESTA");
    if (box != nullptr) PostMessageW(box, WM_COMMAND, IDOK, 0);
  });
  Click(form->cmdSource);
  EXPECT_TRUE(form->Released);
  toolkit->AutoAnswer = true;
}

TEST_F(WinModal, AScriptsPumpRunsIt) {
  int steps = 0;
  toolkit->Pump = [&] {
    if (++steps == 3) Click(form->cmdGo);
    return true;
  };
  platform->ShowModal(*form);
  EXPECT_EQ(steps, 3);
  toolkit->Pump = [] { return false; };
  platform->ShowModal(*form);
  EXPECT_TRUE(form->Visible);
}

}  // namespace Tarnwise
