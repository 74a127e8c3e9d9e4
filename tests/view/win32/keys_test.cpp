// Text boxes: keys as Windows sends them.
#include "TestForm.h"

namespace Tarnwise {

class WinKeys : public WinFormTest {
 protected:
  HWND Edit() const { return WindowOf(form->txtFirst); }
  String Shown() const { return Utf8(TextOf(Edit())); }
  std::pair<DWORD, DWORD> Selected() const {
    std::pair<DWORD, DWORD> range;
    SendMessageW(Edit(), EM_GETSEL, reinterpret_cast<WPARAM>(&range.first), reinterpret_cast<LPARAM>(&range.second));
    return range;
  }
  void PutOnClipboard(const wchar_t* text) const {
    const std::size_t size = (wcslen(text) + 1) * sizeof(wchar_t);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
    memcpy(GlobalLock(memory), text, size);
    GlobalUnlock(memory);
    ASSERT_TRUE(OpenClipboard(Window()));
    EmptyClipboard();
    SetClipboardData(CF_UNICODETEXT, memory);
    CloseClipboard();
  }
};

using Range = std::pair<DWORD, DWORD>;

TEST_F(WinKeys, TypingRaisesTheKeysAndTheChange) {
  TextBox& box = form->txtFirst;
  box.KeyDown = [this](KeyEvent& key) { form->Log.push_back("down" + std::to_string(key.Code)); };
  box.KeyPress = [this](KeyEvent& key) { form->Log.push_back("press" + std::to_string(key.Code)); };
  box.Change = [this] { form->Log.push_back("change"); };
  box.KeyUp = [this](KeyEvent& key) { form->Log.push_back("up" + std::to_string(key.Code)); };
  Show();
  Type(L"1.");
  EXPECT_EQ(Joined(form->Log), "down49 press49 change up49 down190 press46 change up190");
  EXPECT_EQ(box.Text(), "1.");
  EXPECT_EQ(Shown(), "1.");
  EXPECT_EQ(box.SelStart, 2);
}

TEST_F(WinKeys, ThroughTheQueueTypeAsWell) {
  form->txtFirst.Change = [this] { form->Log.push_back(form->txtFirst.Text()); };
  Show();
  for (const WPARAM code : {WPARAM{'4'}, WPARAM{'2'}}) {
    const auto scan = static_cast<LPARAM>(MapVirtualKeyW(static_cast<UINT>(code), MAPVK_VK_TO_VSC)) << 16;
    PostMessageW(GetFocus(), WM_KEYDOWN, code, scan | 1);
    PostMessageW(GetFocus(), WM_KEYUP, code, scan | static_cast<LPARAM>(0xC0000001));
    TakeMessages();
  }
  EXPECT_EQ(Joined(form->Log), "4 42");
}

TEST_F(WinKeys, TellTheHandlersOfShiftAndControl) {
  form->txtFirst.KeyDown = [this](KeyEvent& key) { form->Log.push_back(std::to_string(key.Shift)); };
  Show();
  SendKey(VK_LEFT);
  SendKey(VK_LEFT, {}, 1);
  SendKey(VK_LEFT, {}, 2);
  SendKey(VK_LEFT, {}, 3);
  EXPECT_EQ(Joined(form->Log), "0 1 2 3");
}

TEST_F(WinKeys, ThatAHandlerDropsDoNothing) {
  form->txtFirst.KeyPress = [](KeyEvent& key) {
    if (key.Code == 'x') key.Code = 0;
  };
  form->txtFirst.KeyDown = [](KeyEvent& key) {
    if (key.Code == VK_DELETE || key.Code == 'Y') key.Code = 0;
  };
  Show();
  Type(L"1xy2");
  SendKey(VK_HOME);
  SendKey(VK_DELETE);
  EXPECT_EQ(form->txtFirst.Text(), "12");
  EXPECT_EQ(Shown(), "12");
}

TEST_F(WinKeys, ACharacterThatAHandlerPutsInPlaceIsTyped) {
  form->txtFirst.Text = "123";
  form->txtFirst.SelStart = 3;
  form->txtFirst.KeyPress = [](KeyEvent& key) { key.Code = key.Code == 13 ? 8 : '7'; };
  Show();
  SendKey(VK_RETURN, L"\r");
  EXPECT_EQ(form->txtFirst.Text(), "12");
  Type(L"a");
  EXPECT_EQ(Shown(), "127");
}

TEST_F(WinKeys, ReturnAndEscapeDoNothingByThemselves) {
  form->txtFirst.Text = "123";
  Show();
  SendKey(VK_RETURN, L"\r");
  SendKey(VK_ESCAPE, L"\x1b");
  TakeMessages();
  EXPECT_EQ(form->txtFirst.Text(), "123");
  EXPECT_EQ(Shown(), "123");
  EXPECT_EQ(form->ActiveControl, &form->txtFirst);
}

TEST_F(WinKeys, HandlersSeeTheCaretAndTheSelection) {
  form->txtFirst.Text = "0.5\xC3\xA9z";
  Show();
  form->txtFirst.KeyDown = [this](KeyEvent& key) {
    if (key.Code == VK_DELETE)
      form->Log.push_back(std::to_string(form->txtFirst.SelStart) + "+" + std::to_string(form->txtFirst.SelLength));
  };
  SendKey(VK_END);
  SendKey(VK_LEFT);
  SendKey(VK_LEFT, {}, 1);
  SendKey(VK_DELETE);
  EXPECT_EQ(Joined(form->Log), "3+1");
  EXPECT_EQ(form->txtFirst.Text(), "0.5z");
}

TEST_F(WinKeys, TheMouseSelectsAndHandlersSeeIt) {
  form->txtFirst.Text = "1234";
  Show();
  const POINT middle = MiddleOf(Edit());
  PressAt(Edit(), {1, middle.y});
  SendMessageW(Edit(), WM_MOUSEMOVE, MK_LBUTTON, At({90, middle.y}));
  LetGoAt(Edit(), {90, middle.y});
  EXPECT_EQ(form->txtFirst.SelStart, 0);
  EXPECT_EQ(form->txtFirst.SelLength, 4);
  Type(L"9");
  EXPECT_EQ(form->txtFirst.Text(), "9");
}

TEST_F(WinKeys, WhatAHandlerSelectsIsSelectedAndTypedOver) {
  form->txtFirst.Text = "12.5";
  form->txtFirst.GotFocus = [this] {
    form->txtFirst.SelStart = 0;
    form->txtFirst.SelLength = 4;
  };
  Show();
  SendKey(VK_TAB, L"\t");
  SendKey(VK_TAB, L"\t", 1);
  EXPECT_EQ(Selected(), Range(0, 4));
  Type(L"3");
  EXPECT_EQ(form->txtFirst.Text(), "3");
}

TEST_F(WinKeys, WhatAHandlerChangesInTheTextIsSeenAndTypingGoesOnThere) {
  form->txtFirst.KeyPress = [this](KeyEvent& key) {
    if (key.Code != 'c') return;
    key.Code = 0;
    form->txtFirst.SetText("99");
    form->txtFirst.SelStart = 1;
  };
  Show();
  Type(L"1c5");
  EXPECT_EQ(form->txtFirst.Text(), "959");
  EXPECT_EQ(Shown(), "959");
  EXPECT_EQ(form->txtFirst.SelStart, 2);
}

TEST_F(WinKeys, TheKeyComesUpInTheBoxThatHasTheFocusThen) {
  form->txtFirst.KeyPress = [this](KeyEvent& key) {
    if (key.Code == 13) platform->SetFocus(form->txtSecond);
  };
  form->txtFirst.KeyUp = [this](KeyEvent&) { form->Log.push_back("first"); };
  form->txtSecond.KeyUp = [this](KeyEvent&) { form->Log.push_back("second"); };
  Show();
  SendKey(VK_RETURN, L"\r");
  EXPECT_EQ(Joined(form->Log), "second");
}

TEST_F(WinKeys, PastingGoesThroughTheKeyEvents) {
  Show();
  PutOnClipboard(L"42");
  form->txtFirst.Change = [this] { form->Log.push_back("change"); };
  SendKey('V', L"\x16", 2);
  EXPECT_EQ(form->txtFirst.Text(), "42");
  EXPECT_EQ(form->txtFirst.SelStart, 2);
  EXPECT_EQ(Joined(form->Log), "change");
  form->txtFirst.KeyPress = [](KeyEvent& key) {
    if (key.Code == 22) key.Code = 0;
  };
  SendKey('V', L"\x16", 2);
  EXPECT_EQ(form->txtFirst.Text(), "42");
  form->txtFirst.KeyDown = [](KeyEvent& key) {
    if (key.Code == VK_INSERT && key.Shift == 1) key.Code = 0;
  };
  SendKey(VK_INSERT, {}, 1);
  EXPECT_EQ(form->txtFirst.Text(), "42");
  SendMessageW(Edit(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(Edit()), 0);  // no menu that would paste
  EXPECT_EQ(Shown(), "42");
}

TEST_F(WinKeys, AreTheOnlyWayIntoABox) {
  form->txtFirst.Text = "12";
  form->txtFirst.SelStart = 1;
  form->txtFirst.Change = [this] { form->Log.push_back(form->txtFirst.Text()); };
  Show();
  PutOnClipboard(L"67");
  const auto untouched = [this](const char* way) {
    TakeMessages();
    EXPECT_EQ(Shown(), "12") << way;
    EXPECT_EQ(Selected(), Range(1, 1)) << way;
    EXPECT_EQ(form->txtFirst.Text(), "12") << way;
    EXPECT_EQ(form->txtFirst.SelStart, 1) << way;
    EXPECT_EQ(Joined(form->Log), "") << way;
  };
  SendMessageW(Edit(), WM_PASTE, 0, 0);
  untouched("a paste by another program");
  SendMessageW(Edit(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"67"));
  untouched("a text put in by another program");
  SendMessageW(Edit(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"67"));
  untouched("a text set by a screen reader");
  SendMessageW(Edit(), WM_MBUTTONDOWN, MK_MBUTTON, At({5, 5}));
  SendMessageW(Edit(), WM_MBUTTONUP, 0, At({5, 5}));
  untouched("the middle button");
  SendMessageW(Edit(), EM_SETSEL, 0, 1);
  SendMessageW(Edit(), WM_CLEAR, 0, 0);
  EXPECT_EQ(Shown(), "12") << "nor does anything else take something out";
  Type(L"3");
  EXPECT_EQ(form->txtFirst.Text(), Shown());
}

TEST_F(WinKeys, GetWhatAnInputMethodHandsOver) {
  form->txtFirst.KeyPress = [](KeyEvent& key) {
    if (key.Code < '0' || key.Code > '9') key.Code = 0;
  };
  Show();
  for (const wchar_t unit : {L'3', L'x', L'\xFF15', L'4'}) SendMessageW(Edit(), WM_IME_CHAR, unit, 1);
  TakeMessages();
  EXPECT_EQ(form->txtFirst.Text(), "34");
  EXPECT_EQ(Shown(), "34");
  const HIMC context = ImmGetContext(Edit());
  if (context == nullptr) GTEST_SKIP() << "this Windows has no input methods";
  wchar_t composed[] = L"5y";
  ImmSetCompositionStringW(context, SCS_SETSTR, composed, sizeof composed - sizeof(wchar_t), nullptr, 0);
  ImmNotifyIME(context, NI_COMPOSITIONSTR, CPS_COMPLETE, 0);
  ImmReleaseContext(Edit(), context);
  TakeMessages();
  EXPECT_EQ(Shown(), form->txtFirst.Text());
  EXPECT_EQ(form->txtFirst.Text(), "345");
}

TEST_F(WinKeys, SelectAllAndBackspaceEmptyIt) {
  form->txtFirst.Text = "1234";
  Show();
  SendKey('A', L"\x01", 2);
  EXPECT_EQ(form->txtFirst.SelLength, 4);
  EXPECT_EQ(Selected(), Range(0, 4));
  SendKey(VK_BACK, L"\b");
  EXPECT_EQ(form->txtFirst.Text(), "");
  EXPECT_EQ(Shown(), "");
}

TEST_F(WinKeys, ThePersonsCaretOutlivesOtherChanges) {
  form->txtFirst.Text = "1234";
  Show();
  SendKey(VK_RIGHT);
  SendKey(VK_RIGHT);
  EXPECT_EQ(form->txtFirst.SelStart, 2);
  form->txtFirst.ToolTipText = "news";
  platform->SyncAll();
  EXPECT_EQ(Selected(), Range(2, 2));
}

TEST_F(WinKeys, CharactersBeyondSixteenBitsAreOneToTheHandlers) {
  form->txtFirst.KeyPress = [this](KeyEvent& key) { form->Log.push_back(std::to_string(key.Code)); };
  Show();
  SendKey(VK_PACKET, L"\xD83D\xDE00");
  SendKey(VK_PACKET, L"\x20AC");
  EXPECT_EQ(Joined(form->Log), "128512 8364");
  EXPECT_EQ(form->txtFirst.Text(), "\xF0\x9F\x98\x80\xE2\x82\xAC");
  EXPECT_EQ(form->txtFirst.SelStart, 2);
  EXPECT_EQ(Selected(), Range(3, 3));
  form->txtFirst.SelStart = 1;
  platform->SyncAll();
  EXPECT_EQ(Selected(), Range(2, 2));
}

TEST_F(WinKeys, ACharacterOfTwoUnitsIsDroppedAsOne) {
  form->txtFirst.KeyDown = [](KeyEvent& key) {
    if (key.Code == VK_PACKET) key.Code = 0;
  };
  Show();
  SendKey(VK_PACKET, L"\xD83D\xDE00");
  EXPECT_EQ(form->txtFirst.Text(), "");
  form->txtFirst.KeyDown = nullptr;
  SendMessageW(GetFocus(), WM_CHAR, 0xDE00, 1);  // the second half of nothing
  Type(L"1");
  EXPECT_EQ(form->txtFirst.Text(), "1");
}

TEST_F(WinKeys, AFaultInAHandlerIsToldAndTheBoxGoesOn) {
  form->txtFirst.KeyPress = [](KeyEvent& key) {
    if (key.Code == '0') throw RuntimeError(11);
  };
  String told;
  platform->Trace.Failed = [&told](const RuntimeError& error, const String& in) {
    told = std::to_string(error.Number()) + " " + in;
    return true;
  };
  Show();
  Type(L"01");
  EXPECT_EQ(told, "11 frmTest.txtFirst_KeyPress");
  EXPECT_EQ(form->txtFirst.Text(), "01");
  platform->Trace.Failed = nullptr;
}

}  // namespace Tarnwise
