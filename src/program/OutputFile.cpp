#include "program/OutputFile.h"

#include "modelfiles/WholeFile.h"

#include <fstream>
#include <ostream>

namespace Tarnwise {

namespace fs = std::filesystem;

namespace {

bool IsSpecial(const fs::path& path) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  return fs::exists(status) && !fs::is_regular_file(status) && !fs::is_directory(status);
}

void Put(std::ostream& out, const String& text, const String& path) {
  out.write(text.data(), static_cast<std::streamsize>(text.size()));
  out.flush();
  if (!out) throw ModelFault("can't write " + (path == kStandardOutput ? String("the standard output") : path));
}

}  // namespace

void WriteOutput(const String& path, const String& text, std::ostream& out) {
  if (path == kStandardOutput) {
    Put(out, text, path);
  } else if (IsSpecial(PathFromText(path))) {
    std::ofstream file(PathFromText(path), std::ios::binary);
    Put(file, text, path);
  } else {
    WriteFileAtomically(path, {text.begin(), text.end()});
  }
}

void RefuseSameFile(const String& output, const String& input) {
  std::error_code error;
  if (output == kStandardOutput || !fs::equivalent(PathFromText(output), PathFromText(input), error)) return;
  throw ModelFault("the output would overwrite " + input);
}

}  // namespace Tarnwise
