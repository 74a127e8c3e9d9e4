// Values on their way in and out, one by one.
#include "com/Convert.h"

#include <gtest/gtest.h>

namespace Tarnwise {
namespace {

struct Pair {
  const char* Name;
  Variant Inside;
  VARTYPE Type;
};

void PrintTo(const Pair& pair, std::ostream* out) { *out << pair.Name; }

const Pair kPairs[] = {
    {"Empty", {}, VT_EMPTY},
    {"Null", Null(), VT_NULL},
    {"Integer", Integer{-32768}, VT_I2},
    {"Long", Long{-2147483647}, VT_I4},
    {"Single", Single{0.37F}, VT_R4},
    {"Double", 3.17e-12, VT_R8},
    {"Currency", Currency{-123456789}, VT_CY},
    {"Date", Date{36526.75}, VT_DATE},
    {"Text", String("b\u00E4r \u20AC \U0001F43B"), VT_BSTR},
    {"TextWithANull", String("a\0b", 3), VT_BSTR},
    {"EmptyText", String(), VT_BSTR},
    {"True", true, VT_BOOL},
    {"False", false, VT_BOOL},
    {"Byte", std::uint8_t{200}, VT_UI1},
};

class Conversion : public testing::TestWithParam<Pair> {};

TEST_P(Conversion, GoesOutAndComesBack) {
  OwnedVariant outside;
  ToVARIANT(GetParam().Inside, outside.Value());
  EXPECT_EQ(outside.Value().vt, GetParam().Type);
  EXPECT_TRUE(FromVARIANT(outside.Value()) == GetParam().Inside);
}

TEST_P(Conversion, ComesBackFromAReference) {
  OwnedVariant outside;
  ToVARIANT(GetParam().Inside, outside.Value());
  VARIANT reference = {};
  reference.vt = VT_BYREF | VT_VARIANT;
  reference.pvarVal = &outside.Value();
  EXPECT_TRUE(FromVARIANT(reference) == GetParam().Inside);
  if (GetParam().Type == VT_EMPTY || GetParam().Type == VT_NULL) return;
  reference.vt = static_cast<VARTYPE>(GetParam().Type | VT_BYREF);
  reference.byref = &outside.Value().bVal;
  EXPECT_TRUE(FromVARIANT(reference) == GetParam().Inside);
}

INSTANTIATE_TEST_SUITE_P(Values, Conversion, testing::ValuesIn(kPairs),
                         [](const testing::TestParamInfo<Pair>& pair) { return String(pair.param.Name); });

template <class Fill>
Variant Filled(VARTYPE type, Fill fill) {
  VARIANT value = {};
  value.vt = type;
  fill(value);
  return FromVARIANT(value);
}

TEST(ForeignValues, BecomeTheNearestTypeThatTheWizardHas) {
  EXPECT_EQ(std::get<Long>(Filled(VT_I1, [](VARIANT& v) { v.cVal = -5; })), -5);
  EXPECT_EQ(std::get<Long>(Filled(VT_UI2, [](VARIANT& v) { v.uiVal = 65535; })), 65535);
  EXPECT_EQ(std::get<Long>(Filled(VT_INT, [](VARIANT& v) { v.intVal = -7; })), -7);
  EXPECT_EQ(std::get<Double>(Filled(VT_UI4, [](VARIANT& v) { v.ulVal = 4294967295U; })), 4294967295.0);
  EXPECT_EQ(std::get<Double>(Filled(VT_I8, [](VARIANT& v) { v.llVal = -5000000000; })), -5000000000.0);
  EXPECT_EQ(std::get<Double>(Filled(VT_DECIMAL,
                                    [](VARIANT& v) {
                                      VarDecFromR8(0.375, &v.decVal);
                                      v.vt = VT_DECIMAL;
                                    })),
            0.375);
}

int ErrorOf(VARTYPE type) {
  try {
    Filled(type, [](VARIANT&) {});
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

TEST(ForeignValues, ThatAreNoSingleValueAreATypeMismatch) {
  EXPECT_EQ(ErrorOf(VT_ERROR), 13);
  EXPECT_EQ(ErrorOf(VT_UNKNOWN), 13);
  EXPECT_EQ(ErrorOf(VT_DISPATCH), 13);
  EXPECT_EQ(ErrorOf(VT_ARRAY | VT_VARIANT), 13);
}

TEST(Texts, MayBeNull) { EXPECT_EQ(FromBSTR(nullptr), ""); }

TEST(Texts, BrokenOnesStillConvert) {
  wchar_t half[] = {L'a', 0xD800, L'b', 0};
  const Bstr text(SysAllocString(half));
  EXPECT_EQ(FromBSTR(text.Get()), "a\uFFFDb");
}

}  // namespace
}  // namespace Tarnwise
