// What a screen reader is told of the controls.
#include "TestForm.h"

#include "view/win32/WinNames.h"

#include <oleacc.h>

namespace Tarnwise {

// The library of the cross compilers has another number for it.
constexpr IID kAccessible{0x618736E0, 0x3C3D, 0x11CF, {0x81, 0x0C, 0x00, 0xAA, 0x00, 0x38, 0x9B, 0x71}};

class WinNames : public WinFormTest {
 protected:
  void SetUp() override { ASSERT_TRUE(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))); }
  void TearDown() override {
    WinFormTest::TearDown();
    CoUninitialize();
  }

  std::wstring NameOf(const Control& control) const {
    void* found = nullptr;
    const HRESULT result =
        AccessibleObjectFromWindow(WindowOf(control), static_cast<DWORD>(OBJID_CLIENT), kAccessible, &found);
    if (FAILED(result)) return L"no object: " + std::to_wstring(result);
    auto* const object = static_cast<IAccessible*>(found);
    VARIANT self{};
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    BSTR name = nullptr;
    object->get_accName(self, &name);
    object->Release();
    const std::wstring text = name == nullptr ? L"" : name;
    SysFreeString(name);
    return text;
  }
};

TEST_F(WinNames, CaptionsAreReadWithoutTheirMarks) {
  form->Caption = "A title";
  form->lblName.Caption = "R&D in %";
  Show();
  EXPECT_EQ(NameOf(*form), L"A title");
  EXPECT_EQ(NameOf(form->cmdGo), L"Go");
  EXPECT_EQ(NameOf(form->chkBox), L"Box");
  EXPECT_EQ(NameOf(form->optOne), L"One");
  EXPECT_EQ(TextOf(WindowOf(form->lblName)), L"R&D in %");
}

TEST_F(WinNames, WhatHasNoCaptionSaysItsAccessibleName) {
  form->picRow[0].AccessibleName = "Rank row";
  form->grdRows.AccessibleName = "Results";
  form->vsrBar.AccessibleName = "Scroll the ranks";
  form->lstRows.AccessibleName = "Approach";
  form->tbMoves.AccessibleName = "Moves";
  Show();
  EXPECT_EQ(NameOf(form->picRow[0]), L"Rank row");
  EXPECT_EQ(NameOf(form->grdRows), L"Results");
  EXPECT_EQ(NameOf(form->vsrBar), L"Scroll the ranks");
  EXPECT_EQ(NameOf(form->lstRows), L"Approach");
  EXPECT_EQ(NameOf(form->tbMoves), L"Moves");
  form->picRow[0].AccessibleName = "Rank row 2";
  form->grdRows.AccessibleName = "Results of two";
  platform->SyncAll();
  EXPECT_EQ(NameOf(form->picRow[0]), L"Rank row 2");
  EXPECT_EQ(NameOf(form->grdRows), L"Results of two");
}

TEST_F(WinNames, ATextBoxIsNamedAndStillShowsItsText) {
  form->txtFirst.AccessibleName = "Weight ratio from";
  form->txtFirst.Text = "0.5";
  form->imgcmbRows.AccessibleName = "Target attribute";
  Show();
  if (!NameWindow(WindowOf(form->txtFirst), L"Weight ratio from")) {
    GTEST_SKIP() << "this Windows has no service that names windows";
  }
  EXPECT_EQ(NameOf(form->txtFirst), L"Weight ratio from");
  EXPECT_EQ(NameOf(form->imgcmbRows), L"Target attribute");
  EXPECT_EQ(TextOf(WindowOf(form->txtFirst)), L"0.5");
}

TEST_F(WinNames, AToolsNameIsItsToolTip) {
  Show();
  wchar_t text[50] = {};
  SendMessageW(WindowOf(form->tbMoves), TB_GETBUTTONTEXTW, 2, reinterpret_cast<LPARAM>(text));
  EXPECT_EQ(std::wstring(text), L"Move down");
}

}  // namespace Tarnwise
