// List boxes, tab strips, combos, grids and tool bars.
#include "TestForm.h"

#include <commctrl.h>

namespace Tarnwise {

class WinLists : public WinFormTest {
 protected:
  void ClickRow(int row) const {
    RECT place{};
    SendMessageW(WindowOf(form->lstRows), LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
    ClickAt(WindowOf(form->lstRows), {place.left + 4, (place.top + place.bottom) / 2});
  }
  void ClickTab(int tab) const {
    RECT place{};
    TabCtrl_GetItemRect(WindowOf(form->tsTab), tab - 1, &place);
    ClickAt(WindowOf(form->tsTab), {(place.left + place.right) / 2, (place.top + place.bottom) / 2});
  }
  void ClickTool(int button) const {
    RECT place{};
    SendMessageW(WindowOf(form->tbMoves), TB_GETITEMRECT, static_cast<WPARAM>(button - 1),
                 reinterpret_cast<LPARAM>(&place));
    ClickAt(WindowOf(form->tbMoves), {(place.left + place.right) / 2, (place.top + place.bottom) / 2});
  }
  HWND ComboOf(const Control& control) const {
    const HWND window = WindowOf(control);
    const auto inner = reinterpret_cast<HWND>(SendMessageW(window, CBEM_GETCOMBOCONTROL, 0, 0));
    return control.Type == Kind::ImageCombo ? inner : window;
  }
  LRESULT CurrentOf(const Control& control) const { return SendMessageW(WindowOf(control), CB_GETCURSEL, 0, 0); }
  LRESULT CurrentRow() const { return SendMessageW(WindowOf(form->lstRows), LB_GETCURSEL, 0, 0); }
  // Opens the list by a press; the row is gone to by keys.
  void Open(const Control& control) const {
    const HWND combo = ComboOf(control);
    ClickAt(combo, MiddleOf(combo));
    EXPECT_TRUE(SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0));
  }
  void Choose(const Control& control, int row) const {
    Open(control);
    SendKey(VK_HOME);
    for (int i = 0; i < row; ++i) SendKey(VK_DOWN);
    SendKey(VK_RETURN, L"\r");
    TakeMessages();
  }
  std::wstring Cell(int row, int col) const {
    std::wstring text(100, L'\0');
    LVITEMW item{};
    item.iSubItem = col;
    item.pszText = text.data();
    item.cchTextMax = 100;
    text.resize(static_cast<std::size_t>(SendMessageW(WindowOf(form->grdRows), LVM_GETITEMTEXTW,
                                                      static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item))));
    return text;
  }
  std::wstring Heading(int col) const {
    wchar_t text[100] = {};
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT;
    column.pszText = text;
    column.cchTextMax = 100;
    SendMessageW(WindowOf(form->grdRows), LVM_GETCOLUMNW, static_cast<WPARAM>(col), reinterpret_cast<LPARAM>(&column));
    return text;
  }
};

TEST_F(WinLists, AListBoxChoosesTheRowOnce) {
  form->lstRows.Click = [this] { form->Log.push_back(std::to_string(form->lstRows.ListIndex())); };
  Show();
  ClickRow(2);
  ClickRow(0);
  TakeMessages();
  EXPECT_EQ(Joined(form->Log), "2 0");
  EXPECT_EQ(CurrentRow(), 0);
  EXPECT_EQ(GetFocus(), WindowOf(form->lstRows));
  EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(WinLists, APressBesideTheRowsOrLetGoOnAnotherChoosesNothing) {
  NoteClick(form->lstRows);
  Show();
  const HWND list = WindowOf(form->lstRows);
  RECT client{};
  GetClientRect(list, &client);
  ClickAt(list, {10, client.bottom - 2});
  PressAt(list, {10, 10});
  LetGoAt(list, {10, 34});
  EXPECT_EQ(Joined(form->Log), "");
  EXPECT_EQ(form->lstRows.ListIndex, -1);
  EXPECT_EQ(CurrentRow(), LB_ERR);
}

TEST_F(WinLists, AListBoxGoesByItsKeys) {
  form->lstRows.ListIndex = 0;
  form->lstRows.Click = [this] { form->Log.push_back(std::to_string(form->lstRows.ListIndex())); };
  Show();
  Input::MoveFocus(form->lstRows);
  for (const int code : {VK_DOWN, VK_RIGHT, VK_DOWN, VK_UP, VK_HOME, VK_UP, VK_END}) SendKey(code);
  EXPECT_EQ(Joined(form->Log), "1 2 1 0 2");
  EXPECT_EQ(CurrentRow(), 2);
}

TEST_F(WinLists, ALetterOrAPageChoosesInAListBoxAndIsTold) {
  form->lstRows.ListIndex = 0;
  form->lstRows.Click = [this] { form->Log.push_back(std::to_string(form->lstRows.ListIndex())); };
  Show();
  Input::MoveFocus(form->lstRows);
  SendKey('T', L"t");
  EXPECT_EQ(form->lstRows.ListIndex, CurrentRow());
  EXPECT_EQ(Joined(form->Log), "1");
  SendKey(VK_PRIOR);
  EXPECT_EQ(form->lstRows.ListIndex, CurrentRow());
  SendKey('X', L"x");
  EXPECT_EQ(form->lstRows.ListIndex, CurrentRow());
  EXPECT_EQ(Joined(form->Log), "1 0");
}

TEST_F(WinLists, ATabStripChoosesTheTabOnce) {
  form->tsTab.Click = [this] { form->Log.push_back(std::to_string(form->tsTab.SelectedItem())); };
  Show();
  ClickTab(3);
  EXPECT_EQ(TabCtrl_GetCurSel(WindowOf(form->tsTab)), 2);
  EXPECT_EQ(form->ActiveControl, &form->tsTab);
  SendKey(VK_LEFT);
  EXPECT_EQ(TabCtrl_GetCurSel(WindowOf(form->tsTab)), 1);
  EXPECT_EQ(Joined(form->Log), "3 2");
}

TEST_F(WinLists, AHandlerMayRefuseTheTab) {
  form->tsTab.Click = [this] { form->tsTab.SelectedItem = 1; };
  Show();
  ClickTab(2);
  EXPECT_EQ(TabCtrl_GetCurSel(WindowOf(form->tsTab)), 0);
}

TEST_F(WinLists, ACombosListChoosesTheRowOnce) {
  form->cmbRows.Click = [this] { form->Log.push_back(std::to_string(form->cmbRows.ListIndex())); };
  Show();
  Choose(form->cmbRows, 2);
  EXPECT_EQ(Joined(form->Log), "2");
  EXPECT_EQ(form->cmbRows.ListIndex, 2);
  EXPECT_EQ(CurrentOf(form->cmbRows), 2);
  EXPECT_EQ(form->ActiveControl, &form->cmbRows);
}

TEST_F(WinLists, AnImageCombosListChoosesTheRowOnce) {
  form->imgcmbRows.Click = [this] { form->Log.push_back(std::to_string(form->imgcmbRows.SelectedItem())); };
  Show();
  Choose(form->imgcmbRows, 1);
  EXPECT_EQ(Joined(form->Log), "2");
  EXPECT_EQ(CurrentOf(form->imgcmbRows), 1);
  EXPECT_EQ(form->ActiveControl, &form->imgcmbRows);
}

TEST_F(WinLists, ACombosListThatIsGivenUpChangesNothing) {
  for (Control* control : std::vector<Control*>{&form->cmbRows, &form->imgcmbRows}) NoteClick(*control);
  form->cmbRows.ListIndex = 0;
  form->imgcmbRows.SelectedItem = 1;
  Show();
  for (const Control* control : std::vector<Control*>{&form->cmbRows, &form->imgcmbRows}) {
    Open(*control);
    SendKey(VK_DOWN);
    SendKey(VK_ESCAPE, L"\x1b");
    TakeMessages();
    EXPECT_FALSE(SendMessageW(ComboOf(*control), CB_GETDROPPEDSTATE, 0, 0)) << control->Name;
    EXPECT_EQ(CurrentOf(*control), 0) << control->Name;
  }
  EXPECT_EQ(Joined(form->Log), "");
  EXPECT_EQ(form->cmbRows.ListIndex, 0);
  EXPECT_EQ(form->imgcmbRows.SelectedItem, 1);
}

TEST_F(WinLists, AClosedCombosKeysChooseAndAreTold) {
  form->cmbRows.Click = [this] { form->Log.push_back(std::to_string(form->cmbRows.ListIndex())); };
  form->imgcmbRows.Click = [this] { form->Log.push_back("i" + std::to_string(form->imgcmbRows.SelectedItem())); };
  Show();
  Input::MoveFocus(form->cmbRows);
  SendKey(VK_DOWN);
  SendKey(VK_DOWN);
  SendKey(VK_UP);
  EXPECT_EQ(CurrentOf(form->cmbRows), 0);
  SendKey('B', L"b");
  TakeMessages();
  EXPECT_EQ(form->cmbRows.ListIndex, CurrentOf(form->cmbRows));
  Input::MoveFocus(form->imgcmbRows);
  SendKey(VK_DOWN);
  SendKey(VK_DOWN);
  TakeMessages();
  EXPECT_EQ(form->imgcmbRows.SelectedItem - 1, CurrentOf(form->imgcmbRows));
  EXPECT_EQ(Joined(form->Log), "0 1 0 2 i1 i2");
}

TEST_F(WinLists, TheWheelTurnsNoCombosRow) {
  form->cmbRows.ListIndex = 1;
  NoteClick(form->cmbRows);
  Show();
  Input::MoveFocus(form->cmbRows);
  SendMessageW(WindowOf(form->cmbRows), WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), 0);
  TakeMessages();
  EXPECT_EQ(CurrentOf(form->cmbRows), 1);
  EXPECT_EQ(Joined(form->Log), "");
}

TEST_F(WinLists, RowsFollowTheirRecord) {
  form->cmbRows.ListIndex = 1;
  form->imgcmbRows.SelectedItem = 2;
  NoteClick(form->lstRows);
  NoteClick(form->cmbRows);
  NoteClick(form->imgcmbRows);
  Show();
  EXPECT_EQ(TextOf(WindowOf(form->cmbRows)), L"green");
  EXPECT_EQ(SendMessageW(WindowOf(form->imgcmbRows), CB_GETCOUNT, 0, 0), 2);
  form->lstRows.List = std::vector<String>{"one", "other"};
  form->lstRows.ListIndex = 1;
  form->cmbRows.List = std::vector<String>{"white"};
  form->cmbRows.ListIndex = -1;
  form->imgcmbRows.SetItemText(1, "news");
  form->imgcmbRows.SelectedItem = 1;
  platform->SyncAll();
  wchar_t row[50] = {};
  SendMessageW(WindowOf(form->lstRows), LB_GETTEXT, 1, reinterpret_cast<LPARAM>(row));
  EXPECT_EQ(std::wstring(row), L"other");
  EXPECT_EQ(SendMessageW(WindowOf(form->lstRows), LB_GETCOUNT, 0, 0), 2);
  EXPECT_EQ(CurrentRow(), 1);
  EXPECT_EQ(SendMessageW(WindowOf(form->cmbRows), CB_GETCOUNT, 0, 0), 1);
  EXPECT_EQ(CurrentOf(form->cmbRows), CB_ERR);
  EXPECT_EQ(CurrentOf(form->imgcmbRows), 0);
  form->imgcmbRows.Clear();
  platform->SyncAll();
  EXPECT_EQ(SendMessageW(WindowOf(form->imgcmbRows), CB_GETCOUNT, 0, 0), 0);
  TakeMessages();
  EXPECT_EQ(Joined(form->Log), "");
}

TEST_F(WinLists, AGridShowsItsCellsAndItsHeading) {
  form->grdRows.Shape(3, 2);
  form->grdRows.SetCell(0, 1,
                        "h\xC3\xA9"
                        "ad");
  form->grdRows.SetCell(2, 0, "0.37");
  Show();
  const HWND grid = WindowOf(form->grdRows);
  EXPECT_EQ(Heading(1),
            L"h\xE9"
            L"ad");
  EXPECT_EQ(Cell(1, 0), L"0.37");
  EXPECT_EQ(Cell(0, 0), L"");
  EXPECT_EQ(ListView_GetItemCount(grid), 2);
  form->grdRows.SetCell(1, 1, "1");
  platform->SyncAll();
  EXPECT_EQ(Cell(0, 1), L"1");
  form->grdRows.Shape(2, 3);
  platform->SyncAll();
  EXPECT_EQ(ListView_GetItemCount(grid), 1);
  EXPECT_EQ(Header_GetItemCount(ListView_GetHeader(grid)), 3);
  EXPECT_EQ(Cell(0, 0), L"");
  EXPECT_EQ(Heading(1), L"");
}

TEST_F(WinLists, AToolIsPressedWithoutTheFocus) {
  form->tbMoves.ButtonClick = [this](const String& key) { form->Log.push_back(key); };
  form->txtFirst.LostFocus = [this] { form->Log.push_back("lost"); };
  Show();
  ClickTool(2);
  ClickTool(1);
  TakeMessages();
  EXPECT_EQ(Joined(form->Log), "Down Up");
  EXPECT_EQ(form->ActiveControl, &form->txtFirst);
  EXPECT_EQ(GetFocus(), WindowOf(form->txtFirst));
}

TEST_F(WinLists, ADisabledToolIsNotPressed) {
  form->tbMoves.ButtonClick = [this](const String& key) { form->Log.push_back(key); };
  form->tbMoves.Buttons[1].Enabled = false;
  Show();
  const HWND bar = WindowOf(form->tbMoves);
  ClickTool(2);
  EXPECT_EQ(Joined(form->Log), "");
  EXPECT_FALSE(SendMessageW(bar, TB_ISBUTTONENABLED, 2, 0));
  form->tbMoves.EnableButton(2, true);
  platform->SyncAll();
  EXPECT_TRUE(SendMessageW(bar, TB_ISBUTTONENABLED, 2, 0));
  ClickTool(2);
  EXPECT_EQ(Joined(form->Log), "Down");
  form->tbMoves.Enabled = false;
  platform->SyncAll();
  EXPECT_FALSE(SendMessageW(bar, TB_ISBUTTONENABLED, 1, 0)) << "it is to be seen";
  ClickTool(1);
  EXPECT_EQ(Joined(form->Log), "Down");
}

}  // namespace Tarnwise
