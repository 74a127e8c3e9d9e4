#include "com/Component.h"

#include "com/Arrays.h"
#include "com/Convert.h"
#include "com/Screen.h"
#include "com/TypeInfo.h"
#include "view/Platform.h"

#include <olectl.h>

namespace Tarnwise {

namespace {

SAFEARRAY* Given(SAFEARRAY** array) {
  if (array == nullptr) throw ComFailure(E_POINTER, "An array is missing.");
  return *array;
}

}  // namespace

Component::Component() : screen_(MakeScreen()), sinks_(*this) {}

STDMETHODIMP Component::QueryInterface(REFIID iid, void** object) {
  if (object == nullptr) return E_POINTER;
  if (iid == IID_IUnknown || iid == IID_IDispatch || iid == IID__TRN_DEA) {
    *object = static_cast<_TRN_DEA*>(this);
  } else if (iid == IID_ISupportErrorInfo) {
    *object = static_cast<ISupportErrorInfo*>(this);
  } else if (iid == IID_IConnectionPointContainer) {
    *object = static_cast<IConnectionPointContainer*>(this);
  } else if (iid == IID_IProvideClassInfo || iid == IID_IProvideClassInfo2) {
    *object = static_cast<IProvideClassInfo2*>(this);
  } else if (iid == IID_ITarnwiseHelp) {
    *object = static_cast<ITarnwiseHelp*>(this);
  } else {
    *object = nullptr;
    return E_NOINTERFACE;
  }
  AddRef();
  return S_OK;
}

STDMETHODIMP_(ULONG) Component::AddRef() { return static_cast<ULONG>(InterlockedIncrement(&references_)); }

STDMETHODIMP_(ULONG) Component::Release() {
  const LONG left = InterlockedDecrement(&references_);
  if (left != 0) return static_cast<ULONG>(left);
  // Windows go down on their own thread only: rather than touch them from another one the object stays.
  const bool safe = GetCurrentThreadId() == thread_ || screen_->Forms().empty();
  if (!safe) return 0;
  references_ = 1;  // what is called on the way down may count up and down again
  delete this;
  return 0;
}

void Component::CheckThread() const {
  if (GetCurrentThreadId() == thread_) return;
  throw ComFailure(
      RPC_E_WRONG_THREAD,
      "Tarnwise was called on another thread than the one it was made on. Pass the reference between "
      "threads by marshaling (CoMarshalInterThreadInterfaceInStream), and make the object on a thread that "
      "has called CoInitializeEx with COINIT_APARTMENTTHREADED.");
}

TRN_DEA& Component::Wizard() {
  if (!wizard_) {
    wizard_.emplace(screen_);
    ConnectEvents(wizard_->Events());
  }
  return *wizard_;
}

STDMETHODIMP Component::ShowTarnwise() {
  return Call([](TRN_DEA& wizard) { wizard.ShowTarnwise(); });
}

STDMETHODIMP Component::GetCurFileData(VARIANT* KestaDir, short FileIndex, BSTR PathAndFileName) {
  return Call([&](TRN_DEA& wizard) {
    if (KestaDir == nullptr) throw ComFailure(E_POINTER, "KestaDir is missing.");
    wizard.GetCurFileData(FromVARIANT(*KestaDir), FileIndex, FromBSTR(PathAndFileName));
  });
}

STDMETHODIMP Component::UnloadTarnwise() {
  return Call([](TRN_DEA& wizard) { wizard.UnloadTarnwise(); });
}

STDMETHODIMP Component::TranferABCoordinates(SAFEARRAY** AX, SAFEARRAY** AY, SAFEARRAY** BX, SAFEARRAY** BY,
                                             SAFEARRAY** AOrientation, SAFEARRAY** ALX, SAFEARRAY** ALY,
                                             SAFEARRAY** AUX, SAFEARRAY** AUY) {
  return Call([&](TRN_DEA& wizard) {
    Transfer(wizard, {Given(AX), Given(AY), Given(BX), Given(BY), Given(AOrientation), Given(ALX), Given(ALY),
                      Given(AUX), Given(AUY)});
  });
}

void Component::Transfer(TRN_DEA& wizard, const ScoreArrays& scores) const {
  PointArrays points;
  for (std::size_t i = 0; i < points.size(); ++i) points[i] = FromSafeArray(scores[i], data_.NumAtts());
  std::apply([&wizard](const auto&... arrays) { wizard.TranferABCoordinates(arrays...); }, points);
}

STDMETHODIMP Component::InterfaceSupportsErrorInfo(REFIID iid) {
  return iid == IID__TRN_DEA || iid == IID_IDispatch || iid == IID_ITarnwiseHelp ? S_OK : S_FALSE;
}

STDMETHODIMP Component::EnumConnectionPoints(IEnumConnectionPoints** points) {
  if (points == nullptr) return E_POINTER;
  *points = nullptr;
  return Guarded([&] { *points = MakePointEnumerator(sinks_); });
}

STDMETHODIMP Component::FindConnectionPoint(REFIID iid, IConnectionPoint** point) {
  if (point == nullptr) return E_POINTER;
  *point = nullptr;
  if (iid != DIID___TRN_DEA) return CONNECT_E_NOCONNECTION;
  *point = ComRef<IConnectionPoint>(&sinks_).Detach();
  return S_OK;
}

STDMETHODIMP Component::GetClassInfo(ITypeInfo** info) {
  if (info == nullptr) return E_POINTER;
  *info = nullptr;
  return Guarded([&] { *info = OwnTypeInfo(CLSID_TRN_DEA).Detach(); });
}

STDMETHODIMP Component::GetGUID(DWORD kind, GUID* guid) {
  if (guid == nullptr) return E_POINTER;
  *guid = GUID_NULL;
  if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID) return E_INVALIDARG;
  *guid = DIID___TRN_DEA;
  return S_OK;
}

}  // namespace Tarnwise
