// A folder of the test's own, gone with it. Paths are in UTF-8.
#pragma once

#include "runtime/Paths.h"
#include "support/Bytes.h"

#include <fstream>
#include <random>
#include <stdexcept>
#include <vector>

namespace Tarnwise {

class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::random_device random;
    for (int attempt = 0; attempt < 100; ++attempt) {
      path_ = std::filesystem::temp_directory_path() / ("tarnwise-test-" + std::to_string(random()));
      if (std::filesystem::create_directory(path_)) return;
    }
    throw std::runtime_error("no folder for the test could be made");
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  String Path() const { return TextFromPath(path_); }
  String File(const String& name) const { return TextFromPath(path_ / PathFromText(name)); }

  String Write(const String& name, const std::vector<char>& bytes) const {
    std::ofstream(path_ / PathFromText(name), std::ios::binary)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return File(name);
  }
  String Write(const String& name, const String& text) const { return Write(name, BytesOf(text)); }

  static std::vector<char> Read(const String& path) {
    std::ifstream file(PathFromText(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }

  std::size_t CountFiles() const {
    std::size_t count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(path_)) count += entry.exists() ? 1 : 0;
    return count;
  }

 private:
  std::filesystem::path path_;
};

}  // namespace Tarnwise
