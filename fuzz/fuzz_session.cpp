// Sessions of random lines on a random model, in the session player without a screen, each line followed by the checks.
#include "Expect.h"
#include "RandomModel.h"
#include "SessionChecks.h"
#include "SessionLines.h"
#include "modelfiles/ModelWriter.h"
#include "play/Player.h"
#include "view/Platform.h"

#include <istream>
#include <ostream>
#include <sstream>

#include <sys/mman.h>
#include <unistd.h>

namespace Tarnwise {
namespace {

constexpr int kMostLines = 250;

unsigned long long sessions = 0;
unsigned long long linesPlayed = 0;
unsigned long long refused = 0;
unsigned long long faults = 0;

void PrintCounts() {
  std::fprintf(stderr, "sessions: %llu, lines: %llu, refused: %llu, run-time errors: %llu\n", sessions, linesPlayed,
               refused, faults);
}

// A model as a file that stands on no disk.
struct MemoryFile {
  explicit MemoryFile(const char* name) : Handle(memfd_create(name, 0)) { Expect(Handle >= 0, "no file in memory"); }
  String Path() const { return "/proc/self/fd/" + std::to_string(Handle); }
  void Write(const std::vector<char>& bytes) const {
    const auto size = static_cast<ssize_t>(bytes.size());
    Expect(ftruncate(Handle, 0) == 0 && pwrite(Handle, bytes.data(), bytes.size(), 0) == size, "can't write in memory");
  }
  int Handle;
};

// The script: each line is made up when the player asks for it.
class LineBuffer : public std::streambuf {
 public:
  LineBuffer(SessionLines& lines, SessionChecks*& checks, const Platform& screen, std::ostringstream& printed)
      : lines_(lines), checks_(checks), screen_(screen), printed_(printed) {}

 protected:
  int_type underflow() override {
    const String printed = printed_.str();
    printed_.str({});
    refused += printed.starts_with("{\"refused\":") ? 1 : 0;
    faults += printed.find("{\"runtime_error\":") != String::npos ? 1 : 0;
    checks_->After(printed);
    line_ = given_++ < kMostLines ? NextLine(lines_, screen_) : String();
    if (line_.empty()) return traits_type::eof();
    static const bool shown = std::getenv("TARNWISE_SHOW_LINES") != nullptr;
    if (shown) std::fprintf(stderr, "%s%s\n", printed.c_str(), line_.c_str());
    ++linesPlayed;
    checks_->Before(line_);
    line_ += '\n';
    setg(line_.data(), line_.data(), line_.data() + line_.size());
    return traits_type::to_int_type(line_.front());
  }

 private:
  SessionLines& lines_;
  SessionChecks*& checks_;
  const Platform& screen_;
  std::ostringstream& printed_;
  String line_;
  int given_ = 0;
};

void Play(const std::uint8_t* bytes, std::size_t size) {
  static const MemoryFile models[] = {MemoryFile("model"), MemoryFile("other")};
  SessionLines lines{ByteSource(bytes, size), models[0].Path(), models[1].Path(), {}};
  models[0].Write(ModelBytes(RandomModel(lines.Bytes)));
  const bool another = lines.Bytes.OneIn(8);
  models[1].Write(another ? ModelBytes(RandomModel(lines.Bytes)) : std::vector<char>(3, 'x'));
  lines.Queued = {"host load " + lines.Model + " C:/KESTA 3", lines.Bytes.OneIn(16) ? "forms" : "host points zero",
                  "host show"};
  mdTRNMain() = WizardData();

  const std::unique_ptr<Driver> driver = MakeHeadlessDriver();
  std::ostringstream printed;
  std::ostringstream errors;
  SessionChecks* checks = nullptr;
  LineBuffer buffer(lines, checks, *driver->Screen(), printed);
  std::istream script(&buffer);
  std::unique_ptr<SessionChecks> made;
  {
    Player player(*driver, script, "/proc/self/fd", ".", printed, errors);
    made = std::make_unique<SessionChecks>(*driver->Screen());
    checks = made.get();
    player.Play();
  }
  ++sessions;
  Expect(errors.str().empty(), "no line of a script: " + errors.str());
  checks->AtEnd();
}

}  // namespace
}  // namespace Tarnwise

extern "C" int LLVMFuzzerInitialize(int* /*count*/, char*** /*arguments*/) {
  std::atexit(Tarnwise::PrintCounts);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  Tarnwise::Play(bytes, size);
  return 0;
}
