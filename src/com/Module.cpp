#include "com/Module.h"

#include "com/Errors.h"
#include "view/win32/WinLifetime.h"

#include <atomic>

extern "C" IMAGE_DOS_HEADER __ImageBase;  // the linker's name for where this module begins

namespace Tarnwise {

namespace {

std::atomic<long> uses{0};

}  // namespace

ModuleUse::ModuleUse() { ++uses; }
ModuleUse::ModuleUse(const ModuleUse&) { ++uses; }
ModuleUse::~ModuleUse() { --uses; }

void LockModule(bool lock) { uses += lock ? 1 : -1; }

std::wstring ModulePath() {
  const auto module = reinterpret_cast<HINSTANCE>(&__ImageBase);
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
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
