// A script host for VBScript, with as much of the object WScript as samples/com/hospitals.vbs uses: Arguments,
// CreateObject with event procedures, Echo, ScriptFullName, Sleep. For systems whose own script hosts connect no
// events.
//
//   script_host [--seconds N] SCRIPT.vbs [ARGUMENT...]
//
// The language engine is the system's. Status 1: the script failed, 2: it could not be started, 3: it took too long.
#include <windows.h>

#include <activscp.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "EventSink.h"
#include "ScriptObject.h"

namespace {

struct Job {
  DWORD Seconds = 60;
  std::wstring Path;
  std::vector<std::wstring> Arguments;
};

const CLSID kVBScript = {0xb54f3741, 0x5b07, 0x11cf, {0xa4, 0xb0, 0x00, 0xaa, 0x00, 0x4a, 0x55, 0xe8}};

std::wstring ReadScript(const std::wstring& path) {
  std::string bytes;
  FILE* file = _wfopen(path.c_str(), L"rb");
  if (file == nullptr) return L"";
  char part[4096];
  for (std::size_t n = 0; (n = std::fread(part, 1, sizeof part, file)) > 0;) bytes.append(part, n);
  std::fclose(file);
  return std::wstring(bytes.begin(), bytes.end());  // ASCII
}

VARIANT TextVariant(const std::wstring& text) {
  VARIANT value;
  V_VT(&value) = VT_BSTR;
  V_BSTR(&value) = SysAllocString(text.c_str());
  return value;
}

VARIANT NumberVariant(LONG number) {
  VARIANT value;
  V_VT(&value) = VT_I4;
  V_I4(&value) = number;
  return value;
}

VARIANT ObjectVariant(IDispatch* object) {
  VARIANT value;
  V_VT(&value) = VT_DISPATCH;
  V_DISPATCH(&value) = object;
  return value;
}

std::wstring TextOf(VARIANT& value) {
  VARIANT text;
  VariantInit(&text);
  std::wstring result;
  if (SUCCEEDED(VariantChangeTypeEx(&text, &value, LOCALE_INVARIANT, VARIANT_ALPHABOOL, VT_BSTR))) {
    result.assign(V_BSTR(&text), SysStringLen(V_BSTR(&text)));
  }
  VariantClear(&text);
  return result;
}

// Events arrive here, while the script sleeps.
void SleepWithMessages(DWORD milliseconds) {
  const ULONGLONG end = GetTickCount64() + milliseconds;
  for (;;) {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
    const ULONGLONG now = GetTickCount64();
    if (now >= end) return;
    MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(end - now), QS_ALLINPUT);
  }
}

// The script's global object WScript, and the site that the engine runs in.
struct Host {
  const Job& Work;
  IActiveScript* Engine = nullptr;
  ScriptObject WScript;
  ScriptObject Arguments;
  std::vector<EventConnection> Connections;
  bool Failed = false;

  explicit Host(const Job& job);
  HRESULT CreateObject(std::vector<VARIANT>& arguments, VARIANT* result);
};

HRESULT Echo(std::vector<VARIANT>& arguments) {
  std::wstring line;
  for (VARIANT& argument : arguments) line += (line.empty() ? L"" : L" ") + TextOf(argument);
  std::printf("%ls\n", line.c_str());
  std::fflush(stdout);
  return S_OK;
}

// CreateObject(ProgID, Prefix): the object's events call the script's procedures with that prefix.
HRESULT Host::CreateObject(std::vector<VARIANT>& arguments, VARIANT* result) {
  if (arguments.empty() || arguments.size() > 2) return DISP_E_BADPARAMCOUNT;
  CLSID class_id;
  HRESULT outcome = CLSIDFromProgID(TextOf(arguments[0]).c_str(), &class_id);
  if (FAILED(outcome)) return outcome;
  IDispatch* object = nullptr;
  outcome = CoCreateInstance(class_id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, reinterpret_cast<void**>(&object));
  if (SUCCEEDED(outcome) && arguments.size() == 2) {
    EventConnection connection;
    outcome = ConnectEvents(object, Engine, TextOf(arguments[1]), connection);
    if (SUCCEEDED(outcome)) Connections.push_back(connection);
  }
  if (FAILED(outcome)) {
    if (object != nullptr) object->Release();
    return outcome;
  }
  *result = ObjectVariant(object);
  return S_OK;
}

Host::Host(const Job& job) : Work(job) {
  Arguments.Members[L"count"] = [this](std::vector<VARIANT>&, VARIANT* result) {
    *result = NumberVariant(static_cast<LONG>(Work.Arguments.size()));
    return S_OK;
  };
  Arguments.Default = [this](std::vector<VARIANT>& arguments, VARIANT* result) {
    if (arguments.size() != 1) return DISP_E_BADPARAMCOUNT;
    const std::size_t i = std::wcstoul(TextOf(arguments[0]).c_str(), nullptr, 10);
    if (i >= Work.Arguments.size()) return DISP_E_BADINDEX;
    *result = TextVariant(Work.Arguments[i]);
    return S_OK;
  };
  WScript.Members[L"arguments"] = [this](std::vector<VARIANT>& arguments, VARIANT* result) {
    if (!arguments.empty()) return Arguments.Default(arguments, result);
    *result = ObjectVariant(&Arguments);
    return S_OK;
  };
  WScript.Members[L"scriptfullname"] = [this](std::vector<VARIANT>&, VARIANT* result) {
    *result = TextVariant(Work.Path);
    return S_OK;
  };
  WScript.Members[L"echo"] = [](std::vector<VARIANT>& arguments, VARIANT*) { return Echo(arguments); };
  WScript.Members[L"sleep"] = [](std::vector<VARIANT>& arguments, VARIANT*) {
    if (arguments.size() != 1) return DISP_E_BADPARAMCOUNT;
    SleepWithMessages(std::wcstoul(TextOf(arguments[0]).c_str(), nullptr, 10));
    return S_OK;
  };
  WScript.Members[L"createobject"] = [this](std::vector<VARIANT>& arguments, VARIANT* result) {
    return CreateObject(arguments, result);
  };
}

struct Site final : IActiveScriptSite {
  Host& Owner;

  explicit Site(Host& host) : Owner(host) {}

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
    *object = iid == IID_IUnknown || iid == IID_IActiveScriptSite ? this : nullptr;
    return *object != nullptr ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return 2; }  // lives as long as the program
  STDMETHODIMP_(ULONG) Release() override { return 1; }

  STDMETHODIMP GetLCID(LCID* locale) override {
    *locale = LOCALE_INVARIANT;
    return S_OK;
  }
  STDMETHODIMP GetItemInfo(LPCOLESTR name, DWORD wanted, IUnknown** item, ITypeInfo** type) override {
    if (wcscmp(name, L"WScript") != 0) return TYPE_E_ELEMENTNOTFOUND;
    if (type != nullptr) *type = nullptr;
    if ((wanted & SCRIPTINFO_IUNKNOWN) != 0) *item = &Owner.WScript;
    return S_OK;
  }
  STDMETHODIMP GetDocVersionString(BSTR*) override { return E_NOTIMPL; }
  STDMETHODIMP OnScriptTerminate(const VARIANT*, const EXCEPINFO*) override { return S_OK; }
  STDMETHODIMP OnStateChange(SCRIPTSTATE) override { return S_OK; }
  STDMETHODIMP OnScriptError(IActiveScriptError* error) override {
    Owner.Failed = true;
    EXCEPINFO info = {};
    DWORD context = 0;
    ULONG line = 0;
    LONG column = 0;
    error->GetExceptionInfo(&info);
    error->GetSourcePosition(&context, &line, &column);
    std::printf("script error 0x%08lX in line %lu: %ls\n", static_cast<unsigned long>(info.scode), line + 1,
                info.bstrDescription != nullptr ? info.bstrDescription : L"");
    std::fflush(stdout);
    return S_OK;
  }
  STDMETHODIMP OnEnterScript() override { return S_OK; }
  STDMETHODIMP OnLeaveScript() override { return S_OK; }
};

int RunScript(const Job& job) {
  const std::wstring text = ReadScript(job.Path);
  Host host(job);
  Site site(host);
  IActiveScriptParse* parser = nullptr;
  if (text.empty() ||
      FAILED(CoCreateInstance(kVBScript, nullptr, CLSCTX_INPROC_SERVER, IID_IActiveScript,
                              reinterpret_cast<void**>(&host.Engine))) ||
      FAILED(host.Engine->QueryInterface(__uuidof(IActiveScriptParse), reinterpret_cast<void**>(&parser)))) {
    std::fputs("script_host: no script, or no engine for it\n", stderr);
    return 2;
  }
  HRESULT outcome = parser->InitNew();
  if (SUCCEEDED(outcome)) outcome = host.Engine->SetScriptSite(&site);
  if (SUCCEEDED(outcome)) outcome = host.Engine->AddNamedItem(L"WScript", SCRIPTITEM_ISVISIBLE);
  if (SUCCEEDED(outcome)) outcome = host.Engine->SetScriptState(SCRIPTSTATE_CONNECTED);
  if (SUCCEEDED(outcome)) {
    outcome =
        parser->ParseScriptText(text.c_str(), nullptr, nullptr, nullptr, 0, 0, SCRIPTTEXT_ISVISIBLE, nullptr, nullptr);
  }
  if (FAILED(outcome)) std::printf("script_host: 0x%08lX\n", static_cast<unsigned long>(outcome));
  for (EventConnection& connection : host.Connections) DisconnectEvents(connection);
  parser->Release();
  host.Engine->Close();
  host.Engine->Release();
  CoFreeUnusedLibrariesEx(0, 0);
  return FAILED(outcome) || host.Failed ? 1 : 0;
}

DWORD WINAPI EndAfter(void* seconds) {
  Sleep(1000 * *static_cast<const DWORD*>(seconds));
  std::puts("script_host: the script took too long");
  std::fflush(stdout);
  TerminateProcess(GetCurrentProcess(), 3);
  return 0;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  Job job;
  int next = 1;
  if (argc > 2 && wcscmp(argv[1], L"--seconds") == 0) {
    job.Seconds = std::wcstoul(argv[2], nullptr, 10);
    next = 3;
  }
  if (next >= argc) {
    std::fputs("usage: script_host [--seconds N] SCRIPT.vbs [ARGUMENT...]\n", stderr);
    return 2;
  }
  wchar_t full[MAX_PATH] = L"";
  GetFullPathNameW(argv[next], MAX_PATH, full, nullptr);
  job.Path = full;
  job.Arguments.assign(argv + next + 1, argv + argc);

  if (FAILED(OleInitialize(nullptr))) return 2;
  CloseHandle(CreateThread(nullptr, 0, EndAfter, &job.Seconds, 0, nullptr));
  const int status = RunScript(job);
  OleUninitialize();
  return status;
}
