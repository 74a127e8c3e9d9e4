#include "program/ModelCommands.h"

#include "model/ModelFileBytes.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sstream>

namespace Tarnwise {
namespace {

const char* const kDescription = R"({
  "alternatives": [],
  "attributes": [
    {
      "name": "Beds",
      "orientation": "benefit",
      "scoreMin": 0,
      "scoreMax": 100,
      "worst": 10,
      "best": 90,
      "curve": [[0, 0], [100, 1]]
    }
  ]
}
)";

class ModelCommands : public testing::Test {
 protected:
  TemporaryFolder folder;
  std::ostringstream out;
  std::ostringstream err;
  const String json = folder.File("model.json");
  const String kst = folder.File("model.kst");

  int Build(const String& description) {
    folder.Write("model.json", description);
    return BuildModel(json, kst, "", out, err);
  }
};

TEST_F(ModelCommands, BuildWritesTheModelAndSaysSo) {
  EXPECT_EQ(Build(kDescription), 0);
  EXPECT_EQ(out.str(), kst + ": 1 attribute, 0 alternatives\n");
  EXPECT_EQ(err.str(), "");
  EXPECT_TRUE(std::filesystem::exists(kst));
}

TEST_F(ModelCommands, ShowOfABuiltModelIsItsDescription) {
  ASSERT_EQ(Build(kDescription), 0);
  out.str("");
  EXPECT_EQ(ShowModel(kst, "", out, err), 0);
  EXPECT_EQ(out.str(), kDescription);
  EXPECT_EQ(err.str(), "");
}

TEST_F(ModelCommands, RefusedDescriptionLeavesNoFile) {
  EXPECT_EQ(Build(R"({"attributes": [{"name": "Beds"}]})"), 1);
  EXPECT_EQ(err.str(), json + ": orientation of attribute 0 (Beds): it is missing\n");
  EXPECT_FALSE(std::filesystem::exists(kst));
  EXPECT_EQ(out.str(), "");
}

TEST_F(ModelCommands, TextThatTheFileCannotHoldIsRefused) {
  String polish = kDescription;
  polish.replace(polish.find("Beds"), 4, "Łóżka");
  EXPECT_EQ(Build(polish), 1);
  EXPECT_EQ(err.str(),
            json + ": AttName of attribute 0 (Łóżka): the character 'Ł' (U+0141) is not in code page 1252\n");
  EXPECT_FALSE(std::filesystem::exists(kst));
}

TEST_F(ModelCommands, WarningDoesNotHinderTheBuild) {
  String falling = kDescription;
  falling.replace(falling.find("[[0, 0], [100, 1]]"), 18, "[[0, 1], [100, 0]]");
  EXPECT_EQ(Build(falling), 0);
  EXPECT_NE(err.str().find("warning: curve of attribute 0 (Beds) falls"), String::npos) << err.str();
  EXPECT_TRUE(std::filesystem::exists(kst));
}

TEST_F(ModelCommands, MissingDescriptionIsRefused) {
  EXPECT_EQ(BuildModel(json, kst, "", out, err), 1);
  EXPECT_EQ(err.str(), "there is no file " + json + "\n");
}

TEST_F(ModelCommands, ModelDoesNotOverwriteItsDescription) {
  folder.Write("model.json", kDescription);
  EXPECT_EQ(BuildModel(json, json, "", out, err), 1);
  EXPECT_EQ(err.str(), "the model would overwrite its description " + json + "\n");
  EXPECT_EQ(TemporaryFolder::Read(json).size(), String(kDescription).size());
}

TEST_F(ModelCommands, ModelThatCannotBeWrittenIsRefused) {
  folder.Write("model.json", kDescription);
  EXPECT_EQ(BuildModel(json, folder.File("nowhere") + "/model.kst", "", out, err), 1);
  EXPECT_NE(err.str().find("can't write"), String::npos) << err.str();
}

TEST_F(ModelCommands, ShowOfAMissingFileDoesNotMakeIt) {
  EXPECT_EQ(ShowModel(kst, "", out, err), 1);
  EXPECT_EQ(err.str(), "there is no file " + kst + "\n");
  EXPECT_EQ(folder.CountFiles(), 0U);
}

TEST_F(ModelCommands, ShowOfAnEmptyFileWarnsThatItIsNoWholeModel) {
  folder.Write("model.kst", "");
  EXPECT_EQ(ShowModel(kst, "", out, err), 0);
  EXPECT_EQ(out.str(), "{\n  \"alternatives\": [],\n  \"attributes\": []\n}\n");
  EXPECT_EQ(err.str(), kst +
                           ": warning: it ends within the model, after 0 bytes; building this description would not "
                           "give that file again\n");
}

TEST_F(ModelCommands, ShowOfAFilledModelBuildsTheSameFile) {
  const std::vector<char> bytes = ModelFileBytes().Whole(31).Bytes;
  ASSERT_EQ(ShowModel(folder.Write("other.kst", bytes), "", out, err), 0);
  ASSERT_EQ(Build(out.str()), 0) << err.str();
  EXPECT_EQ(TemporaryFolder::Read(kst), bytes);
}

}  // namespace
}  // namespace Tarnwise
