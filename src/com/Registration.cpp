// Registering the component, for the whole machine, or for the user alone where the machine's part can't be written.
#include "com/Errors.h"
#include "com/Module.h"
#include "com/Registry.h"
#include "com/TypeInfo.h"

#include <Tarnwise_DEA.h>

// The system has them, the compiler's headers do not.
STDAPI RegisterTypeLibForUser(ITypeLib* library, OLECHAR* path, OLECHAR* helpFolder);
STDAPI UnRegisterTypeLibForUser(REFGUID library, WORD major, WORD minor, LCID locale, SYSKIND system);

namespace Tarnwise {

namespace {

#ifdef _WIN64
constexpr SYSKIND kSystem = SYS_WIN64;
constexpr REGSAM kOtherView = KEY_WOW64_32KEY;
#else
constexpr SYSKIND kSystem = SYS_WIN32;
constexpr REGSAM kOtherView = KEY_WOW64_64KEY;
#endif
constexpr unsigned short kMajor = 1;
constexpr unsigned short kMinor = 0;

std::wstring Braced(REFGUID guid) {
  constexpr int kLength = 39;
  wchar_t text[kLength] = {};
  StringFromGUID2(guid, text, kLength);
  return text;
}

std::wstring ClassKey() { return L"CLSID\\" + Braced(CLSID_TRN_DEA); }

struct Row {
  std::wstring Key;
  std::wstring Name;
  std::wstring Text;
};

// An empty text makes the key alone mean something.
void WriteRows(ClassesOf whose) {
  const std::wstring key = ClassKey();
  const Row rows[] = {
      {key, L"", kProgId},
      {key + L"\\InprocServer32", L"", ModulePath()},
      {key + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
      {key + L"\\ProgID", L"", kProgId},
      {key + L"\\TypeLib", L"", Braced(LIBID_Tarnwise_DEA)},
      {key + L"\\Version", L"", L"1.0"},
      {key + L"\\Programmable", L"", L""},
      {kProgId, L"", kProgId},
      {std::wstring(kProgId) + L"\\CLSID", L"", Braced(CLSID_TRN_DEA)},
  };
  for (const Row& row : rows) WriteClassValue(whose, row.Key, row.Name, row.Text);
}

void RegisterLibrary(ClassesOf whose) {
  std::wstring path = ModulePath();
  const ComRef<ITypeLib> library = OwnTypeLibrary();
  Check(whose == ClassesOf::Machine ? RegisterTypeLib(library.Get(), path.data(), nullptr)
                                    : RegisterTypeLibForUser(library.Get(), path.data(), nullptr),
        "The type library can't be registered.");
}

void UnregisterLibrary(ClassesOf whose) {
  const HRESULT outcome = whose == ClassesOf::Machine
                              ? UnRegisterTypeLib(LIBID_Tarnwise_DEA, kMajor, kMinor, LOCALE_NEUTRAL, kSystem)
                              : UnRegisterTypeLibForUser(LIBID_Tarnwise_DEA, kMajor, kMinor, LOCALE_NEUTRAL, kSystem);
  if (outcome != TYPE_E_REGISTRYACCESS) Check(outcome, "The type library's registration can't be removed.");
}

// The name belongs to the components of 32 and of 64 bits together: the last one takes it away.
void Unregister(ClassesOf whose) {
  UnregisterLibrary(whose);
  DeleteClassKey(whose, ClassKey());
  if (!ClassKeyExists(whose, ClassKey(), kOtherView)) DeleteClassKey(whose, kProgId);
}

void Register(ClassesOf whose) {
  try {
    WriteRows(whose);
    RegisterLibrary(whose);
  } catch (...) {
    const HRESULT failure = CurrentFailure();
    Guarded([&] { Unregister(whose); });
    throw ComFailure(failure, "The component can't be registered.");
  }
}

}  // namespace

}  // namespace Tarnwise

STDAPI DllRegisterServer() {
  using namespace Tarnwise;
  return Guarded([] { Register(ClassesWritable(ClassesOf::Machine) ? ClassesOf::Machine : ClassesOf::User); });
}

STDAPI DllUnregisterServer() {
  using namespace Tarnwise;
  return Guarded([] {
    for (const ClassesOf whose : {ClassesOf::User, ClassesOf::Machine}) {
      if (ClassKeyExists(whose, ClassKey(), 0)) Unregister(whose);
    }
  });
}

// With the text "user": for the user alone, whatever could be written (regsvr32 /n /i:user).
STDAPI DllInstall(BOOL install, LPCWSTR commandLine) {
  using namespace Tarnwise;
  if (commandLine == nullptr || std::wstring(commandLine) != L"user") return E_INVALIDARG;
  return Guarded([install] {
    if (install != FALSE) {
      Register(ClassesOf::User);
    } else {
      Unregister(ClassesOf::User);
    }
  });
}
