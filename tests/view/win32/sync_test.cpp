#include "TestForm.h"

#include <commctrl.h>

namespace Tarnwise {

class WinSync : public WinFormTest {
 protected:
  RECT PlaceOf(const Control& control) const {
    RECT place{};
    GetWindowRect(WindowOf(control), &place);
    MapWindowPoints(nullptr, GetParent(WindowOf(control)), reinterpret_cast<POINT*>(&place), 2);
    return place;
  }
  static std::vector<LONG> Sides(const RECT& r) { return {r.left, r.top, r.right - r.left, r.bottom - r.top}; }

  static HWND Tips() { return ThreadWindow(TOOLTIPS_CLASSW); }
  std::wstring TipOf(const Control& control) const {
    wchar_t text[200] = {};
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.hwnd = Window();
    tool.uFlags = TTF_IDISHWND;
    tool.uId = reinterpret_cast<UINT_PTR>(WindowOf(control));
    tool.lpszText = text;
    SendMessageW(Tips(), TTM_GETTEXTW, 200, reinterpret_cast<LPARAM>(&tool));
    return text;
  }
  COLORREF PixelAt(const Control& control, int x, int y) const {
    RedrawWindow(Window(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    const HDC dc = GetDC(WindowOf(control));
    const COLORREF colour = GetPixel(dc, x, y);
    ReleaseDC(WindowOf(control), dc);
    return colour;
  }
};

using Numbers = std::vector<LONG>;

TEST_F(WinSync, TheWindowHasTheFormsSizeAndTitle) {
  form->Caption = "A title \xE2\x82\xAC";
  Show();
  RECT client{};
  GetClientRect(Window(), &client);
  EXPECT_EQ(Sides(client), (Numbers{0, 0, 600, 400}));
  EXPECT_EQ(TextOf(Window()), L"A title \x20AC");
  EXPECT_EQ(Sides(PlaceOf(form->cmdGo)), (Numbers{10, 70, 100, 28}));
  EXPECT_EQ(GetParent(WindowOf(form->picRow[1])), WindowOf(form->picRows));
}

TEST_F(WinSync, TheNewLookIsInUse) {
  Show();
  // The old buttons are the system's own, the new ones the library's of the other controls.
  HMODULE from = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<LPCWSTR>(GetClassLongPtrW(WindowOf(form->cmdGo), GCLP_WNDPROC)), &from);
  EXPECT_EQ(from, GetModuleHandleW(L"comctl32.dll"));
}

TEST_F(WinSync, EdgesAreRoundedNotSizes) {
  Place(form->cmdGo, 157, 157, 150, 150);
  Show();
  EXPECT_EQ(Sides(PlaceOf(form->cmdGo)), (Numbers{10, 10, 10, 10}));
  Place(form->cmdGo, 158, 158, 165, 165);
  platform->SyncAll();
  EXPECT_EQ(Sides(PlaceOf(form->cmdGo)), (Numbers{11, 11, 11, 11}));
}

TEST_F(WinSync, AContainerInPixelsCountsInPixels) {
  form->picRows.Scale = ScaleMode::Pixels;
  Place(form->picRow[0], 4, 5, 6, 7);
  Show();
  EXPECT_EQ(Sides(PlaceOf(form->picRow[0])), (Numbers{4, 5, 6, 7}));
}

TEST_F(WinSync, AControlThatIsLoadedLaterIsShownAndOneThatGoesIsHidden) {
  Show();
  Place(form->picRow.Load(2), 150, 1650, 1500, 600);
  platform->SyncAll();
  const HWND window = WindowOf(form->picRow[2]);
  ASSERT_NE(window, nullptr);
  EXPECT_TRUE(IsWindowVisible(window));
  form->picRow.Unload(2);
  EXPECT_FALSE(IsWindowVisible(window));
  EXPECT_TRUE(Until([window] { return IsWindow(window) == 0; }));
}

TEST_F(WinSync, TheFrontOrderIsTheWindowsOrder) {
  Place(form->picRow[1], 150, 150, 1500, 600);
  Show();
  const HWND around = WindowOf(form->picRows);
  EXPECT_EQ(ChildWindowFromPoint(around, {50, 30}), WindowOf(form->picRow[1]));
  form->picRow[0].ZOrder();
  platform->SyncAll();
  EXPECT_EQ(ChildWindowFromPoint(around, {50, 30}), WindowOf(form->picRow[0]));
}

TEST_F(WinSync, VisibilityEnablingAndTextFollow) {
  Show();
  form->cmdGo.Enabled = false;
  form->cmdSource.Visible = false;
  form->txtFirst.Text = "0.5";
  form->cmdGo.Caption = "&Back & forth";
  form->lblName.Caption = "news & more";
  platform->SyncAll();
  EXPECT_FALSE(IsWindowEnabled(WindowOf(form->cmdGo)));
  EXPECT_FALSE(IsWindowVisible(WindowOf(form->cmdSource)));
  EXPECT_EQ(TextOf(WindowOf(form->txtFirst)), L"0.5");
  EXPECT_EQ(TextOf(WindowOf(form->cmdGo)), L"&Back && forth");
  EXPECT_EQ(TextOf(WindowOf(form->lblName)), L"news & more");
  form->cmdGo.Enabled = true;
  form->cmdSource.Visible = true;
  platform->SyncAll();
  EXPECT_TRUE(IsWindowEnabled(WindowOf(form->cmdGo)));
  EXPECT_TRUE(IsWindowVisible(WindowOf(form->cmdSource)));
}

TEST_F(WinSync, ChangesByTheProgramRaiseNothing) {
  for (Control* control : form->Controls()) NoteClick(*control);
  form->txtFirst.Change = [this] { form->Log.push_back("change"); };
  form->vsrBar.Change = [this] { form->Log.push_back("scrolled"); };
  Show();
  form->txtFirst.Text = "1";
  form->vsrBar.Value = 50;
  form->chkBox.Value = 1;
  form->optOne.Value = true;
  form->lstRows.ListIndex = 1;
  form->cmbRows.ListIndex = 1;
  form->imgcmbRows.SelectedItem = 1;
  form->tsTab.SelectedItem = 2;
  platform->SyncAll();
  TakeMessages();
  EXPECT_EQ(Joined(form->Log), "");
  EXPECT_EQ(TabCtrl_GetCurSel(WindowOf(form->tsTab)), 1);
}

TEST_F(WinSync, ACaptionTooLongIsToldByTheToolTip) {
  form->cmdGo.Caption = "A caption that has no chance to &fit into this button";
  Show();
  EXPECT_EQ(TipOf(form->cmdGo), L"A caption that has no chance to fit into this button");
  form->cmdGo.Caption = "Go";
  platform->SyncAll();
  EXPECT_EQ(TipOf(form->cmdGo), L"");
}

TEST_F(WinSync, AToolTipComesAndGoes) {
  Show();
  for (Control* control : std::vector<Control*>{&form->txtFirst, &form->cmdGo, &form->lblName, &form->picRows}) {
    control->ToolTipText = "a tip";
    platform->SyncAll();
    EXPECT_EQ(TipOf(*control), L"a tip") << control->Name;
    control->ToolTipText = "";
    platform->SyncAll();
    EXPECT_EQ(TipOf(*control), L"") << control->Name;
  }
}

TEST_F(WinSync, LinesAndDrawingsArePaintedByTheirBox) {
  form->picRows.BackColor = 0xFFFFFF;
  for (int i = 0; i < 2; ++i) form->picRow[i].Visible = false;
  Line line{*form, &form->picRows, "BorderL"};
  line.Y1 = line.Y2 = 2400.0F;
  line.X2 = 3000.0F;
  line.BorderColor = 0x0000FF;
  form->picRows.Draw({Drawn::What::Polygon, {2000, 1000, 2900, 1000, 2900, 1900, 2000, 1900}, 0x00FF00});
  Show();
  EXPECT_EQ(PixelAt(form->picRows, 160, 100), RGB(0, 255, 0));
  EXPECT_EQ(PixelAt(form->picRows, 190, 190), RGB(255, 255, 255));
  const COLORREF red = PixelAt(form->picRows, 100, 160);
  EXPECT_EQ(GetRValue(red), 255);
  EXPECT_LT(GetGValue(red), 160);
  form->picRows.Cls();
  platform->SyncAll();
  EXPECT_EQ(PixelAt(form->picRows, 160, 100), RGB(255, 255, 255));
  platform->Release(*form);
}

TEST_F(WinSync, ABorderStandsInFrontOfWhatTheBoxContains) {
  form->picRows.Bordered = true;
  Place(form->picRow[0], 0, 0, 3000, 3000);
  form->picRow[0].BackColor = 0xFFFFFF;
  Show();
  EXPECT_NE(PixelAt(form->picRows, 0, 100), RGB(255, 255, 255));
  POINT inside{50, 20};
  ClientToScreen(WindowOf(form->picRows), &inside);
  EXPECT_EQ(WindowFromPoint(inside), WindowOf(form->picRow[0]));
}

}  // namespace Tarnwise
