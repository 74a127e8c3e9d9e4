#include "view/win32/WinKinds.h"

#include "runtime/windows/OwnModule.h"
#include "view/Reach.h"
#include "view/win32/WinForm.h"

namespace Tarnwise {

const WinKind* KindOf(const Control& control) {
  switch (control.Type) {
    case Kind::Label: return &kWinLabel;
    case Kind::CommandButton: return &kWinCommandButton;
    case Kind::TextBox: return &kWinTextBox;
    case Kind::ListBox: return &kWinListBox;
    case Kind::OptionButton: return &kWinOptionButton;
    case Kind::CheckBox: return &kWinCheckBox;
    case Kind::VScrollBar: return &kWinScrollBar;
    case Kind::Image:
    case Kind::Frame:
    case Kind::PictureBox: return &kWinBox;
    case Kind::Shape: return IsPainted(control) ? nullptr : &kWinBox;
    case Kind::TabStrip: return &kWinTabStrip;
    case Kind::Toolbar: return &kWinToolbar;
    case Kind::ImageCombo: return &kWinImageCombo;
    case Kind::ComboBox: return &kWinComboBox;
    case Kind::Grid: return &kWinGrid;
    case Kind::Form:
    case Kind::Timer:
    case Kind::Line: return nullptr;
  }
  return nullptr;
}

bool IsBox(const Control& control) { return KindOf(control) == &kWinBox; }

bool IsContainer(const Control& control) {
  return control.Type == Kind::Form || control.Type == Kind::PictureBox || control.Type == Kind::Frame;
}

HWND NewChild(WinForm& form, const wchar_t* className, DWORD style, DWORD exStyle, HWND parent) {
  const HWND window = CreateWindowExW(exStyle, className, L"", WS_CHILD | WS_CLIPSIBLINGS | style, 0, 0, 10, 10, parent,
                                      nullptr, OwnModule(), nullptr);
  UseBaseFont(form, window);
  return window;
}

void UseBaseFont(const WinForm& form, HWND window) { UseFont(window, BaseFont(form.Scale())); }

void UseFont(HWND window, HFONT font) {
  if (reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)) == font) return;
  SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

}  // namespace Tarnwise
