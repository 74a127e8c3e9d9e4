#include "EventSink.h"

#include <oleauto.h>
#include <olectl.h>

namespace {

struct Sink final : IDispatch {
  ULONG References = 1;
  IID Source;
  ITypeInfo* Events;
  IActiveScript* Engine;
  std::wstring Prefix;

  Sink(const IID& source, ITypeInfo* events, IActiveScript* engine, std::wstring prefix)
      : Source(source), Events(events), Engine(engine), Prefix(std::move(prefix)) {
    Engine->AddRef();
  }
  ~Sink() {
    Events->Release();
    Engine->Release();
  }

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
    *object = iid == IID_IUnknown || iid == IID_IDispatch || iid == Source ? this : nullptr;
    if (*object == nullptr) return E_NOINTERFACE;
    ++References;
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++References; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --References;
    if (left == 0) delete this;
    return left;
  }
  STDMETHODIMP GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID event, REFIID, LCID locale, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                      UINT*) override;
};

// The arguments go on as they came, by reference where they came so. An event without a procedure is not wanted.
STDMETHODIMP Sink::Invoke(DISPID event, REFIID, LCID locale, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                          UINT*) {
  BSTR name = nullptr;
  UINT count = 0;
  if (FAILED(Events->GetNames(event, &name, 1, &count)) || count == 0) return DISP_E_MEMBERNOTFOUND;
  std::wstring procedure = Prefix + name;
  SysFreeString(name);

  IDispatch* script = nullptr;
  HRESULT outcome = Engine->GetScriptDispatch(nullptr, &script);
  if (FAILED(outcome)) return outcome;
  LPOLESTR procedure_name = procedure.data();
  DISPID id = DISPID_UNKNOWN;
  if (SUCCEEDED(script->GetIDsOfNames(IID_NULL, &procedure_name, 1, locale, &id))) {
    outcome = script->Invoke(id, IID_NULL, locale, DISPATCH_METHOD, parameters, nullptr, nullptr, nullptr);
  }
  script->Release();
  return outcome;
}

HRESULT DefaultSourceOf(IUnknown* object, IID& source) {
  IProvideClassInfo2* information = nullptr;
  HRESULT outcome = object->QueryInterface(IID_IProvideClassInfo2, reinterpret_cast<void**>(&information));
  if (FAILED(outcome)) return outcome;
  outcome = information->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &source);
  information->Release();
  return outcome;
}

HRESULT EventTypesOf(IUnknown* object, const IID& source, ITypeInfo** events) {
  IDispatch* dispatch = nullptr;
  HRESULT outcome = object->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&dispatch));
  if (FAILED(outcome)) return outcome;
  ITypeInfo* methods = nullptr;
  outcome = dispatch->GetTypeInfo(0, LOCALE_INVARIANT, &methods);
  dispatch->Release();
  if (FAILED(outcome)) return outcome;
  ITypeLib* library = nullptr;
  UINT index = 0;
  outcome = methods->GetContainingTypeLib(&library, &index);
  methods->Release();
  if (FAILED(outcome)) return outcome;
  outcome = library->GetTypeInfoOfGuid(source, events);
  library->Release();
  return outcome;
}

}  // namespace

HRESULT ConnectEvents(IUnknown* object, IActiveScript* engine, const std::wstring& prefix,
                      EventConnection& connection) {
  IID source = IID_NULL;
  ITypeInfo* events = nullptr;
  HRESULT outcome = DefaultSourceOf(object, source);
  if (SUCCEEDED(outcome)) outcome = EventTypesOf(object, source, &events);
  if (FAILED(outcome)) return outcome;
  Sink* const sink = new Sink(source, events, engine, prefix);

  IConnectionPointContainer* container = nullptr;
  outcome = object->QueryInterface(IID_IConnectionPointContainer, reinterpret_cast<void**>(&container));
  if (SUCCEEDED(outcome)) {
    outcome = container->FindConnectionPoint(source, &connection.Point);
    container->Release();
  }
  if (SUCCEEDED(outcome)) outcome = connection.Point->Advise(sink, &connection.Cookie);
  sink->Release();
  return outcome;
}

void DisconnectEvents(EventConnection& connection) {
  connection.Point->Unadvise(connection.Cookie);
  connection.Point->Release();
}
