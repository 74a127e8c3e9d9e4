#include "project/Shown.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

TEST(Shown, TextStandsInQuotes) {
  EXPECT_EQ(Shown("12,5"), "\"12,5\"");
  EXPECT_EQ(Shown(""), "\"\"");
  EXPECT_EQ(Shown("M\xC3\xBCnchen"), "\"M\xC3\xBCnchen\"");
}

TEST(Shown, ControlCharactersDoNotReachTheTerminal) {
  EXPECT_EQ(ShownName("a\x1B[2J\n"), "a\\x1B[2J\\x0A");
  EXPECT_EQ(ShownName("\xC2\x9B"
                      "2J"),
            "\\x9B2J");
  EXPECT_EQ(ShownName("\xC2\xA0"), "\xC2\xA0");
  EXPECT_EQ(ShownName("\x7F"), "\\x7F");
}

TEST(Shown, LongTextIsCutBetweenCharacters) {
  // The compiler mistakes a sum of texts of fixed lengths for an overrun.
  const auto letters = [](std::size_t count, const char* end) {
    String text(count, 'a');
    text += end;
    return text;
  };
  EXPECT_EQ(ShownName(letters(60, "")), letters(60, ""));
  EXPECT_EQ(ShownName(letters(61, "")), letters(60, "..."));
  EXPECT_EQ(ShownName(letters(59, "\xC3\xBCz")), letters(59, "..."));
  EXPECT_EQ(ShownName(letters(58, "\xC3\xBCz")), letters(58, "\xC3\xBC..."));
}

TEST(Shown, CountsHaveTheirPlural) {
  EXPECT_EQ(CountOf(0, "row"), "0 rows");
  EXPECT_EQ(CountOf(1, "row"), "1 row");
  EXPECT_EQ(CountOf(12, "row"), "12 rows");
}

TEST(Shown, ManyItemsAreCounted) {
  EXPECT_EQ(Enumerated({}), "");
  EXPECT_EQ(Enumerated({"a"}), "a");
  EXPECT_EQ(Enumerated({"a", "b"}, " or "), "a or b");
  EXPECT_EQ(Enumerated(std::vector<String>(10, "x")), "x, x, x, x, x, x, x, x, x, x");
  EXPECT_EQ(Enumerated(std::vector<String>(13, "x")), "x, x, x, x, x, x, x, x, x, x and 3 more");
}

}  // namespace
}  // namespace Tarnwise
