// Command buttons, option buttons and check boxes.
#include "view/win32/WinForm.h"
#include "view/win32/WinKinds.h"
#include "view/win32/WinPaint.h"
#include "view/win32/WinText.h"

namespace Tarnwise {

namespace {

void SetCaption(const WinForm& form, const Control& control, HWND window) {
  const Writing shown = form.Fitted(control).Shown;
  UseFont(window, BaseFont(form.Scale(), shown.Face));
  SetText(window, Wide(shown.Text));
}

void SetStyleBits(HWND window, LONG_PTR mask, LONG_PTR bits) {
  const LONG_PTR style = GetWindowLongPtrW(window, GWL_STYLE);
  if ((style & mask) == bits) return;
  SetWindowLongPtrW(window, GWL_STYLE, (style & ~mask) | bits);
  InvalidateRect(window, nullptr, TRUE);
}

void SyncButton(WinForm& form, Control& control, HWND window) {
  auto& button = static_cast<CommandButton&>(control);
  const bool coloured = button.BackColor != kButtonFace || button.DragAutomatic;
  const LONG_PTR look = button.Default && button.Enabled ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
  SetStyleBits(window, BS_TYPEMASK, coloured ? BS_OWNERDRAW : look);
  SetCaption(form, control, window);
  if (coloured) InvalidateRect(window, nullptr, FALSE);
}

void Check(HWND window, bool on) {
  const WPARAM wanted = on ? BST_CHECKED : BST_UNCHECKED;
  if (static_cast<WPARAM>(SendMessageW(window, BM_GETCHECK, 0, 0)) != wanted) {
    SendMessageW(window, BM_SETCHECK, wanted, 0);
  }
}

void SyncOption(WinForm& form, Control& control, HWND window) {
  SetCaption(form, control, window);
  Check(window, static_cast<OptionButton&>(control).Value);
}

void SyncCheck(WinForm& form, Control& control, HWND window) {
  SetCaption(form, control, window);
  Check(window, static_cast<CheckBox&>(control).Value != 0);
}

}  // namespace

const WinKind kWinCommandButton{L"BUTTON", BS_PUSHBUTTON, 0, SyncButton};
const WinKind kWinOptionButton{L"BUTTON", BS_RADIOBUTTON, 0, SyncOption};
const WinKind kWinCheckBox{L"BUTTON", BS_CHECKBOX, 0, SyncCheck};

}  // namespace Tarnwise
