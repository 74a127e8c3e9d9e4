// Screens of another resolution, and small ones.
#include "TestForm.h"
#include "view/win32/WinKinds.h"
#include "view/win32/WinPaint.h"

namespace Tarnwise {

class WinScale : public WinFormTest {
 protected:
  static constexpr UINT kDpiChanged = 0x02E0;

  double Scale() const { return toolkit->FormOf(*form)->Scale(); }
  void ChangeDpi(WORD dpi) const {
    RECT suggested{0, 0, 1200, 800};
    SendMessageW(Window(), kDpiChanged, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&suggested));
  }
  void ExpectPlaces() const {
    for (const Control* control : form->Controls()) {
      const HWND window = WindowOf(*control);
      if (window == nullptr) continue;
      RECT place{};
      GetWindowRect(window, &place);
      MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&place), 2);
      const RECT wanted = ToRect(PixelPlace(*control, Scale()));
      EXPECT_EQ(place.left, wanted.left) << control->FullName();
      EXPECT_EQ(place.top, wanted.top) << control->FullName();
      EXPECT_EQ(place.right, wanted.right) << control->FullName();
      // A combo's window is as high as its own frame makes it.
      const bool combo = control->Type == Kind::ComboBox || control->Type == Kind::ImageCombo;
      if (combo)
        EXPECT_NEAR(place.bottom, wanted.bottom, 6 * Scale()) << control->FullName();
      else
        EXPECT_EQ(place.bottom, wanted.bottom) << control->FullName();
    }
  }
};

TEST_F(WinScale, EveryWindowIsInItsPlace) {
  Show();
  EXPECT_EQ(Scale(), 1.0);
  ExpectPlaces();
}

TEST_F(WinScale, AScreenOfTwiceTheResolutionHasEverythingTwiceAsLarge) {
  Place(*form, 0, 0, 7000, 5000);
  Show();
  ChangeDpi(192);
  EXPECT_EQ(Scale(), 2.0);
  ExpectPlaces();
  RECT client{};
  GetClientRect(Window(), &client);
  EXPECT_EQ(client.right, PixelPlace(*form, 2.0).Width());
  EXPECT_EQ(client.bottom, PixelPlace(*form, 2.0).Height());
  ChangeDpi(96);
  EXPECT_EQ(Scale(), 1.0);
  ExpectPlaces();
}

TEST_F(WinScale, TextsGrowWithTheResolution) {
  Place(*form, 0, 0, 7000, 5000);
  form->grdRows.Shape(2, 2);
  Show();
  ChangeDpi(192);
  for (const Control* control :
       std::vector<Control*>{&form->txtFirst, &form->cmdGo, &form->optOne, &form->chkBox, &form->lstRows, &form->tsTab,
                             &form->cmbRows, &form->imgcmbRows, &form->grdRows}) {
    const auto font = reinterpret_cast<HFONT>(SendMessageW(WindowOf(*control), WM_GETFONT, 0, 0));
    LOGFONTW look{};
    LOGFONTW wanted{};
    GetObjectW(font, sizeof look, &look);
    GetObjectW(BaseFont(2.0), sizeof wanted, &wanted);
    EXPECT_EQ(look.lfHeight, wanted.lfHeight) << control->Name;
  }
}

TEST_F(WinScale, TheMouseFindsItsTargetsAtAnyResolution) {
  Place(*form, 0, 0, 7000, 5000);
  std::pair<Single, Single> at;
  form->picRow[0].DragDrop = [&at](Control& /*source*/, Single x, Single y) { at = {x, y}; };
  NoteClick(form->lstRows);
  Show();
  ChangeDpi(192);
  PressAt(WindowOf(form->cmdSource), MiddleOf(WindowOf(form->cmdSource)));
  const POINT inWindow{(3000 + 150 + 300) * 2 / 15, (150 + 150 + 150) * 2 / 15};
  SendMessageW(GetCapture(), WM_MOUSEMOVE, MK_LBUTTON, At(inWindow));
  LetGoAt(Window(), inWindow);
  EXPECT_EQ(at, std::pair(300.0F, 150.0F));
  RECT row{};
  SendMessageW(WindowOf(form->lstRows), LB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&row));
  EXPECT_EQ(HeightOf(row), 48);
  ClickAt(WindowOf(form->lstRows), {10, row.top + 4});
  EXPECT_EQ(form->lstRows.ListIndex, 1);
}

TEST_F(WinScale, AFormTooLargeForTheScreenIsMadeSmallerAsAWhole) {
  Place(*form, 0, 0, 15.0F * 2000.0F, 15.0F * 1500.0F);
  CommandButton corner(*form, form.get(), "cmdCorner");
  Place(corner, 15.0F * 1900.0F, 15.0F * 1470.0F, 1500, 450);
  NoteClick(corner);
  Show();
  EXPECT_LT(Scale(), 1.0);
  EXPECT_GE(Scale(), 0.5);
  ExpectPlaces();
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromWindow(Window(), MONITOR_DEFAULTTOPRIMARY), &monitor);
  RECT whole{};
  RECT common{};
  GetWindowRect(Window(), &whole);
  IntersectRect(&common, &whole, &monitor.rcWork);
  EXPECT_TRUE(EqualRect(&common, &whole))
      << whole.left << " " << whole.top << " " << whole.right << " " << whole.bottom;
  Click(corner);
  EXPECT_EQ(Joined(form->Log), "cmdCorner");
  platform->Release(*form);
}

TEST_F(WinScale, AFormLeavesTheTreesPlaceOnlyWhereTheTreeMovesIt) {
  form->Left = 3000;
  form->Top = 1500;
  Show();
  RECT whole{};
  GetWindowRect(Window(), &whole);
  EXPECT_EQ(whole.left, 200);
  EXPECT_EQ(whole.top, 100);
  SetWindowPos(Window(), nullptr, 50, 60, 0, 0, SWP_NOSIZE | SWP_NOZORDER);  // a person moves it
  form->cmdGo.Caption = "other";
  form->Caption = "title";
  platform->SyncAll();
  GetWindowRect(Window(), &whole);
  EXPECT_EQ(whole.left, 50);
  form->Left = 1500;
  platform->SyncAll();
  GetWindowRect(Window(), &whole);
  EXPECT_EQ(whole.left, 100);
}

TEST_F(WinScale, AFormBeyondTheEdgeIsBroughtOntoTheScreen) {
  form->Left = 15.0F * 5000.0F;
  form->Top = -15.0F * 500.0F;
  Show();
  RECT whole{};
  GetWindowRect(Window(), &whole);
  EXPECT_LE(whole.right, GetSystemMetrics(SM_CXSCREEN));
  EXPECT_GE(whole.top, 0);
}

}  // namespace Tarnwise
