#include "judging/ResultsGrids.h"

#include "runtime/Numbers.h"
#include "runtime/Text.h"
#include "view/Platform.h"

namespace Tarnwise {

namespace {

int Rounded(Double twips) { return static_cast<int>(RoundHalfEven(twips)); }

// The reference's place in its group from 1; 0 when it is not one of the group.
int PlaceOfReference(const WizardData& data, Group g) {
  const int reference = g == Group::Benefit ? data.BRefAttID : data.CRefAttID;
  int place = 0;
  for (int i = 0; i < data.NumAtts(); ++i) {
    if (!InGroup(data, i, g)) continue;
    ++place;
    if (i == reference) return place;
  }
  return 0;
}

String RangeText(const WizardData& data, int att, bool isReference) {
  if (isReference) return ToText(data.Weights[att]);
  return Format(ToDouble(data.WeightsL[att]), "0.00") + ",     " + Format(ToDouble(data.WeightsH[att]), "0.00");
}

}  // namespace

void SetupGrid(Grid& grid, const WizardData& data, Group g) {
  const char* const headers[] = {"ID", "Attributes", "Weights", "Weight ratios", "Ratio ranges"};
  Platform& screen = grid.Owner.Screen();
  const auto w1 = static_cast<Double>(screen.TextWidth(headers[2]));
  const auto w2 = static_cast<Double>(screen.TextWidth(headers[3]));
  grid.Shape(GroupSize(data, g) + 1, 5);
  grid.SetColWidth(0, Rounded(w1));
  grid.SetColWidth(1, static_cast<int>(grid.Width / 3.0F));
  grid.SetColWidth(2, Rounded(1.6 * w1));
  grid.SetColWidth(3, Rounded(1.6 * w2));
  grid.SetColWidth(4, Rounded(2.5 * w2));
  for (int col = 0; col < 5; ++col) grid.SetCell(0, col, headers[col]);
}

void FillGrid(Grid& grid, const WizardData& data, Group g) {
  const String symbol = g == Group::Benefit ? "Wb" : "Wc";
  const int reference = g == Group::Benefit ? data.BRefAttID : data.CRefAttID;
  const String referenceSymbol = symbol + std::to_string(PlaceOfReference(data, g));
  int row = 0;
  for (int i = 0; i < data.NumAtts(); ++i) {
    if (!InGroup(data, i, g)) continue;
    ++row;
    const String own = symbol + std::to_string(row);
    grid.SetCell(row, 0, std::to_string(row));
    grid.SetCell(row, 1, Trim(data.AttName(i)));
    grid.SetCell(row, 2, own);
    grid.SetCell(row, 3, own + "/" + referenceSymbol);
    grid.SetCell(row, 4, RangeText(data, i, i == reference));
  }
}

void ShowResults(Grid& gridBRJ, Grid& gridCRJ, const WizardData& data) {
  SetupGrid(gridBRJ, data, Group::Benefit);
  SetupGrid(gridCRJ, data, Group::Cost);
  FillGrid(gridBRJ, data, Group::Benefit);
  FillGrid(gridCRJ, data, Group::Cost);
}

}  // namespace Tarnwise
