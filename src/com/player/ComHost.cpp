#include "com/player/ComHost.h"

#include "com/Arrays.h"
#include "com/Convert.h"
#include "com/player/PlayerAccess.h"
#include "runtime/windows/ComRef.h"
#include "view/win32/WinApi.h"

#include <Tarnwise_DEA.h>
#include <ocidl.h>

#include <climits>
#include <stdexcept>

namespace Tarnwise {

namespace {

constexpr const char* kNoAccess = "the registered component is one that scripts can't drive";
constexpr unsigned kRunTimeErrors = 0x800A0000U;  // HRESULTs from here on carry a run-time error's number

String HexOf(HRESULT result) {
  char text[16];
  std::snprintf(text, sizeof text, "0x%08lX", static_cast<unsigned long>(result));
  return text;
}

String ErrorText() {
  ComRef<IErrorInfo> info;
  if (GetErrorInfo(0, info.Receive()) != S_OK) return {};
  BSTR text = nullptr;
  info->GetDescription(&text);
  const Bstr owned(text);
  return FromBSTR(owned.Get());
}

// A failed call, as the linked class would tell it.
void Check(HRESULT result) {
  if (SUCCEEDED(result)) return;
  const String text = ErrorText();
  const auto code = static_cast<unsigned>(result);
  if ((code & 0xFFFF0000U) == kRunTimeErrors) throw RuntimeError(static_cast<int>(code & 0xFFFFU), text);
  throw std::runtime_error(text.empty() ? "COM answers " + HexOf(result) : text);
}

// Receives the events of one object.
class Sink final : public IDispatch {
 public:
  explicit Sink(TRN_DEA_Events& events) : events_(events) {}

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
    const bool known = iid == IID_IUnknown || iid == IID_IDispatch || iid == DIID___TRN_DEA;
    *object = known ? this : nullptr;
    if (known) AddRef();
    return known ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }
  STDMETHODIMP GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  STDMETHODIMP GetTypeInfo(UINT /*index*/, LCID /*locale*/, ITypeInfo** /*info*/) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID /*reserved*/, LPOLESTR* /*names*/, UINT /*count*/, LCID /*locale*/,
                             DISPID* /*ids*/) override {
    return E_NOTIMPL;
  }
  STDMETHODIMP Invoke(DISPID event, REFIID /*reserved*/, LCID /*locale*/, WORD /*flags*/, DISPPARAMS* parameters,
                      VARIANT* /*result*/, EXCEPINFO* /*exception*/, UINT* /*argument*/) override {
    try {
      Raise(event, *parameters);
    } catch (const std::exception&) {
      return E_FAIL;
    }
    return S_OK;
  }

 private:
  virtual ~Sink() = default;

  // Arguments come last first.
  static const VARIANT& At(const DISPPARAMS& parameters, UINT argument) {
    if (argument >= parameters.cArgs) throw std::runtime_error("an event has too few arguments");
    return parameters.rgvarg[parameters.cArgs - 1 - argument];
  }
  static VariantArray ArrayAt(const DISPPARAMS& parameters, UINT argument) {
    SAFEARRAY* array = nullptr;
    if (!ArrayIn(At(parameters, argument), &array)) throw std::runtime_error("an event's argument is no array");
    return FromSafeArray(array, INT_MAX);
  }

  void Raise(DISPID event, const DISPPARAMS& p) {
    switch (event) {
      case 1:
        if (events_.UnloadTarnwise) {
          events_.UnloadTarnwise(ToInteger(FromVARIANT(At(p, 0))), ToInteger(FromVARIANT(At(p, 1))) != 0);
        }
        break;
      case 2: RaiseWeights(events_.ExportDirectBW, p); break;
      case 3: RaiseWeights(events_.ExportTradeOffsBW, p); break;
      case 4: RaiseScores(p); break;
      case 5:
        if (events_.SendMasseges) events_.SendMasseges(ToText(FromVARIANT(At(p, 0))));
        break;
      default: break;
    }
  }

  template <class Event>
  static void RaiseWeights(const Event& handler, const DISPPARAMS& p) {
    if (!handler) return;
    Variant ratio = FromVARIANT(At(p, 3));
    VariantArray weights = ArrayAt(p, 4);
    VariantArray high = ArrayAt(p, 5);
    VariantArray low = ArrayAt(p, 6);
    handler(ToText(FromVARIANT(At(p, 0))), ToInteger(FromVARIANT(At(p, 1))), ToInteger(FromVARIANT(At(p, 2))), ratio,
            weights, high, low);
  }

  void RaiseScores(const DISPPARAMS& p) const {
    if (!events_.ExportABScores) return;
    PointArrays a;
    for (UINT i = 0; i < a.size(); ++i) a[i] = ArrayAt(p, i);
    std::apply(events_.ExportABScores, a);
  }

  TRN_DEA_Events& events_;
  ULONG references_ = 0;
};

ComRef<_TRN_DEA> NewObject() {
  ComRef<_TRN_DEA> object;
  CLSID id{};
  Check(CLSIDFromProgID(L"Tarnwise_DEA.TRN_DEA", &id));
  Check(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID__TRN_DEA, reinterpret_cast<void**>(object.Receive())));
  return object;
}

// Null where the registered class was built without it.
ComRef<ITarnwisePlayerAccess> AccessOf(_TRN_DEA& object) {
  ComRef<ITarnwisePlayerAccess> access;
  object.QueryInterface(IID_ITarnwisePlayerAccess, reinterpret_cast<void**>(access.Receive()));
  return access;
}

// An array that lives as long as the call.
class OwnedArray {
 public:
  explicit OwnedArray(const VariantArray& values) : array_(ToSafeArray(values)) {}
  OwnedArray(const OwnedArray&) = delete;
  OwnedArray& operator=(const OwnedArray&) = delete;
  ~OwnedArray() { SafeArrayDestroy(array_); }
  SAFEARRAY** Reference() { return &array_; }

 private:
  SAFEARRAY* array_;
};

class ByCom : public Hosted {
 public:
  explicit ByCom(const std::shared_ptr<Platform>& screen) : object_(NewObject()), access_(AccessOf(*object_.Get())) {
    if (access_) {
      std::shared_ptr<Platform>* place = nullptr;
      Check(access_->Access(&place, &data_));
      if (screen) *place = screen;
    }
    ComRef<IConnectionPointContainer> container;
    Check(object_->QueryInterface(IID_IConnectionPointContainer, reinterpret_cast<void**>(container.Receive())));
    Check(container->FindConnectionPoint(DIID___TRN_DEA, point_.Receive()));
    const ComRef<IDispatch> sink(new Sink(events_));
    Check(point_->Advise(sink.Get(), &cookie_));
  }
  ByCom(const ByCom&) = delete;
  ByCom& operator=(const ByCom&) = delete;
  ~ByCom() override { point_->Unadvise(cookie_); }

  TRN_DEA_Events& Events() override { return events_; }
  void ShowTarnwise() override { Check(object_->ShowTarnwise()); }
  void GetCurFileData(const String& KestaDir, Integer FileIndex, const String& PathAndFileName) override {
    OwnedVariant folder;
    ToVARIANT(KestaDir, folder.Value());
    const Bstr path(ToBSTR(PathAndFileName));
    Check(object_->GetCurFileData(&folder.Value(), FileIndex, path.Get()));
  }
  void UnloadTarnwise() override { Check(object_->UnloadTarnwise()); }
  void TranferABCoordinates(const PointArrays& p) override {
    OwnedArray a[] = {OwnedArray(p[0]), OwnedArray(p[1]), OwnedArray(p[2]), OwnedArray(p[3]), OwnedArray(p[4]),
                      OwnedArray(p[5]), OwnedArray(p[6]), OwnedArray(p[7]), OwnedArray(p[8])};
    Check(object_->TranferABCoordinates(a[0].Reference(), a[1].Reference(), a[2].Reference(), a[3].Reference(),
                                        a[4].Reference(), a[5].Reference(), a[6].Reference(), a[7].Reference(),
                                        a[8].Reference()));
  }
  WizardData& Data() override {
    if (data_ == nullptr) throw std::runtime_error(kNoAccess);
    return *data_;
  }

 private:
  TRN_DEA_Events events_;
  ComRef<_TRN_DEA> object_;
  ComRef<ITarnwisePlayerAccess> access_;
  ComRef<IConnectionPoint> point_;
  DWORD cookie_ = 0;
  WizardData* data_ = nullptr;
};

}  // namespace

ComApartment::ComApartment() { Check(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)); }

ComApartment::~ComApartment() { CoUninitialize(); }

std::unique_ptr<Hosted> HostByCom(std::shared_ptr<Platform> screen) { return std::make_unique<ByCom>(screen); }

std::unique_ptr<Driver> DriveByCom() {
  const ComRef<_TRN_DEA> object = NewObject();
  const ComRef<ITarnwisePlayerAccess> access = AccessOf(*object.Get());
  if (!access) throw std::runtime_error(kNoAccess);
  std::unique_ptr<Driver> driver;
  Check(access->MakeDriver(&driver));
  return driver;
}

}  // namespace Tarnwise
