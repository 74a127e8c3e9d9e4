// Shows the wizard and prints the judgments. The class is bound early, by the header that is made from its type
// library.
//   host.exe MODEL.kst
// region wizard
#include <windows.h>

#include <ocidl.h>
#include <shellapi.h>

// What follows is to define its identifiers here.
#include <initguid.h>

#include <cstdio>
#include <string>

#include "Tarnwise_DEA.h"
// end region

namespace {

// region sink
// The argument at a place of the event's list; they are stored the other way round.
VARIANT& Argument(DISPPARAMS* arguments, UINT place) { return arguments->rgvarg[arguments->cArgs - 1 - place]; }

double Number(VARIANT& value) {
  VARIANT number;
  VariantInit(&number);
  return SUCCEEDED(VariantChangeType(&number, &value, 0, VT_R8)) ? V_R8(&number) : 0;
}

double Element(SAFEARRAY* array, LONG i) {
  VARIANT element;
  VariantInit(&element);
  SafeArrayGetElement(array, &i, &element);
  const double number = Number(element);
  VariantClear(&element);
  return number;
}

// ExportDirectBW(RJType, BRefAttID, CRefAttID, RefAttWR, Weights, WeightsH, WeightsL). The arrays come by reference and
// belong to the wizard.
void PrintIntervals(DISPPARAMS* arguments) {
  SAFEARRAY* const weights = *V_ARRAYREF(&Argument(arguments, 4));
  SAFEARRAY* const highest = *V_ARRAYREF(&Argument(arguments, 5));
  SAFEARRAY* const lowest = *V_ARRAYREF(&Argument(arguments, 6));
  std::printf("%ls, references %d and %d, their ratio %g\n", V_BSTR(&Argument(arguments, 0)),
              V_I2(&Argument(arguments, 1)), V_I2(&Argument(arguments, 2)),
              Number(*V_VARIANTREF(&Argument(arguments, 3))));
  LONG last = -1;
  SafeArrayGetUBound(weights, 1, &last);
  for (LONG j = 0; j <= last; ++j) {
    std::printf("attribute %ld: %g <= %g <= %g\n", j, Element(lowest, j), Element(weights, j), Element(highest, j));
  }
}

// Help(Window, Path, Command, Context): a page of our own, in the browser, in place of KESTA.HLP.
void ShowHelp(DISPPARAMS* arguments) {
  const std::wstring page = L"https://help.example.org/tarnwise#" + std::to_wstring(V_I4(&Argument(arguments, 3)));
  const auto window = static_cast<HWND>(LongToHandle(V_I4(&Argument(arguments, 0))));
  ShellExecuteW(window, L"open", page.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
}

// One object, which lives as long as the program.
struct Events : IDispatch {
  _TRN_DEA* Dea = nullptr;

  STDMETHODIMP Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*, EXCEPINFO*, UINT*) override {
    switch (event) {
      case DISPID_VALUE: ShowHelp(arguments); break;
      case 1:  // UnloadTarnwise(fIndex, WeightsDone)
        std::puts(V_BOOL(&Argument(arguments, 1)) != VARIANT_FALSE ? "judged" : "cancelled");
        Dea->UnloadTarnwise();
        PostQuitMessage(0);
        break;
      case 2: PrintIntervals(arguments); break;
      case 5: std::printf("%ls\n", V_BSTR(&Argument(arguments, 0))); break;
      default: break;
    }
    std::fflush(stdout);
    return S_OK;
  }

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
    const bool known = iid == IID_IUnknown || iid == IID_IDispatch || iid == DIID___TRN_DEA;
    *object = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return 2; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP GetTypeInfoCount(UINT* count) override { return *count = 0, S_OK; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
};
// end region

// region calls
HRESULT Connect(_TRN_DEA* dea, IDispatch* events, IConnectionPoint** point, DWORD* cookie) {
  IConnectionPointContainer* container = nullptr;
  HRESULT outcome = dea->QueryInterface(IID_IConnectionPointContainer, reinterpret_cast<void**>(&container));
  if (FAILED(outcome)) return outcome;
  outcome = container->FindConnectionPoint(DIID___TRN_DEA, point);
  container->Release();
  return FAILED(outcome) ? outcome : (*point)->Advise(events, cookie);
}

// The same object shows help.
HRESULT ShowHelpBy(_TRN_DEA* dea, IDispatch* handler) {
  ITarnwiseHelp* help = nullptr;
  HRESULT outcome = dea->QueryInterface(IID_ITarnwiseHelp, reinterpret_cast<void**>(&help));
  if (FAILED(outcome)) return outcome;
  outcome = help->SetHelp(handler);
  help->Release();
  return outcome;
}

// Nine arrays by reference, here one and the same: elements 0 to 30, as many as a model can have attributes.
HRESULT HandOverNoPoints(_TRN_DEA* dea) {
  SAFEARRAY* none = SafeArrayCreateVector(VT_VARIANT, 0, 31);
  if (none == nullptr) return E_OUTOFMEMORY;
  const HRESULT outcome = dea->TranferABCoordinates(&none, &none, &none, &none, &none, &none, &none, &none, &none);
  SafeArrayDestroy(none);
  return outcome;
}

HRESULT Show(_TRN_DEA* dea, const wchar_t* model) {
  VARIANT folder;
  V_VT(&folder) = VT_BSTR;
  V_BSTR(&folder) = SysAllocString(L".");
  BSTR path = SysAllocString(model);
  HRESULT outcome = dea->GetCurFileData(&folder, 1, path);
  SysFreeString(path);
  VariantClear(&folder);
  if (SUCCEEDED(outcome)) outcome = HandOverNoPoints(dea);
  if (SUCCEEDED(outcome)) outcome = dea->ShowTarnwise();
  return outcome;
}

// The wizard lives in this loop from ShowTarnwise to the event UnloadTarnwise.
HRESULT Run(const wchar_t* model) {
  _TRN_DEA* dea = nullptr;
  HRESULT outcome =
      CoCreateInstance(CLSID_TRN_DEA, nullptr, CLSCTX_INPROC_SERVER, IID__TRN_DEA, reinterpret_cast<void**>(&dea));
  if (FAILED(outcome)) return outcome;
  Events events;
  events.Dea = dea;
  IConnectionPoint* point = nullptr;
  DWORD cookie = 0;
  outcome = Connect(dea, &events, &point, &cookie);
  if (SUCCEEDED(outcome)) outcome = ShowHelpBy(dea, &events);
  if (SUCCEEDED(outcome)) outcome = Show(dea, model);
  if (SUCCEEDED(outcome)) {
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }
  if (point != nullptr) {
    point->Unadvise(cookie);
    point->Release();
  }
  dea->Release();
  return outcome;
}
// end region

// What went wrong in words, where the wizard told them: 0x800A0009 is run-time error 9.
void PrintFailure(HRESULT outcome) {
  IErrorInfo* information = nullptr;
  BSTR description = nullptr;
  if (GetErrorInfo(0, &information) == S_OK) {
    information->GetDescription(&description);
    information->Release();
  }
  std::fprintf(stderr, "0x%08lX %ls\n", static_cast<unsigned long>(outcome),
               description != nullptr ? description : L"");
  SysFreeString(description);
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  if (argc != 2) {
    std::fputs("usage: host MODEL.kst\n", stderr);
    return 2;
  }
  HRESULT outcome = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  if (SUCCEEDED(outcome)) {
    outcome = Run(argv[1]);
    if (FAILED(outcome)) PrintFailure(outcome);
    CoUninitialize();
  }
  return SUCCEEDED(outcome) ? 0 : 1;
}
