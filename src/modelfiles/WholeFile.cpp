#include "modelfiles/WholeFile.h"

#include <cerrno>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <random>
#include <system_error>

#ifdef _WIN32
#include <io.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace Tarnwise {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void FailToWrite(const String& path, const String& why) {
  throw ModelFault("can't write " + path + ": " + why);
}

String LastError() { return std::generic_category().message(errno); }

std::FILE* OpenNew(const fs::path& path) {
#ifdef _WIN32
  return _wfopen(path.c_str(), L"wb");
#else
  return std::fopen(path.c_str(), "wbx");
#endif
}

bool FlushToDisk(std::FILE* file) {
  if (std::fflush(file) != 0) return false;
#ifdef _WIN32
  return _commit(_fileno(file)) == 0;
#else
  return fsync(fileno(file)) == 0;
#endif
}

// After a rename: the folder's entry too should outlive a power cut. What goes wrong here loses no data.
void FlushFolder([[maybe_unused]] const fs::path& folder) {
#ifndef _WIN32
  const int handle = open(folder.c_str(), O_RDONLY | O_DIRECTORY);
  if (handle < 0) return;
  (void)fsync(handle);
  (void)close(handle);
#endif
}

// Removes the temporary file unless it has become the real one.
struct Temporary {
  fs::path Path;
  bool Kept = false;

  explicit Temporary(fs::path path) : Path(std::move(path)) {}
  Temporary(const Temporary&) = delete;
  Temporary& operator=(const Temporary&) = delete;
  ~Temporary() {
    std::error_code ignored;
    if (!Kept) fs::remove(Path, ignored);
  }
};

fs::path TemporaryBeside(const fs::path& path) {
  std::random_device random;
  fs::path name = path.filename();
  name += ".new-" + std::to_string(random());
  return path.parent_path() / name;
}

void WriteNew(const fs::path& temporary, const std::vector<char>& bytes, const String& path) {
  std::FILE* const file = OpenNew(temporary);
  if (file == nullptr) FailToWrite(path, LastError());
  errno = 0;
  bool written = bytes.empty() || std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
  written = written && FlushToDisk(file);
  const int error = errno;
  if (std::fclose(file) != 0) written = false;
  if (written) return;
  errno = error != 0 ? error : errno;
  FailToWrite(path, LastError());
}

// A rename would replace a file that its owner has locked against writing, so ask first.
void CheckWritable(const fs::path& target, const fs::file_status& status, const String& path) {
  if (fs::is_directory(status)) FailToWrite(path, "it is a folder");
  if (!fs::is_regular_file(status)) FailToWrite(path, "it is not an ordinary file");
  const auto anyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  if ((status.permissions() & anyWrite) == fs::perms::none) FailToWrite(path, "it is read-only");
  const std::fstream opened(target, std::ios::in | std::ios::out | std::ios::binary);
  if (!opened) FailToWrite(path, LastError());
}

}  // namespace

std::vector<char> FileBytes(const String& path) {
  const fs::path from = PathFromText(path);
  std::error_code error;
  const fs::file_status status = fs::status(from, error);
  if (!fs::exists(status)) throw ModelFault("there is no file " + path);
  if (fs::is_directory(status)) throw ModelFault("can't read " + path + ": it is a folder");
  errno = 0;
  std::ifstream file(from, std::ios::binary);
  if (!file) throw ModelFault("can't read " + path + ": " + LastError());
  std::vector<char> bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  if (file.bad()) throw ModelFault("can't read " + path + ": " + LastError());
  return bytes;
}

void WriteFileAtomically(const String& path, const std::vector<char>& bytes) {
  std::error_code error;
  fs::path target = PathFromText(path);
  const fs::file_status status = fs::status(target, error);
  const bool existed = fs::exists(status);
  if (existed) {
    CheckWritable(target, status, path);
    // Through a link: what it leads to is replaced, the link stays.
    target = fs::canonical(target, error);
    if (error) FailToWrite(path, error.message());
  }
  Temporary temporary(TemporaryBeside(target));
  WriteNew(temporary.Path, bytes, path);
  if (existed) fs::permissions(temporary.Path, status.permissions(), error);
  if (error && existed) FailToWrite(path, error.message());
  fs::rename(temporary.Path, target, error);
  if (error) FailToWrite(path, error.message());
  temporary.Kept = true;
  FlushFolder(target.has_parent_path() ? target.parent_path() : fs::path("."));
}

}  // namespace Tarnwise
