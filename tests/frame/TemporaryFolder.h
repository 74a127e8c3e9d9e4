// A folder of the test's own, gone with it.
#pragma once

#include <tarnwise/Scalars.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <vector>

namespace Tarnwise {

class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::random_device random;
    path_ = std::filesystem::temp_directory_path() / ("tarnwise-test-" + std::to_string(random()));
    std::filesystem::create_directories(path_);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  String File(const String& name) const {
    const std::u8string path = (path_ / InUtf8(name)).u8string();
    return {path.begin(), path.end()};
  }

  String Write(const String& name, const std::vector<char>& bytes) const {
    std::ofstream(path_ / InUtf8(name), std::ios::binary)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return File(name);
  }
  String Write(const String& name, const String& text) const {
    return Write(name, std::vector<char>(text.begin(), text.end()));
  }

  static std::vector<char> Read(const String& path) {
    std::ifstream file(InUtf8(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }

  std::size_t CountFiles() const {
    std::size_t count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(path_)) count += entry.exists() ? 1 : 0;
    return count;
  }

 private:
  static std::filesystem::path InUtf8(const String& path) { return std::u8string(path.begin(), path.end()); }

  std::filesystem::path path_;
};

}  // namespace Tarnwise
