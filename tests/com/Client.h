// A COM host for tests: the component loaded from the current folder, an object of it on a screen that nobody looks at,
// and a sink that notes the events.
#pragma once

#include "com/player/PlayerAccess.h"
#include "runtime/windows/ComRef.h"
#include "support/TestHost.h"

#include <windows.h>

#include <ocidl.h>

#include <Tarnwise_DEA.h>

namespace Tarnwise {

inline constexpr const wchar_t* kDll = L"Tarnwise_DEA.dll";

// The module; it stays loaded until the end.
ComRef<IClassFactory> Factory();
HRESULT CanUnloadNow();
HRESULT CallSetHelp(IUnknown* wizard, IDispatch* handler);  // the function that the module exports
std::wstring DllPath();

// A value in words: "I2 3", "BSTR DEA_DIRECT", "&VARIANT R8 1.5", "&[0..1] R8 1; R8 0.5".
String Described(const VARIANT& value);

class Sink final : public IDispatch {
 public:
  STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override { return ++References; }
  STDMETHODIMP_(ULONG) Release() override;
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID event, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO*,
                      UINT*) override;

  Lines Notes;  // "5(BSTR ...)": the event's number and its arguments in the order of the declaration
  std::function<void(DISPID event, DISPPARAMS& parameters)> Inside;
  HRESULT Answer = S_OK;
  bool KnowsEvents = true;  // answers to the event interface, not only to IDispatch
  bool* Gone = nullptr;     // set when the last reference is let go
  ULONG References = 1;

 private:
  ~Sink() = default;
};

ComRef<IConnectionPoint> PointOf(IUnknown* object);
DWORD Advised(IUnknown* object, Sink& sink);

// An object with a model of two benefits and two costs.
struct Client : TestScreen {
  explicit Client(const WizardData& model);
  ~Client();

  void Load();      // GetCurFileData
  void Points();    // TranferABCoordinates, all zero
  void ToLast();    // by stored judgments to the last step, inside modal calls; then runs `Last`
  void Finishes();  // ... and Finish there
  HRESULT LetGo();  // releases the object; what DllCanUnloadNow says then

  ComRef<_TRN_DEA> Object;
  WizardData* Data = nullptr;
  TemporaryFolder Folder;
  std::vector<std::function<void()>> Last;
};

WizardData Judged(const char* type);

// A late-bound call with these arguments in the order of the declaration; the last `named` ones by their names.
struct LateCall {
  HRESULT Outcome = S_OK;
  EXCEPINFO Exception = {};
  UINT BadArgument = 99;
  String Description;
  String Source;
};
LateCall CallLate(IDispatch* object, const wchar_t* name, std::vector<VARIANT> arguments,
                  std::vector<const wchar_t*> named = {});

// A value for a call; texts and arrays are freed by FreeAll.
VARIANT Of(const wchar_t* text);
VARIANT Of(double number);
VARIANT Of(short number);
VARIANT Of(SAFEARRAY* array);
SAFEARRAY* Numbers(LONG first, const std::vector<double>& values);   // of plain numbers
SAFEARRAY* Variants(LONG first, const std::vector<double>& values);  // of VARIANT
void FreeAll(std::vector<VARIANT>& values);

struct Told {
  String Description;
  String Source;
};
Told ErrorInfo();  // of this thread; taken away

}  // namespace Tarnwise
