// Whole processes, measured by the processor time that they took:
//   Process/Play200Lines   `tarnwise play` without a screen, a direct session of 200 lines
//   Process/QtFirstForm    `tarnwise play --toolkit qt` off screen up to the first painted form
#include <benchmark/benchmark.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

std::string SessionOf200Lines() {
  std::ifstream file(std::string(TARNWISE_SAMPLES) + "/hospitals.session");
  std::stringstream text;
  text << file.rdbuf();
  std::string session;
  std::string line;
  int lines = 0;
  // Up to the first judgment as it stands, then handle movements and questions until the 200th line.
  while (std::getline(text, line) && line.rfind("shot 6", 0) != 0) {
    session += line + "\n";
    ++lines;
  }
  for (int i = 0; lines < 200; ++lines, ++i) {
    session += i % 2 == 0 ? "drag picHandle(0) picTradeOffsRange " + std::to_string(60 + i % 40) + " 72\n"
                          : std::string("get txtWRUpper.Text\n");
  }
  return session;
}

// Runs the program on a session; processor seconds, or nothing less than 0 when it could not be run.
double ProcessorSeconds(const std::string& toolkit, const std::filesystem::path& script, const std::string& shots) {
  const pid_t child = fork();
  if (child == 0) {
    if (std::freopen("/dev/null", "w", stdout) == nullptr) _exit(127);
    execl(TARNWISE_PROGRAM, TARNWISE_PROGRAM, "play", "--toolkit", toolkit.c_str(), "--shots", shots.c_str(),
          script.c_str(), static_cast<char*>(nullptr));
    _exit(127);
  }
  int status = 0;
  rusage used{};
  if (child < 0 || wait4(child, &status, 0, &used) < 0 || !WIFEXITED(status) || WEXITSTATUS(status) > 1) return -1.0;
  const auto seconds = [](const timeval& t) {
    return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_usec) / 1e6;
  };
  return seconds(used.ru_utime) + seconds(used.ru_stime);
}

void Play(benchmark::State& state, const std::string& toolkit, const std::string& session) {
  const auto folder = std::filesystem::temp_directory_path() / ("tarnwise-bench-" + std::to_string(getpid()));
  std::filesystem::create_directories(folder);
  std::filesystem::copy_file(std::string(TARNWISE_SAMPLES) + "/hospitals.kst", folder / "hospitals.kst",
                             std::filesystem::copy_options::overwrite_existing);
  std::ofstream(folder / "bench.session") << session;
  for (auto _ : state) {
    const double seconds = ProcessorSeconds(toolkit, folder / "bench.session", folder.string());
    if (seconds < 0.0) {
      state.SkipWithError("the program could not be run");
      break;
    }
    state.SetIterationTime(seconds);
  }
  std::filesystem::remove_all(folder);
}

void Play200Lines(benchmark::State& state) { Play(state, "headless", SessionOf200Lines()); }
BENCHMARK(Play200Lines)->Name("Process/Play200Lines")->UseManualTime()->Unit(benchmark::kMillisecond);

void QtFirstForm(benchmark::State& state) {
  Play(state, "qt", "host load hospitals.kst\nhost points zero\nhost show\nshot first.png\n");
}
BENCHMARK(QtFirstForm)->Name("Process/QtFirstForm")->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
