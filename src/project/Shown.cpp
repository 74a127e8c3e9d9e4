#include "project/Shown.h"

#include "runtime/Utf8.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>

namespace Tarnwise {

namespace {

constexpr std::size_t kLongest = 60;
constexpr std::size_t kMostItems = 10;

// Also the control characters from U+0080 on, which some terminals obey.
bool IsControl(std::string_view text, std::size_t i) {
  const auto byte = static_cast<unsigned char>(text[i]);
  if (byte < 0x20 || byte == 0x7F) return true;
  return byte == 0xC2 && i + 1 < text.size() && static_cast<unsigned char>(text[i + 1]) < 0xA0;
}

String Escape(unsigned char byte) {
  std::array<char, 8> text{};
  (void)std::snprintf(text.data(), text.size(), "\\x%02X", byte);
  return text.data();
}

}  // namespace

String WholeName(std::string_view name) {
  String shown;
  for (std::size_t i = 0; i < name.size(); ++i) {
    if (!IsControl(name, i)) {
      shown += name[i];
      continue;
    }
    if (static_cast<unsigned char>(name[i]) == 0xC2) ++i;
    shown += Escape(static_cast<unsigned char>(name[i]));
  }
  return shown;
}

String ShownName(std::string_view name) {
  std::size_t size = std::min(name.size(), kLongest);
  while (size < name.size() && size > 0 && ContinuesCharacter(name[size])) --size;
  const String shown = WholeName(name.substr(0, size));
  return size < name.size() ? shown + "..." : shown;
}

String Shown(std::string_view text) { return '"' + ShownName(text) + '"'; }

String CountOf(std::size_t count, const String& what) {
  return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

String Enumerated(const std::vector<String>& items, const char* between) {
  String text;
  const std::size_t count = std::min(items.size(), kMostItems);
  for (std::size_t i = 0; i < count; ++i) text += (i == 0 ? "" : between) + items[i];
  if (items.size() > count) text += " and " + std::to_string(items.size() - count) + " more";
  return text;
}

String FixedText(double number, int decimals) {
  std::array<char, 512> text{};
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), number + 0.0, std::chars_format::fixed, decimals).ptr;
  String fixed(text.data(), end);
  const bool isMinusZero = fixed.front() == '-' && fixed.find_first_not_of("-0.") == String::npos;
  return isMinusZero ? fixed.substr(1) : fixed;
}

String SignificantText(double number, int digits) {
  const double size = std::fabs(number);
  if (size >= 1e-4 && size < 1e15) {
    const int before = static_cast<int>(std::floor(std::log10(size))) + 1;
    return FixedText(number, std::max(0, digits - before));
  }
  if (number == 0.0) return "0";
  std::array<char, 64> text{};
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::general, digits).ptr;
  return {text.data(), end};
}

}  // namespace Tarnwise
