// Texts between the tree (UTF-8) and Windows (UTF-16).
#pragma once

#include <tarnwise/Scalars.h>

#include "view/win32/WinApi.h"

#include <string>

namespace Tarnwise {

std::wstring Wide(const String& text);
String Utf8(const std::wstring& text);

std::wstring TextOf(HWND window);
void SetText(HWND window, const std::wstring& text);  // only where it differs

// Carets are counted in characters by the tree, in UTF-16 units by Windows.
int CharactersBefore(const std::wstring& text, int units);
int UnitsBefore(const std::wstring& text, int characters);

}  // namespace Tarnwise
