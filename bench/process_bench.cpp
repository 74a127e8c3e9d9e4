// Whole processes, measured by the processor time that they took:
//   Process/Play200Lines   `tarnwise play` without a screen, a direct session of 200 lines
//   Process/QtFirstForm    `tarnwise play --toolkit qt` off screen up to the first painted form
#include "Processes.h"

#include <benchmark/benchmark.h>
#include <unistd.h>

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

void Play(benchmark::State& state, const std::string& toolkit, const std::string& session) {
  const auto folder = std::filesystem::temp_directory_path() / ("tarnwise-bench-" + std::to_string(getpid()));
  std::filesystem::create_directories(folder);
  std::filesystem::copy_file(std::string(TARNWISE_SAMPLES) + "/hospitals.kst", folder / "hospitals.kst",
                             std::filesystem::copy_options::overwrite_existing);
  std::ofstream(folder / "bench.session") << session;
  for (auto _ : state) {
    const auto use = Tarnwise::RunProgram(
        {"play", "--toolkit", toolkit, "--shots", folder.string(), (folder / "bench.session").string()});
    if (!use) {
      state.SkipWithError("the program could not be run");
      break;
    }
    state.SetIterationTime(use->Seconds);
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
