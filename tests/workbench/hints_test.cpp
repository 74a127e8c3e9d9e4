#include "support/Ranked.h"
#include "workbench/JudgeSession.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

WizardData ThreeRanks() {
  WizardData data = RankedData({B(1), B(2), B(3), C(1), C(2)}, 1, 4);
  data.AttributeList.AttName[0] = "Surgery";
  data.AttributeList.AttName[1] = "Inpatients";
  data.AttributeList.AttName[2] = "Outpatients";
  return data;
}

TEST(Hints, NameTheNeighbourBelowAndFromWhereOnItFits) {
  const WizardData data = ThreeRanks();
  EXPECT_EQ(HintFor(data, 0, std::pair(0.75, 1.5)).toStdString(),
            "Surgery must stay at or above 1.00: Inpatients, on the next lower judged rank, is judged up to 1.00.");
}

TEST(Hints, NameTheNeighbourAbove) {
  const WizardData data = ThreeRanks();
  EXPECT_EQ(
      HintFor(data, 2, std::pair(0.5, 1.25)).toStdString(),
      "Outpatients must stay at or below 1.00: Inpatients, on the next higher judged rank, is judged from 1.00 on.");
}

TEST(Hints, SayNothingOfALimitThatIsKept) {
  const WizardData data = ThreeRanks();
  EXPECT_EQ(HintFor(data, 0, std::pair(1.25, 2.5)), QString());
}

TEST(Hints, NameAllLimitsWhereTheJudgmentIsNotKnown) {
  const WizardData data = ThreeRanks();
  EXPECT_TRUE(HintFor(data, 0, std::nullopt).startsWith("Surgery must stay at or above 1.00"));
}

TEST(Hints, ReadTheRatiosOfATradeOffAsTheyAreShown) {
  EXPECT_EQ(RatiosShown("0.50/1,    1.37/1"), std::pair(0.5, 1.37));
  EXPECT_EQ(RatiosShown("2.25/1,    0.75/1"), std::pair(0.75, 2.25));
  EXPECT_EQ(RatiosShown("0.75/1,    Infinity"), std::nullopt);
  EXPECT_EQ(RatiosShown("1.15/1"), std::nullopt);
}

// Between two judged ranks, on the screen as a person has it: two ratios, of which only the lower is too low.
TEST(Hints, OfATradeOffNameOnlyTheNeighbourThatBlocksIt) {
  WizardData data = RankedData({B(1), B(2), B(3), C(1), C(2)}, 2, 4);
  data.AttributeList.AttName[0] = "Surgery";
  data.AttributeList.AttName[1] = "Inpatients";
  data.AttributeList.AttName[2] = "Outpatients";
  Judge(data, 0, 1.75, 2.5);
  EXPECT_EQ(HintFor(data, 1, RatiosShown("0.62/1,    1.37/1")).toStdString(),
            "Inpatients must stay at or above 1.00: Outpatients, on the next lower judged rank, is judged up to 1.00.");
  EXPECT_EQ(HintFor(data, 1, RatiosShown("2.25/1,    1.12/1")).toStdString(),
            "Inpatients must stay at or below 1.75: Surgery, on the next higher judged rank, is judged from 1.75 on.");
}

}  // namespace
}  // namespace Tarnwise
