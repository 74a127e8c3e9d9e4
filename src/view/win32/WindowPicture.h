// Pictures of windows, as PNG files.
#pragma once

#include "view/win32/WinApi.h"

#include <string>

namespace Tarnwise {

// What the window's client area shows. False when it could not be written.
bool SaveWindowPicture(HWND window, const std::wstring& path);

}  // namespace Tarnwise
