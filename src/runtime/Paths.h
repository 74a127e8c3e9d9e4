// Paths are UTF-8 text in memory, on every system; the system gets them in its own form.
#pragma once

#include <tarnwise/Scalars.h>

#include <filesystem>

namespace Tarnwise {

std::filesystem::path PathFromText(const String& text);
String TextFromPath(const std::filesystem::path& path);

}  // namespace Tarnwise
