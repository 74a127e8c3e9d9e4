// Grids as they are seen: the columns' widths.
#include "TestForm.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTableWidget>

namespace Tarnwise {

class QtGrid : public QtFormTest {
 protected:
  QtGrid() {
    Place(*form, 0, 0, 15300, 8340);
    Place(grid, 300, 1500, 14700, 6000);
    grid.Shape(3, 5);
    for (int col = 0; col < 5; ++col) grid.SetColWidth(col, kWidths[static_cast<std::size_t>(col)]);
  }

  // Every column has its share of what the table has room for, within the rounding of its two edges.
  void ExpectShares(int room) const {
    const auto& table = As<QTableWidget>(grid);
    int sum = 0;
    for (int col = 0; col < 5; ++col) {
      const int twips = kWidths[static_cast<std::size_t>(col)];
      EXPECT_NEAR(table.columnWidth(col), room * twips / 11658.0, 1.0) << "column " << col;
      EXPECT_EQ(table.columnWidth(col), table.horizontalHeader()->sectionSize(col)) << "column " << col;
      sum += table.columnWidth(col);
    }
    EXPECT_EQ(sum, room);
  }

  static constexpr std::array<int, 5> kWidths{720, 4900, 1152, 1907, 2979};
  Grid grid{*form, form.get(), "gridRows"};
};

TEST_F(QtGrid, ColumnsKeepTheirProportionsWhereThereIsMoreRoom) {
  Show();
  const auto& table = As<QTableWidget>(grid);
  EXPECT_GT(table.viewport()->width(), 900);
  ExpectShares(table.viewport()->width());
  platform->Release(*form);
}

TEST_F(QtGrid, ColumnsKeepTheirProportionsBesideAScrollBar) {
  grid.Shape(60, 5);
  for (int col = 0; col < 5; ++col) grid.SetColWidth(col, kWidths[static_cast<std::size_t>(col)]);
  Show();
  QCoreApplication::processEvents();
  const auto& table = As<QTableWidget>(grid);
  ASSERT_TRUE(table.verticalScrollBar()->isVisible());
  EXPECT_FALSE(table.horizontalScrollBar()->isVisible());
  ExpectShares(table.viewport()->width());
  platform->Release(*form);
}

TEST_F(QtGrid, ColumnsThatHaveNoRoomKeepTheWidthsOfTheRecord) {
  grid.Width = 7500;
  Show();
  ExpectShares(777);  // 11658 twips
  platform->Release(*form);
}

TEST_F(QtGrid, ColumnsFollowAGridThatIsMadeWider) {
  grid.Width = 12000;
  Show();
  grid.Width = 14700;
  platform->SyncAll();
  ExpectShares(As<QTableWidget>(grid).viewport()->width());
  platform->Release(*form);
}

}  // namespace Tarnwise
