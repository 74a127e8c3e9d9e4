#include "model/ModelFile.h"

#include "ModelFields.h"
#include "ModelFileBytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace Tarnwise {
namespace {

class ModelFile : public testing::Test {
 protected:
  ModelFileBytes file;  // laid down by the test
  WizardData data;

  void Read() { ReadModel(data, file.Bytes); }
  void CutOff(std::size_t size) { file.Bytes.resize(size); }
  void SpoilByte(std::size_t at, int value) { file.Bytes[at] = static_cast<char>(value); }

  // Reads a model whose first raw score has that tag and payload.
  template <class T>
  Variant ReadTagged(int tag, T payload) {
    file.Header(1).Settings().Alternatives().Attributes().Tag(tag).Number(payload);
    Read();
    return data.RawScores.RawScores(0, 0);
  }

  template <class T>
  static testing::AssertionResult AllZero(const std::vector<T>& items) {
    if (items == std::vector<T>(items.size(), T())) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "not all of the " << items.size() << " are zero or empty";
  }

  void ExpectEmptyJudgments() {
    const SavedJudgments& saved = data.SavedJudgments;
    EXPECT_EQ(saved.RJType, "");
    EXPECT_EQ(saved.SavedBRefAttID, Variant());
    EXPECT_EQ(saved.SavedCRefAttID, Variant());
    EXPECT_EQ(saved.SavedRefAttWR, Variant());
    EXPECT_TRUE(AllZero(saved.SavedWeights.Items()));
    EXPECT_TRUE(AllZero(saved.SavedWeightsH.Items()));
    EXPECT_TRUE(AllZero(saved.SavedWeightsL.Items()));
  }

  void ExpectWholeJudgments() {
    const SavedJudgments& saved = data.SavedJudgments;
    EXPECT_EQ(saved.RJType, "DEA_DIRECT");
    EXPECT_EQ(saved.SavedBRefAttID, Variant(Integer{4}));
    EXPECT_EQ(saved.SavedCRefAttID, Variant(Integer{9}));
    EXPECT_EQ(saved.SavedRefAttWR, Variant(0.75));
    EXPECT_EQ(saved.SavedWeights[30], 1.1);
    EXPECT_EQ(saved.SavedWeightsH[30], 1.2);
    EXPECT_EQ(saved.SavedWeightsL[30], 0.9);
    EXPECT_EQ(saved.Unused, "end");
  }
};

TEST_F(ModelFile, WholeFileFillsEveryRecord) {
  file.Whole();
  Read();
  EXPECT_EQ(data.ModelHeader.Unused[5], "header text 6");
  EXPECT_EQ(data.ModelHeader.UnusedNumber, 0x44332211);
  EXPECT_EQ(data.NumAtts(), 31);
  EXPECT_EQ(data.ModelSettings.Unused[29], 30);
  EXPECT_EQ(data.AlternativeList.Unused1[0], "first ward");
  EXPECT_EQ(data.AlternativeList.Unused2[50], "last note");
  EXPECT_EQ(data.AttName(30), "name 30");
  EXPECT_EQ(data.AttDescription(0), "description 0");
  EXPECT_EQ(data.AttributeList.AttOrientation[29], "1");
  EXPECT_EQ(data.AttributeList.Unused[30], 130);
  EXPECT_EQ(data.AttValueData.ScoreMin[30], 31.5);
  EXPECT_EQ(data.AttValueData.ScoreMax[0], 100.37);
  EXPECT_EQ(data.AttValueData.Unused1[0], -1.25);
  EXPECT_EQ(data.AttValueData.WorstScore[30], 3.17);
  EXPECT_EQ(data.AttValueData.BestScore[30], 90.5);
  EXPECT_EQ(data.AttValueData.Unused2[63], 0x98);
  EXPECT_EQ(data.AttValueData.ValuePointCount[30], 4);
  EXPECT_EQ(data.AttValueData.ValueFuncType[2], 2);
  EXPECT_EQ(data.AttValueData.ValueFuncA[30], 1.25);
  EXPECT_EQ(data.AttValueData.ValueFuncB[0], -0.5);
  EXPECT_EQ(data.AttValueData.Unused4[30], 7.5);
  ExpectWholeJudgments();
}

TEST_F(ModelFile, FirstIndexOfAMatrixRunsFastest) {
  file.Whole();
  Read();
  EXPECT_EQ(data.RawScores.RawScores(0, 0), Variant(0.37));
  EXPECT_EQ(data.RawScores.RawScores(1, 0), Variant(String("raw")));
  EXPECT_EQ(data.RawScores.RawScores(50, 30), Variant(Integer{-3}));
  EXPECT_EQ(data.Scores.Scores(7, 3), 0.25 + 7 + 51 * 3);
  EXPECT_EQ(data.AttValueData.ValuePointX(5, 2), Variant(5 + 31 * 2 + 0.5));
  EXPECT_EQ(data.AttValueData.ValuePointY(30, 10), Variant(340 + 0.75));
}

// The sanitizers make the many cuts slow, so there they are at every fifth byte, which meets every kind of field too.
#if defined(__SANITIZE_ADDRESS__)
constexpr std::size_t kCutStep = 5;
#else
constexpr std::size_t kCutStep = 1;
#endif

TEST_F(ModelFile, CutAtAnyByteKeepsWholeFieldsAndLeavesTheRestEmpty) {
  file.Whole();
  Read();
  const WizardData whole = data;
  const WizardData empty;
  const std::vector<char> bytes = file.Bytes;
  std::size_t sum = 0;
  FieldWalk([&sum](const FieldPair& pair) {
    sum += pair.Size;
    return true;
  }).Items(whole, whole);
  ASSERT_EQ(sum, bytes.size()) << "the walk knows the size of every field";
  for (std::size_t cut = 0; cut <= bytes.size(); cut += kCutStep) {
    ReadModel(data, {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(cut)});
    String wrong;
    std::size_t end = 0;
    int fieldsWithin = 0;
    FieldWalk([&](const FieldPair& pair) {
      end += pair.Size;
      if (end > cut) return false;
      ++fieldsWithin;
      if (!pair.Same) wrong = String(pair.Field) + " " + std::to_string(pair.Number) + " was lost";
      return pair.Same;
    }).Items(whole, data);
    int field = 0;
    FieldWalk([&](const FieldPair& pair) {
      const bool good = field++ < fieldsWithin || pair.Same;
      if (!good) wrong = String(pair.Field) + " " + std::to_string(pair.Number) + " is not empty";
      return good;
    }).Items(data, empty);
    ASSERT_EQ(wrong, "") << "cut at byte " << cut;
  }
}

TEST_F(ModelFile, WhatFollowsTheModelIsNotLookedAt) {
  file.Whole().Text("more");
  Read();
  ExpectWholeJudgments();
}

TEST_F(ModelFile, EndingInsideTheValueDataLeavesNoJudgments) {
  file.Header(2).Settings().Alternatives().Attributes().RawScores().Scores().ValueBlockA();
  Read();
  EXPECT_EQ(data.AttValueData.ValuePointCount[30], 4);
  EXPECT_EQ(data.AttValueData.ValuePointX(0, 0), Variant());
  EXPECT_EQ(data.AttValueData.ValueFuncA[0], 0.0);
  ExpectEmptyJudgments();
  EXPECT_FALSE(data.HasStoredJudgments());
}

TEST_F(ModelFile, SecondShorterFileLeavesNothingOfTheFirst) {
  file.Whole();
  Read();
  CutOff(0);
  file.Header(2).Settings();
  Read();
  WizardData fresh;
  ReadModel(fresh, file.Bytes);
  EXPECT_EQ(DifferingField(data, fresh), "");
  EXPECT_EQ(data.NumAtts(), 2);
  ExpectEmptyJudgments();
}

TEST_F(ModelFile, ModelWithoutJudgmentsHasAnEmptyTypeAndEmptyVariants) {
  file.Header(2).Settings().Alternatives().Attributes().RawScores().Scores().ValueData();
  file.Text("").Empties(3).Doubles(93, 0.0).Text("");
  Read();
  ExpectEmptyJudgments();
  EXPECT_FALSE(data.HasStoredJudgments());
}

TEST_F(ModelFile, TypeOfJudgmentsIsComparedAsAWholeAndByCase) {
  for (const String type : {"DEA_DIRECT ", "dea_direct", "DEA_TRADEOFF", "DEA_TRADEOFFS\t"}) {
    data.SavedJudgments.RJType = type;
    EXPECT_FALSE(data.HasStoredJudgments()) << type;
  }
  data.SavedJudgments.RJType = "DEA_TRADEOFFS";
  EXPECT_TRUE(data.HasStoredJudgments());
}

TEST_F(ModelFile, NumAttsIsTakenAsItStands) {
  for (const int count : {0, 31, 32, -1, 32767, -32768}) {
    CutOff(0);
    file.Whole(count);
    Read();
    EXPECT_EQ(data.NumAtts(), count);
    EXPECT_EQ(data.AttributeList.AttName.Count(), 31) << "with NumAtts " << count;
    ExpectWholeJudgments();
  }
}

TEST_F(ModelFile, EveryTypeOfVariantIsRead) {
  EXPECT_EQ(ReadTagged(0, std::int16_t{0}), Variant());
  const auto again = [this](int tag, auto payload) {
    CutOff(0);
    return ReadTagged(tag, payload);
  };
  EXPECT_EQ(again(1, std::int16_t{0}), Variant(Null()));
  EXPECT_EQ(again(2, std::int16_t{-32768}), Variant(Integer{-32768}));
  EXPECT_EQ(again(3, std::int32_t{-2000000000}), Variant(Long{-2000000000}));
  EXPECT_EQ(again(4, 0.37F), Variant(0.37F));
  EXPECT_EQ(again(5, 3.17), Variant(3.17));
  EXPECT_EQ(again(6, std::int64_t{-123456}), Variant(Currency{-123456}));
  EXPECT_EQ(again(7, 36526.25), Variant(Date{36526.25}));
  EXPECT_EQ(again(11, std::int16_t{-1}), Variant(true));
  EXPECT_EQ(again(11, std::int16_t{0}), Variant(false));
  EXPECT_EQ(again(17, std::uint8_t{200}), Variant(std::uint8_t{200}));
}

TEST_F(ModelFile, TextVariantIsReadWithItsLength) {
  file.Header(1).Settings().Alternatives().Attributes().Tag(8).Text("12,5").Tag(8).Text("").TaggedDouble(1.5);
  Read();
  EXPECT_EQ(data.RawScores.RawScores(0, 0), Variant(String("12,5")));
  EXPECT_EQ(data.RawScores.RawScores(1, 0), Variant(String()));
  EXPECT_EQ(data.RawScores.RawScores(2, 0), Variant(1.5));
}

TEST_F(ModelFile, VariantCutWithinItsPayloadIsEmpty) {
  file.Header(1).Settings().Alternatives().Attributes().TaggedDouble(1.5);
  CutOff(file.Bytes.size() - 1);
  Read();
  EXPECT_EQ(data.RawScores.RawScores(0, 0), Variant());
}

TEST_F(ModelFile, UnknownTagInRawScoresEndsThemAndTheScoresStartBehindTheTag) {
  file.Header(1).Settings().Alternatives().Attributes().TaggedDouble(0.37).Tag(9).Scores().ValueData().Saved();
  Read();
  EXPECT_EQ(data.RawScores.RawScores(0, 0), Variant(0.37));
  EXPECT_EQ(data.RawScores.RawScores(1, 0), Variant());
  EXPECT_EQ(data.RawScores.RawScores(50, 30), Variant());
  EXPECT_EQ(data.Scores.Scores(0, 0), 0.25);
  EXPECT_EQ(data.Scores.Scores(50, 30), 1580.25);
  ExpectWholeJudgments();
}

TEST_F(ModelFile, UnknownTagInTheCurvesEndsTheValueDataAndTheJudgmentsStartBehindTheTag) {
  file.Header(1).Settings().Alternatives().Attributes().RawScores().Scores().ValueBlockA();
  file.TaggedDouble(15.5).Tag(20).Saved();
  Read();
  EXPECT_EQ(data.AttValueData.BestScore[30], 90.5);
  EXPECT_EQ(data.AttValueData.ValuePointX(0, 0), Variant(15.5));
  EXPECT_EQ(data.AttValueData.ValuePointX(1, 0), Variant());
  EXPECT_EQ(data.AttValueData.ValueFuncA[0], 0.0);
  ExpectWholeJudgments();
}

TEST_F(ModelFile, UnknownTagInTheJudgmentsEndsThem) {
  file.Header(1).Settings().Alternatives().Attributes().RawScores().Scores().ValueData();
  file.Text("DEA_DIRECT").Tag(2).Int(4).Tag(-1).Doubles(93, 1.5).Text("end");
  Read();
  EXPECT_EQ(data.RJType(), "DEA_DIRECT");
  EXPECT_EQ(data.SavedJudgments.SavedBRefAttID, Variant(Integer{4}));
  EXPECT_EQ(data.SavedJudgments.SavedCRefAttID, Variant());
  EXPECT_TRUE(AllZero(data.SavedJudgments.SavedWeights.Items()));
  EXPECT_EQ(data.SavedJudgments.Unused, "");
}

TEST_F(ModelFile, EveryTagOutsideTheTableIsUnknown) {
  for (int tag = -1; tag <= 300; ++tag) {
    const bool known = (tag >= 0 && tag <= 8) || tag == 11 || tag == 17;
    CutOff(0);
    // Just the bytes of the scores: they are whole only where they begin right behind the tag.
    file.Header(1).Settings().Alternatives().Attributes().Tag(tag).Doubles(1581, 0.5);
    Read();
    EXPECT_EQ(data.Scores.Scores(50, 30), known ? 0.0 : 0.5) << "tag " << tag;
  }
}

TEST_F(ModelFile, SpoiledLengthOfANameShiftsWhatFollowsButStaysWithinTheFile) {
  file.Whole();
  Read();
  const String first = "name 0";
  const auto at = std::search(file.Bytes.begin(), file.Bytes.end(), first.begin(), first.end()) - file.Bytes.begin();
  SpoilByte(static_cast<std::size_t>(at) - 1, 0xFF);
  Read();
  EXPECT_EQ(data.AttName(0), "") << "65286 bytes are not there";
  EXPECT_EQ(data.AttName(1), "");
  EXPECT_EQ(data.NumAtts(), 31);
  ExpectEmptyJudgments();
}

TEST_F(ModelFile, NamesComeFromCodePage1252) {
  file.Header(2).Settings().Texts(102, "");
  file.Text("Caf\xE9 \x80 \x9F").Text("\x81\x8D\x8F\x90\x9D").Texts(91, "");
  Read();
  EXPECT_EQ(data.AttName(0), "Café € Ÿ");
  EXPECT_EQ(data.AttName(1), "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D") << "undefined there: the control characters";
}

TEST_F(ModelFile, LengthOfANameCountsAnsiBytes) {
  file.Header(2).Settings().Texts(102, "").Text("\xFC\xFC").Text("next").Texts(91, "");
  Read();
  EXPECT_EQ(data.AttName(0), "üü");
  EXPECT_EQ(data.AttName(1), "next");
}

TEST_F(ModelFile, NumbersKeepEveryBit) {
  const std::uint64_t quietNaN = 0x7FF8000000001234U;
  file.Header(1).Settings().Alternatives().Attributes().Empties(1581).Number(quietNaN).Number(-0.0);
  file.Doubles(1579, 0.0);
  Read();
  std::uint64_t bits = 0;
  std::memcpy(&bits, &data.Scores.Scores(0, 0), sizeof bits);
  EXPECT_EQ(bits, quietNaN);
  EXPECT_TRUE(std::signbit(data.Scores.Scores(1, 0)));
}

TEST(ClearModel, LeavesNoVariantOfAnyKind) {
  WizardData data;
  ClearModel(data);
  const std::vector<Variant> kinds = {Null(), Variant(Integer{1}), Variant(1.5), Variant(String("text")),
                                      Variant(true)};
  for (std::size_t k = 0; k < kinds.size(); ++k) {
    data.AttValueData.ValuePointX(static_cast<int>(k), 0) = kinds[k];
    data.AttValueData.ValuePointY(0, static_cast<int>(k)) = kinds[k];
  }
  ClearModel(data);
  for (const Variant& value : data.AttValueData.ValuePointX.Items()) EXPECT_EQ(value.index(), 0U);
  for (const Variant& value : data.AttValueData.ValuePointY.Items()) EXPECT_EQ(value.index(), 0U);
}

}  // namespace
}  // namespace Tarnwise
