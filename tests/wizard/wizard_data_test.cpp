// The data that all steps share.
#include "Places.h"

namespace Tarnwise {
namespace {

TEST(WizardData, IsZeroEmptyAndUnallocatedAtFirst) {
  const WizardData data;
  EXPECT_EQ(data.NumAtts(), 0);
  EXPECT_EQ(data.RJType(), "");
  EXPECT_EQ(data.AttO.Count(), 0);
  EXPECT_EQ(data.BOM.Count(), 0);
  EXPECT_EQ(data.Weights.Count(), 0);
  EXPECT_EQ(data.WeightDone.Count(), 0);
  EXPECT_EQ(data.ABPoints1.Count(), 0);
  EXPECT_EQ(data.RefAttWR, Variant());
  EXPECT_FALSE(data.OrderChanged);
  EXPECT_EQ(data.MethodIndex, 0);
  EXPECT_EQ(data.IncnsistCtrl, 0);
}

TEST(WizardData, BoundsEveryArrayByTheModelsLimits) {
  const WizardData data;
  EXPECT_EQ(data.AttributeList.AttName.Count(), 31);
  EXPECT_EQ(data.AttributeList.AttDescription.Count(), 31);
  EXPECT_EQ(data.AttributeList.AttOrientation.Count(), 31);
  EXPECT_EQ(data.RawScores.RawScores.Rows(), 51);
  EXPECT_EQ(data.RawScores.RawScores.Cols(), 31);
  EXPECT_EQ(data.AttValueData.ValuePointX.Rows(), 31);
  EXPECT_EQ(data.AttValueData.ValuePointX.Cols(), 11);
  EXPECT_EQ(data.SavedJudgments.SavedWeights.Count(), 31);
}

TEST(WizardData, IsOneSetForAllObjectsOfTheThread) {
  Wizarding host(ModelOf(1, 2));
  host.Load();
  TRN_DEA other(host.Screen);
  const VariantArray points(3, Variant(4.0));
  other.TranferABCoordinates(points, points, points, points, points, points, points, points, points);
  EXPECT_EQ(mdTRNMain().ABPoints1.Count(), 3);
}

TEST(WizardData, ReadsOrientationsAsNumbers) {
  WizardData data = ModelOf(4, 0);
  data.AttributeList.AttOrientation[0] = " 1 ";
  data.AttributeList.AttOrientation[1] = "";
  data.AttributeList.AttOrientation[2] = "abc";
  data.AttributeList.AttOrientation[3] = "0.5";
  EXPECT_TRUE(data.IsCost(0));
  EXPECT_TRUE(data.IsBenefit(1));
  EXPECT_TRUE(data.IsBenefit(2));
  EXPECT_FALSE(data.IsBenefit(3));
  EXPECT_FALSE(data.IsCost(3));
}

TEST(WizardData, AFullModelRunsThroughToTheLastAttribute) {
  WizardData model = ModelOf(16, 15);
  std::vector<Double> weights;
  for (int i = 0; i < 31; ++i) weights.push_back(2.0 - 0.0625 * i);
  StoreJudgments(model, kDirectType, 0, 16, 1.5, weights);
  Session s(model);
  s.Given("host show\nclick cmdNext\nclick cmdNext\nclick cmdNext");
  EXPECT_EQ(s.Ask("data BAttCount\ndata CAttCount\ndata NumAtts\nget imgcmbTargetAtt.SelectedItem"),
            Lines({"16", "15", "31", "2"}));
}

TEST(WizardData, AModelWithoutAttributesHasEmptyLists) {
  Session s(ModelOf(0, 0));
  s.Given("host show\nclick cmdNext");
  EXPECT_EQ(s.Ask("data AttO\ndata Weights\ndata BRankCount\nget cmdNext.Enabled"), Lines({"[]", "[]", "0", "false"}));
}

TEST(WizardData, AnEmptyGroupsReferenceIsNotTheFirstAttribute) {
  Session s(ModelOf(2, 0));
  const String ranks = Drags("cmdAttA", {"picOrder(0)", "picOrder(1)"});
  s.Given(kOpenOrdering + ("click cmdAdd\n" + ranks) + "click cmdNext\nclick cmdAttButtons(1)\nclick cmdNext");
  EXPECT_EQ(s.Ask("data CRefAttID\nget frmDirectB.imgcmbTargetAtt.SelectedItem\ndata RefAttWR"), Lines({"0", "1", "1"}))
      << "attribute 0 is a target like any other";
}

TEST(References, OfAGroupWithoutAttributesAreNoAttribute) {
  WizardData data = ModelOf(0, 3);
  data.CRankCount = 3;
  data.CRefAttID = 2;
  EXPECT_FALSE(IsReference(data, 0));
  EXPECT_TRUE(IsReference(data, 2));
  EXPECT_FALSE(IsReferencePair(data, 2, 0));

  WizardData benefits = ModelOf(3, 0);
  benefits.BRankCount = 3;
  benefits.BRefAttID = 2;
  EXPECT_FALSE(IsReference(benefits, 0));
  EXPECT_TRUE(IsReference(benefits, 2));
  EXPECT_FALSE(IsReferencePair(benefits, 0, 2));
}

TEST(References, AreAPairWhereBothGroupsHaveThem) {
  WizardData data = ModelOf(2, 2);
  data.BRankCount = data.CRankCount = 2;
  data.BRefAttID = 1;
  data.CRefAttID = 2;
  EXPECT_TRUE(IsReferencePair(data, 2, 1));
  EXPECT_FALSE(IsReferencePair(data, 1, 2));
  EXPECT_FALSE(IsReferencePair(data, 2, 0));
  EXPECT_FALSE(IsReferencePair(data, 3, 1));
}

}  // namespace
}  // namespace Tarnwise
