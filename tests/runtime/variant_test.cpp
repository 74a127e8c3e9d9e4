#include "support/ErrorNumber.h"

#include <tarnwise/Variant.h>

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

struct VariantRow {
  const char* Name;
  Variant Value;
  Double Number;
  const char* Text;
};

TEST(Variant, ConvertsToNumberAndText) {
  const VariantRow rows[] = {
      {"empty", Variant(), 0.0, ""},
      {"an Integer", Integer{-37}, -37.0, "-37"},
      {"a Long", Long{100000}, 100000.0, "100000"},
      {"a Single", 0.5F, 0.5, "0.5"},
      {"a Single shows seven digits", 0.1F, static_cast<Double>(0.1F), "0.1"},
      {"a Double", 3.17, 3.17, "3.17"},
      {"a Currency", Currency{31749}, 3.1749, "3.1749"},
      {"True is -1", true, -1.0, "True"},
      {"False", false, 0.0, "False"},
      {"a Byte", std::uint8_t{200}, 200.0, "200"},
      {"numeric text", String(" 0.37 "), 0.37, " 0.37 "},
      {"text with an exponent", String("1E3"), 1000.0, "1E3"},
  };
  for (const VariantRow& row : rows) {
    SCOPED_TRACE(row.Name);
    EXPECT_EQ(ToDouble(row.Value), row.Number);
    EXPECT_EQ(ToText(row.Value), row.Text);
  }
}

TEST(Variant, NullConvertsToNothing) {
  const Variant null = Null();
  EXPECT_EQ(ErrorNumber([&] { return ToDouble(null); }), 94);
  EXPECT_EQ(ErrorNumber([&] { return ToSingle(null); }), 94);
  EXPECT_EQ(ErrorNumber([&] { return ToInteger(null); }), 94);
  EXPECT_EQ(ErrorNumber([&] { return ToText(null); }), 94);
}

TEST(Variant, TextThatIsNoNumberIsATypeMismatch) {
  for (const char* text : {"", "abc", "1 2", "1,5", "Infinity!"}) {
    SCOPED_TRACE(text);
    const Variant value = String(text);
    EXPECT_EQ(ErrorNumber([&] { return ToDouble(value); }), 13);
    EXPECT_EQ(ErrorNumber([&] { return ToSingle(value); }), 13);
    EXPECT_EQ(ErrorNumber([&] { return ToInteger(value); }), 13);
  }
}

TEST(Variant, HoldsANumberOrNot) {
  EXPECT_EQ(NumberIn(Variant(0.37)), 0.37);
  EXPECT_EQ(NumberIn(Variant(Integer{1})), 1.0);
  EXPECT_EQ(NumberIn(Variant(true)), -1.0);
  EXPECT_EQ(NumberIn(Variant(String(" 3.17 "))), 3.17);
  for (const Variant& none : {Variant(), Variant(Null()), Variant(String()), Variant(String("abc")),
                              Variant(String("1,5")), Variant(String("1e999"))}) {
    EXPECT_EQ(NumberIn(none), std::nullopt) << none.index();
  }
}

TEST(Variant, RoundsToIntegerFromATieToEven) {
  EXPECT_EQ(ToInteger(Variant(0.5)), 0);
  EXPECT_EQ(ToInteger(Variant(1.5)), 2);
  EXPECT_EQ(ToInteger(Variant(-2.5)), -2);
  EXPECT_EQ(ToInteger(Variant(String("3.17"))), 3);
  EXPECT_EQ(ToInteger(Variant(true)), -1);
  EXPECT_EQ(ToInteger(Variant()), 0);
}

TEST(Variant, OverflowsPastSixteenBits) {
  EXPECT_EQ(ToInteger(Variant(32767.4)), 32767);
  EXPECT_EQ(ToInteger(Variant(-32768.5)), -32768);
  EXPECT_EQ(ErrorNumber([] { return ToInteger(Variant(32767.5)); }), 6);
  EXPECT_EQ(ErrorNumber([] { return ToInteger(Variant(Long{40000})); }), 6);
  EXPECT_EQ(ErrorNumber([] { return ToInteger(Variant(-32769.0)); }), 6);
}

TEST(Variant, OverflowsPastASingle) {
  EXPECT_EQ(ToSingle(Variant(0.1)), 0.1F);
  EXPECT_EQ(ErrorNumber([] { return ToSingle(Variant(1e39)); }), 6);
}

}  // namespace
}  // namespace Tarnwise
