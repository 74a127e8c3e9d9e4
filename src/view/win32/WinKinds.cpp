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

const wchar_t* OwnClass(const wchar_t* name) {
  WNDCLASSEXW type{};
  type.cbSize = sizeof type;
  if (GetClassInfoExW(OwnModule(), name, &type) != 0) return name;
  type.lpfnWndProc = DefWindowProcW;
  type.hInstance = OwnModule();
  type.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  type.lpszClassName = name;
  RegisterClassExW(&type);
  return name;
}

void UseBaseFont(const WinForm& form, HWND window) { UseFont(window, BaseFont(form.Scale())); }

void UseFont(HWND window, HFONT font) {
  if (reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)) == font) return;
  SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

}  // namespace Tarnwise
