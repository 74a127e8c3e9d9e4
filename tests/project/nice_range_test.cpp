#include "project/NiceRange.h"

#include <gtest/gtest.h>

#include <limits>

namespace Tarnwise {
namespace {

struct RangeRow {
  const char* Name;
  double Low;
  double High;
  double NiceLow;
  double NiceHigh;
};

const RangeRow kRangeRows[] = {
    {"doctors of the hospitals", 19, 55, 15, 60},
    {"nurses of the hospitals", 131, 306, 120, 320},
    {"outpatients of the hospitals", 94, 260, 80, 280},
    {"inpatients of the hospitals", 50, 147, 40, 150},
    {"ends that are round already", 20, 50, 15, 55},
    {"from zero", 0, 55, 0, 60},
    {"close to zero", 1, 55, 0, 60},
    {"up to zero", -55, 0, -60, 0},
    {"both sides of zero", -5, 12, -6, 14},
    {"negative ones", -306, -131, -320, -120},
    {"decimals", 3.2, 4.8, 3, 5},
    {"small decimals", 0.0123, 0.0177, 0.012, 0.018},
    {"tenths without noise", 0.1, 0.3, 0.08, 0.32},
    {"large ones", 1234567, 7654321, 1000000, 8000000},
    {"a narrow range far from zero", 1000000.25, 1000000.75, 1000000.2, 1000000.8},
    {"a single number", 20, 20, 18, 22},
    {"a single negative number", -0.37, -0.37, -0.4, -0.35},
    {"nothing but zeros", 0, 0, 0, 1},
};

TEST(NiceRange, LiesAroundTheDataInRoundSteps) {
  for (const RangeRow& row : kRangeRows) {
    SCOPED_TRACE(row.Name);
    const Range range = NiceRange(row.Low, row.High);
    EXPECT_EQ(range.Low, row.NiceLow);
    EXPECT_EQ(range.High, row.NiceHigh);
  }
}

TEST(NiceRange, IsTheDatasOwnWhereStepsAreTooSmallOrTooLarge) {
  constexpr double kMost = std::numeric_limits<double>::max();
  constexpr double kLeast = std::numeric_limits<double>::denorm_min();
  const Range all = NiceRange(-kMost, kMost);
  EXPECT_EQ(all.Low, -kMost);
  EXPECT_EQ(all.High, kMost);
  const Range high = NiceRange(0.0, kMost);
  EXPECT_EQ(high.High, kMost);
  const Range tiny = NiceRange(0.0, kLeast);
  EXPECT_EQ(tiny.High, kLeast);
  const Range narrow = NiceRange(1.0, 1.0 + std::numeric_limits<double>::epsilon());
  EXPECT_EQ(narrow.Low, 1.0);
}

}  // namespace
}  // namespace Tarnwise
