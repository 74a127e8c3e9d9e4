#include "runtime/windows/SystemCodePage.h"

#include "runtime/windows/WideText.h"

#include <windows.h>

namespace Tarnwise {

namespace {

String TextIn(unsigned number, std::string_view bytes) {
  const int size = static_cast<int>(bytes.size());
  const int length = MultiByteToWideChar(number, 0, bytes.data(), size, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(number, 0, bytes.data(), size, wide.data(), length);
  return Utf8(wide);
}

// Windows puts a similar character, or a question mark, where it has none: so the way back decides.
std::optional<std::string> BytesIn(unsigned number, std::string_view text) {
  const std::wstring wide = Wide(String(text));
  const int units = static_cast<int>(wide.size());
  const int length = WideCharToMultiByte(number, 0, wide.data(), units, nullptr, 0, nullptr, nullptr);
  std::string bytes(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(number, 0, wide.data(), units, bytes.data(), length, nullptr, nullptr);
  if (TextIn(number, bytes) != text) return std::nullopt;
  return bytes;
}

}  // namespace

std::optional<CodePage> NumberedCodePage(unsigned number) {
  if (!IsValidCodePage(number)) return std::nullopt;
  return CodePage{"code page " + std::to_string(number),
                  [number](std::string_view bytes) { return TextIn(number, bytes); },
                  [number](std::string_view text) { return BytesIn(number, text); }};
}

const CodePage& SystemCodePage() {
  static const CodePage page = NumberedCodePage(GetACP()).value_or(CodePage1252());
  return page;
}

}  // namespace Tarnwise
