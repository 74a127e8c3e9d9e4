#include "judging/ResultsGrids.h"

#include "direct/Ward.h"
#include "support/TestHost.h"
#include "view/Form.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

// The two grids on a form of their own.
struct Results : TestScreen {
  std::shared_ptr<Form> On = std::make_shared<Form>(Screen, "frmResults");
  Grid gridBRJ{*On, On.get(), "gridBRJ"};
  Grid gridCRJ{*On, On.get(), "gridCRJ"};

  explicit Results(const WizardData& data) {
    gridBRJ.Width = 10000.0F;
    gridCRJ.Width = 3001.0F;
    ShowResults(gridBRJ, gridCRJ, data);
  }
};

const Lines kHeader{"ID", "Attributes", "Weights", "Weight ratios", "Ratio ranges"};

WizardData WardData() {
  WizardData data = RankedData(WardRanks(), 0, 3);
  data.AttributeList = WardModel().AttributeList;
  return data;
}

TEST(ResultsGrids, HaveAHeaderAndARowForEachAttributeOfTheirGroupInTheOrderOfIds) {
  WizardData data = WardData();
  Judge(data, 2, 1.37, 3.17);
  Judge(data, 5, 0.125, 0.999);
  const Results results(data);
  EXPECT_EQ(results.gridBRJ.TextMatrix, (std::vector<Lines>{kHeader,
                                                            {"1", "Beds", "Wb1", "Wb1/Wb1", "1"},
                                                            {"2", "Care", "Wb2", "Wb2/Wb1", "1.37,     3.17"},
                                                            {"3", "Research", "Wb3", "Wb3/Wb1", "0.80,     0.80"},
                                                            {"4", "Rest", "Wb4", "Wb4/Wb1", "0.80,     0.80"}}));
  EXPECT_EQ(results.gridCRJ.TextMatrix, (std::vector<Lines>{kHeader,
                                                            {"1", "Doctors", "Wc1", "Wc1/Wc2", "1.20,     1.20"},
                                                            {"2", "Nurses", "Wc2", "Wc2/Wc2", "1"},
                                                            {"3", "Night", "Wc3", "Wc3/Wc2", "0.13,     1.00"}}));
}

TEST(ResultsGrids, TakeTheirColumnsFromTheWidthsOfTwoHeaders) {
  const Results results(WardData());
  // "Weights" is 630 and "Weight ratios" 1170 twips wide on this screen.
  EXPECT_EQ(results.gridBRJ.ColWidth, (std::vector<int>{630, 3333, 1008, 1872, 2925}));
  EXPECT_EQ(results.gridCRJ.ColWidth[1], 1000);
  EXPECT_EQ(results.gridBRJ.Cols(), 5);
  EXPECT_EQ(results.gridBRJ.Rows(), 5);
  EXPECT_EQ(results.gridCRJ.Rows(), 4);
}

TEST(ResultsGrids, ShowTheReferencesOwnRatioPlainlyWhateverItIs) {
  WizardData data = WardData();
  data.Weights[0] = 0.333333333333333;
  data.Weights[3] = Integer(1);
  const Results results(data);
  EXPECT_EQ(results.gridBRJ.TextMatrix[1][4], "0.333333333333333");
  EXPECT_EQ(results.gridCRJ.TextMatrix[2][4], "1");
}

TEST(ResultsGrids, OfAGroupOfOneHoldTheReferenceAlone) {
  const Results results(RankedData({B(1), C(1), C(2)}, 0, 1));
  EXPECT_EQ(results.gridBRJ.TextMatrix, (std::vector<Lines>{kHeader, {"1", "Att 0", "Wb1", "Wb1/Wb1", "1"}}));
}

TEST(ResultsGrids, OfAnEmptyGroupHaveTheirHeaderOnly) {
  const Results results(RankedData({B(1), B(2)}, 1, 0));
  EXPECT_EQ(results.gridCRJ.TextMatrix, std::vector<Lines>{kHeader});
  EXPECT_EQ(results.gridBRJ.TextMatrix[1][3], "Wb1/Wb2");
}

TEST(ResultsGrids, NumberTheReferenceZeroWhenItIsNotOneOfTheGroup) {
  WizardData data = WardData();
  data.BRefAttID = 1;
  const Results results(data);
  EXPECT_EQ(results.gridBRJ.TextMatrix[1][3], "Wb1/Wb0");
  EXPECT_EQ(results.gridBRJ.TextMatrix[4][4], "0.80,     0.80");
}

TEST(ResultsGrids, LeaveOutAnAttributeOfNeitherGroup) {
  WizardData data = WardData();
  data.AttributeList.AttOrientation[2] = "2";
  data.BRankCount = 3;
  data.CRankCount = 4;  // as the target list counts it
  const Results results(data);
  EXPECT_EQ(results.gridBRJ.TextMatrix[2], (Lines{"2", "Research", "Wb2", "Wb2/Wb1", "0.80,     0.80"}));
  EXPECT_EQ(results.gridCRJ.Rows(), 5);
  EXPECT_EQ(results.gridCRJ.TextMatrix[4], Lines(5));
}

TEST(ResultsGrids, ChangeNothingInTheWizardData) {
  WizardData data = WardData();
  const std::vector<Variant> weights = data.Weights.Items();
  const Results results(data);
  EXPECT_EQ(data.Weights.Items(), weights);
  EXPECT_EQ(data.WeightDone.Items(), WardData().WeightDone.Items());
}

TEST(ResultsGrids, AreEmptiedBeforeTheyAreFilledAgain) {
  WizardData data = WardData();
  Results results(data);
  data.BRankCount = 1;
  data.ModelHeader.NumAtts = 1;
  ShowResults(results.gridBRJ, results.gridCRJ, data);
  EXPECT_EQ(results.gridBRJ.Rows(), 2);
  EXPECT_EQ(results.gridCRJ.TextMatrix[1], Lines(5));
}

}  // namespace
}  // namespace Tarnwise
