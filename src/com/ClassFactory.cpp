#include "com/Component.h"

#include <combaseapi.h>

namespace Tarnwise {

namespace {

// The wizard's windows need a thread with a message loop, so the object lives in a single-threaded apartment.
void CheckApartment() {
  APTTYPE type = APTTYPE_CURRENT;
  APTTYPEQUALIFIER qualifier = APTTYPEQUALIFIER_NONE;
  const HRESULT outcome = CoGetApartmentType(&type, &qualifier);
  if (SUCCEEDED(outcome) && (type == APTTYPE_STA || type == APTTYPE_MAINSTA)) return;
  throw ComFailure(outcome == CO_E_NOTINITIALIZED ? outcome : CO_E_NOT_SUPPORTED,
                   "Tarnwise can be made only on a thread that has called CoInitializeEx with "
                   "COINIT_APARTMENTTHREADED and runs a message loop.");
}

class ClassFactory final : public IClassFactory {
 public:
  STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = iid == IID_IUnknown || iid == IID_IClassFactory ? this : nullptr;
    if (*object == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return static_cast<ULONG>(InterlockedIncrement(&references_)); }
  STDMETHODIMP_(ULONG) Release() override {
    const LONG left = InterlockedDecrement(&references_);
    if (left == 0) delete this;
    return static_cast<ULONG>(left);
  }

  STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    return Guarded([&] {
      CheckApartment();
      Component* const component = MakeComponent();
      const HRESULT outcome = component->QueryInterface(iid, object);
      component->Release();
      Check(outcome, "The object has no such interface.");
    });
  }
  STDMETHODIMP LockServer(BOOL lock) override {
    LockModule(lock != FALSE);
    return S_OK;
  }

 private:
  ~ClassFactory() = default;

  LONG references_ = 1;
  const ModuleUse use_;
};

}  // namespace

}  // namespace Tarnwise

STDAPI DllGetClassObject(REFCLSID clsid, REFIID iid, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (clsid != CLSID_TRN_DEA) return CLASS_E_CLASSNOTAVAILABLE;
  HRESULT outcome = S_OK;
  const HRESULT made = Tarnwise::Guarded([&] {
    auto* const factory = new Tarnwise::ClassFactory;
    outcome = factory->QueryInterface(iid, object);
    factory->Release();
  });
  return FAILED(made) ? made : outcome;
}
