// Names for screen readers beyond a window's own text.
#pragma once

#include "view/win32/WinApi.h"

#include <string>

namespace Tarnwise {

// Tells accessibility what a window is called whose text is something else, a text box for one. Where Windows has no
// such service (or the thread no COM) nothing happens.
bool NameWindow(HWND window, const std::wstring& name);
void ForgetName(HWND window);

}  // namespace Tarnwise
