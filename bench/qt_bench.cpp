// With 31 attributes, off screen. Drag/QtRepaint: one movement of a handle, up to the repainted window. Open/Qt: a form
// made, shown with all its windows painted, and released again.
#include "Models.h"
#include "direct/frmDirectB.h"
#include "ordering/frmIniImpOrder.h"
#include "selection/frmTRNSelMethod.h"
#include "tradeoffs/frmTradeOffsB.h"
#include "view/Platform.h"

#include <tarnwise/TRN_DEA.h>

#include <benchmark/benchmark.h>
#include <QApplication>

namespace {

using namespace Tarnwise;

struct Application : QApplication {
  Application() : QApplication(argc, argv) {}
  static inline int argc = 1;
  static inline char name[] = "tarnwise_bench";
  static inline char* argv[] = {name, nullptr};
};

void DragWithRepaint(benchmark::State& state) {
  const Application application;
  WizardData data = FullModel(16, 0);
  const std::shared_ptr<Platform> screen = MakeQtPlatform();
  const auto form = std::make_shared<frmDirectB>(screen, data);
  screen->Created(*form);
  form->Load();
  screen->Show(*form);
  QApplication::processEvents();
  screen->Drag.Begin(form->Chart.picHandle[0]);
  Single x = 60.0F;
  for (auto _ : state) {
    x = x > 200.0F ? 60.0F : x + 0.5F;
    screen->Drag.Over(form->Chart.picTradeOffsRange, x, 101.0F);
    QApplication::processEvents();
  }
  screen->Release(*form);
  QApplication::processEvents();
}
BENCHMARK(DragWithRepaint)->Name("Drag/QtRepaint");

template <class AForm>
void Open(benchmark::State& state) {
  const Application application;
  WizardData data = FullModel(16, 0);
  const std::shared_ptr<Platform> screen = MakeQtPlatform();
  for (auto _ : state) {
    const auto form = std::make_shared<AForm>(screen, data);
    screen->Created(*form);
    form->Load();
    screen->Show(*form);
    QApplication::processEvents();
    screen->Release(*form);
    QApplication::processEvents();
  }
}
BENCHMARK(Open<frmTRNSelMethod>)->Name("Open/QtMethod")->Unit(benchmark::kMillisecond);
BENCHMARK(Open<frmIniImpOrder>)->Name("Open/QtOrdering")->Unit(benchmark::kMillisecond);
BENCHMARK(Open<frmDirectB>)->Name("Open/QtDirect")->Unit(benchmark::kMillisecond);
BENCHMARK(Open<frmTradeOffsB>)->Name("Open/QtTradeOffs")->Unit(benchmark::kMillisecond);

}  // namespace
