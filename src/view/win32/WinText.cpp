#include "view/win32/WinText.h"

#include <algorithm>

namespace Tarnwise {

namespace {

bool IsLowSurrogate(wchar_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

}  // namespace

std::wstring TextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return text;
}

void SetText(HWND window, const std::wstring& text) {
  if (TextOf(window) != text) SetWindowTextW(window, text.c_str());
}

int CharactersBefore(const std::wstring& text, int units) {
  const auto end = text.begin() + std::clamp(units, 0, static_cast<int>(text.size()));
  return static_cast<int>(std::count_if(text.begin(), end, [](wchar_t unit) { return !IsLowSurrogate(unit); }));
}

int UnitsBefore(const std::wstring& text, int characters) {
  int units = 0;
  for (int seen = 0; units < static_cast<int>(text.size()); ++units) {
    if (IsLowSurrogate(text[static_cast<std::size_t>(units)])) continue;
    if (seen == characters) break;
    ++seen;
  }
  return units;
}

}  // namespace Tarnwise
