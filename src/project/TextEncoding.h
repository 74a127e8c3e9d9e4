// The bytes of a text file as UTF-8.
#pragma once

#include <tarnwise/Scalars.h>

#include <optional>
#include <vector>

namespace Tarnwise {

enum class TextEncoding { Utf8, Utf16Le, Utf16Be, Windows1252 };

const char* NameOf(TextEncoding encoding);  // "UTF-8", "UTF-16LE", "UTF-16BE", "Windows-1252"

// The encoding of that name, in capitals or not, with or without its hyphens; "cp1252" too.
std::optional<TextEncoding> EncodingNamed(const String& name);

struct DecodedText {
  std::vector<char> Text;  // valid UTF-8 without a byte order mark, and no control characters but tabs and line ends
  TextEncoding Encoding = TextEncoding::Utf8;
};

// The encoding is the one told, or else found: by its byte order mark; UTF-8 where all bytes are valid in it;
// Windows-1252 where nothing in the file is UTF-8 beyond ASCII. A file that mixes the two, one that breaks the rules of
// its encoding, and one with control characters is a ModelFault with the line, and with the option that settles it.
DecodedText DecodeText(std::vector<char> bytes, std::optional<TextEncoding> told);

}  // namespace Tarnwise
