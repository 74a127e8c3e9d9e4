// Model files that were cut, or in which bytes were lost, changed or moved. None is refused: what is whole is read, and
// the user is told nothing. Each file is opened after a whole one, of which nothing may be left.
#include "Opening.h"

#include "model/ModelFields.h"

namespace Tarnwise {
namespace {

// The texts up to the last one that is not empty: "name 0|name 1||name 3".
String TextsOf(const Array<String>& texts) {
  String joined;
  String gap;
  for (const String& text : texts.Items()) {
    if (!text.empty()) joined += std::exchange(gap, "") + text;
    gap += "|";
  }
  return joined;
}

class DamagedModelFile : public OpenModelFile {
 protected:
  ModelFileBytes file;  // laid down by the test
  const AttributeList& atts = data.AttributeList;

  void Open() {
    Read(WholeFile());
    Read(folder.Write("damaged.kst", file.Bytes));
    ExpectReadQuietly();
  }
  void CutOffAtEnd(std::size_t bytes) { file.Bytes.resize(file.Bytes.size() - bytes); }
  ModelFileBytes& ToTheAttributes(int NumAtts) { return file.Header(NumAtts).Settings().Texts(102, ""); }

  void ExpectNothingToJudgeOn() {
    EXPECT_EQ(data.AttValueData.ValuePointCount[0], 0);
    EXPECT_EQ(data.AttValueData.ValuePointX(0, 0), Variant());
    EXPECT_EQ(data.AttValueData.BestScore[30], 0.0);
    EXPECT_EQ(data.RJType(), "");
    EXPECT_EQ(data.SavedJudgments.SavedRefAttWR, Variant());
    EXPECT_FALSE(data.HasStoredJudgments());
  }
};

TEST_F(DamagedModelFile, OneByteIsAnEmptyModel) {
  file.Block(1, 'q');
  Open();
  EXPECT_EQ(DifferingField(data, WizardData()), "");
}

TEST_F(DamagedModelFile, TextLongerThanTheFileIsEmptyAndKeepsWhatStandsBeforeIt) {
  file.Text("wards").Text("").Int(300).Block(5, 'x');
  Open();
  EXPECT_EQ(TextsOf(data.ModelHeader.Unused), "wards");
  data.ModelHeader.Unused[0] = "";
  EXPECT_EQ(DifferingField(data, WizardData()), "");
}

TEST_F(DamagedModelFile, CutBehindTheHeaderLeavesAttributesWithoutNamesAllBenefits) {
  file.Header(5);
  Open();
  EXPECT_EQ(data.NumAtts(), 5);
  EXPECT_EQ(TextsOf(atts.AttName), "");
  for (int i = 0; i < 31; ++i) EXPECT_TRUE(data.IsBenefit(i)) << "attribute " << i << " has no orientation, that is 0";
  ExpectNothingToJudgeOn();
}

TEST_F(DamagedModelFile, CutWithinTheNumberOfAttributesLeavesNone) {
  file.Header(5);
  CutOffAtEnd(3);
  Open();
  EXPECT_EQ(data.ModelHeader.Unused[5], "header text 6");
  EXPECT_EQ(data.ModelHeader.UnusedNumber, 0x44332211);
  EXPECT_EQ(data.NumAtts(), 0) << "one of its two bytes is there";
}

// Two bytes less: the number takes NumAtts for its higher half, NumAtts is the number behind it, and the settings end
// with the first empty text of the alternatives.
TEST_F(DamagedModelFile, HeaderTwoBytesShortMovesEveryTextByOne) {
  for (int i = 1; i <= 6; ++i) file.Text("");
  file.Int(0x2211).Int(5).Int(7).Settings().Texts(102, "").Text("Beds").Text("Doctors").Text("Care").Texts(28, "");
  Open();
  EXPECT_EQ(data.ModelHeader.UnusedNumber, 0x00052211);
  EXPECT_EQ(data.NumAtts(), 7);
  EXPECT_EQ(data.ModelHeader.UnusedLast, 0x0201);
  EXPECT_EQ(data.ModelSettings.Unused[0], 3);
  EXPECT_EQ(data.AlternativeList.Unused2[50], "Beds");
  EXPECT_EQ(TextsOf(atts.AttName), "Doctors|Care");
  ExpectNothingToJudgeOn();
}

TEST_F(DamagedModelFile, SettingsTenBytesShortEndWithFiveEmptyTexts) {
  file.Header(5).Block(20, 9).Texts(102, "");
  for (int i = 0; i < 8; ++i) file.Text("name " + std::to_string(i));
  Open();
  EXPECT_EQ(data.NumAtts(), 5);
  EXPECT_EQ(data.ModelSettings.Unused[19], 9);
  EXPECT_EQ(data.ModelSettings.Unused[20], 0);
  EXPECT_EQ(data.AlternativeList.Unused2[45], "");
  EXPECT_EQ(data.AlternativeList.Unused2[46], "name 0");
  EXPECT_EQ(TextsOf(atts.AttName), "name 5|name 6|name 7");
}

TEST_F(DamagedModelFile, OtherBytesInTheSettingsChangeNothingElse) {
  file.Header(31).Block(30, 0x9B).Alternatives().Attributes().RawScores().Scores().ValueData().Saved();
  Open();
  EXPECT_EQ(data.ModelSettings.Unused[0], 0x9B);
  WizardData whole;
  ReadModelFile(whole, *platform, WholeFile());
  data.ModelSettings = whole.ModelSettings;
  EXPECT_EQ(DifferingField(data, whole), "");
}

TEST_F(DamagedModelFile, TextsOfAnyLengthInTheAlternativesMoveNothing) {
  const String longest(65535, 'x');
  file.Header(2).Settings().Text(longest).Texts(50, "").Text("n").Texts(50, "").Attributes();
  Open();
  EXPECT_EQ(data.AlternativeList.Unused1[0].size(), longest.size());
  EXPECT_EQ(data.AlternativeList.Unused2[0], "n");
  EXPECT_EQ(data.AttName(0), "name 0");
  EXPECT_EQ(atts.Unused[30], 130);
}

TEST_F(DamagedModelFile, CutInANameLeavesItAndAllBehindItEmpty) {
  ToTheAttributes(4).Text("Beds").Text("Doctors").Text("Care");
  CutOffAtEnd(1);
  Open();
  EXPECT_EQ(data.NumAtts(), 4);
  EXPECT_EQ(TextsOf(atts.AttName), "Beds|Doctors") << "no half of a text";
  EXPECT_EQ(TextsOf(atts.AttDescription) + TextsOf(atts.AttOrientation), "");
  EXPECT_EQ(atts.Unused[0], 0);
  ExpectNothingToJudgeOn();
}

// The name takes the lower byte of the next length; the higher one and "D" are a length that is not there.
TEST_F(DamagedModelFile, ByteLostInsideANameTakesOneFromTheNextLength) {
  ToTheAttributes(4).Text("Beds");
  CutOffAtEnd(1);
  file.Text("Doctors").Text("Care").Texts(90, "");
  Open();
  EXPECT_EQ(TextsOf(atts.AttName), "Bed\x07");
  EXPECT_EQ(TextsOf(atts.AttDescription) + TextsOf(atts.AttOrientation), "");
  ExpectNothingToJudgeOn();
}

// What is left over of the name, "s" and a byte of the next length, is a length that is not there.
TEST_F(DamagedModelFile, ByteTooManyInsideANameIsTakenForALength) {
  ToTheAttributes(4).Text("Beed").Block(1, 's');
  file.Text("Doctors").Text("Care").Texts(90, "");
  Open();
  EXPECT_EQ(TextsOf(atts.AttName), "Beed");
  EXPECT_EQ(TextsOf(atts.AttDescription) + TextsOf(atts.AttOrientation), "");
  ExpectNothingToJudgeOn();
}

TEST_F(DamagedModelFile, CutInTheRawScoresKeepsTheAttributesWithoutCurvesAndJudgments) {
  ToTheAttributes(31).Attributes().TaggedDouble(0.37).Tag(8).Text("raw").Empties(700);
  Open();
  EXPECT_EQ(data.NumAtts(), 31);
  EXPECT_EQ(data.AttName(30), "name 30");
  EXPECT_TRUE(data.IsCost(29));
  EXPECT_EQ(atts.Unused[30], 130);
  EXPECT_EQ(data.RawScores.RawScores(0, 0), Variant(0.37));
  EXPECT_EQ(data.RawScores.RawScores(1, 0), Variant(String("raw")));
  EXPECT_EQ(data.Scores.Scores(0, 0), 0.0);
  ExpectNothingToJudgeOn();
}

TEST_F(DamagedModelFile, RawScoreTextLongerThanTheFileIsEmptyAndEndsTheModel) {
  ToTheAttributes(2).Attributes().TaggedDouble(0.37).Tag(8).Int(-1).Empties(1579).Scores().ValueData().Saved();
  Open();
  EXPECT_EQ(data.RawScores.RawScores(0, 0), Variant(0.37));
  EXPECT_EQ(data.RawScores.RawScores(1, 0), Variant()) << "65535 bytes are not there";
  EXPECT_EQ(data.Scores.Scores(0, 0), 0.0);
  ExpectNothingToJudgeOn();
}

TEST_F(DamagedModelFile, CutInTheCurvesKeepsThePointsReadAndNoJudgments) {
  ToTheAttributes(31).Attributes().RawScores().Scores().ValueBlockA();
  for (int att = 0; att < 31; ++att) file.TaggedDouble(att + 0.5);
  file.TaggedDouble(31.5);
  CutOffAtEnd(1);
  Open();
  EXPECT_EQ(data.AttValueData.ValuePointCount[30], 4);
  EXPECT_EQ(data.AttValueData.ValuePointX(30, 0), Variant(30.5));
  EXPECT_EQ(data.AttValueData.ValuePointX(0, 1), Variant()) << "a point cut in its middle";
  EXPECT_EQ(data.AttValueData.ValuePointY(0, 0), Variant());
  EXPECT_EQ(data.RJType(), "");
  EXPECT_FALSE(data.HasStoredJudgments());
}

}  // namespace
}  // namespace Tarnwise
