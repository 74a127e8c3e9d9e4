// Our own session player's way into the component: the screen that the steps are shown on and the data they share. No
// part of the type library, and only for programs that are built together with the component.
#pragma once

#include <windows.h>

#include <unknwn.h>

#include <memory>

namespace Tarnwise {
class Driver;
class Platform;
struct WizardData;
}  // namespace Tarnwise

DEFINE_GUID(IID_ITarnwisePlayerAccess, 0x801ab878, 0x3aa2, 0x498e, 0x81, 0xc3, 0xef, 0x4c, 0x6c, 0x2f, 0x01, 0xa1);

struct ITarnwisePlayerAccess : IUnknown {
  // Both belong to the object and to its thread. Another screen may be put into `screen` until the first method of the
  // wizard is called; from then on a change has no effect.
  virtual HRESULT STDMETHODCALLTYPE Access(std::shared_ptr<Tarnwise::Platform>** screen,
                                           Tarnwise::WizardData** data) = 0;
  // A script's user on the object's screen. It works in this module, so that what goes wrong in the wizard's own code
  // is told by the module that runs it.
  virtual HRESULT STDMETHODCALLTYPE MakeDriver(std::unique_ptr<Tarnwise::Driver>* driver) = 0;
};
