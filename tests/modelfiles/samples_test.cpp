#include "model/ModelFile.h"
#include "modelfiles/ModelJson.h"
#include "program/ModelCommands.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sstream>

namespace Tarnwise {
namespace {

class Samples : public testing::TestWithParam<const char*> {
 protected:
  const String json = String(TARNWISE_SAMPLES "/") + GetParam() + ".json";
  const String kst = String(TARNWISE_SAMPLES "/") + GetParam() + ".kst";
  WizardData data;

  Samples() { ReadModel(data, FileBytes(kst)); }
};

INSTANTIATE_TEST_SUITE_P(All, Samples, testing::Values("hospitals", "universities"),
                         [](const auto& sample) { return String(sample.param); });

TEST_P(Samples, ModelIsWhatItsDescriptionBuilds) {
  TemporaryFolder folder;
  std::ostringstream out;
  std::ostringstream err;
  ASSERT_EQ(BuildModel(json, folder.File("built.kst"), "", out, err), 0) << err.str();
  EXPECT_EQ(err.str(), "");
  EXPECT_EQ(FileBytes(folder.File("built.kst")), FileBytes(kst));
}

TEST_P(Samples, ModelShowsAsItsDescription) {
  std::ostringstream out;
  std::ostringstream err;
  ASSERT_EQ(ShowModel(kst, "", out, err), 0);
  EXPECT_EQ(err.str(), "");
  const std::vector<char> description = FileBytes(json);
  EXPECT_EQ(out.str(), String(description.begin(), description.end()));
}

TEST_P(Samples, ScoresLieOnTheScaleAndWithinTheRange) {
  for (int a = 0; a < 12; ++a) {
    for (int i = 0; i < data.NumAtts(); ++i) {
      const Double score = data.Scores.Scores(a, i);
      const auto [low, high] = std::minmax(data.AttValueData.WorstScore[i], data.AttValueData.BestScore[i]);
      EXPECT_TRUE(low <= score && score <= high) << data.AttName(i) << " of " << data.AlternativeList.Unused1[a];
      EXPECT_TRUE(data.AttValueData.ScoreMin[i] <= low && high <= data.AttValueData.ScoreMax[i]) << data.AttName(i);
    }
  }
}

TEST_P(Samples, CurvesLeadFromNoneToAllOfTheScale) {
  const AttValueData& values = data.AttValueData;
  for (int i = 0; i < data.NumAtts(); ++i) {
    const int last = values.ValuePointCount[i] - 1;
    EXPECT_EQ(values.ValuePointX(i, 0), Variant(values.ScoreMin[i])) << data.AttName(i);
    EXPECT_EQ(values.ValuePointX(i, last), Variant(values.ScoreMax[i])) << data.AttName(i);
    EXPECT_EQ(values.ValuePointY(i, 0), Variant(0.0)) << data.AttName(i);
    EXPECT_EQ(values.ValuePointY(i, last), Variant(1.0)) << data.AttName(i);
  }
}

class StoredJudgments : public testing::Test {
 protected:
  WizardData data;
  StoredJudgments() { ReadModel(data, FileBytes(TARNWISE_SAMPLES "/universities.kst")); }
};

TEST_F(StoredJudgments, ReferencesStandInTheirGroupsWithTheRatioOne) {
  const SavedJudgments& saved = data.SavedJudgments;
  const int benefit = ToInteger(saved.SavedBRefAttID);
  const int cost = ToInteger(saved.SavedCRefAttID);
  EXPECT_EQ(data.RJType(), kDirectType);
  EXPECT_TRUE(data.IsBenefit(benefit));
  EXPECT_TRUE(data.IsCost(cost));
  for (const int reference : {benefit, cost}) {
    EXPECT_EQ(saved.SavedWeightsL[reference], 1.0);
    EXPECT_EQ(saved.SavedWeights[reference], 1.0);
    EXPECT_EQ(saved.SavedWeightsH[reference], 1.0);
  }
}

TEST_F(StoredJudgments, IntervalsOfDifferentRanksDoNotOverlapAndTiedOnesAreEqual) {
  const SavedJudgments& saved = data.SavedJudgments;
  int ties = 0;
  for (int i = 0; i < data.NumAtts(); ++i) {
    EXPECT_LE(saved.SavedWeightsL[i], saved.SavedWeights[i]);
    EXPECT_LE(saved.SavedWeights[i], saved.SavedWeightsH[i]);
    for (int j = 0; j < data.NumAtts(); ++j) {
      if (i == j || data.IsCost(i) != data.IsCost(j)) continue;
      if (saved.SavedWeights[i] > saved.SavedWeights[j]) {
        EXPECT_GE(saved.SavedWeightsL[i], saved.SavedWeightsH[j]) << data.AttName(i) << " over " << data.AttName(j);
      }
      if (saved.SavedWeights[i] == saved.SavedWeights[j]) {
        ++ties;
        EXPECT_EQ(saved.SavedWeightsL[i], saved.SavedWeightsL[j]);
      }
    }
  }
  EXPECT_EQ(ties, 6) << "three pairs";
}

}  // namespace
}  // namespace Tarnwise
