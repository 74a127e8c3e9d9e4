// Numbers keep their point in a process whose locale has a comma.
#include "runtime/Numbers.h"
#include "runtime/Text.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <locale>
#include <sstream>

namespace Tarnwise {
namespace {

class CommaPoint : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

void ExpectPoints() {
  EXPECT_EQ(Val("3.17"), 3.17);
  EXPECT_EQ(Val("3,17"), 3.0);
  EXPECT_EQ(Val("1.234.567"), 1.234);
  EXPECT_EQ(StrictNumber("0.37"), 0.37);
  EXPECT_EQ(Format(1234.5, "0.00"), "1234.50");
  EXPECT_EQ(Format(1234.0, "0.##"), "1234.");
  EXPECT_EQ(NumberText(1234567.25), "1234567.25");
  EXPECT_EQ(NumberText(0.5F), "0.5");
  EXPECT_EQ(NumberText(1e15), "1E+15");
}

TEST(Locale, OfTheStreamsChangesNothing) {
  const std::locale before = std::locale::global(std::locale(std::locale::classic(), new CommaPoint));
  std::ostringstream proof;
  proof << 1234.5;
  EXPECT_EQ(proof.str(), "1.234,5");
  ExpectPoints();
  std::locale::global(before);
}

TEST(Locale, OfTheProcessChangesNothing) {
  // The build makes a German locale where the machine has the sources for it, and says so here.
  const char* made = std::getenv("TARNWISE_COMMA_LOCALE");
  if (std::setlocale(LC_ALL, made != nullptr ? made : "de_DE.UTF-8") == nullptr) {
    ASSERT_EQ(made, nullptr) << "the locale made for this test can't be set";
    std::setlocale(LC_ALL, "");
  } else {
    char proof[16];
    std::snprintf(proof, sizeof proof, "%.1f", 0.5);
    EXPECT_STREQ(proof, "0,5");
  }
  ExpectPoints();
  std::setlocale(LC_ALL, "C");
}

}  // namespace
}  // namespace Tarnwise
