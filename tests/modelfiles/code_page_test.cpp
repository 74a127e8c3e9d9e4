// Model files from systems with another code page.
#include "modelfiles/NamedCodePage.h"
#include "program/ModelCommands.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sstream>

namespace Tarnwise {
namespace {

String Described(const String& name) {
  return R"({
  "alternatives": [],
  "attributes": [
    {
      "name": ")" +
         name + R"(",
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
}

class CodePages : public testing::Test {
 protected:
  TemporaryFolder folder;
  std::ostringstream out;
  std::ostringstream err;
  const String kst = folder.File("model.kst");

  int Build(const String& description, const String& codePage) {
    return BuildModel(folder.Write("model.json", description), kst, codePage, out, err);
  }
  String Shown(const String& codePage) {
    out.str("");
    EXPECT_EQ(ShowModel(kst, codePage, out, err), 0);
    return out.str();
  }
  String File() {
    const std::vector<char> bytes = TemporaryFolder::Read(kst);
    return {bytes.begin(), bytes.end()};
  }
};

struct Row {
  const char* CodePage;
  const char* Name;
  const char* Bytes;
};

const Row kRows[] = {
    {"CP1253", "Κλίνες", "\xCA\xEB\xDF\xED\xE5\xF2"},
    {"CP1250", "Łóżka", "\xA3\xF3\xBF\x6B\x61"},
    {"CP932", "病床", "\x95\x61\x8F\xB0"},
    {"UTF-8", "Łόж病", "\xC5\x81\xCF\x8C\xD0\xB6\xE7\x97\x85"},
};

TEST_F(CodePages, NamedOnesGiveTheDescriptionBack) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.CodePage);
    ASSERT_EQ(Build(Described(row.Name), row.CodePage), 0) << err.str();
    const auto length = static_cast<char>(String(row.Bytes).size());
    EXPECT_NE(File().find(String{length, '\0'} + row.Bytes), String::npos) << "the length counts bytes";
    EXPECT_EQ(Shown(row.CodePage), Described(row.Name));
  }
  EXPECT_EQ(err.str(), "");
}

TEST_F(CodePages, WithoutANameTextsAreIn1252) {
  ASSERT_EQ(Build(Described("Κλίνες"), "CP1253"), 0);
  EXPECT_EQ(Shown(""), Described("Êëßíåò"));
  ASSERT_EQ(Build(Described("Bücher €"), ""), 0);
  EXPECT_EQ(Shown("CP1252"), Described("Bücher €"));
}

TEST_F(CodePages, ACharacterThatTheNamedOneLacksIsRefusedWithItsField) {
  EXPECT_EQ(Build(Described("Κλίνες ж"), "CP1253"), 1);
  EXPECT_EQ(err.str(), folder.File("model.json") +
                           ": AttName of attribute 0 (Κλίνες ж): the character 'ж' (U+0436) is not in CP1253\n");
  EXPECT_FALSE(std::filesystem::exists(kst));
}

TEST_F(CodePages, AnUnknownNameIsRefused) {
  for (const char* name : {"CP99999", "nowhere", "CP1253//TRANSLIT"}) {
    SCOPED_TRACE(name);
    err.str("");
    EXPECT_EQ(Build(Described("Beds"), name), 1);
    EXPECT_EQ(err.str(), "there is no code page \"" + String(name) + "\" here; iconv --list shows the names\n");
    EXPECT_FALSE(std::filesystem::exists(kst));
  }
}

TEST_F(CodePages, BytesThatItCannotReadAreShownAsSuchWithAWarning) {
  ASSERT_EQ(Build(Described("\xC2\x81 x"), ""), 0);  // in code page 932 it begins a character
  EXPECT_EQ(Shown("CP932"), Described("\xEF\xBF\xBD x"));
  EXPECT_EQ(err.str(), kst +
                           ": warning: it holds text that can't be read in CP932; building this description would not "
                           "give that file again\n");
}

TEST(NamedCodePages, ReadLongTextsAndEmptyOnes) {
  const auto page = NamedCodePage("CP932");
  ASSERT_TRUE(page);
  String text;
  for (int i = 0; i < 5000; ++i) text += "病床";
  const auto bytes = page->ToBytes(text);
  ASSERT_TRUE(bytes);
  EXPECT_EQ(bytes->size(), 20000U);
  EXPECT_EQ(page->ToText(*bytes), text);
  EXPECT_EQ(page->ToText(""), "");
  EXPECT_EQ(page->ToBytes(""), "");
  EXPECT_EQ(page->ToBytes("\xFF"), std::nullopt);
  EXPECT_EQ(page->ToText("\x95"), "\xEF\xBF\xBD") << "half a character";
}

}  // namespace
}  // namespace Tarnwise
