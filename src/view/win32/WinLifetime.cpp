#include "view/win32/WinLifetime.h"

#include "runtime/PerThread.h"
#include "runtime/windows/OwnModule.h"
#include "view/Lifetime.h"

#include <atomic>

namespace Tarnwise {

namespace {

std::atomic<long> alive = 0;

constexpr WORD kManifestOfDll = 2;
constexpr WORD kManifestOfProgram = 1;

UINT_PTR& DigTimer() {
  static PerThread<UINT_PTR> timer;
  return timer.Get();
}

void CALLBACK DigNow(HWND /*window*/, UINT /*message*/, UINT_PTR timer, DWORD /*time*/) {
  KillTimer(nullptr, timer);
  DigTimer() = 0;
  Dig();
  // What is still being carried out digs when it ends.
}

void DigSoon() {
  if (DigTimer() == 0) DigTimer() = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, DigNow);
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

void BuryOnThisThread() { DigBy(DigSoon, true); }

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
