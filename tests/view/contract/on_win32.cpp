#include "view/contract/Contract.h"

#include "Messages.h"
#include "runtime/windows/WideText.h"
#include "view/contract/Perceived.h"
#include "view/win32/Win32Driver.h"
#include "view/win32/WinForm.h"
#include "view/win32/WinToolkit.h"

#include <tarnwise/Platform.h>

#include <commctrl.h>
#include <oleacc.h>

namespace Tarnwise {

namespace {

// The library of the cross compilers has another number for it.
constexpr IID kAccessible{0x618736E0, 0x3C3D, 0x11CF, {0x81, 0x0C, 0x00, 0xAA, 0x00, 0x38, 0x9B, 0x71}};

std::wstring NameOf(HWND window) {
  void* found = nullptr;
  const HRESULT entered = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  BSTR name = nullptr;
  if (SUCCEEDED(AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), kAccessible, &found))) {
    VARIANT self{};
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    static_cast<IAccessible*>(found)->get_accName(self, &name);
    static_cast<IAccessible*>(found)->Release();
  }
  const std::wstring text = name == nullptr ? L"" : name;
  SysFreeString(name);
  if (SUCCEEDED(entered)) CoUninitialize();
  return text;
}

std::wstring TipOf(HWND form, HWND window) {
  wchar_t text[200] = {};
  TTTOOLINFOW tool{};
  tool.cbSize = sizeof tool;
  tool.hwnd = form;
  tool.uFlags = TTF_IDISHWND;
  tool.uId = reinterpret_cast<UINT_PTR>(window);
  tool.lpszText = text;
  SendMessageW(ThreadWindow(TOOLTIPS_CLASSW), TTM_GETTEXTW, 200, reinterpret_cast<LPARAM>(&tool));
  return text;
}

}  // namespace

std::unique_ptr<Driver> MakeContractDriver() { return MakeWin32Driver(MakeWin32Platform()); }

Perceived Perceive(const Control& control) {
  const WinForm& form = *static_cast<WinToolkit&>(control.Owner.Screen().Tools()).FormOf(control.Owner);
  const HWND window = form.WindowOf(control);
  return {Utf8(TipOf(form.Window(), window)), Utf8(NameOf(window))};
}

}  // namespace Tarnwise
