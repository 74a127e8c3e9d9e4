// Drag/QtRepaint: one movement of a handle with 31 attributes, up to the repainted window (off screen).
#include "Models.h"
#include "direct/frmDirectB.h"
#include "view/Platform.h"

#include <tarnwise/TRN_DEA.h>

#include <benchmark/benchmark.h>
#include <QApplication>

namespace {

using namespace Tarnwise;

void DragWithRepaint(benchmark::State& state) {
  static int argc = 1;
  static char name[] = "tarnwise_bench";
  static char* argv[] = {name, nullptr};
  const QApplication application(argc, argv);
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

}  // namespace
