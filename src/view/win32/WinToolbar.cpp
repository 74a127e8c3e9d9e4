// Tool bars, level and upright.
#include "view/win32/WinForm.h"
#include "view/win32/WinKinds.h"
#include "view/win32/WinPaint.h"
#include "view/win32/WinText.h"

#include <commctrl.h>

#include <algorithm>

namespace Tarnwise {

namespace {

constexpr DWORD kStyle =
    TBSTYLE_FLAT | TBSTYLE_TOOLTIPS | TBSTYLE_LIST | CCS_NORESIZE | CCS_NOPARENTALIGN | CCS_NODIVIDER;

constexpr int kEnabled = 100;  // percent of opacity
constexpr int kHot = 18;       // percent of the highlight on the ground
constexpr int kPressed = 38;
constexpr const wchar_t* kGround = L"TarnwiseGround";  // that its pictures are drawn for

constexpr LRESULT kNoBackground = 0x00400000;  // TBCDRF_NOBACKGROUND, of Windows 6

void LayOutToolbar(WinForm& /*form*/, Control& /*control*/, HWND window) {
  Tell(window, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
  Tell(window, TB_SETEXTENDEDSTYLE, 0, TBSTYLE_EX_MIXEDBUTTONS);  // the text of a button is its tool tip and its name
}

Images PicturesOf(const Toolbar& bar, int side, Colour ground, int opacity) {
  Images images(ImageList_Create(side, side, ILC_COLOR32, static_cast<int>(bar.Buttons.size()), 1));
  for (const Toolbar::Button& button : bar.Buttons) {
    const HICON icon = MakePictureIcon(button.Picture.empty() ? "window" : button.Picture, side, ground, opacity);
    ImageList_ReplaceIcon(images.get(), -1, icon);
    if (icon != nullptr) DestroyIcon(icon);
  }
  return images;
}

void SetPictures(WinForm& form, const Toolbar& bar, HWND window, int side) {
  const Colour ground = GroundOf(bar, form.Colours());
  Images images = PicturesOf(bar, side, ground, kEnabled);
  Images faint = PicturesOf(bar, side, ground, kDisabledOpacity);
  Tell(window, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images.get()));
  Tell(window, TB_SETDISABLEDIMAGELIST, 0, reinterpret_cast<LPARAM>(faint.get()));
  form.KeepImages(window, std::move(images), std::move(faint));
}

void AddButtons(const Toolbar& bar, HWND window) {
  for (std::size_t i = 0; i < bar.Buttons.size(); ++i) {
    std::wstring text = Wide(bar.Buttons[i].ToolTip.empty() ? bar.Buttons[i].Key : bar.Buttons[i].ToolTip);
    TBBUTTON button{};
    button.iBitmap = static_cast<int>(i);
    button.idCommand = static_cast<int>(i) + 1;
    button.fsState = TBSTATE_ENABLED;
    button.fsStyle = BTNS_BUTTON;
    button.iString = reinterpret_cast<INT_PTR>(text.c_str());
    Tell(window, TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&button));
  }
}

void SyncToolbar(WinForm& form, Control& control, HWND window) {
  const auto& bar = static_cast<const Toolbar&>(control);
  const auto [side, upright] = ToolsOf(bar, form.Scale());
  const bool fresh = Tell(window, TB_BUTTONCOUNT) == 0;
  const auto ground = reinterpret_cast<HANDLE>(static_cast<UINT_PTR>(GroundOf(control, form.Colours()) + 1));
  if (fresh || LOWORD(Tell(window, TB_GETBUTTONSIZE)) != side || GetPropW(window, kGround) != ground) {
    SetPropW(window, kGround, ground);
    SetPictures(form, bar, window, side * 5 / 8);
    if (fresh) AddButtons(bar, window);
    Tell(window, TB_SETBUTTONSIZE, 0, MAKELPARAM(side, side));
  }
  const bool keyboard = bar.Owner.ActiveControl == &bar;
  bool wasMarked = false;
  for (int i = 0; i < static_cast<int>(bar.Buttons.size()); ++i) {
    const int id = i + 1;
    // A bar that is disabled as a whole shows it by its buttons.
    WORD state = bar.Enabled && bar.Buttons[static_cast<std::size_t>(i)].Enabled ? TBSTATE_ENABLED : 0;
    if (upright) state |= TBSTATE_WRAP;
    // With the keyboard on the bar a mark shows which button it presses.
    if (keyboard && id == bar.Current) state |= TBSTATE_MARKED;
    const LRESULT former = Tell(window, TB_GETSTATE, static_cast<WPARAM>(id));
    wasMarked = wasMarked || (former & TBSTATE_MARKED) != 0;
    if (former != state) Tell(window, TB_SETSTATE, static_cast<WPARAM>(id), state);
  }
  if (keyboard) {
    Tell(window, TB_SETHOTITEM, static_cast<WPARAM>(bar.Current - 1));
  } else if (wasMarked) {
    Tell(window, TB_SETHOTITEM, static_cast<WPARAM>(-1));
  }
}

}  // namespace

LRESULT PaintTool(WinForm& form, const Control& bar, const NMTBCUSTOMDRAW& drawn) {
  const UINT state = drawn.nmcd.uItemState;
  if (drawn.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  if (drawn.nmcd.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
  if ((state & (CDIS_HOT | CDIS_SELECTED | CDIS_MARKED)) != 0 && (state & CDIS_DISABLED) == 0) {
    const Colour highlight = form.Colours().Highlight;
    const int part = (state & CDIS_SELECTED) != 0 ? kPressed : kHot;
    RECT edge = drawn.nmcd.rc;
    FillRect(drawn.nmcd.hdc, &edge, form.BrushOf(Blend(GroundOf(bar, form.Colours()), highlight, part)));
    for (int i = 0; i < std::max(Scaled(1, form.Scale()), 1); ++i) {
      FrameRect(drawn.nmcd.hdc, &edge, form.BrushOf(highlight));
      InflateRect(&edge, -1, -1);
    }
  }
  return kNoBackground | TBCDRF_NOEDGES | TBCDRF_NOMARK;
}

const WinKind kWinToolbar{TOOLBARCLASSNAMEW, kStyle, 0, SyncToolbar, LayOutToolbar};

}  // namespace Tarnwise
