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

// One function a kind of row: the table would otherwise be minutes of work for the optimiser.
void CheckVal(const char* text, std::uint64_t x) { EXPECT_EQ(Bits(Val(text)), x) << text; }
void CheckNumberText(std::uint64_t x, const char* text) { EXPECT_EQ(NumberText(D(x)), text); }
void CheckSingleText(std::uint32_t x, const char* text) { EXPECT_EQ(NumberText(S(x)), text); }
void CheckFormat(std::uint64_t x, const char* pattern, const char* text) { EXPECT_EQ(Format(D(x), pattern), text); }

void CheckFourDecimals(std::uint64_t x, std::uint64_t y) { EXPECT_EQ(Bits(RoundToFourDecimals(D(x))), y) << D(x); }

void CheckDivide(std::uint64_t a, std::uint64_t b, std::uint64_t quotient) {
  EXPECT_EQ(Bits(Divide(D(a), D(b))), quotient) << D(a) << " / " << D(b);
}

void CheckDivideSingle(std::uint32_t a, std::uint32_t b, std::uint32_t quotient) {
  EXPECT_EQ(Bits(DivideSingle(S(a), S(b))), quotient) << S(a) << " / " << S(b);
}

void CheckToSingle(std::uint64_t x, std::uint32_t y) { EXPECT_EQ(Bits(ToSingleChecked(D(x))), y) << D(x); }

void CheckTimes(std::uint32_t h, std::uint64_t product, std::uint32_t narrowed) {
  const Double times = static_cast<Double>(S(h)) * 0.7;
  EXPECT_EQ(Bits(times), product) << S(h);
  EXPECT_EQ(Bits(static_cast<Single>(times)), narrowed) << S(h);
}

void CheckCubic(std::uint64_t d, std::uint64_t c0, std::uint64_t c1, std::uint64_t c2, std::uint64_t c3,
                std::uint64_t y) {
  EXPECT_EQ(Bits(Cubic(D(d), D(c0), D(c1), D(c2), D(c3))), y) << D(d);
}

void CheckWalk(std::uint64_t x, std::uint64_t step, int count, std::uint64_t end) {
  EXPECT_EQ(Bits(Walk(D(x), D(step), count)), end) << D(x) << " by " << D(step);
}

TEST(NumberVectors, ComeOutToTheLastBit) {
#define VAL(...) CheckVal(__VA_ARGS__);
#define NUMBER_TEXT(...) CheckNumberText(__VA_ARGS__);
#define SINGLE_TEXT(...) CheckSingleText(__VA_ARGS__);
#define FORMAT(...) CheckFormat(__VA_ARGS__);
#define FOUR_DECIMALS(...) CheckFourDecimals(__VA_ARGS__);
#define DIVIDE(...) CheckDivide(__VA_ARGS__);
#define DIVIDE_SINGLE(...) CheckDivideSingle(__VA_ARGS__);
#define TO_SINGLE(...) CheckToSingle(__VA_ARGS__);
#define SINGLE_TIMES_0_7(...) CheckTimes(__VA_ARGS__);
#define CUBIC(...) CheckCubic(__VA_ARGS__);
#define WALK(...) CheckWalk(__VA_ARGS__);
#include "number_vectors.inc"
}

}  // namespace
}  // namespace Tarnwise
