// Texts between the wizard (UTF-8) and Windows (UTF-16).
#pragma once

#include <tarnwise/Scalars.h>

#include <string>

namespace Tarnwise {

std::wstring Wide(const String& text);
String Utf8(const std::wstring& text);
std::wstring WideCharacter(char32_t character);  // one unit, or a pair

}  // namespace Tarnwise
