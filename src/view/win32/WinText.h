// Texts of windows.
#pragma once

#include "runtime/windows/WideText.h"
#include "view/win32/WinApi.h"

#include <string>

namespace Tarnwise {

inline std::wstring TextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return text;
}

// Only where it differs.
inline void SetText(HWND window, const std::wstring& text) {
  if (TextOf(window) != text) SetWindowTextW(window, text.c_str());
}

}  // namespace Tarnwise
