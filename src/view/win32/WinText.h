// Texts of windows.
#pragma once

#include "runtime/windows/WideText.h"
#include "view/win32/WinApi.h"

#include <string>

namespace Tarnwise {

std::wstring TextOf(HWND window);
void SetText(HWND window, const std::wstring& text);  // only where it differs

}  // namespace Tarnwise
