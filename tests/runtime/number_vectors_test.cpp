// The same inputs give the same bits whatever compiler, optimisation and target the wizard was built with.
#include "runtime/Numbers.h"
#include "runtime/Text.h"

#include <gtest/gtest.h>

#include <bit>

namespace Tarnwise {
namespace {

// Read through a volatile, so that it is the built code that computes and not the compiler.
Double D(std::uint64_t bits) {
  volatile const Double x = std::bit_cast<Double>(bits);
  return x;
}

Single S(std::uint32_t bits) {
  volatile const Single x = std::bit_cast<Single>(bits);
  return x;
}

std::uint64_t Bits(Double x) { return std::bit_cast<std::uint64_t>(x); }
std::uint32_t Bits(Single x) { return std::bit_cast<std::uint32_t>(x); }

Double Cubic(Double d, Double c0, Double c1, Double c2, Double c3) {
  return c0 + d * c1 + (d * d) * c2 + (d * d * d) * c3;
}

Double Walk(Double x, Double step, int count) {
  for (int i = 0; i < count; ++i) x += step;
  return x;
}

TEST(NumberVectors, ComeOutToTheLastBit) {
#define VAL(text, x) EXPECT_EQ(Bits(Val(text)), x) << (text);
#define NUMBER_TEXT(x, text) EXPECT_EQ(NumberText(D(x)), text);
#define SINGLE_TEXT(x, text) EXPECT_EQ(NumberText(S(x)), text);
#define FORMAT(x, pattern, text) EXPECT_EQ(Format(D(x), pattern), text);
#define FOUR_DECIMALS(x, y) EXPECT_EQ(Bits(RoundToFourDecimals(D(x))), y) << D(x);
#define DIVIDE(a, b, q) EXPECT_EQ(Bits(Divide(D(a), D(b))), q) << D(a) << " / " << D(b);
#define DIVIDE_SINGLE(a, b, q) EXPECT_EQ(Bits(DivideSingle(S(a), S(b))), q##U) << S(a) << " / " << S(b);
#define TO_SINGLE(x, y) EXPECT_EQ(Bits(ToSingleChecked(D(x))), y##U) << D(x);
#define SINGLE_TIMES_0_7(h, product, narrowed)                       \
  EXPECT_EQ(Bits(static_cast<Double>(S(h)) * 0.7), product) << S(h); \
  EXPECT_EQ(Bits(static_cast<Single>(static_cast<Double>(S(h)) * 0.7)), narrowed##U) << S(h);
#define CUBIC(d, c0, c1, c2, c3, y) EXPECT_EQ(Bits(Cubic(D(d), D(c0), D(c1), D(c2), D(c3))), y) << D(d);
#define WALK(x, step, count, end) EXPECT_EQ(Bits(Walk(D(x), D(step), count)), end) << D(x) << " by " << D(step);
#include "number_vectors.inc"
}

}  // namespace
}  // namespace Tarnwise
