#include "runtime/Paths.h"
#include "runtime/windows/WideText.h"

namespace Tarnwise {

std::filesystem::path PathFromText(const String& text) { return {Wide(text)}; }

String TextFromPath(const std::filesystem::path& path) { return Utf8(path.native()); }

}  // namespace Tarnwise
