// UTF-8 texts, character by character.
#pragma once

#include <tarnwise/Scalars.h>

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace Tarnwise {

// The number of characters (not bytes) of a text.
int Length(std::string_view text);

// The byte at which character number `index`, counted from 0 as carets are, begins; the text's size beyond its end.
std::size_t ByteOf(std::string_view text, int index);

// The byte is inside a character, not its first one.
bool ContinuesCharacter(char byte);

// The character of a text at byte i, moving i behind it; nothing where the bytes are none: too few, written longer than
// need be, half of a UTF-16 pair, or beyond the last code point.
std::optional<char32_t> NextCharacter(std::string_view text, std::size_t& i);

// Carets are counted in characters by the wizard, by platforms in units of UTF-16: one to a character of the basic
// plane, two to one beyond it. Counts past the text's end are brought to it; half a pair counts as its character.
int Utf16UnitsBefore(std::string_view text, int characters);
int CharactersBefore(std::string_view text, int utf16Units);

// Its characters as far as they are valid; what is none is left out.
std::vector<char32_t> CharactersOf(std::string_view text);

// The character behind the text.
void AppendUtf8(String& text, char32_t character);

}  // namespace Tarnwise
