// The component that our own tests drive: the class, and the session player's way into it.
#include "com/Component.h"
#include "com/player/PlayerAccess.h"
#include "view/win32/Win32Driver.h"

namespace Tarnwise {

namespace {

class PlayerComponent final : public Component, public ITarnwisePlayerAccess {
 public:
  STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
    if (object == nullptr || iid != IID_ITarnwisePlayerAccess) return Component::QueryInterface(iid, object);
    *object = static_cast<ITarnwisePlayerAccess*>(this);
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return Component::AddRef(); }
  STDMETHODIMP_(ULONG) Release() override { return Component::Release(); }

  STDMETHODIMP Access(std::shared_ptr<Platform>** screen, WizardData** data) override {
    if (screen == nullptr || data == nullptr) return E_POINTER;
    *screen = &screen_;
    *data = &data_;
    return S_OK;
  }

  STDMETHODIMP MakeDriver(std::unique_ptr<Driver>* driver) override {
    if (driver == nullptr) return E_POINTER;
    return Guarded([&] {
      CheckThread();
      *driver = MakeWin32Driver(screen_);
    });
  }
};

}  // namespace

Component* MakeComponent() { return new PlayerComponent; }

}  // namespace Tarnwise
