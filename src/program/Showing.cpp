#include "program/Showing.h"

#include "dea/Watch.h"
#include "modelfiles/WholeFile.h"
#include "program/ProgressBar.h"

#include <optional>

namespace Tarnwise {

Evaluation EvaluateShowing(const Project& project, const String& path, const WishOptions& wishes,
                           const Console& console) {
  std::optional<ProgressBar> bar;
  Dea::Watch watch;
  watch.Cancel = console.Cancel;
  if (console.ErrIsTerminal) {
    bar.emplace(console.Err, ProgressBar::Clock::now());
    watch.Progress = [&bar](double share) { bar->Show(share, ProgressBar::Clock::now()); };
  }
  try {
    Evaluation evaluation = Evaluate(project, AskedOf(project, WishesOf(wishes)), watch);
    watch.LookAtFlag();
    return evaluation;
  } catch (const ModelFault& fault) {
    throw ModelFault(path + ": " + fault.what());
  }
}

}  // namespace Tarnwise
