#include "runtime/AnsiText.h"

#include "runtime/Utf8.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace Tarnwise {

namespace {

// Code points of the bytes 0x80 to 0x9F; all other bytes stand for themselves.
constexpr std::array<char16_t, 32> kHigh = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                            0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                            0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                            0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

}  // namespace

bool IsAscii(std::string_view bytes) {
  constexpr std::uint64_t kHighBits = 0x8080808080808080U;
  std::uint64_t all = 0;
  std::uint64_t eight = 0;
  std::size_t i = 0;
  for (; i + sizeof eight <= bytes.size(); i += sizeof eight) {
    std::memcpy(&eight, bytes.data() + i, sizeof eight);
    all |= eight;
  }
  for (; i < bytes.size(); ++i) all |= static_cast<unsigned char>(bytes[i]);
  return (all & kHighBits) == 0;
}

String FromAnsi(std::string_view bytes) {
  if (IsAscii(bytes)) return String(bytes);
  String text;
  text.reserve(bytes.size());
  for (const char raw : bytes) {
    const auto byte = static_cast<unsigned char>(raw);
    AppendUtf8(text, byte >= 0x80 && byte < 0xA0 ? kHigh[byte - 0x80U] : byte);
  }
  return text;
}

std::optional<std::string> ToAnsi(std::string_view text) {
  std::string bytes;
  for (std::size_t i = 0; i < text.size();) {
    const auto c = NextCharacter(text, i);
    if (!c) return std::nullopt;
    if (*c < 0x80 || (*c >= 0xA0 && *c <= 0xFF)) {
      bytes += static_cast<char>(static_cast<unsigned char>(*c));
      continue;
    }
    const auto* const found = std::find(kHigh.begin(), kHigh.end(), *c);
    if (found == kHigh.end()) return std::nullopt;
    bytes += static_cast<char>(0x80 + (found - kHigh.begin()));
  }
  return bytes;
}

}  // namespace Tarnwise
