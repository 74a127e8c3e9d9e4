// Grids as they are seen: the columns' widths.
#include "TestForm.h"

#include <commctrl.h>

namespace Tarnwise {

class WinGrid : public WinFormTest {
 protected:
  WinGrid() {
    for (Control* control : form->Controls()) control->Visible = control == &form->grdRows;
    Place(*form, 0, 0, 9300, 6000);
    Place(form->grdRows, 150, 150, 9000, 5000);
    SetWidths(3);
  }

  void SetWidths(int rows) const {
    form->grdRows.Shape(rows, 5);
    for (int col = 0; col < 5; ++col) form->grdRows.SetColWidth(col, kWidths[static_cast<std::size_t>(col)]);
  }
  HWND List() const { return WindowOf(form->grdRows); }
  int Room() const {
    RECT client{};
    GetClientRect(List(), &client);
    return client.right;
  }

  // Every column has its share of what the list has room for, within the rounding of its two edges.
  void ExpectShares(int room) const {
    int sum = 0;
    for (int col = 0; col < 5; ++col) {
      RECT heading{};
      Header_GetItemRect(ListView_GetHeader(List()), col, &heading);
      const int twips = kWidths[static_cast<std::size_t>(col)];
      EXPECT_NEAR(ListView_GetColumnWidth(List(), col), room * twips / 5829.0, 1.0) << "column " << col;
      EXPECT_EQ(ListView_GetColumnWidth(List(), col), heading.right - heading.left) << "column " << col;
      sum += ListView_GetColumnWidth(List(), col);
    }
    EXPECT_EQ(sum, room);
  }

  // Where something dark begins and ends.
  std::pair<int, int> Written(int left, int right, int top, int bottom) const {
    const HDC dc = GetDC(List());
    std::pair<int, int> ends{right, left};
    for (int x = left; x < right; ++x) {
      for (int y = top; y < bottom; ++y) {
        if (GetGValue(GetPixel(dc, x, y)) > 120) continue;
        ends.first = std::min(ends.first, x);
        ends.second = std::max(ends.second, x);
      }
    }
    ReleaseDC(List(), dc);
    return ends;
  }

  static constexpr std::array<int, 5> kWidths{360, 2450, 576, 953, 1490};
};

TEST_F(WinGrid, ColumnsKeepTheirProportionsWhereThereIsMoreRoom) {
  Show();
  EXPECT_GT(Room(), 590);
  ExpectShares(Room());
}

// The first and the last pixel of what is written between two edges of a row's or the heading's middle.
TEST_F(WinGrid, EveryColumnIsCentred) {
  for (int col = 0; col < 5; ++col) {
    form->grdRows.SetCell(0, col, "AB");
    form->grdRows.SetCell(1, col, "AB");
  }
  Show();
  RedrawWindow(Window(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
  RECT row{};
  ListView_GetItemRect(List(), 0, &row, LVIR_BOUNDS);
  for (const int y : {row.top / 2, (row.top + row.bottom) / 2}) {
    int left = 0;
    for (int col = 0; col < 5; ++col) {
      const int right = left + ListView_GetColumnWidth(List(), col);
      const auto [first, last] = Written(left + 3, right - 3, y - 4, y + 4);
      EXPECT_NEAR((first + last) / 2.0, (left + right) / 2.0, 4.0) << "column " << col << " at " << y;
      left = right;
    }
  }
}

TEST_F(WinGrid, NoRowIsChosen) {
  Show();
  RECT row{};
  ListView_GetItemRect(List(), 1, &row, LVIR_BOUNDS);
  ClickAt(List(), {row.left + 100, (row.top + row.bottom) / 2});
  EXPECT_EQ(ListView_GetNextItem(List(), -1, LVNI_SELECTED), -1);
}

TEST_F(WinGrid, ColumnsKeepTheirProportionsAtTwiceTheResolution) {
  Show();
  SendMessageW(Window(), 0x02E0, MAKEWPARAM(192, 192), 0);  // WM_DPICHANGED
  ASSERT_EQ(toolkit->FormOf(*form)->Scale(), 2.0);
  EXPECT_GT(Room(), 1180);
  ExpectShares(Room());
}

TEST_F(WinGrid, ColumnsKeepTheirProportionsBesideAScrollBar) {
  SetWidths(60);
  Show();
  EXPECT_NE(GetWindowLongPtrW(List(), GWL_STYLE) & WS_VSCROLL, 0);
  EXPECT_EQ(GetWindowLongPtrW(List(), GWL_STYLE) & WS_HSCROLL, 0);
  ExpectShares(Room());
}

TEST_F(WinGrid, ColumnsThatHaveNoRoomKeepTheWidthsOfTheRecord) {
  form->grdRows.Width = 4500;
  Show();
  ExpectShares(389);  // 5829 twips
}

}  // namespace Tarnwise
