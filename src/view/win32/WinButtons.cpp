// Command buttons, option buttons and check boxes.
#include "view/Captions.h"
#include "view/Painting.h"
#include "view/win32/WinForm.h"
#include "view/win32/WinKinds.h"
#include "view/win32/WinPaint.h"
#include "view/win32/WinSurface.h"
#include "view/win32/WinText.h"

#include <commctrl.h>

#include <algorithm>

namespace Tarnwise {

namespace {

constexpr int kSmooth = 3;

void SetCaption(WinForm& form, HWND window, const Control& control, const String& caption, int padding) {
  const std::wstring plain = Wide(UnmarkedCaption(caption));
  RECT client{};
  GetClientRect(window, &client);
  const int room = std::max(static_cast<int>(client.right) - Scaled(padding, form.Scale()), 1);
  const HFONT font = FittedFont(form.Scale(), 9, false, plain, room);
  if (reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)) != font) {
    SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
  }
  SetText(window, Wide(MarkedCaption(caption)));
  if (control.ToolTipText().empty()) form.SetTip(window, TextWidthIn(font, plain) > room ? plain : std::wstring());
}

void SetStyleBits(HWND window, LONG_PTR mask, LONG_PTR bits) {
  const LONG_PTR style = GetWindowLongPtrW(window, GWL_STYLE);
  if ((style & mask) == bits) return;
  SetWindowLongPtrW(window, GWL_STYLE, (style & ~mask) | bits);
  InvalidateRect(window, nullptr, TRUE);
}

HWND MakeButton(WinForm& form, Control& /*control*/, HWND parent) {
  return NewChild(form, L"BUTTON", BS_PUSHBUTTON, 0, parent);
}

void SyncButton(WinForm& form, Control& control, HWND window) {
  auto& button = static_cast<CommandButton&>(control);
  const bool coloured = button.BackColor != kButtonFace || button.DragAutomatic;
  const LONG_PTR look = button.Default && button.Enabled ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
  SetStyleBits(window, BS_TYPEMASK, coloured ? BS_OWNERDRAW : look);
  SetCaption(form, window, control, button.Caption, 2 * kSidePadding);
  if (coloured) InvalidateRect(window, nullptr, FALSE);
}

// A button that the form gives a colour of its own.
void DrawButton(WinForm& form, Control& control, const DRAWITEMSTRUCT& item) {
  const auto& button = static_cast<const CommandButton&>(control);
  const ButtonLook look = LookOf(button, form.Colours(), (item.itemState & ODS_DISABLED) == 0,
                                 (item.itemState & ODS_SELECTED) != 0 ? Pressed::Down : Pressed::No);
  const RECT& client = item.rcItem;
  {
    Canvas canvas(WidthOf(client), HeightOf(client), kSmooth);
    RECT area = client;
    MapWindowPoints(item.hwndItem, form.WindowOf(*control.Parent), reinterpret_cast<POINT*>(&area), 2);
    PaintGround(canvas, form, *control.Parent, area);
    WinSurface surface(canvas);
    PaintFace({surface, form.Colours(), form.Scale()}, ToPixelRect(client), look, GetFocus() == item.hwndItem);
    canvas.PutOnto(item.hDC, 0, 0);
  }
  RECT room = client;
  InflateRect(&room, -Scaled(kSidePadding, form.Scale()), 0);
  const Selected font(item.hDC, reinterpret_cast<HFONT>(SendMessageW(item.hwndItem, WM_GETFONT, 0, 0)));
  SetBkMode(item.hDC, TRANSPARENT);
  SetTextColor(item.hDC, look.Ink);
  const std::wstring text = Wide(MarkedCaption(button.Caption));
  DrawTextW(item.hDC, text.c_str(), -1, &room, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
}

void Check(HWND window, bool on) {
  const WPARAM wanted = on ? BST_CHECKED : BST_UNCHECKED;
  if (static_cast<WPARAM>(SendMessageW(window, BM_GETCHECK, 0, 0)) != wanted) {
    SendMessageW(window, BM_SETCHECK, wanted, 0);
  }
}

HWND MakeOption(WinForm& form, Control& /*control*/, HWND parent) {
  return NewChild(form, L"BUTTON", BS_RADIOBUTTON, 0, parent);
}

void SyncOption(WinForm& form, Control& control, HWND window) {
  auto& option = static_cast<OptionButton&>(control);
  SetCaption(form, window, control, option.Caption, kIndicatorRoom);
  Check(window, option.Value);
}

HWND MakeCheck(WinForm& form, Control& /*control*/, HWND parent) {
  return NewChild(form, L"BUTTON", BS_CHECKBOX, 0, parent);
}

void SyncCheck(WinForm& form, Control& control, HWND window) {
  auto& box = static_cast<CheckBox&>(control);
  SetCaption(form, window, control, box.Caption, kIndicatorRoom);
  Check(window, box.Value != 0);
}

}  // namespace

const WinKind kWinCommandButton{MakeButton, SyncButton, DrawButton};
const WinKind kWinOptionButton{MakeOption, SyncOption, nullptr};
const WinKind kWinCheckBox{MakeCheck, SyncCheck, nullptr};

}  // namespace Tarnwise
