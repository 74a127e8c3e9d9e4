// TRN_DEA as a COM class: it converts arguments, calls the wizard and passes its events on to the connected sinks.
#pragma once

#include "com/ConnectionPoint.h"
#include "com/Errors.h"
#include "com/Module.h"

#include "model/mdTRNMain.h"

#include <tarnwise/TRN_DEA.h>

#include <Tarnwise_DEA.h>
#include <array>
#include <optional>

namespace Tarnwise {

class EventArguments;

constexpr std::size_t kScoreArrays = kPointFields;
using ScoreArrays = std::array<SAFEARRAY*, kScoreArrays>;

class Component : public _TRN_DEA,
                  public ISupportErrorInfo,
                  public IConnectionPointContainer,
                  public IProvideClassInfo2,
                  public ITarnwiseHelp {
 public:
  Component();
  Component(const Component&) = delete;
  Component& operator=(const Component&) = delete;

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override;
  STDMETHODIMP_(ULONG) Release() override;

  STDMETHODIMP GetTypeInfoCount(UINT* count) override;
  STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
  STDMETHODIMP GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override;
  STDMETHODIMP Invoke(DISPID method, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                      EXCEPINFO* exception, UINT* argument) override;

  STDMETHODIMP ShowTarnwise() override;
  STDMETHODIMP GetCurFileData(VARIANT* KestaDir, short FileIndex, BSTR PathAndFileName) override;
  STDMETHODIMP UnloadTarnwise() override;
  STDMETHODIMP TranferABCoordinates(SAFEARRAY** AX, SAFEARRAY** AY, SAFEARRAY** BX, SAFEARRAY** BY,
                                    SAFEARRAY** AOrientation, SAFEARRAY** ALX, SAFEARRAY** ALY, SAFEARRAY** AUX,
                                    SAFEARRAY** AUY) override;

  STDMETHODIMP InterfaceSupportsErrorInfo(REFIID iid) override;
  STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** points) override;
  STDMETHODIMP FindConnectionPoint(REFIID iid, IConnectionPoint** point) override;
  STDMETHODIMP GetClassInfo(ITypeInfo** info) override;
  STDMETHODIMP GetGUID(DWORD kind, GUID* guid) override;
  STDMETHODIMP SetHelp(IDispatch* Handler) override;

 protected:
  virtual ~Component() = default;

  void CheckThread() const;

  WizardData& data_ = mdTRNMain();  // of this thread
  std::shared_ptr<Platform> screen_;

 private:
  // Runs `body` on the wizard, on its own thread only. The object lives on until it returns, whatever a host does in
  // the events meanwhile.
  template <class Body>
  HRESULT Call(Body body) {
    const ComRef<Component> held(this);
    return Guarded([&] {
      CheckThread();
      body(Wizard());
    });
  }
  TRN_DEA& Wizard();  // made when it is first needed
  void CallMethod(TRN_DEA& wizard, DISPID method, const DISPPARAMS& parameters) const;
  void Transfer(TRN_DEA& wizard, const ScoreArrays& scores) const;

  void ConnectEvents(TRN_DEA_Events& events);
  void Fire(DISPID event, EventArguments& arguments);

  const ModuleUse use_;
  LONG references_ = 1;
  const DWORD thread_ = GetCurrentThreadId();
  ConnectionPoint sinks_;
  std::optional<TRN_DEA> wizard_;
};

// A new object, with one reference. The component that our own tests drive makes one that the session player can reach.
Component* MakeComponent();

}  // namespace Tarnwise
