// What the Help buttons of the wizard do.
#pragma once

#include <tarnwise/Scalars.h>

#include <cstdint>
#include <functional>

namespace Tarnwise {

// The window of the step that asks, as the platform numbers it: under Windows its HWND, under Qt its QWidget::winId()
// (QWidget::find leads back to the widget), 0 where there is no screen.
using WindowHandle = std::uintptr_t;

// A call for help: the step's window; the path of the help file, which is KestaDir, "\" and "KESTA.HLP"; the command,
// 1: show a context; and the context number, 4005025. What the operation gives back is not looked at. It may show a
// window of its own and wait for it, and may do what a handler of an event may; what it throws is told to the user as a
// fault of the host's.
using HelpOperation = std::function<void(WindowHandle window, const String& path, int command, int context)>;

}  // namespace Tarnwise
