#include "runtime/windows/WideText.h"

#include "runtime/Utf8.h"

#include <windows.h>

namespace Tarnwise {

std::wstring Wide(const String& text) {
  const int bytes = static_cast<int>(text.size());
  const int length = MultiByteToWideChar(CP_UTF8, 0, text.data(), bytes, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), bytes, wide.data(), length);
  return wide;
}

String Utf8(const std::wstring& text) {
  const int units = static_cast<int>(text.size());
  const int length = WideCharToMultiByte(CP_UTF8, 0, text.data(), units, nullptr, 0, nullptr, nullptr);
  String utf8(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), units, utf8.data(), length, nullptr, nullptr);
  return utf8;
}

std::wstring WideCharacter(char32_t character) {
  String utf8;
  AppendUtf8(utf8, character);
  return Wide(utf8);
}

}  // namespace Tarnwise
