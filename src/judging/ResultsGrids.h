// The grids of the results page: what the judgments came to, read from the wizard data.
#pragma once

#include "model/Groups.h"
#include "view/Controls.h"

namespace Tarnwise {

// Shape, column widths and headers. w1 and w2 of the column widths are those of "Weights" and "Weight ratios" in the
// grid's font.
void SetupGrid(Grid& grid, const WizardData& data, Group g);

// One row for each attribute of the group, in ascending id.
void FillGrid(Grid& grid, const WizardData& data, Group g);

// Both grids, in the order in which the results page wants them.
void ShowResults(Grid& gridBRJ, Grid& gridCRJ, const WizardData& data);

}  // namespace Tarnwise
