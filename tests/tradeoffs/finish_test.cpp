#include "TradeOffs.h"

namespace Tarnwise {
namespace {

struct Exports : TradeOffStep {
  explicit Exports(const WizardData& model) : TradeOffStep(model) {
    Form->ExportTradeOffsBW = [this](const String& type, Integer b, Integer c, Variant& ratio, Array<Variant>& weights,
                                     Array<Variant>& high, Array<Variant>& low) {
      Notes.push_back("weights " + type + " " + std::to_string(b) + " " + std::to_string(c) + " " + ToText(ratio));
      for (const Array<Variant>* array : {&weights, &high, &low}) {
        String line;
        for (const Variant& v : array->Items()) line += ToText(v) + " ";
        Notes.push_back(line);
      }
      if (InWeights) InWeights();
    };
    Form->ExportABScores = [this](PointArrays& points) {
      Notes.push_back("scores");
      Exported = points;
    };
    Form->UnloadTarnwise = [this](Integer index, Boolean done) {
      Notes.push_back("unload " + std::to_string(index) + (done ? " done" : ""));
    };
  }

  PointArrays Exported;
  const Variant& Field(PointField field, std::size_t att) const { return Exported[field][att]; }
  std::function<void()> InWeights;
};

TEST(FinishOfTradeOffs, ExportsWeightsThenPointsThenEnds) {
  Exports step(Judged(TradeOffData({B(1), B(2), C(1)}, 1, 2), kTradeOffsType));
  step.Data.RefAttWR = 1.5;
  StoreInterval(step.Data, 0, {1.25, 1.5, 2.0});
  step.TakeNotes();
  step.Click("cmdFinish");
  EXPECT_EQ(step.TakeNotes(), (Lines{"pointer 11", "weights DEA_TRADEOFFS 1 2 1.5", "1.5 1 1 ", "2 1 1 ", "1.25 1 1 ",
                                     "scores", "pointer 0", "unload 3 done"}));
}

TEST(FinishOfTradeOffs, ThePointsAreSinglesAndTheOrientationsIntegers) {
  WizardData data = Judged(Ward(), kTradeOffsType);
  data.ABPoints2[2] = PointsAt(60.5F, 40.25F, 20.125F, 80);
  data.ABPoints2[2].ALX = 50;
  data.ABPoints2[2].ALY = 41;
  data.ABPoints2[2].AUX = 70;
  data.ABPoints2[2].AUY = 42;
  Exports step(data);
  step.Click("cmdFinish");
  for (const VariantArray& array : step.Exported) EXPECT_EQ(array.size(), 8U);
  const Variant fields[] = {60.5F, 40.25F, 20.125F, 80.0F, Integer(0), 50.0F, 41.0F, 70.0F, 42.0F};
  for (int f = 0; f < kPointFields; ++f) EXPECT_EQ(step.Field(PointField(f), 2), fields[f]) << kPointNames[f];
}

TEST(FinishOfTradeOffs, OrientationsGoOutAsTheyCameFromTheHost) {
  WizardData data = Judged(Ward(), kTradeOffsType);
  data.ABPoints1[0].AOrientation = 2;
  data.ABPoints1[5].AOrientation = 1;
  data.ABPoints2[0] = PointsAt(60, 40, 20, 90);
  Exports step(data);
  step.Press(step.Form->Uncertainty.tbMovRight, "MovRight");
  step.Click("cmdEnter");
  EXPECT_EQ(step.Record(0).AOrientation, 1);
  step.Click("cmdFinish");
  EXPECT_EQ(step.Field(kAOrientation, 0), Variant(Integer(2)));
  EXPECT_EQ(step.Field(kAOrientation, 5), Variant(Integer(1)));
  EXPECT_EQ(step.Field(kAUX, 0), Variant(step.Record(0).AUX));
}

TEST(FinishOfTradeOffs, ThePointsAreThoseThatStandAfterTheWeightsWereTaken) {
  Exports step(Judged(Ward(), kTradeOffsType));
  step.InWeights = [&step] {
    step.Data.ABPoints2[2].AX = 12.5F;
    step.Data.ABPoints1[2].AOrientation = 2;
  };
  step.Click("cmdFinish");
  EXPECT_EQ(step.Field(kAX, 2), Variant(12.5F));
  EXPECT_EQ(step.Field(kAOrientation, 2), Variant(Integer(2)));
}

TEST(FinishOfTradeOffs, WithUnjudgedAttributesExportsWhatStands) {
  WizardData data = Judged(Ward(), kTradeOffsType);
  data.WeightDone[0] = false;
  Exports step(data);
  step.TakeNotes();
  step.Click("cmdFinish");
  EXPECT_EQ(step.TakeNotes().back(), "unload 3 done");
}

}  // namespace
}  // namespace Tarnwise
