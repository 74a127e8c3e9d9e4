#include "runtime/Paths.h"

namespace Tarnwise {

std::filesystem::path PathFromText(const String& text) { return {text}; }

String TextFromPath(const std::filesystem::path& path) { return path.native(); }

}  // namespace Tarnwise
