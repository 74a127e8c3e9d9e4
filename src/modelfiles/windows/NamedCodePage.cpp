#include "modelfiles/NamedCodePage.h"

#include "runtime/windows/SystemCodePage.h"

#include <charconv>

namespace Tarnwise {

const char* const kCodePageNames = "a name is a number, as in 1253 or CP1253";

std::optional<CodePage> NamedCodePage(const String& name) {
  if (name == "UTF-8") return NumberedCodePage(65001);
  const std::size_t digits = name.find_first_of("0123456789");
  if (digits == String::npos) return std::nullopt;
  unsigned number = 0;
  const auto [end, error] = std::from_chars(name.data() + digits, name.data() + name.size(), number);
  if (error != std::errc() || end != name.data() + name.size()) return std::nullopt;
  return NumberedCodePage(number);
}

}  // namespace Tarnwise
