// Grids: a list view in report form to look at, the first row of the record its heading.
#include "view/GridColumns.h"
#include "view/win32/WinForm.h"
#include "view/win32/WinKinds.h"
#include "view/win32/WinPaint.h"
#include "view/win32/WinText.h"

#include <commctrl.h>

#include <algorithm>

namespace Tarnwise {

namespace {

constexpr int kGridRowHeight = 24;  // pixels of the design

void LayOutGrid(WinForm& form, Control& control, HWND window) {
  ListView_SetExtendedListViewStyle(window, LVS_EX_GRIDLINES | LVS_EX_FULLROWSELECT);
  form.Watch(ListView_GetHeader(window), control);
}

std::wstring CellText(HWND window, int row, int col) {
  std::wstring text(512, L'\0');
  LVITEMW item{};
  item.iSubItem = col;
  item.pszText = text.data();
  item.cchTextMax = static_cast<int>(text.size());
  const LRESULT length =
      SendMessageW(window, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
  text.resize(static_cast<std::size_t>(length));
  return text;
}

void InsertColumn(HWND window, int col) {
  LVCOLUMNW column{};
  column.mask = LVCF_FMT;
  column.fmt = LVCFMT_CENTER;
  SendMessageW(window, LVM_INSERTCOLUMNW, static_cast<WPARAM>(col), reinterpret_cast<LPARAM>(&column));
}

void MakeColumns(HWND window, const Grid& grid) {
  const HWND header = ListView_GetHeader(window);
  while (Header_GetItemCount(header) > grid.Cols()) ListView_DeleteColumn(window, grid.Cols());
  for (int col = Header_GetItemCount(header); col < grid.Cols(); ++col) InsertColumn(window, col);
}

void SetHeading(HWND window, int col, std::wstring text) {
  HDITEMW heading{};
  heading.mask = HDI_TEXT | HDI_FORMAT;
  heading.fmt = HDF_STRING | HDF_CENTER;
  heading.pszText = text.data();
  SendMessageW(ListView_GetHeader(window), HDM_SETITEMW, static_cast<WPARAM>(col), reinterpret_cast<LPARAM>(&heading));
}

void SetCell(HWND window, int row, int col, std::wstring text) {
  LVITEMW item{};
  item.iSubItem = col;
  item.pszText = text.data();
  SendMessageW(window, LVM_SETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

// Rows are as high as the pictures of the list, of which there are none.
void SetRowHeight(WinForm& form, HWND window) {
  const int height = Scaled(kGridRowHeight, form.Scale());
  int width = 0;
  int now = 0;
  const HIMAGELIST images = ListView_GetImageList(window, LVSIL_SMALL);
  if (images != nullptr && ImageList_GetIconSize(images, &width, &now) != 0 && now == height) return;
  Images fresh(ImageList_Create(1, height, ILC_COLOR32, 0, 1));
  ListView_SetImageList(window, fresh.get(), LVSIL_SMALL);
  form.KeepImages(window, std::move(fresh));
}

void SetColours(HWND window, const Palette& colours) {
  ListView_SetBkColor(window, colours.Base);
  ListView_SetTextBkColor(window, colours.Base);
  ListView_SetTextColor(window, colours.Text);
}

void SyncGrid(WinForm& form, Control& control, HWND window) {
  const auto& grid = static_cast<const Grid&>(control);
  SetColours(window, form.Colours());
  UseBaseFont(form, window);
  MakeColumns(window, grid);
  SetRowHeight(form, window);
  const int rows = std::max(grid.Rows() - 1, 0);
  while (ListView_GetItemCount(window) > rows) ListView_DeleteItem(window, rows);
  while (ListView_GetItemCount(window) < rows) {
    LVITEMW item{};
    item.iItem = ListView_GetItemCount(window);
    SendMessageW(window, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
  }
  for (int row = 0; row < grid.Rows(); ++row) {
    for (int col = 0; col < grid.Cols(); ++col) {
      std::wstring text = Wide(grid.TextMatrix[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)]);
      if (row == 0)
        SetHeading(window, col, std::move(text));
      else if (CellText(window, row - 1, col) != text)
        SetCell(window, row - 1, col, std::move(text));
    }
  }
  SpreadColumns(grid, window, form.Scale());
  RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

// A list view never centres its first column.
LRESULT PaintCell(const WinForm& form, const NMLVCUSTOMDRAW& drawn) {
  const NMCUSTOMDRAW& stage = drawn.nmcd;
  if (stage.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  if (stage.dwDrawStage == CDDS_ITEMPREPAINT) return CDRF_NOTIFYSUBITEMDRAW;
  if (stage.dwDrawStage != (CDDS_SUBITEM | CDDS_ITEMPREPAINT) || drawn.iSubItem != 0) return CDRF_DODEFAULT;
  const HWND list = stage.hdr.hwndFrom;
  const int row = static_cast<int>(stage.dwItemSpec);
  RECT cell{};
  ListView_GetItemRect(list, row, &cell, LVIR_BOUNDS);
  cell.right = cell.left + ListView_GetColumnWidth(list, 0);
  const Selected font(stage.hdc, BaseFont(form.Scale()));
  SetBkMode(stage.hdc, TRANSPARENT);
  SetTextColor(stage.hdc, form.Colours().Text);
  const std::wstring text = CellText(list, row, 0);
  DrawTextW(stage.hdc, text.c_str(), -1, &cell, DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
  return CDRF_SKIPDEFAULT;
}

}  // namespace

void SpreadColumns(const Grid& grid, HWND list, double scale) {
  RECT client{};
  GetClientRect(list, &client);
  const std::vector<int> widths = ColumnWidths(grid.ColWidth, scale / 15.0, client.right);
  for (int i = 0; i < static_cast<int>(widths.size()); ++i) {
    const int wanted = widths[static_cast<std::size_t>(i)];
    if (ListView_GetColumnWidth(list, i) != wanted) ListView_SetColumnWidth(list, i, wanted);
  }
}

// It is there to be looked at: no row is chosen.
std::optional<LRESULT> AnswerGrid(const WinForm& form, const NMHDR& notice) {
  if (notice.code == NM_CUSTOMDRAW) return PaintCell(form, reinterpret_cast<const NMLVCUSTOMDRAW&>(notice));
  if (notice.code != LVN_ITEMCHANGING) return std::nullopt;
  const auto& change = reinterpret_cast<const NMLISTVIEW&>(notice);
  return (change.uChanged & LVIF_STATE) != 0 && (change.uNewState & LVIS_SELECTED) != 0 ? TRUE : FALSE;
}

const WinKind kWinGrid{WC_LISTVIEWW, LVS_REPORT | LVS_SHAREIMAGELISTS | LVS_NOSORTHEADER | LVS_SINGLESEL | WS_BORDER, 0,
                       SyncGrid, LayOutGrid};

}  // namespace Tarnwise
