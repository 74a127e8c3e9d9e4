// Help in the host's own way: an object whose default member is called with the window, the path, the command and the
// context number.
#include "com/Component.h"
#include "com/Convert.h"

#include <iterator>

namespace Tarnwise {

namespace {

VARIANT Number(LONG number) {
  VARIANT value = {};
  value.vt = VT_I4;
  value.lVal = number;
  return value;
}

// What it answers, a failure too, is not looked at.
void CallHandler(IDispatch& handler, WindowHandle window, const String& path, int command, int context) {
  OwnedVariant text;
  ToVARIANT(path, text.Value());
  // The last one first. Handles of windows have 32 bits that count.
  VARIANT arguments[] = {Number(context), Number(command), text.Value(),
                         Number(HandleToLong(reinterpret_cast<HANDLE>(window)))};
  DISPPARAMS parameters = {arguments, nullptr, static_cast<UINT>(std::size(arguments)), 0};
  OwnedVariant result;
  handler.Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, &result.Value(), nullptr,
                 nullptr);
}

}  // namespace

STDMETHODIMP Component::SetHelp(IDispatch* Handler) {
  const ComRef<Component> held(this);
  return Guarded([&] {
    CheckThread();
    if (Handler == nullptr) {
      Tarnwise::SetHelp(*screen_, nullptr);
      return;
    }
    Tarnwise::SetHelp(*screen_, [handler = ComRef<IDispatch>(Handler)](WindowHandle window, const String& path,
                                                                       int command, int context) {
      CallHandler(*handler.Get(), window, path, command, context);
    });
  });
}

}  // namespace Tarnwise

// The same for hosts whose language calls functions but asks for no interfaces.
STDAPI TarnwiseSetHelp(IUnknown* Wizard, IDispatch* Handler) {
  if (Wizard == nullptr) return E_POINTER;
  Tarnwise::ComRef<ITarnwiseHelp> help;
  const HRESULT found = Wizard->QueryInterface(IID_ITarnwiseHelp, reinterpret_cast<void**>(help.Receive()));
  return FAILED(found) ? found : help->SetHelp(Handler);
}
