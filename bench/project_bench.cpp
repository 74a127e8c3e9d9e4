// Projects of 100,000 units with three inputs and three outputs, 7 columns with the names:
//   Import/Table      a CSV file's bytes to a project, all found out: encoding, delimiter, header, decimal sign
//   Import/Program    `tarnwise import` of such a file, its project written; processor time, memory for each cell
//   Import/PlainRead  the same file's bytes parted at commas and line ends and read as numbers, nothing checked
//   Project/Text      a project to its file's text
//   Project/Read      and back
#include "Processes.h"
#include "project/ImportTable.h"
#include "project/ProjectFile.h"

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <charconv>
#include <filesystem>
#include <fstream>
#include <random>

namespace {

using namespace Tarnwise;

constexpr int kUnits = 100000;
constexpr int kNumbers = 6;
constexpr double kCells = kUnits * (kNumbers + 1.0);

String BigTable() {
  std::mt19937 random(1);
  std::uniform_int_distribution<int> thousandths(10000, 2000000);
  String text = "Unit,A,B,C,X,Y,Z\n";
  for (int i = 0; i < kUnits; ++i) {
    text += "Unit " + std::to_string(i);
    for (int k = 0; k < kNumbers; ++k) text += "," + ShortestText(thousandths(random) / 1000.0);
    text += "\n";
  }
  return text;
}

TableOptions Roles() {
  TableOptions options;
  options.Unit = "Unit";
  options.Inputs = {"A,B,C"};
  options.Outputs = {"X,Y,Z"};
  return options;
}

Project BigProject() {
  const String text = BigTable();
  return ImportTable({text.begin(), text.end()}, Roles()).Project;
}

void ImportOfATable(benchmark::State& state) {
  const String text = BigTable();
  const TableOptions options = Roles();
  for (auto _ : state) benchmark::DoNotOptimize(ImportTable({text.begin(), text.end()}, options));
}
BENCHMARK(ImportOfATable)->Name("Import/Table")->Unit(benchmark::kMillisecond);

void PlainRead(benchmark::State& state) {
  const String text = BigTable();
  for (auto _ : state) {
    std::vector<double> numbers;
    for (const char *at = text.data(), *const end = at + text.size(); at != end;) {
      const char* const cell = at;
      while (*at != ',' && *at != '\n') ++at;
      double number = 0.0;
      if (std::from_chars(cell, at, number).ec == std::errc()) numbers.push_back(number);
      ++at;
    }
    benchmark::DoNotOptimize(numbers);
  }
}
BENCHMARK(PlainRead)->Name("Import/PlainRead")->Unit(benchmark::kMillisecond);

void ImportByTheProgram(benchmark::State& state) {
  const auto folder = std::filesystem::temp_directory_path() / ("tarnwise-import-" + std::to_string(getpid()));
  std::filesystem::create_directories(folder);
  std::ofstream(folder / "big.csv") << BigTable();
  double most = 0.0;
  for (auto _ : state) {
    const auto use = RunProgram({"import", (folder / "big.csv").string(), (folder / "big.tarnwise").string(), "--force",
                                 "--unit", "Unit", "--inputs", "A,B,C", "--outputs", "X,Y,Z"});
    if (!use || !std::filesystem::exists(folder / "big.tarnwise")) {
      state.SkipWithError("the program could not be run");
      break;
    }
    state.SetIterationTime(use->Seconds);
    most = std::max(most, use->Bytes);
  }
  state.counters["BytesPerCell"] = most / kCells;
  std::filesystem::remove_all(folder);
}
BENCHMARK(ImportByTheProgram)->Name("Import/Program")->UseManualTime()->Unit(benchmark::kMillisecond);

void TextOfAProject(benchmark::State& state) {
  const Project project = BigProject();
  for (auto _ : state) benchmark::DoNotOptimize(ProjectText(project));
}
BENCHMARK(TextOfAProject)->Name("Project/Text")->Unit(benchmark::kMillisecond);

void ReadOfAProject(benchmark::State& state) {
  const String text = ProjectText(BigProject());
  for (auto _ : state) benchmark::DoNotOptimize(ProjectFromText(text));
}
BENCHMARK(ReadOfAProject)->Name("Project/Read")->Unit(benchmark::kMillisecond);

}  // namespace
