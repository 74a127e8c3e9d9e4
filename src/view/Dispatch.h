// How a control's event reaches its handler. The form is held for as long as the handler runs; a fault ends the handler
// where it stands and is told to the user; when the outermost handler is done, what it changed goes to the screen.
#pragma once

#include "view/Platform.h"

#include <exception>
#include <new>

namespace Tarnwise {

// "frmDirectB.cmdEnter_Click"
String HandlerName(const Form& form, const String& control, const char* event);

constexpr int kOutOfMemory = 7;

template <class Body>
void Dispatch(Control& control, const char* event, Body&& body) {
  const std::shared_ptr<Form> held = control.Owner.shared_from_this();
  const String name = control.Type == Kind::Form ? "Form" : control.Name;  // the handler may unload the control
  Platform& platform = held->Screen();
  ++platform.HandlerDepth;
  try {
    body();
  } catch (const RuntimeError& error) {
    platform.ReportError(error, error.In.empty() ? HandlerName(*held, name, event) : error.In);
  } catch (const std::bad_alloc&) {
    platform.ReportError(RuntimeError(kOutOfMemory), HandlerName(*held, name, event));
  } catch (const std::exception& error) {
    platform.ReportForeignError(error.what(), HandlerName(*held, name, event));
  } catch (...) {  // whatever a host's event handler throws ends here
    platform.ReportForeignError("an exception of its own", HandlerName(*held, name, event));
  }
  if (--platform.HandlerDepth == 0) platform.SyncAll();
}

// Raises one of the events that carry nothing.
inline void RaiseEvent(Control& control, const char* event, const std::function<void()>& handler) {
  if (!handler) return;
  const std::function<void()> kept = handler;  // an unloaded control takes its own callables with it
  Dispatch(control, event, kept);
}

}  // namespace Tarnwise
