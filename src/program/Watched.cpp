#include "program/Watched.h"

#include "dea/Watch.h"
#include "program/ProgressBar.h"

#include <optional>

namespace Tarnwise {

Evaluation EvaluateWatched(const Project& project, const Asked& asked, const Console& console) {
  std::optional<ProgressBar> bar;
  Dea::Watch watch;
  watch.Cancel = console.Cancel;
  if (console.ErrIsTerminal) {
    bar.emplace(console.Err, ProgressBar::Clock::now());
    watch.Progress = [&bar](double share) { bar->Show(share, ProgressBar::Clock::now()); };
  }
  Evaluation evaluation = Evaluate(project, asked, watch);
  watch.LookAtFlag();
  return evaluation;
}

}  // namespace Tarnwise
