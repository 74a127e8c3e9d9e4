#include "modelfiles/ModelWriter.h"

#include "model/ModelFile.h"
#include "model/ModelFileBytes.h"
#include "support/FaultOf.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

class ModelWriter : public testing::Test {
 protected:
  WizardData data;

  String Fault() {
    return FaultOf([this] { (void)ModelBytes(data); });
  }
  // The bytes of the first raw score, the rest of the model being empty.
  std::vector<char> BytesOfVariant(const Variant& value) {
    const WizardData empty;
    constexpr std::size_t kBefore = 6 * 2 + 8 + 30 + 102 * 2 + 93 * 2 + 62;
    data.RawScores.RawScores(0, 0) = value;
    const std::vector<char> bytes = ModelBytes(data);
    const std::size_t size = bytes.size() - ModelBytes(empty).size() + 2;
    const auto first = bytes.begin() + kBefore;
    return {first, first + static_cast<std::ptrdiff_t>(size)};
  }
};

TEST_F(ModelWriter, EmptyModelHasAllItsFixedPartsAndNothingElse) {
  const std::size_t texts = 6 + 102 + 93 + 2;
  const std::size_t variants = 1581 + 682 + 3;
  const std::size_t blocks = 8 + 30 + 62 + 12648 + 1366 + 62 + 992 + 744;
  EXPECT_EQ(ModelBytes(data).size(), 2 * texts + 2 * variants + blocks);
}

TEST_F(ModelWriter, WhatWasReadIsWrittenByteForByte) {
  const std::vector<char> bytes = ModelFileBytes().Whole(17).Bytes;
  ReadModel(data, bytes);
  EXPECT_EQ(ModelBytes(data), bytes);
  EXPECT_EQ(Difference(bytes, data), std::nullopt);
}

TEST_F(ModelWriter, EveryTypeOfVariantHasItsTagAndPayload) {
  const auto laidDown = [](int tag, auto payload) { return ModelFileBytes().Tag(tag).Number(payload).Bytes; };
  EXPECT_EQ(BytesOfVariant(Variant()), ModelFileBytes().Tag(0).Bytes);
  EXPECT_EQ(BytesOfVariant(Null()), ModelFileBytes().Tag(1).Bytes);
  EXPECT_EQ(BytesOfVariant(Integer{-2}), laidDown(2, std::int16_t{-2}));
  EXPECT_EQ(BytesOfVariant(Long{70000}), laidDown(3, std::int32_t{70000}));
  EXPECT_EQ(BytesOfVariant(0.37F), laidDown(4, 0.37F));
  EXPECT_EQ(BytesOfVariant(3.17), laidDown(5, 3.17));
  EXPECT_EQ(BytesOfVariant(Currency{-5}), laidDown(6, std::int64_t{-5}));
  EXPECT_EQ(BytesOfVariant(Date{36526.25}), laidDown(7, 36526.25));
  EXPECT_EQ(BytesOfVariant(String("é")), ModelFileBytes().Tag(8).Text("\xE9").Bytes);
  EXPECT_EQ(BytesOfVariant(true), laidDown(11, std::int16_t{-1}));
  EXPECT_EQ(BytesOfVariant(false), laidDown(11, std::int16_t{0}));
  EXPECT_EQ(BytesOfVariant(std::uint8_t{200}), laidDown(17, std::uint8_t{200}));
}

TEST_F(ModelWriter, EveryAnsiByteIsWrittenAsItWasRead) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  const std::vector<char> bytes = ModelFileBytes().Text(all).Bytes;
  ReadModel(data, bytes);
  const std::vector<char> written = ModelBytes(data);
  EXPECT_TRUE(std::equal(bytes.begin(), bytes.end(), written.begin()));
}

TEST_F(ModelWriter, LetterOutsideTheCodePageIsRefusedByNameAndPlace) {
  data.AttributeList.AttName[3] = "Łódź staff";
  EXPECT_EQ(Fault(), "AttName of attribute 3 (Łódź staff): the character 'Ł' (U+0141) is not in code page 1252");
}

TEST_F(ModelWriter, FirstLetterThatDoesNotFitIsTheOneNamed) {
  data.AttributeList.AttDescription[0] = "naïve — 5 € ≤ 😀";
  EXPECT_EQ(Fault(), "AttDescription of attribute 0: the character '≤' (U+2264) is not in code page 1252");
  data.AttributeList.AttDescription[0] = "😀";
  EXPECT_EQ(Fault(), "AttDescription of attribute 0: the character '😀' (U+1F600) is not in code page 1252");
}

TEST_F(ModelWriter, ControlCharacterThatTheCodePagePutsElsewhereIsRefused) {
  data.AttributeList.AttName[0] = "a\xC2\x80";
  EXPECT_NE(Fault().find("(U+0080) is not in code page 1252"), String::npos) << Fault();
}

TEST_F(ModelWriter, TextThatIsNoUtf8IsRefused) {
  for (const char* text : {"a\xFF", "\xC3", "\x80", "ab\xE2\x82", "\xC3(", "x\xF0\x9F\x98"}) {
    data.SavedJudgments.RJType = text;
    EXPECT_EQ(Fault(), "RJType: the text is not valid UTF-8") << testing::PrintToString(text);
  }
}

TEST_F(ModelWriter, PlaceOfEveryTextIsNamed) {
  const auto faultWith = [this](String& text) {
    text = "Ł";
    String place = Fault();
    text.clear();
    return place.substr(0, place.find(':'));
  };
  AlternativeList& alternatives = data.AlternativeList;
  EXPECT_EQ(faultWith(data.ModelHeader.Unused[5]), "text of header text 5");
  EXPECT_EQ(faultWith(alternatives.Unused1[50]), "the name of alternative 50");
  EXPECT_EQ(faultWith(alternatives.Unused2[0]), "the note of alternative 0");
  EXPECT_EQ(faultWith(data.AttributeList.AttOrientation[30]), "AttOrientation of attribute 30");
  EXPECT_EQ(faultWith(data.SavedJudgments.Unused), "the last text of SavedJudgments");
  data.AttValueData.ValuePointY(4, 10) = String("Ł");
  EXPECT_TRUE(Fault().starts_with("ValuePointY of point 10 of attribute 4:")) << Fault();
}

TEST_F(ModelWriter, RawScoreIsNamedByAlternativeAndAttribute) {
  data.AlternativeList.Unused1[2] = "Ward C";
  data.AttributeList.AttName[1] = "Nurses";
  data.RawScores.RawScores(2, 1) = String("ł");
  EXPECT_EQ(Fault(),
            "RawScores of alternative 2 (Ward C) in attribute 1 (Nurses): the character 'ł' (U+0142) is not in code "
            "page 1252");
}

TEST_F(ModelWriter, LongestTextIs65535AnsiBytes) {
  String longest;
  for (int i = 0; i < 65535; ++i) longest += "é";
  data.AttributeList.AttDescription[1] = longest;
  WizardData again;
  ReadModel(again, ModelBytes(data));
  EXPECT_EQ(again.AttDescription(1), longest);
  data.AttributeList.AttDescription[1] += "e";
  EXPECT_EQ(Fault(), "AttDescription of attribute 1: the text takes 65536 bytes, more than 65535");
}

TEST_F(ModelWriter, DifferenceTellsWhatIsWrongWithAFile) {
  std::vector<char> bytes = ModelFileBytes().Whole(2).Bytes;
  const auto difference = [this, &bytes] {
    ReadModel(data, bytes);
    return Difference(bytes, data).value_or("none");
  };
  EXPECT_EQ(difference(), "none");
  const std::size_t size = bytes.size();
  bytes.push_back('x');
  EXPECT_EQ(difference(), "1 bytes follow the model in it");
  bytes.resize(size - 10);
  EXPECT_NE(difference(), "none");
  bytes.clear();
  EXPECT_EQ(difference(), "it ends within the model, after 0 bytes");
}

TEST_F(ModelWriter, BooleanInAnUnusualFormIsADifference) {
  ModelFileBytes file;
  file.Header(0).Settings().Alternatives().Attributes().Tag(11).Int(1).Empties(1580);
  file.Scores().ValueData().Saved();
  ReadModel(data, file.Bytes);
  EXPECT_EQ(data.RawScores.RawScores(0, 0), Variant(true));
  EXPECT_TRUE(Difference(file.Bytes, data).has_value());
}

}  // namespace
}  // namespace Tarnwise
