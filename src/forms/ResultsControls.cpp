#include "forms/ResultsControls.h"

namespace Tarnwise {

namespace {

constexpr Single kTabHeight = 420.0F;

void PlaceGrid(Grid& grid, const Control& stage, const char* name, int tabIndex) {
  Place(grid, 0.0F, kGap + kTabHeight, stage.Width, stage.Height - kGap - kTabHeight - kGap);
  grid.AccessibleName = name;
  grid.TabIndex = tabIndex;
}

}  // namespace

ResultsControls::ResultsControls(Form& form, Control& stage)
    : tsWeightRatios(form, &stage, "tsWeightRatios"),
      gridBRJ(form, &stage, "gridBRJ"),
      gridCRJ(form, &stage, "gridCRJ") {
  Place(tsWeightRatios, 0.0F, kGap, stage.Width, kTabHeight);
  tsWeightRatios.Tabs = {{"Benefit value judgments", "Benefit"}, {"Cost value judgments", "Cost"}};
  tsWeightRatios.TabIndex = 500;
  PlaceGrid(gridBRJ, stage, "Benefit value judgments", 501);
  PlaceGrid(gridCRJ, stage, "Cost value judgments", 502);
  gridBRJ.ZOrder();
}

}  // namespace Tarnwise
