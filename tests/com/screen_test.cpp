// The component on its own screen: the windows that a person sees and presses.
#include "Client.h"
#include "com/Convert.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

const wchar_t* const kFirst = L"Tarnwise: Select an approach to elicit attribute weights";
const wchar_t* const kOrdering = L"Tarnwise: Give rank orders of the attirbutes";

void TakeMessages() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

HWND Button(HWND form, const wchar_t* caption) { return FindWindowExW(form, nullptr, L"Button", caption); }

// The left button goes down and up over it, whatever stands there.
void PressReally(HWND button) {
  POINT at{10, 10};
  ClientToScreen(button, &at);
  SetCursorPos(at.x, at.y);
  for (const DWORD flag : {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP}) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flag;
    SendInput(1, &input, sizeof input);
  }
  for (int i = 0; i < 10; ++i) {
    Sleep(10);
    TakeMessages();
  }
}

std::function<void()> inModalCall;

void CALLBACK RunInModalCall(HWND /*window*/, UINT /*message*/, UINT_PTR timer, DWORD /*time*/) {
  KillTimer(nullptr, timer);
  inModalCall();
}

// An object on the screen that it makes itself, with a model of two benefits and two costs.
struct OnItsOwnScreen {
  OnItsOwnScreen() {
    EXPECT_EQ(Factory()->CreateInstance(nullptr, IID__TRN_DEA, reinterpret_cast<void**>(Object.Receive())), S_OK);
    WriteModel(Folder.File("model.kst"), ModelOf(2, 2));
    VARIANT folder = Of(L"C:/KESTA");
    const Bstr path(ToBSTR(Folder.File("model.kst")));
    EXPECT_EQ(Object->GetCurFileData(&folder, 3, path.Get()), S_OK);
    VariantClear(&folder);
    EXPECT_EQ(Object->ShowTarnwise(), S_OK);
    TakeMessages();
  }

  TemporaryFolder Folder;
  ComRef<_TRN_DEA> Object;
};

TEST(OwnScreen, TheFirstStepShownWhileALaterOneIsOpenStaysBlocked) {
  OnItsOwnScreen client;
  const HWND first = FindWindowW(nullptr, kFirst);
  ASSERT_NE(first, nullptr);
  bool ran = false;
  inModalCall = [&] {
    ran = true;
    const HWND ordering = FindWindowW(nullptr, kOrdering);
    ASSERT_NE(ordering, nullptr);
    EXPECT_FALSE(IsWindowVisible(first));
    EXPECT_EQ(client.Object->ShowTarnwise(), S_OK);
    EXPECT_TRUE(IsWindowVisible(first));
    EXPECT_FALSE(IsWindowEnabled(first));
    EXPECT_EQ(GetActiveWindow(), ordering);
    SetWindowPos(first, nullptr, 100, 300, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    SetWindowPos(ordering, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    PressReally(Button(first, L"&Next >"));
    SendMessageW(Button(first, L"&Next >"), BM_CLICK, 0, 0);
    EXPECT_TRUE(IsWindowVisible(first)) << "its Next would have hidden it";
    EXPECT_TRUE(IsWindowVisible(ordering));
    SendMessageW(Button(ordering, L"< &Back"), BM_CLICK, 0, 0);
  };
  SetTimer(nullptr, 0, 50, RunInModalCall);
  SendMessageW(Button(first, L"&Next >"), BM_CLICK, 0, 0);  // blocks until the ordering step is left
  EXPECT_TRUE(ran);
  EXPECT_TRUE(IsWindowVisible(first));
  EXPECT_TRUE(IsWindowEnabled(first));
  EXPECT_EQ(GetActiveWindow(), first);
  EXPECT_EQ(client.Object->UnloadTarnwise(), S_OK);
  TakeMessages();
}

TEST(OwnScreen, HelpIsToldTheStepsWindow) {
  OnItsOwnScreen client;
  const HWND first = FindWindowW(nullptr, kFirst);
  Sink* const handler = new Sink;
  HWND asked = nullptr;
  handler->Inside = [&asked](DISPID, DISPPARAMS& p) { asked = static_cast<HWND>(LongToHandle(p.rgvarg[3].lVal)); };
  EXPECT_EQ(CallSetHelp(client.Object.Get(), handler), S_OK);
  SendMessageW(Button(first, L"&Help"), BM_CLICK, 0, 0);
  EXPECT_EQ(asked, first);
  EXPECT_EQ(client.Object->UnloadTarnwise(), S_OK);
  client.Object = {};
  EXPECT_EQ(handler->Release(), 0U) << "the object has let it go";
}

}  // namespace
}  // namespace Tarnwise
