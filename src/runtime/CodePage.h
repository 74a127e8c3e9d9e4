// How the texts of model files are kept as bytes. In memory text is UTF-8.
#pragma once

#include <tarnwise/Scalars.h>

#include <functional>
#include <optional>
#include <string_view>

namespace Tarnwise {

struct CodePage {
  String Name;  // as messages have it: "code page 1252"

  // Bytes as text. What the code page can't read becomes U+FFFD.
  std::function<String(std::string_view bytes)> ToText;

  // Text as bytes; nothing when the code page lacks one of its characters, or it is no valid UTF-8.
  std::function<std::optional<std::string>(std::string_view text)> ToBytes;
};

const CodePage& CodePage1252();

// What hosts on this system write their files in: the system's ANSI code page on Windows, 1252 elsewhere.
const CodePage& SystemCodePage();

}  // namespace Tarnwise
