#include "view/win32/WinLifetime.h"

#include "runtime/PerThread.h"
#include "runtime/windows/OwnModule.h"
#include "view/win32/WinForm.h"

#include <algorithm>
#include <atomic>
#include <utility>
#include <vector>

namespace Tarnwise {

namespace {

struct Grave {
  HWND Window;
  std::shared_ptr<WinForm> Form;
  int Depth;  // how many entries were on the stack
};

struct Graveyard {
  int Depth = 0;
  UINT_PTR Timer = 0;
  std::vector<Grave> Graves;
};

Graveyard& Yard() {
  static PerThread<Graveyard> yard;
  return yard.Get();
}

std::atomic<long> alive = 0;

constexpr WORD kManifestOfDll = 2;
constexpr WORD kManifestOfProgram = 1;

void Dig() {
  std::vector<Grave> ready;
  std::erase_if(Yard().Graves, [&ready](const Grave& grave) {
    if (Yard().Depth >= grave.Depth) return false;
    ready.push_back(grave);
    return true;
  });
  for (Grave& grave : ready) {
    if (grave.Window != nullptr) DestroyWindow(grave.Window);
    grave.Form.reset();
  }
  if (Yard().Timer != 0 && Yard().Graves.empty()) KillTimer(nullptr, std::exchange(Yard().Timer, 0));
}

void CALLBACK DigNow(HWND /*window*/, UINT /*message*/, UINT_PTR timer, DWORD /*time*/) {
  KillTimer(nullptr, timer);
  Yard().Timer = 0;
  Dig();
  // What is still being carried out digs when it ends.
}

void DigLater() {
  if (Yard().Timer == 0 && !Yard().Graves.empty()) Yard().Timer = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, DigNow);
}

void Bury(Grave grave) {
  grave.Depth = std::max(Yard().Depth, 1);
  Yard().Graves.push_back(std::move(grave));
  if (Yard().Depth == 0)
    Dig();
  else
    DigLater();
}

HANDLE OwnContext() {
  for (const WORD resource : {kManifestOfDll, kManifestOfProgram}) {
    ACTCTXW context{};
    context.cbSize = sizeof context;
    context.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    context.hModule = OwnModule();
    context.lpResourceName = MAKEINTRESOURCEW(resource);
    const HANDLE made = CreateActCtxW(&context);
    if (made != INVALID_HANDLE_VALUE) return made;
  }
  return INVALID_HANDLE_VALUE;
}

}  // namespace

WinEntry::WinEntry(Form& form) : form_(form.shared_from_this()) { ++Yard().Depth; }

WinEntry::~WinEntry() {
  form_.reset();
  --Yard().Depth;
  DigLater();
}

void Bury(HWND window) { Bury(Grave{window, nullptr, 0}); }

void Bury(std::shared_ptr<WinForm> form) { Bury(Grave{nullptr, std::move(form), 0}); }

long WindowsAlive() { return alive; }

void CountWindow(int by) { alive += by; }

OwnLook::OwnLook() {
  static const HANDLE context = OwnContext();
  if (context != INVALID_HANDLE_VALUE && ActivateActCtx(context, &cookie_) == 0) cookie_ = 0;
}

OwnLook::~OwnLook() {
  if (cookie_ != 0) DeactivateActCtx(0, cookie_);
}

}  // namespace Tarnwise
