#include "com/Module.h"

#include "com/Errors.h"
#include "runtime/windows/OwnModule.h"
#include "view/win32/WinLifetime.h"

#include <atomic>

namespace Tarnwise {

namespace {

std::atomic<long> uses{0};

}  // namespace

ModuleUse::ModuleUse() { ++uses; }
ModuleUse::ModuleUse(const ModuleUse&) { ++uses; }
ModuleUse::~ModuleUse() { --uses; }

void LockModule(bool lock) { uses += lock ? 1 : -1; }

std::wstring ModulePath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(OwnModule(), path.data(), static_cast<DWORD>(path.size()));
    if (length == 0) throw ComFailure(HRESULT_FROM_WIN32(GetLastError()), "The component's own file can't be found.");
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

}  // namespace Tarnwise

STDAPI DllCanUnloadNow() {
  // Windows that are still to be destroyed have their code here.
  return Tarnwise::uses == 0 && Tarnwise::WindowsAlive() == 0 ? S_OK : S_FALSE;
}
