#include "com/Registry.h"

#include "com/Errors.h"

namespace Tarnwise {

namespace {

HKEY RootOf(ClassesOf whose) { return whose == ClassesOf::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER; }

std::wstring Path(const std::wstring& key) { return L"Software\\Classes\\" + key; }

void CheckStatus(LSTATUS status, const char* description) {
  if (status != ERROR_SUCCESS) throw ComFailure(HRESULT_FROM_WIN32(static_cast<DWORD>(status)), description);
}

}  // namespace

bool ClassesWritable(ClassesOf whose) {
  HKEY classes = nullptr;
  if (RegOpenKeyExW(RootOf(whose), L"Software\\Classes", 0, KEY_WRITE, &classes) != ERROR_SUCCESS) return false;
  RegCloseKey(classes);
  return true;
}

void WriteClassValue(ClassesOf whose, const std::wstring& key, const std::wstring& name, const std::wstring& text) {
  HKEY opened = nullptr;
  CheckStatus(RegCreateKeyExW(RootOf(whose), Path(key).c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_SET_VALUE,
                              nullptr, &opened, nullptr),
              "A key of the registry can't be made.");
  const LSTATUS status = RegSetValueExW(opened, name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                                        static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
  RegCloseKey(opened);
  CheckStatus(status, "A value of the registry can't be written.");
}

bool ClassKeyExists(ClassesOf whose, const std::wstring& key, REGSAM view) {
  HKEY opened = nullptr;
  if (RegOpenKeyExW(RootOf(whose), Path(key).c_str(), 0, KEY_READ | view, &opened) != ERROR_SUCCESS) return false;
  RegCloseKey(opened);
  return true;
}

void DeleteClassKey(ClassesOf whose, const std::wstring& key) {
  const LSTATUS status = RegDeleteTreeW(RootOf(whose), Path(key).c_str());
  if (status != ERROR_FILE_NOT_FOUND) CheckStatus(status, "A key of the registry can't be removed.");
}

}  // namespace Tarnwise
