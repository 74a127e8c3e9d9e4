// Benchmarks without a screen. Compare the rows of one run; the names say what belongs together:
//   Drag/*     one movement of a handle with 31 attributes and the consistency control on
//   Read/*     a full 31 x 51 model file: as the wizard reads it, and a plain read with a copy of the same bytes
//   Score/*    the score of a value that is not reached, and of the scale's top: as built, the plain walk, and the
//              additions alone
//   Akima/*    one interpolation by search: ours, and the GNU Scientific Library's with its accelerator
//   TradeOff/* opening the step, one dropped point, and a commit with 15 attributes on the rank
#include "Models.h"
#include "curves/mdGraphs.h"
#include "direct/frmDirectB.h"
#include "modelfiles/ModelWriter.h"
#include "tradeoffs/frmTradeOffsB.h"
#include "view/Platform.h"
#include "view/headless/HeadlessToolkit.h"
#include "wizard/OpenModel.h"

#include <benchmark/benchmark.h>
#include <gsl/gsl_interp.h>

#include <cmath>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace {

using namespace Tarnwise;

std::shared_ptr<Platform> NoScreen() { return std::make_shared<Platform>(std::make_shared<HeadlessToolkit>()); }

void DragLogic(benchmark::State& state) {
  WizardData data = FullModel(16, 0);
  const auto screen = NoScreen();
  const auto form = std::make_shared<frmDirectB>(screen, data);
  form->Load();
  screen->SyncAll();
  Control& chart = form->Chart.picTradeOffsRange;
  screen->Drag.Begin(form->Chart.picHandle[0]);
  Single x = 60.0F;
  for (auto _ : state) {
    x = x > 200.0F ? 60.0F : x + 0.5F;
    screen->Drag.Over(chart, x, 101.0F);
  }
}
BENCHMARK(DragLogic)->Name("Drag/Logic");

String FullModelPath() {
  const auto path = std::filesystem::temp_directory_path() / "tarnwise-bench.kst";
  const std::vector<char> bytes = ModelBytes(FullModel(16, 0));
  std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return path.string();
}

void ReadModelWhole(benchmark::State& state) {
  const String path = FullModelPath();
  const auto screen = NoScreen();
  WizardData data;
  for (auto _ : state) {
    ReadModelFile(data, *screen, path);
    benchmark::DoNotOptimize(data);
  }
  std::filesystem::remove(path);
}
BENCHMARK(ReadModelWhole)->Name("Read/ModelFile");

void PlainReadAndCopy(benchmark::State& state) {
  const String path = FullModelPath();
  std::vector<char> copy;
  for (auto _ : state) {
    std::ifstream file(path, std::ios::binary);
    std::vector<char> bytes(static_cast<std::size_t>(std::filesystem::file_size(path)));
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    copy.resize(bytes.size());
    std::memcpy(copy.data(), bytes.data(), bytes.size());
    benchmark::DoNotOptimize(copy);
  }
  std::filesystem::remove(path);
}
BENCHMARK(PlainReadAndCopy)->Name("Read/PlainReadAndCopy");

constexpr int kCurveAtt = 7;
constexpr Single kOutOfReach = 1.5F;

void ScoreAsBuilt(benchmark::State& state) {
  const WizardData data = FullModel(16, 0);
  for (auto _ : state) benchmark::DoNotOptimize(GetAttScore(data, kCurveAtt, kOutOfReach));
}
BENCHMARK(ScoreAsBuilt)->Name("Score/AsBuilt");

void ScoreOfTheTop(benchmark::State& state) {
  const WizardData data = FullModel(16, 0);
  const auto top = static_cast<Single>(data.AttValueData.ScoreMax[kCurveAtt]);
  const auto value = static_cast<Single>(GetAttValue(data, kCurveAtt, top));
  for (auto _ : state) benchmark::DoNotOptimize(GetAttScore(data, kCurveAtt, value));
}
BENCHMARK(ScoreOfTheTop)->Name("Score/OfTheTop");

// The walk as it is defined: every point interpolated anew.
void ScorePlainWalk(benchmark::State& state) {
  const WizardData data = FullModel(16, 0);
  const Double top = data.AttValueData.ScoreMax[kCurveAtt];
  const Double step = (top - data.AttValueData.ScoreMin[kCurveAtt]) / 10000.0;
  for (auto _ : state) {
    const Curve curve = CurveOf(data, kCurveAtt);
    Double x = curve.X[0];
    for (;;) {
      x += step;
      if (!(x < top)) break;
      if (std::fabs(AkimaInterpolate(curve, -1, x)[4] - static_cast<Double>(kOutOfReach)) <= 0.0001) break;
    }
    benchmark::DoNotOptimize(x);
  }
}
BENCHMARK(ScorePlainWalk)->Name("Score/PlainWalk");

// What any exact answer must do: 10,000 additions, each waiting for the one before.
void ScoreAdditionChain(benchmark::State& state) {
  Double step = 0.03173;
  benchmark::DoNotOptimize(step);
  for (auto _ : state) {
    Double x = 73.7;
    for (int i = 0; i < 10000; ++i) x += step;
    benchmark::DoNotOptimize(x);
  }
}
BENCHMARK(ScoreAdditionChain)->Name("Score/AdditionChain");

void ScoreCubics(benchmark::State& state) {
  Double c[4] = {0.1, 0.2, 0.03, 0.004};
  benchmark::DoNotOptimize(c);
  for (auto _ : state) {
    Double sum = 0.0;
    for (int i = 0; i < 10000; ++i) {
      const Double d = i * 0.0001;
      sum += c[0] + d * c[1] + (d * d) * c[2] + (d * d * d) * c[3];
    }
    benchmark::DoNotOptimize(sum);
  }
}
BENCHMARK(ScoreCubics)->Name("Score/TenThousandCubics");

void AkimaOurs(benchmark::State& state) {
  const WizardData data = FullModel(16, 0);
  const Curve curve = CurveOf(data, kCurveAtt);
  PreparedCurve prepared(curve);
  Double x = curve.X[0];
  for (auto _ : state) {
    x = x > curve.X[9] ? curve.X[0] : x + 1.37;
    benchmark::DoNotOptimize(prepared.ValueAt(x));
  }
}
BENCHMARK(AkimaOurs)->Name("Akima/Ours");

// Nothing kept from one value to the next.
void AkimaOursFresh(benchmark::State& state) {
  const WizardData data = FullModel(16, 0);
  const Curve curve = CurveOf(data, kCurveAtt);
  Double x = curve.X[0];
  for (auto _ : state) {
    x = x > curve.X[9] ? curve.X[0] : x + 1.37;
    benchmark::DoNotOptimize(AkimaInterpolate(curve, -1, x));
  }
}
BENCHMARK(AkimaOursFresh)->Name("Akima/OursEachTime");

void AkimaGsl(benchmark::State& state) {
  const WizardData data = FullModel(16, 0);
  const Curve curve = CurveOf(data, kCurveAtt);
  gsl_interp* const interp = gsl_interp_alloc(gsl_interp_akima, kMaxCurvePoints);
  gsl_interp_accel* const accel = gsl_interp_accel_alloc();
  gsl_interp_init(interp, curve.X.data(), curve.Y.data(), kMaxCurvePoints);
  Double x = curve.X[0];
  for (auto _ : state) {
    x = x > curve.X[9] ? curve.X[0] : x + 1.37;
    benchmark::DoNotOptimize(gsl_interp_eval(interp, curve.X.data(), curve.Y.data(), x, accel));
  }
  gsl_interp_accel_free(accel);
  gsl_interp_free(interp);
}
BENCHMARK(AkimaGsl)->Name("Akima/GslWithAccelerator");

// The library's curve made ready for each value, as ours is.
void AkimaGslFresh(benchmark::State& state) {
  const WizardData data = FullModel(16, 0);
  const Curve curve = CurveOf(data, kCurveAtt);
  gsl_interp* const interp = gsl_interp_alloc(gsl_interp_akima, kMaxCurvePoints);
  gsl_interp_accel* const accel = gsl_interp_accel_alloc();
  Double x = curve.X[0];
  for (auto _ : state) {
    x = x > curve.X[9] ? curve.X[0] : x + 1.37;
    gsl_interp_init(interp, curve.X.data(), curve.Y.data(), kMaxCurvePoints);
    benchmark::DoNotOptimize(gsl_interp_eval(interp, curve.X.data(), curve.Y.data(), x, accel));
  }
  gsl_interp_accel_free(accel);
  gsl_interp_free(interp);
}
BENCHMARK(AkimaGslFresh)->Name("Akima/GslInitEachTime");

void TradeOffOpen(benchmark::State& state) {
  WizardData data = FullModel(16, 0);
  const auto screen = NoScreen();
  for (auto _ : state) {
    const auto form = std::make_shared<frmTradeOffsB>(screen, data);
    form->Load();
  }
}
BENCHMARK(TradeOffOpen)->Name("TradeOff/Open")->Unit(benchmark::kMillisecond);

void TradeOffDrop(benchmark::State& state) {
  WizardData data = FullModel(16, 0);
  const auto screen = NoScreen();
  const auto form = std::make_shared<frmTradeOffsB>(screen, data);
  form->Load();
  Control& plot = form->Chart.picTradeOffsRange;
  Single x = 1000.0F;
  for (auto _ : state) {
    x = x > 3000.0F ? 1000.0F : x + 7.0F;
    plot.DragDrop(form->Chart.shpPCA, x, 1800.0F);
  }
}
BENCHMARK(TradeOffDrop)->Name("TradeOff/DropWithVerdict");

void TradeOffCommit(benchmark::State& state) {
  WizardData data = FullModel(17, 16);
  data.ABPoints2.Allocate(kMaxAtts);
  for (auto _ : state) CommitTradeOff(data, 1, {"0.61", "0.93", "0.77"});
}
BENCHMARK(TradeOffCommit)->Name("TradeOff/CommitWith15Peers/BelowOne")->Unit(benchmark::kMillisecond);

void TradeOffCommitAbove(benchmark::State& state) {
  WizardData data = FullModel(17, 16);
  data.ABPoints2.Allocate(kMaxAtts);
  for (auto _ : state) CommitTradeOff(data, 1, {"1.17", "1.93", "1.4"});
}
BENCHMARK(TradeOffCommitAbove)->Name("TradeOff/CommitWith15Peers/AboveOne")->Unit(benchmark::kMillisecond);

}  // namespace
