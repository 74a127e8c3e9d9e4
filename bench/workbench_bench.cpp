// The analyst's window on many units with three inputs and three outputs, judged 0.5 to 2 times their references; off
// screen, wall clock, up to the repainted window:
//   Window/Open           a project's file
//   Window/EditCell       a number typed into a cell, with its way back kept
//   Window/ScrollData     a step of a page of the table Data; also the first one, and the longest
//   Window/ScrollResults  the same of the results, with the chart beside them
//   Window/SolveAndShow   from the press on Compute to the table and the chart; also for how long the window answers
//                         nobody at worst
//   Window/Cancel         from the press on Cancel to what it says then, in the longest of several moments
#include "project/ProjectFile.h"
#include "workbench/MainWindow.h"
#include "workbench/ResultsPage.h"

#include <benchmark/benchmark.h>
#include <QtWidgets>

#include <algorithm>
#include <random>

namespace {

using namespace Tarnwise;

constexpr int kColumns = 6;
constexpr int kInputs = 3;

Project RandomProject(int units) {
  std::mt19937_64 engine(7);
  Project project;
  project.Name = "Random units";
  for (int k = 0; k < units; ++k) project.Units.push_back("Unit " + std::to_string(k + 1));
  JudgmentSession session;
  session.Basis = JudgmentBasis::Unit;
  session.CostReference = "Column 1";
  session.BenefitReference = "Column 4";
  for (int j = 0; j < kColumns; ++j) {
    DataColumn column;
    column.Name = "Column " + std::to_string(j + 1);
    column.Role = j < kInputs ? Role::Input : Role::Output;
    column.Worst = j < kInputs ? 20.0 : 10.0;
    column.Best = j < kInputs ? 10.0 : 20.0;
    for (int k = 0; k < units; ++k) {
      column.Values.emplace_back(10.0 + 10.0 * static_cast<double>(engine() >> 11U) * 0x1p-53);
    }
    project.Columns.push_back(std::move(column));
    SessionAttribute judged;
    judged.Name = project.Columns.back().Name;
    judged.Low = 0.5;
    judged.Ratio = 1.0;
    judged.High = 2.0;
    session.Attributes.push_back(judged);
  }
  project.Sessions.push_back(session);
  return project;
}

double Seconds(const QElapsedTimer& clock) { return static_cast<double>(clock.nsecsElapsed()) * 1e-9; }

// What is posted or painted later is part of what a person waits for.
void Settle() {
  for (int round = 0; round < 3; ++round) QCoreApplication::processEvents();
}

struct Shown {
  explicit Shown(int units, PageKind page) {
    Window.resize(1180, 760);
    Window.show();
    Window.Work().Replace(RandomProject(units));
    Window.ShowPage(page);
    Settle();
  }
  QPushButton* Button(const char* name) const { return Window.findChild<QPushButton*>(QLatin1String(name)); }
  void Solve() {
    Button("compute")->click();
    while (Window.Results().IsBusy()) Answer();
    Answer();
  }
  // Looks for what is to be done, as often as a person could notice.
  void Answer() {
    QElapsedTimer clock;
    clock.start();
    QCoreApplication::processEvents();
    LongestSilence = std::max(LongestSilence, Seconds(clock));
    QThread::usleep(500);
  }
  MainWindow Window;
  double LongestSilence = 0.0;  // while it computes and shows
};

void Open(benchmark::State& state) {
  const QTemporaryDir folder;
  const QString path = folder.filePath("units.tarnwise");
  WriteProject(path.toStdString(), RandomProject(static_cast<int>(state.range(0))));
  for (auto _ : state) {
    MainWindow window;
    window.resize(1180, 760);
    window.show();
    Settle();
    QElapsedTimer clock;
    clock.start();
    window.Work().Open(path);
    Settle();
    state.SetIterationTime(Seconds(clock));
  }
}
BENCHMARK(Open)->Name("Window/Open")->Arg(2500)->Arg(100000)->UseManualTime()->Unit(benchmark::kMillisecond);

// By keys: the cursor goes along, and what is said of its cell.
void Scroll(benchmark::State& state, QTableView& table) {
  table.setCurrentIndex(table.model()->index(0, 1));
  Settle();
  double first = 0.0;
  double longest = 0.0;
  for (auto _ : state) {
    QElapsedTimer clock;
    clock.start();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_PageDown, Qt::NoModifier);
    QCoreApplication::sendEvent(&table, &press);
    Settle();
    const double took = Seconds(clock);
    if (first == 0.0) first = took;
    longest = std::max(longest, took);
    state.SetIterationTime(took);
  }
  state.counters["FirstMilliseconds"] = 1000.0 * first;
  state.counters["LongestMilliseconds"] = 1000.0 * longest;
}

void EditCell(benchmark::State& state) {
  Shown shown(static_cast<int>(state.range(0)), PageKind::Data);
  QAbstractItemModel& cells = *shown.Window.findChild<QTableView*>(QStringLiteral("dataTable"))->model();
  double number = 11.5;
  for (auto _ : state) {
    QElapsedTimer clock;
    clock.start();
    cells.setData(cells.index(3, 2), QString::number(number += 0.001));
    Settle();
    state.SetIterationTime(Seconds(clock));
  }
}
BENCHMARK(EditCell)->Name("Window/EditCell")->Arg(2500)->Arg(100000)->UseManualTime()->Unit(benchmark::kMillisecond);

void ScrollData(benchmark::State& state) {
  Shown shown(static_cast<int>(state.range(0)), PageKind::Data);
  Scroll(state, *shown.Window.findChild<QTableView*>(QStringLiteral("dataTable")));
}
BENCHMARK(ScrollData)
    ->Name("Window/ScrollData")
    ->Arg(2500)
    ->Arg(100000)
    ->Iterations(200)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

void ScrollResults(benchmark::State& state) {
  Shown shown(static_cast<int>(state.range(0)), PageKind::Results);
  shown.Solve();
  Scroll(state, *shown.Window.findChild<QTableView*>(QStringLiteral("results")));
}
BENCHMARK(ScrollResults)
    ->Name("Window/ScrollResults")
    ->Arg(2500)
    ->Arg(100000)
    ->Iterations(200)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

void SolveAndShow(benchmark::State& state) {
  Shown shown(static_cast<int>(state.range(0)), PageKind::Results);
  for (auto _ : state) {
    QElapsedTimer clock;
    clock.start();
    shown.Solve();
    state.SetIterationTime(Seconds(clock));
    if (shown.Window.Results().Shown() == nullptr) state.SkipWithError("there are no results");
  }
  state.counters["LongestSilenceMilliseconds"] = 1000.0 * shown.LongestSilence;
}
BENCHMARK(SolveAndShow)
    ->Name("Window/SolveAndShow")
    ->Arg(2500)
    ->Arg(100000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

// The longest of what the window takes to hear the press, and to say that it is cancelled.
double CancelAfter(Shown& shown, int milliseconds) {
  shown.Button("compute")->click();
  QElapsedTimer clock;
  clock.start();
  while (shown.Window.Results().IsBusy() && clock.elapsed() < milliseconds) {
    QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
  }
  if (!shown.Window.Results().IsBusy()) return 0.0;
  clock.restart();
  shown.Button("cancel")->click();
  while (shown.Window.Results().IsBusy()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 5);
  Settle();
  return Seconds(clock);
}

void Cancel(benchmark::State& state) {
  Shown shown(static_cast<int>(state.range(0)), PageKind::Results);
  for (auto _ : state) {
    double longest = 0.0;
    for (const int after : {0, 5, 20, 60, 150, 400, 900, 1600, 2400, 3200}) {
      longest = std::max(longest, CancelAfter(shown, after));
    }
    state.SetIterationTime(longest);
  }
}
BENCHMARK(Cancel)
    ->Name("Window/Cancel")
    ->Arg(2500)
    ->Arg(100000)
    ->Iterations(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QTemporaryDir settings;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
  benchmark::Initialize(&argc, argv);
  const QApplication application(argc, argv);
  QApplication::setOrganizationName(QStringLiteral("Tarnwise"));
  QApplication::setApplicationName(QStringLiteral("Tarnwise benchmark"));
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
