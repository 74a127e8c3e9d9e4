#include "modelfiles/WholeFile.h"
#include "project/Evaluation.h"

namespace Tarnwise {

bool CanSolve() { return false; }

Evaluation Evaluate(const Project& /*project*/, const Asked& /*asked*/, const Dea::Watch& /*watch*/) {
  throw ModelFault("this program was built without a solver of linear programs and can't work out efficiencies");
}

}  // namespace Tarnwise
