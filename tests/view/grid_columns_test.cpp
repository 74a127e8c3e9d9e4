#include "view/GridColumns.h"

#include <gtest/gtest.h>

#include <numeric>

namespace Tarnwise {
namespace {

const std::vector<int> kResults{720, 4900, 1152, 1907, 2979};  // 11658 together

int Sum(const std::vector<int>& widths) { return std::accumulate(widths.begin(), widths.end(), 0); }

TEST(GridColumns, FillTheRoomInTheProportionsOfTheRecord) {
  for (const double perTwip : {1.0 / 15.0, 2.0 / 15.0, 0.1}) {
    for (const int room : {1167, 1600, 1961, 4000}) {
      const std::vector<int> widths = ColumnWidths(kResults, perTwip, room);
      const int wanted = perTwip > 0.11 ? std::max(room, 1554) : room;
      EXPECT_EQ(Sum(widths), wanted);
      for (std::size_t i = 0; i < kResults.size(); ++i) {
        EXPECT_NEAR(widths[i], wanted * kResults[i] / 11658.0, 1.0) << "column " << i << " of " << room;
      }
    }
  }
}

TEST(GridColumns, AreAsWideAsTheRecordSaysWhereThereIsNoRoom) {
  EXPECT_EQ(ColumnWidths({150, 300, 450}, 1.0 / 15.0, 20), (std::vector<int>{10, 20, 30}));
}

TEST(GridColumns, RoundTheirEdgesNotTheirWidths) {
  EXPECT_EQ(ColumnWidths({100, 100, 100}, 0.01, 10), (std::vector<int>{3, 4, 3}));
}

TEST(GridColumns, WithoutAWidthHaveTheUsualOne) {
  EXPECT_EQ(ColumnWidths({0, 0}, 1.0 / 15.0, 0), (std::vector<int>{64, 64}));
}

TEST(GridColumns, OfNoGridAreNone) { EXPECT_EQ(ColumnWidths({}, 1.0, 100), std::vector<int>{}); }

}  // namespace
}  // namespace Tarnwise
