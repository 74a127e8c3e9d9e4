// Texts of windows, and carets in them.
#pragma once

#include "runtime/windows/WideText.h"
#include "view/win32/WinApi.h"

#include <string>

namespace Tarnwise {

std::wstring TextOf(HWND window);
void SetText(HWND window, const std::wstring& text);  // only where it differs

// Carets are counted in characters by the tree, in UTF-16 units by Windows.
int CharactersBefore(const std::wstring& text, int units);
int UnitsBefore(const std::wstring& text, int characters);

}  // namespace Tarnwise
