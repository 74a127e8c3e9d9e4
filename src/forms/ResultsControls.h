// The results page of both judgment steps: a grid for each group on its tab.
#pragma once

#include "forms/WizardForm.h"

namespace Tarnwise {

struct ResultsControls {
  ResultsControls(Form& form, Control& stage);

  TabStrip tsWeightRatios;
  Grid gridBRJ;
  Grid gridCRJ;
};

}  // namespace Tarnwise
