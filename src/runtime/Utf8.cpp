#include "runtime/Utf8.h"

#include <algorithm>
#include <array>

namespace Tarnwise {

namespace {

// Bytes that follow the first one of a character, and the bits that it has of the code point; none for what begins no
// character.
struct Lead {
  std::size_t More = 0;
  char32_t Bits = 0;
};

std::optional<Lead> LeadOf(char32_t byte) {
  if (byte < 0x80) return Lead{0, byte};
  if (byte >= 0xC2 && byte < 0xE0) return Lead{1, byte & 0x1FU};
  if (byte >= 0xE0 && byte < 0xF0) return Lead{2, byte & 0x0FU};
  if (byte >= 0xF0 && byte < 0xF8) return Lead{3, byte & 0x07U};
  return std::nullopt;
}

bool IsCodePoint(char32_t c, std::size_t more) {
  constexpr std::array<char32_t, 4> kLeast = {0, 0x80, 0x800, 0x10000};
  const bool isHalf = c >= 0xD800 && c < 0xE000;
  return c >= kLeast[more] && c <= 0x10FFFF && !isHalf;
}

int UnitsOf(char32_t character) { return character < 0x10000 ? 1 : 2; }

}  // namespace

bool ContinuesCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

int Length(std::string_view text) {
  return static_cast<int>(std::count_if(text.begin(), text.end(), [](char c) { return !ContinuesCharacter(c); }));
}

std::size_t ByteOf(std::string_view text, int index) {
  std::size_t byte = 0;
  for (int passed = 0; byte < text.size(); ++byte) {
    if (!ContinuesCharacter(text[byte]) && passed++ == index) return byte;
  }
  return text.size();
}

std::optional<char32_t> NextCharacter(std::string_view text, std::size_t& i) {
  const std::optional<Lead> lead = LeadOf(static_cast<unsigned char>(text[i]));
  if (!lead || text.size() - i <= lead->More) return std::nullopt;
  char32_t c = lead->Bits;
  for (std::size_t k = 1; k <= lead->More; ++k) {
    if (!ContinuesCharacter(text[i + k])) return std::nullopt;
    c = (c << 6U) | (static_cast<unsigned char>(text[i + k]) & 0x3FU);
  }
  if (!IsCodePoint(c, lead->More)) return std::nullopt;
  i += lead->More + 1;
  return c;
}

std::vector<char32_t> CharactersOf(std::string_view text) {
  std::vector<char32_t> characters;
  for (std::size_t i = 0; i < text.size();) {
    if (const auto c = NextCharacter(text, i)) {
      characters.push_back(*c);
    } else {
      ++i;
    }
  }
  return characters;
}

int Utf16UnitsBefore(std::string_view text, int characters) {
  int units = 0;
  for (const char32_t c : CharactersOf(text)) {
    if (characters-- <= 0) break;
    units += UnitsOf(c);
  }
  return units;
}

int CharactersBefore(std::string_view text, int utf16Units) {
  int characters = 0;
  for (const char32_t c : CharactersOf(text)) {
    if (utf16Units <= 0) break;
    utf16Units -= UnitsOf(c);
    ++characters;
  }
  return characters;
}

void AppendUtf8(String& text, char32_t character) {
  const auto put = [&text](char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
  const auto follow = [&](unsigned shift) { put(0x80U | ((character >> shift) & 0x3FU)); };
  if (character < 0x80) {
    put(character);
  } else if (character < 0x800) {
    put(0xC0U | (character >> 6U));
    follow(0);
  } else if (character < 0x10000) {
    put(0xE0U | (character >> 12U));
    follow(6);
    follow(0);
  } else {
    put(0xF0U | (character >> 18U));
    follow(12);
    follow(6);
    follow(0);
  }
}

}  // namespace Tarnwise
