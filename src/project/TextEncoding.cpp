#include "project/TextEncoding.h"

#include "modelfiles/WholeFile.h"
#include "runtime/AnsiText.h"
#include "runtime/Utf8.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <string_view>

namespace Tarnwise {

namespace {

using Bytes = std::string_view;

constexpr Bytes kUtf8Mark = "\xEF\xBB\xBF";
constexpr Bytes kUtf16LeMark = "\xFF\xFE";
constexpr Bytes kUtf16BeMark = "\xFE\xFF";

std::uint32_t At(Bytes bytes, std::size_t i) { return static_cast<unsigned char>(bytes[i]); }

String LineOf(Bytes text, std::size_t position) {
  std::size_t line = 1;
  for (std::size_t i = 0; i < position; ++i) {
    const bool pair = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
    if (text[i] == '\n' || (text[i] == '\r' && !pair)) ++line;
  }
  return "line " + std::to_string(line);
}

String Hexadecimal(const char* pattern, std::uint32_t number) {
  std::array<char, 16> text{};
  (void)std::snprintf(text.data(), text.size(), pattern, number);
  return text.data();
}

// Where the bytes cease to be UTF-8, and whether a character beyond ASCII stands before that or behind.
struct Utf8Finding {
  std::size_t Broken = Bytes::npos;
  std::size_t Proof = Bytes::npos;
};

Utf8Finding FindUtf8(Bytes text) {
  Utf8Finding finding;
  if (IsAscii(text)) return finding;
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t at = i;
    if (!NextCharacter(text, i)) ++i;
    if (i == at + 1 && At(text, at) >= 0x80 && finding.Broken == Bytes::npos) finding.Broken = at;
    if (i > at + 1 && finding.Proof == Bytes::npos) finding.Proof = at;
  }
  return finding;
}

[[noreturn]] void RefuseByte(Bytes text, std::size_t i, const String& why) {
  throw ModelFault(LineOf(text, i) + ": the byte " + Hexadecimal("%02X", At(text, i)) + " is " + why);
}

TextEncoding Found(Bytes text) {
  if (text.starts_with(kUtf8Mark)) return TextEncoding::Utf8;
  if (text.starts_with(kUtf16LeMark)) return TextEncoding::Utf16Le;
  if (text.starts_with(kUtf16BeMark)) return TextEncoding::Utf16Be;
  const Utf8Finding utf8 = FindUtf8(text);
  if (utf8.Broken == Bytes::npos) return TextEncoding::Utf8;
  if (utf8.Proof != Bytes::npos) {
    RefuseByte(text, utf8.Broken,
               "no UTF-8, as " + LineOf(text, utf8.Proof) +
                   " is; if the whole file is in another encoding, name it with --encoding");
  }
  return TextEncoding::Windows1252;
}

std::vector<char> FromUtf8(std::vector<char> bytes) {
  const Bytes text(bytes.data(), bytes.size());
  const std::size_t broken = FindUtf8(text).Broken;
  if (broken != Bytes::npos) RefuseByte(text, broken, "no UTF-8; name the file's encoding with --encoding");
  if (text.starts_with(kUtf8Mark)) bytes.erase(bytes.begin(), bytes.begin() + kUtf8Mark.size());
  return bytes;
}

std::vector<char> FromWindows1252(Bytes bytes) {
  for (const Bytes mark : {kUtf8Mark, kUtf16LeMark, kUtf16BeMark}) {
    if (bytes.starts_with(mark)) throw ModelFault("it begins with the mark of Unicode, so it is no Windows-1252");
  }
  const std::size_t undefined = bytes.find_first_of("\x81\x8D\x8F\x90\x9D");
  if (undefined != Bytes::npos) {
    RefuseByte(bytes, undefined, "neither UTF-8 nor Windows-1252; save the file as UTF-8");
  }
  const String text = FromAnsi(bytes);
  return {text.begin(), text.end()};
}

std::vector<char> FromUtf16(Bytes bytes, bool bigEndian) {
  if (bytes.starts_with(bigEndian ? kUtf16BeMark : kUtf16LeMark)) bytes.remove_prefix(2);
  if (bytes.size() % 2 != 0) throw ModelFault("it is cut off: UTF-16 has two bytes for each unit");
  const auto unitAt = [&](std::size_t i) {
    return bigEndian ? At(bytes, i) << 8U | At(bytes, i + 1) : At(bytes, i + 1) << 8U | At(bytes, i);
  };
  String text;
  text.reserve(bytes.size());
  for (std::size_t i = 0; i < bytes.size(); i += 2) {
    std::uint32_t c = unitAt(i);
    if (c >= 0xD800 && c < 0xE000) {
      const std::uint32_t low = c < 0xDC00 && i + 2 < bytes.size() ? unitAt(i + 2) : 0;
      if (low < 0xDC00 || low >= 0xE000) {
        throw ModelFault(LineOf(text, text.size()) + ": half a character (" + Hexadecimal("%04X", c) + ") in UTF-16");
      }
      c = 0x10000 + ((c - 0xD800) << 10U) + (low - 0xDC00);
      i += 2;
    }
    AppendUtf8(text, c);
  }
  return {text.begin(), text.end()};
}

void RefuseControls(Bytes text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::uint32_t byte = At(text, i);
    if ((byte >= 0x20 && byte != 0x7F && byte != 0xC2) || byte == '\t' || byte == '\n' || byte == '\r') continue;
    if (byte == 0xC2 && At(text, i + 1) >= 0xA0) continue;
    const std::uint32_t c = byte == 0xC2 ? At(text, i + 1) : byte;
    const char* const hint = c == 0 ? "; if the file is in UTF-16, say --encoding utf-16le or utf-16be" : "";
    throw ModelFault(LineOf(text, i) + ": the control character " + Hexadecimal("U+%04X", c) + " is no text" + hint);
  }
}

}  // namespace

const char* NameOf(TextEncoding encoding) {
  switch (encoding) {
    case TextEncoding::Utf8: return "UTF-8";
    case TextEncoding::Utf16Le: return "UTF-16LE";
    case TextEncoding::Utf16Be: return "UTF-16BE";
    case TextEncoding::Windows1252: break;
  }
  return "Windows-1252";
}

std::optional<TextEncoding> EncodingNamed(const String& name) {
  String plain;
  for (const char c : name) {
    if (c != '-' && c != '_') plain += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  }
  if (plain == "utf8") return TextEncoding::Utf8;
  if (plain == "utf16le") return TextEncoding::Utf16Le;
  if (plain == "utf16be") return TextEncoding::Utf16Be;
  if (plain == "windows1252" || plain == "cp1252") return TextEncoding::Windows1252;
  return std::nullopt;
}

DecodedText DecodeText(std::vector<char> bytes, std::optional<TextEncoding> told) {
  const Bytes raw(bytes.data(), bytes.size());
  DecodedText decoded;
  decoded.Encoding = told ? *told : Found(raw);
  switch (decoded.Encoding) {
    case TextEncoding::Utf8: decoded.Text = FromUtf8(std::move(bytes)); break;
    case TextEncoding::Utf16Le: decoded.Text = FromUtf16(raw, false); break;
    case TextEncoding::Utf16Be: decoded.Text = FromUtf16(raw, true); break;
    case TextEncoding::Windows1252: decoded.Text = FromWindows1252(raw); break;
  }
  RefuseControls({decoded.Text.data(), decoded.Text.size()});
  return decoded;
}

}  // namespace Tarnwise
