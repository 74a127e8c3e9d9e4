#include "modelfiles/SaveModel.h"

#include "model/ModelFile.h"
#include "model/ModelFileBytes.h"
#include "support/FaultOf.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

class SaveModel : public testing::Test {
 protected:
  TemporaryFolder folder;
  const String path = folder.Write("model.kst", ModelFileBytes().Whole(3).Bytes);
  WizardData judged = ReadBack();

  WizardData ReadBack() {
    WizardData data;
    ReadModel(data, TemporaryFolder::Read(path));
    return data;
  }
  void Save() {
    SaveJudgments(path, judged, kTradeOffsType, 2, 1, Variant(0.4667), {Variant(1.5), Variant(1.0), Variant(1.0)},
                  {Variant(1.75), Variant(1.0), Variant(1.0)}, {Variant(1.25), Variant(1.0), Variant(1.0)});
  }
  String FaultOfSaving() {
    return FaultOf([this] { Save(); });
  }
  static std::vector<char> BytesWithJudgmentsSaved() {
    ModelFileBytes file;
    file.Header(3).Settings().Alternatives().Attributes().RawScores().Scores().ValueData();
    file.Text("DEA_TRADEOFFS").Tag(2).Int(2).Tag(2).Int(1).TaggedDouble(0.4667);
    file.Number(1.5).Doubles(2, 1.0).Doubles(28, 0.0).Number(1.75).Doubles(2, 1.0).Doubles(28, 0.0);
    return file.Number(1.25).Doubles(2, 1.0).Doubles(28, 0.0).Text("end").Bytes;
  }
};

TEST_F(SaveModel, JudgmentsAreReplacedAndEveryOtherByteStays) {
  Save();
  EXPECT_EQ(TemporaryFolder::Read(path), BytesWithJudgmentsSaved());
  EXPECT_EQ(folder.CountFiles(), 1U);
}

TEST_F(SaveModel, NextReadResumesFromTheJudgments) {
  Save();
  const WizardData data = ReadBack();
  EXPECT_TRUE(data.HasStoredJudgments());
  EXPECT_EQ(data.SavedJudgments.SavedWeightsH[0], 1.75);
  EXPECT_EQ(ToInteger(data.SavedJudgments.SavedBRefAttID), 2);
}

TEST_F(SaveModel, ARatioOfTheReferencesThatWasNeverJudgedKeepsItsType) {
  for (const Variant& ratio : {Variant(Integer{1}), Variant(Null()), Variant()}) {
    SaveJudgments(path, judged, kDirectType, 2, 1, ratio, VariantArray(3, Variant(1.0)), VariantArray(3, Variant(1.0)),
                  VariantArray(3, Variant(1.0)));
    EXPECT_EQ(ReadBack().SavedJudgments.SavedRefAttWR, ratio) << ratio.index();
  }
}

TEST_F(SaveModel, SavingTwiceInOneSessionIsAllRight) {
  Save();
  EXPECT_EQ(FaultOfSaving(), "no fault");
  EXPECT_EQ(TemporaryFolder::Read(path), BytesWithJudgmentsSaved());
}

TEST_F(SaveModel, FileThatIsCutOffIsRefusedAndKept) {
  std::vector<char> cut = ModelFileBytes().Whole(3).Bytes;
  cut.resize(cut.size() - 20);
  folder.Write("model.kst", cut);
  EXPECT_NE(FaultOfSaving().find("would lose data"), String::npos) << FaultOfSaving();
  EXPECT_EQ(TemporaryFolder::Read(path), cut);
}

TEST_F(SaveModel, FileWithSomethingBehindTheModelIsRefusedAndKept) {
  std::vector<char> longer = ModelFileBytes().Whole(3).Bytes;
  longer.insert(longer.end(), {'m', 'o', 'r', 'e'});
  folder.Write("model.kst", longer);
  EXPECT_EQ(FaultOfSaving(),
            "the judgments were not saved, " + path + " would lose data: 4 bytes follow the model in it");
  EXPECT_EQ(TemporaryFolder::Read(path), longer);
}

TEST_F(SaveModel, FileThatHoldsAnotherModelByNowIsRefusedAndKept) {
  const std::vector<char> other = ModelFileBytes().Whole(4).Bytes;
  folder.Write("model.kst", other);
  EXPECT_EQ(FaultOfSaving(), "the judgments were not saved: " + path + " holds another model than the one judged");
  EXPECT_EQ(TemporaryFolder::Read(path), other);
}

TEST_F(SaveModel, MissingFileIsNotMade) {
  std::filesystem::remove(path);
  EXPECT_EQ(FaultOfSaving(), "there is no file " + path);
  EXPECT_EQ(folder.CountFiles(), 0U);
}

TEST_F(SaveModel, WeightsForAnotherNumberOfAttributesAreRefused) {
  const VariantArray two{Variant(1.0), Variant(1.0)};
  const auto save = [&] { SaveJudgments(path, judged, kDirectType, 0, 1, Variant(1.0), two, two, two); };
  EXPECT_EQ(FaultOf(save), "the judgments are for 2 attributes, the model has 3");
}

}  // namespace
}  // namespace Tarnwise
