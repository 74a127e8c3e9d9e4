#include "view/win32/WinNames.h"

#include <oleacc.h>

#include <memory>

namespace Tarnwise {

namespace {

constexpr CLSID kService{0xB5F8350B, 0x0548, 0x48B1, {0xA6, 0xEE, 0x88, 0xBD, 0x00, 0xB4, 0xA5, 0xE7}};
constexpr IID kInterface{0x6E26E776, 0x04F0, 0x495D, {0x80, 0xE4, 0x33, 0x30, 0x35, 0x2E, 0x31, 0x69}};
constexpr MSAAPROPID kName{0x608D3DF8, 0x8128, 0x4AA7, {0xA4, 0x28, 0xF5, 0x5E, 0x49, 0x26, 0x72, 0x91}};
constexpr const wchar_t* kNamed = L"TarnwiseNamed";

struct LetGo {
  void operator()(IUnknown* object) const { object->Release(); }
};
using Service = std::unique_ptr<IAccPropServices, LetGo>;

Service MakeService() {
  void* made = nullptr;
  if (FAILED(CoCreateInstance(kService, nullptr, CLSCTX_INPROC_SERVER, kInterface, &made))) return nullptr;
  return Service(static_cast<IAccPropServices*>(made));
}

}  // namespace

bool NameWindow(HWND window, const std::wstring& name) {
  const auto stamp = reinterpret_cast<HANDLE>(std::hash<std::wstring>()(name) | 1U);
  if (GetPropW(window, kNamed) == stamp) return true;
  const Service service = MakeService();
  if (!service) return false;
  const auto client = static_cast<DWORD>(OBJID_CLIENT);
  if (FAILED(service->SetHwndPropStr(window, client, CHILDID_SELF, kName, name.c_str()))) return false;
  SetPropW(window, kNamed, stamp);
  return true;
}

void ForgetName(HWND window) {
  if (RemovePropW(window, kNamed) == nullptr) return;
  if (const Service service = MakeService()) {
    service->ClearHwndProps(window, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, &kName, 1);
  }
}

}  // namespace Tarnwise
