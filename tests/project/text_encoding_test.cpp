#include "project/TextEncoding.h"

#include "support/Bytes.h"
#include "support/FaultOf.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

using namespace std::string_literals;

struct Decoded {
  String Text;
  String Encoding;
  friend bool operator==(const Decoded&, const Decoded&) = default;
};

Decoded Decode(const std::string& bytes, std::optional<TextEncoding> told = std::nullopt) {
  const DecodedText decoded = DecodeText(BytesOf(bytes), told);
  return {String(decoded.Text.begin(), decoded.Text.end()), NameOf(decoded.Encoding)};
}

String EncodingFault(const std::string& bytes, std::optional<TextEncoding> told = std::nullopt) {
  return FaultOf([&] { (void)Decode(bytes, told); });
}

std::string Utf16(const std::u16string& text, bool bigEndian) {
  std::string bytes;
  for (const char16_t unit : text) {
    const char high = static_cast<char>(unit >> 8U);
    const char low = static_cast<char>(unit & 0xFFU);
    bytes += bigEndian ? std::string{high, low} : std::string{low, high};
  }
  return bytes;
}

struct EncodingRow {
  const char* Name;
  std::string Bytes;
  String Text;
  const char* Encoding;
};

const EncodingRow kEncodingRows[] = {
    {"nothing", "", "", "UTF-8"},
    {"ASCII", "a,b\r\n\t1", "a,b\r\n\t1", "UTF-8"},
    {"UTF-8", "M\xC3\xBCnchen \xE2\x82\xAC \xF0\x9F\x98\x80", "M\xC3\xBCnchen \xE2\x82\xAC \xF0\x9F\x98\x80", "UTF-8"},
    {"UTF-8 with a mark", "\xEF\xBB\xBFM\xC3\xBCnchen", "M\xC3\xBCnchen", "UTF-8"},
    {"UTF-16, low byte first", Utf16(u"\xFEFFM\u00FCnchen \u20AC\n", false), "M\xC3\xBCnchen \xE2\x82\xAC\n",
     "UTF-16LE"},
    {"UTF-16, high byte first", Utf16(u"\xFEFFM\u00FCnchen \u20AC\n", true), "M\xC3\xBCnchen \xE2\x82\xAC\n",
     "UTF-16BE"},
    {"UTF-16 beyond 16 bits", Utf16(u"\xFEFF\U0001F600", false), "\xF0\x9F\x98\x80", "UTF-16LE"},
    {"Windows-1252", "M\xFCnchen \x80", "M\xC3\xBCnchen \xE2\x82\xAC", "Windows-1252"},
};

TEST(TextEncoding, IsFound) {
  for (const EncodingRow& row : kEncodingRows) {
    SCOPED_TRACE(row.Name);
    EXPECT_EQ(Decode(row.Bytes), (Decoded{row.Text, row.Encoding}));
  }
}

TEST(TextEncoding, ThatIsToldNeedsNoMark) {
  EXPECT_EQ(Decode(Utf16(u"a\u00FC", false), TextEncoding::Utf16Le).Text, "a\xC3\xBC");
  EXPECT_EQ(Decode(Utf16(u"a\u00FC", true), TextEncoding::Utf16Be).Text, "a\xC3\xBC");
  EXPECT_EQ(Decode(Utf16(u"\xFEFF"
                         u"a",
                         true),
                   TextEncoding::Utf16Be)
                .Text,
            "a");
  EXPECT_EQ(Decode("\xEF\xBB\xBF"
                   "a",
                   TextEncoding::Utf8)
                .Text,
            "a");
}

TEST(TextEncoding, ThatIsToldWinsWhereTheFileCouldBeAnother) {
  EXPECT_EQ(Decode("M\xC3\xBCnchen", TextEncoding::Windows1252).Text, "M\xC3\x83\xC2\xBCnchen");
}

TEST(TextEncoding, OfAFileThatMixesTwoIsUnclear) {
  EXPECT_EQ(EncodingFault("M\xC3\xBCnchen\nK\xF6ln\n"),
            "line 2: the byte F6 is no UTF-8, as line 1 is; if the whole file is in another encoding, name it with "
            "--encoding");
  EXPECT_EQ(EncodingFault("K\xF6ln\r\n\r\nM\xC3\xBCnchen\r\n"),
            "line 1: the byte F6 is no UTF-8, as line 3 is; if the whole file is in another encoding, name it with "
            "--encoding");
}

TEST(TextEncoding, ByteThatNoneKnowsIsAFault) {
  EXPECT_EQ(EncodingFault("a\nb\n\x81"),
            "line 3: the byte 81 is neither UTF-8 nor Windows-1252; save the file as UTF-8");
}

TEST(TextEncoding, TextThatBreaksTheRulesOfItsEncodingIsAFault) {
  EXPECT_EQ(EncodingFault("\xEF\xBB\xBFK\xF6ln"),
            "line 1: the byte F6 is no UTF-8; name the file's encoding with --encoding");
  EXPECT_EQ(EncodingFault("a\xC3", TextEncoding::Utf8),
            "line 1: the byte C3 is no UTF-8; name the file's encoding with --encoding");
  EXPECT_EQ(EncodingFault(Utf16(u"\xFEFF"
                                u"ab",
                                false) +
                          "c"),
            "it is cut off: UTF-16 has two bytes for each unit");
  EXPECT_EQ(EncodingFault(Utf16(std::u16string{0xFEFF, u'a', u'\n', 0xD83D}, false)),
            "line 2: half a character (D83D) in UTF-16");
  EXPECT_EQ(EncodingFault(Utf16(std::u16string{0xFEFF, 0xDE00, 0xD83D}, true)),
            "line 1: half a character (DE00) in UTF-16");
  EXPECT_EQ(EncodingFault(Utf16(std::u16string{0xFEFF, 0xD83D, u'a'}, true)),
            "line 1: half a character (D83D) in UTF-16");
  EXPECT_EQ(EncodingFault("\xEF\xBB\xBF"
                          "a",
                          TextEncoding::Windows1252),
            "it begins with the mark of Unicode, so it is no Windows-1252");
}

TEST(TextEncoding, SequencesThatOnlyLookLikeUtf8AreNone) {
  struct Row {
    const char* Name;
    std::string Bytes;
  };
  const Row rows[] = {
      {"written too long", "\xC0\xAF"},
      {"written too long by three", "\xE0\x80\xAF"},
      {"written too long by four", "\xF0\x80\x80\xAF"},
      {"half of a pair", "\xED\xA0\x80"},
      {"beyond the last character", "\xF4\x90\x80\x80"},
      {"a lead that there is not", "\xF8\x88\x80\x80\x80"},
      {"a continuation alone", "\x80"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.Name);
    EXPECT_NE(EncodingFault(row.Bytes, TextEncoding::Utf8), "no fault");
  }
}

TEST(TextEncoding, ControlCharactersAreNoText) {
  EXPECT_EQ(EncodingFault("a,b\n1,\0,2\n"s),
            "line 2: the control character U+0000 is no text; if the file is in UTF-16, say --encoding utf-16le or "
            "utf-16be");
  EXPECT_EQ(EncodingFault("a\x1B[2J"), "line 1: the control character U+001B is no text");
  EXPECT_EQ(EncodingFault("a\x7F"), "line 1: the control character U+007F is no text");
  EXPECT_EQ(EncodingFault("a\xC2\x85"), "line 1: the control character U+0085 is no text");
  EXPECT_EQ(EncodingFault("a\xC2\xA0"), "no fault");
}

TEST(TextEncoding, OfUtf16WithoutAMarkHasToBeTold) {
  EXPECT_NE(EncodingFault(Utf16(u"a,b\n1,2\n", false)).find("--encoding utf-16le"), String::npos);
}

TEST(TextEncoding, IsKnownByItsName) {
  EXPECT_EQ(EncodingNamed("utf-8"), TextEncoding::Utf8);
  EXPECT_EQ(EncodingNamed("UTF8"), TextEncoding::Utf8);
  EXPECT_EQ(EncodingNamed("UTF-16LE"), TextEncoding::Utf16Le);
  EXPECT_EQ(EncodingNamed("utf-16be"), TextEncoding::Utf16Be);
  EXPECT_EQ(EncodingNamed("windows-1252"), TextEncoding::Windows1252);
  EXPECT_EQ(EncodingNamed("cp1252"), TextEncoding::Windows1252);
  EXPECT_EQ(EncodingNamed("utf-16"), std::nullopt);
  EXPECT_EQ(EncodingNamed("latin1"), std::nullopt);
  EXPECT_EQ(EncodingNamed(""), std::nullopt);
}

}  // namespace
}  // namespace Tarnwise
