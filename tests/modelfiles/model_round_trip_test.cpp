// Any model that can be read, shown as a description and built again, is the same file.
#include "model/ModelFile.h"
#include "model/ModelFileBytes.h"
#include "modelfiles/ModelJson.h"
#include "modelfiles/ModelWriter.h"

#include <gtest/gtest.h>

#include <bit>
#include <random>

namespace Tarnwise {
namespace {

// Models with anything anywhere, the same ones in every run.
class AnyModel {
 public:
  explicit AnyModel(unsigned seed) : random_(seed) {}

  WizardData Make() {
    WizardData data;
    data.ModelHeader.NumAtts = OneIn(3) ? static_cast<Integer>(random_()) : static_cast<Integer>(Below(32));
    Fill(data.ModelHeader.Unused.Items());
    data.ModelHeader.UnusedNumber = static_cast<Long>(random_());
    Fill(data.ModelSettings.Unused);
    Fill(data.AlternativeList.Unused1.Items());
    Fill(data.AlternativeList.Unused2.Items());
    Fill(data.AttributeList.AttName.Items());
    Fill(data.AttributeList.AttDescription.Items());
    Fill(data.AttributeList.AttOrientation.Items());
    Fill(data.AttributeList.Unused.Items());
    Fill(data.RawScores.RawScores.Items());
    Fill(data.Scores.Scores.Items());
    AttValueData& values = data.AttValueData;
    for (auto* numbers : {&values.ScoreMin, &values.ScoreMax, &values.Unused1, &values.WorstScore, &values.BestScore,
                          &values.ValueFuncA, &values.ValueFuncB, &values.Unused3, &values.Unused4}) {
      Fill(numbers->Items());
    }
    Fill(values.Unused2);
    Fill(values.ValuePointCount.Items());
    Fill(values.ValueFuncType.Items());
    Fill(values.ValuePointX.Items());
    Fill(values.ValuePointY.Items());
    SavedJudgments& saved = data.SavedJudgments;
    for (auto* id : {&saved.SavedBRefAttID, &saved.SavedCRefAttID, &saved.SavedRefAttWR}) Set(*id);
    for (auto* weights : {&saved.SavedWeights, &saved.SavedWeightsH, &saved.SavedWeightsL}) Fill(weights->Items());
    Set(saved.RJType);
    Set(saved.Unused);
    return data;
  }

 private:
  unsigned Below(unsigned bound) { return static_cast<unsigned>(random_() % bound); }
  bool OneIn(unsigned n) { return Below(n) == 0; }

  template <class T>
  void Fill(std::vector<T>& items) {
    const unsigned rarity = 1 + Below(40);  // now crowded, now nearly empty
    for (T& item : items) {
      if (OneIn(rarity)) Set(item);
    }
  }

  void Set(std::uint8_t& byte) { byte = static_cast<std::uint8_t>(random_()); }
  void Set(Integer& number) { number = static_cast<Integer>(OneIn(2) ? Below(12) : random_()); }
  void Set(Double& number) {
    const std::uint64_t bits = random_();
    number = OneIn(2) ? std::bit_cast<Double>(bits) : static_cast<Double>(Below(5)) - 1.0;
    if (OneIn(10)) number = std::bit_cast<Double>(bits | 0x7FF0000000000000U);
    if (OneIn(10)) number = -0.0;
  }
  void Set(String& text) {
    static const char* const kPieces[] = {"0", "1", "benefit", "cost", "é€", "\"\\/", "\n", "\xC2\x81", " ", "a"};
    text.clear();
    for (unsigned n = Below(4); n != 0; --n) text += kPieces[Below(10)];
    if (OneIn(20)) text += '\0';
  }
  void Set(Variant& value) {
    String text;
    Double number = 0.0;
    Set(text);
    Set(number);
    const auto bits = static_cast<std::uint32_t>(random_());
    switch (Below(11)) {
      case 0: value = Null(); break;
      case 1: value = static_cast<Integer>(bits); break;
      case 2: value = static_cast<Long>(bits); break;
      case 3: value = std::bit_cast<Single>(OneIn(5) ? bits | 0x7F800000U : bits); break;
      case 4: value = Currency{static_cast<std::int64_t>(random_())}; break;
      case 5: value = Date{number}; break;
      case 6: value = text; break;
      case 7: value = OneIn(2); break;
      case 8: value = static_cast<std::uint8_t>(bits); break;
      default: value = number;
    }
  }

  std::mt19937_64 random_;
};

WizardData ModelOf(const std::vector<char>& bytes) {
  WizardData data;
  ReadModel(data, bytes);
  return data;
}

WizardData Described(const WizardData& data) {
  return ModelFromJson(ParseDescription(DescriptionText(ModelToJson(data))));
}

TEST(ModelRoundTrip, BuildingWhatWasShownGivesTheSameBytes) {
  for (unsigned seed = 1; seed <= 40; ++seed) {
    const WizardData data = AnyModel(seed).Make();
    ASSERT_EQ(ModelBytes(Described(data)), ModelBytes(data)) << "seed " << seed;
  }
}

TEST(ModelRoundTrip, ReadingWhatWasWrittenGivesTheSameBytes) {
  for (unsigned seed = 1; seed <= 40; ++seed) {
    const std::vector<char> bytes = ModelBytes(AnyModel(seed).Make());
    ASSERT_EQ(Difference(bytes, ModelOf(bytes)), std::nullopt) << "seed " << seed;
  }
}

TEST(ModelRoundTrip, ShownDescriptionIsTheSameWhenShownAgain) {
  for (unsigned seed = 1; seed <= 10; ++seed) {
    const Json shown = ModelToJson(AnyModel(seed).Make());
    ASSERT_EQ(DescriptionText(ModelToJson(ModelFromJson(shown))), DescriptionText(shown)) << "seed " << seed;
  }
}

TEST(ModelRoundTrip, SpoiledFilesAreReadAndShownWithoutFault) {
  const std::vector<char> whole = ModelFileBytes().Whole(9).Bytes;
  std::mt19937 random(7);
  int stillWhole = 0;
  for (int round = 0; round < 20; ++round) {
    std::vector<char> bytes = whole;
    for (int n = 0; n < 4; ++n) bytes[random() % bytes.size()] = static_cast<char>(random());
    const WizardData data = ModelOf(bytes);
    const WizardData again = Described(data);
    ASSERT_EQ(ModelBytes(again), ModelBytes(data)) << "round " << round;
    if (!Difference(bytes, data)) ++stillWhole;
  }
  EXPECT_GT(stillWhole, 2);
  EXPECT_LT(stillWhole, 20);
}

}  // namespace
}  // namespace Tarnwise
