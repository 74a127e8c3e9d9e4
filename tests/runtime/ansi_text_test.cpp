#include "runtime/AnsiText.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

struct AnsiRow {
  const char* Name;
  std::string Bytes;
  String Text;
};

const AnsiRow kRows[] = {
    {"plain letters", "Hospital A", "Hospital A"},
    {"nothing", "", ""},
    {"a zero byte", std::string(1, '\0'), String(1, '\0')},
    {"the euro sign", "\x80", "\xE2\x82\xAC"},
    {"letters with marks", "\xE4\xF6\xFC\xDF", "\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F"},
    {"the reference mark", " \xA4 ", " \xC2\xA4 "},
    {"curly quotes and a dash", "\x93\x96\x94", "\xE2\x80\x9C\xE2\x80\x93\xE2\x80\x9D"},
    {"a capital with a caron", "\x8A\x8E", "\xC5\xA0\xC5\xBD"},
    {"the last letter", "\xFF", "\xC3\xBF"},
    {"the blank that does not break", "\xA0", "\xC2\xA0"},
    {"the five bytes without a character", "\x81\x8D\x8F\x90\x9D", "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D"},
};

TEST(AnsiText, ReadsAndWritesTheCodePage) {
  for (const AnsiRow& row : kRows) {
    SCOPED_TRACE(row.Name);
    EXPECT_EQ(FromAnsi(row.Bytes), row.Text);
    EXPECT_EQ(ToAnsi(row.Text), row.Bytes);
  }
}

TEST(AnsiText, HasACharacterForEachOfTheHighBytes) {
  String bytes;
  for (int byte = 0x80; byte < 0xA0; ++byte) bytes += static_cast<char>(byte);
  const String text =
      "\u20AC\xC2\x81\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\xC2\x8D\u017D\xC2\x8F"
      "\xC2\x90\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\xC2\x9D\u017E\u0178";
  EXPECT_EQ(FromAnsi(bytes), text);
  EXPECT_EQ(ToAnsi(text), bytes);
}

TEST(AnsiText, RefusesCharactersThatTheCodePageLacks) {
  const AnsiRow rows[] = {
      {"Greek", "", "\xCE\xB1"},
      {"a control character whose byte is taken", "", "\xC2\x80"},
      {"a Chinese character", "", "\xE4\xB8\xAD"},
      {"a smile", "", "\xF0\x9F\x98\x80"},
      {"a good beginning", "", "abc\xCE\xB1"},
  };
  for (const AnsiRow& row : rows) {
    SCOPED_TRACE(row.Name);
    EXPECT_EQ(ToAnsi(row.Text), std::nullopt);
  }
}

TEST(AnsiText, RefusesWhatIsNoUtf8) {
  const AnsiRow rows[] = {
      {"a lone continuation byte", "", "\x80"},
      {"a lead byte at the end", "", "a\xC3"},
      {"a lead byte before a letter", "", "\xC3z"},
      {"three bytes cut to two", "", "\xE2\x82"},
      {"a letter in two bytes", "", "\xC1\x81"},
      {"a letter in three bytes", "", "\xE0\x81\x81"},
      {"a letter with a mark in three bytes", "", "\xE0\x83\xA4"},
      {"a letter in four bytes", "", "\xF0\x80\x81\x81"},
      {"no lead byte at all", "", "\xFF"},
  };
  for (const AnsiRow& row : rows) {
    SCOPED_TRACE(row.Name);
    EXPECT_EQ(ToAnsi(row.Text), std::nullopt);
  }
}

}  // namespace
}  // namespace Tarnwise
