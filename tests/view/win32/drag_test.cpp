#include "TestForm.h"

namespace Tarnwise {

class WinDragging : public WinFormTest {
 protected:
  WinDragging() {
    for (int i = 0; i < 2; ++i) {
      PictureBox& row = form->picRow[i];
      row.DragOver = [this, i](Control& /*source*/, Single x, Single y, DragState state) {
        const char* const names[] = {"enter", "leave", "over"};
        form->Log.push_back(names[static_cast<int>(state)] + std::to_string(i));
        at = {x, y};
      };
      row.DragDrop = [this, i](Control& source, Single x, Single y) {
        form->Log.push_back("drop" + std::to_string(i) + source.Name);
        at = {x, y};
      };
    }
    form->cmdSource.Click = [this] { form->Log.push_back("click"); };
  }

  // Twips on the form. The mouse is the window's that has taken it.
  void MoveTo(int x, int y) const {
    POINT point{x / 15, y / 15};
    const HWND to = GetCapture() != nullptr ? GetCapture() : Window();
    MapWindowPoints(Window(), to, &point, 1);
    SendMessageW(to, WM_MOUSEMOVE, MK_LBUTTON, At(point));
  }
  void LetGo(int x, int y) const { LetGoAt(Window(), {x / 15, y / 15}); }
  void Press() const { PressAt(WindowOf(form->cmdSource), MiddleOf(WindowOf(form->cmdSource))); }
  // What is carried along, a window of its own.
  static HWND Ghost() {
    const HWND ghost = ThreadWindow(L"TarnwiseDrag");
    return IsWindowVisible(ghost) != 0 ? ghost : nullptr;
  }

  std::pair<Single, Single> at;
};

using Spot = std::pair<Single, Single>;

TEST_F(WinDragging, AFarMoveIsADragAndNoClick) {
  Show();
  Press();
  MoveTo(3300, 525);
  EXPECT_EQ(at, Spot(150.0F, 225.0F));
  EXPECT_NE(Ghost(), nullptr);
  MoveTo(3315, 540);
  EXPECT_EQ(at, Spot(165.0F, 240.0F));
  MoveTo(3300, 1305);
  LetGo(3300, 1305);
  EXPECT_EQ(Joined(form->Log), "enter0 over0 over0 leave0 enter1 over1 drop1cmdSource");
  EXPECT_EQ(at, Spot(150.0F, 255.0F));
  EXPECT_FALSE(platform->Drag.Active());
  EXPECT_EQ(GetCapture(), nullptr);
  EXPECT_EQ(Ghost(), nullptr);
}

TEST_F(WinDragging, ASmallMoveIsAClick) {
  Show();
  Press();
  const int y = 1500 + 375 / 2;
  MoveTo(900 + 15 * (GetSystemMetrics(SM_CXDRAG) - 1), y);
  EXPECT_FALSE(platform->Drag.Active());
  LetGo(900, y);
  EXPECT_EQ(Joined(form->Log), "click");
  EXPECT_NE(form->ActiveControl, &form->cmdSource);
  form->Log.clear();
  Press();
  MoveTo(900 + 15 * GetSystemMetrics(SM_CXDRAG), y);
  EXPECT_TRUE(platform->Drag.Active());
  LetGo(900, y);
  EXPECT_EQ(Joined(form->Log), "");
}

TEST_F(WinDragging, ATargetInPixelsIsToldPixels) {
  form->picRow[0].Scale = ScaleMode::Pixels;
  Show();
  Press();
  MoveTo(3150 + 15 * 20, 300 + 15 * 30);
  EXPECT_EQ(at, Spot(20.0F, 30.0F));
  LetGo(3300, 500);
}

TEST_F(WinDragging, EscapeGivesUpAndTheTargetGetsItsLeave) {
  Show();
  Press();
  MoveTo(3300, 525);
  SendKey(VK_ESCAPE, L"\x1b");
  EXPECT_EQ(Joined(form->Log), "enter0 over0 leave0");
  EXPECT_EQ(Ghost(), nullptr);
  MoveTo(3315, 540);
  LetGo(3315, 540);
  EXPECT_EQ(Joined(form->Log), "enter0 over0 leave0");
}

TEST_F(WinDragging, WhatWasGivenUpOverItsSourceIsNoClick) {
  Show();
  Press();
  MoveTo(3300, 525);
  MoveTo(900, 1600);
  SendKey(VK_ESCAPE, L"\x1b");
  LetGo(900, 1600);
  EXPECT_EQ(Joined(form->Log), "enter0 over0 leave0");
  Press();
  LetGo(900, 1600);
  EXPECT_EQ(Joined(form->Log), "enter0 over0 leave0 click");
}

TEST_F(WinDragging, KeysOtherThanEscapeWaitForItsEnd) {
  Show();
  Press();
  MoveTo(3300, 525);
  Type(L"1");
  SendKey(VK_TAB, L"\t");
  EXPECT_EQ(form->txtFirst.Text(), "");
  EXPECT_EQ(form->ActiveControl, &form->txtFirst);
  EXPECT_TRUE(platform->Drag.Active());
  LetGo(3300, 525);
  EXPECT_EQ(Joined(form->Log), "enter0 over0 drop0cmdSource");
}

TEST_F(WinDragging, OutsideTheWindowIsOverNothing) {
  Show();
  Press();
  MoveTo(3300, 525);
  MoveTo(-3000, 525);
  EXPECT_TRUE(platform->Drag.Active());
  LetGo(-3000, 525);
  EXPECT_EQ(Joined(form->Log), "enter0 over0 leave0");
  EXPECT_FALSE(platform->Drag.Active());
}

TEST_F(WinDragging, ThatLosesTheMouseIsGivenUp) {
  Show();
  Press();
  MoveTo(3300, 525);
  ReleaseCapture();
  EXPECT_EQ(Joined(form->Log), "enter0 over0 leave0");
  EXPECT_FALSE(platform->Drag.Active());
  EXPECT_EQ(Ghost(), nullptr);
  LetGo(3300, 525);
  EXPECT_EQ(Joined(form->Log), "enter0 over0 leave0");
}

TEST_F(WinDragging, AMessageBoxGivesItUp) {
  toolkit->AutoAnswer = false;
  form->picRow[0].DragOver = [this](Control& /*source*/, Single /*x*/, Single /*y*/, DragState state) {
    form->Log.push_back(std::to_string(static_cast<int>(state)));
    if (state != DragState::Enter) return;
    Later(50, [] { PostMessageW(FindWindowW(L"#32770", L"KESTA"), WM_COMMAND, IDOK, 0); });
    platform->MessageBox("text", 64, "KESTA");
  };
  Show();
  Press();
  MoveTo(3300, 525);
  EXPECT_EQ(Joined(form->Log), "0 1");
  EXPECT_FALSE(platform->Drag.Active());
  EXPECT_EQ(GetCapture(), nullptr);
  toolkit->AutoAnswer = true;
}

TEST_F(WinDragging, ThePointersShapeSaysWhetherADropWouldBeTaken) {
  form->picRow[1].AcceptsDrop = [](const Control& /*source*/) { return false; };
  form->DragOver = [](Control& source, Single /*x*/, Single /*y*/, DragState state) {
    source.MousePointer = state == DragState::Leave ? 12 : 0;
  };
  Show();
  const HCURSOR no = LoadCursorW(nullptr, IDC_NO);
  const HCURSOR hand = LoadCursorW(nullptr, IDC_HAND);
  const auto shape = [this](int x, int y) {
    MoveTo(x, y);
    return GetCursor();
  };
  Press();
  EXPECT_EQ(shape(2000, 5500), no) << "the form";
  EXPECT_EQ(form->cmdSource.MousePointer, 0);
  EXPECT_EQ(shape(3300, 525), hand) << "a row that takes it";
  EXPECT_EQ(form->cmdSource.MousePointer, 12);
  EXPECT_EQ(shape(3300, 1305), no) << "a row that does not";
  EXPECT_EQ(shape(-3000, 525), no) << "outside";
  EXPECT_EQ(shape(3300, 525), hand);
  LetGo(3300, 525);
  EXPECT_EQ(form->cmdSource.MousePointer, 12);
  SendMessageW(WindowOf(form->cmdSource), WM_SETCURSOR, reinterpret_cast<WPARAM>(WindowOf(form->cmdSource)),
               MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
  EXPECT_EQ(GetCursor(), hand) << "it can be dragged again";
}

TEST_F(WinDragging, TheCarriedMarkIsSeenAlsoWhereItHasNoIcon) {
  PictureBox mark{*form, &form->picRows, "picMark"};
  Place(mark, 2000, 2000, 150, 150);
  mark.DragAutomatic = true;
  mark.KeyboardDrag = DragBy::Units;
  mark.Picture = "drag.A";
  form->picRow[0].DragOver = [](Control& source, Single /*x*/, Single /*y*/, DragState state) {
    source.DragIcon = state == DragState::Leave ? "" : "C:/nowhere\\bdrag.ico";
  };
  Show();
  PressAt(WindowOf(mark), MiddleOf(WindowOf(mark)));
  MoveTo(7000, 5500);
  EXPECT_NE(Ghost(), nullptr) << "before any icon its own picture";
  MoveTo(3300, 525);
  const HWND named = Ghost();
  EXPECT_NE(named, nullptr);
  RECT place{};
  GetWindowRect(named, &place);
  MapWindowPoints(nullptr, Window(), reinterpret_cast<POINT*>(&place), 2);
  EXPECT_GE((place.left + place.right) / 2, 3300 / 15 + 20) << "its letter is not under the pointer";
  MoveTo(7000, 5500);
  EXPECT_EQ(Ghost(), named) << "after it has left the same one";
  LetGo(7000, 5500);
  EXPECT_EQ(Ghost(), nullptr);
  platform->Release(*form);
}

TEST_F(WinDragging, TheKeyboardGivesTheSameNotifications) {
  Show();
  Input::MoveFocus(form->cmdSource);
  SendKey(VK_SPACE, L" ");
  EXPECT_TRUE(platform->Drag.Active());
  EXPECT_NE(Ghost(), nullptr);
  SendKey(VK_DOWN);
  SendKey(VK_DOWN);
  SendKey(VK_SPACE, L" ");
  EXPECT_EQ(Joined(form->Log), "enter0 over0 leave0 enter1 over1 drop1cmdSource");
  EXPECT_EQ(at, Spot(750.0F, 300.0F));
  EXPECT_EQ(Ghost(), nullptr);
  SendKey(VK_SPACE, L" ");
  SendKey(VK_UP);
  form->Log.clear();
  SendKey(VK_ESCAPE, L"\x1b");
  EXPECT_EQ(Joined(form->Log), "leave1");
  EXPECT_FALSE(platform->Drag.Active());
  EXPECT_EQ(Ghost(), nullptr);
}

TEST_F(WinDragging, APressEndsTheKeyboards) {
  Show();
  Input::MoveFocus(form->cmdSource);
  SendKey(VK_SPACE, L" ");
  SendKey(VK_DOWN);
  Click(form->cmdGo);
  EXPECT_FALSE(platform->Drag.Active());
  EXPECT_EQ(Joined(form->Log), "enter0 over0 leave0");
  EXPECT_EQ(Ghost(), nullptr);
}

TEST_F(WinDragging, ASourceThatGoesEndsTheDrag) {
  ControlArray<CommandButton> extra(*form, form.get(), "cmdExtra", [](CommandButton& button) {
    Place(button, 150, 5000, 1500, 375);
    button.DragAutomatic = true;
  });
  Show();
  PressAt(WindowOf(extra[0]), MiddleOf(WindowOf(extra[0])));
  MoveTo(3300, 525);
  EXPECT_TRUE(platform->Drag.Active());
  extra.Unload(0);
  EXPECT_FALSE(platform->Drag.Active());
  EXPECT_FALSE(platform->Hand.DragsByMouse());
  EXPECT_EQ(Ghost(), nullptr);
  MoveTo(3315, 525);
  LetGo(3315, 525);
  EXPECT_EQ(Joined(form->Log), "enter0 over0");
  platform->Release(*form);
}

TEST_F(WinDragging, AHandleCanBePressedBesideItself) {
  PictureBox handle{*form, &form->picRows, "picHandle"};
  form->picRows.Scale = ScaleMode::Pixels;
  Place(handle, 100, 100, 6, 6);
  handle.DragAutomatic = true;
  Show();
  RECT place{};
  GetWindowRect(WindowOf(handle), &place);
  MapWindowPoints(nullptr, WindowOf(form->picRows), reinterpret_cast<POINT*>(&place), 2);
  EXPECT_EQ(place.left, 95);
  EXPECT_EQ(place.top, 95);
  EXPECT_EQ(place.right, 111);
  EXPECT_EQ(place.bottom, 111);
  platform->Release(*form);
}

TEST_F(WinDragging, AFormReleasedByTheDropIsGone) {
  form->picRow[1].DragDrop = [this](Control& /*source*/, Single /*x*/, Single /*y*/) { platform->Release(*form); };
  Show();
  const HWND window = Window();
  Press();
  MoveTo(3300, 1305);
  LetGo(3300, 1305);
  EXPECT_TRUE(form->Released);
  EXPECT_TRUE(Until([window] { return IsWindow(window) == 0; }));
}

TEST_F(WinDragging, ATargetUnloadedByTheNotificationOrTheDropIsGone) {
  form->picRow[1].DragOver = nullptr;
  form->picRow[1].DragDrop = [this](Control& /*source*/, Single /*x*/, Single /*y*/) { form->picRow.Unload(1); };
  form->picRow[0].DragOver = [this](Control& /*source*/, Single /*x*/, Single /*y*/, DragState /*state*/) {
    form->picRow.Unload(0);
  };
  Show();
  Press();
  MoveTo(3300, 525);
  EXPECT_EQ(form->picRow.Count(), 1);
  MoveTo(3300, 1305);
  LetGo(3300, 1305);
  EXPECT_EQ(form->picRow.Count(), 0);
}

}  // namespace Tarnwise
