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

}  // namespace
}  // namespace Tarnwise
