// What native controls tell the window around them: presses, choices, scrolling, and wishes to be painted.
#include "view/Gesture.h"
#include "view/win32/WinForm.h"
#include "view/win32/WinKinds.h"

namespace Tarnwise {

// Messages that children send to what contains them.
std::optional<LRESULT> WinForm::Parent(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND: return Command(wParam, reinterpret_cast<HWND>(lParam));
    case WM_VSCROLL: {
      Control* const bar = ControlOf(reinterpret_cast<HWND>(lParam));
      if (bar == nullptr || bar->Type != Kind::VScrollBar) return std::nullopt;
      const int code = LOWORD(wParam);
      if (code == SB_ENDSCROLL)
        Settle(bar);
      else
        Scrolled(bar, ScrolledValue(static_cast<VScrollBar&>(*bar), reinterpret_cast<HWND>(lParam), code),
                 code == SB_THUMBTRACK);
      return 0;
    }
    case WM_NOTIFY: {
      const auto& notice = *reinterpret_cast<const NMHDR*>(lParam);
      Control* const from = ControlOf(notice.hwndFrom);
      if (from == nullptr || notice.hwndFrom != WindowOf(*from)) return std::nullopt;
      if (from->Type == Kind::TabStrip && notice.code == TCN_SELCHANGE) {
        RowChosen(from, ChosenRow(*from, notice.hwndFrom));
        return 0;
      }
      if (from->Type == Kind::Grid) return AnswerGrid(*this, notice);
      if (from->Type != Kind::Toolbar || notice.code != NM_CUSTOMDRAW) return std::nullopt;
      return PaintTool(*this, *from, reinterpret_cast<const NMTBCUSTOMDRAW&>(notice));
    }
    case WM_DRAWITEM: {
      const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
      Control* const control = ControlOf(item.hwndItem);
      if (control == nullptr) return std::nullopt;
      if (control->Type == Kind::ListBox)
        DrawRow(*this, item);
      else
        PaintOnto(item.hDC, *this, *control, item.rcItem, (item.itemState & ODS_SELECTED) != 0);
      return TRUE;
    }
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN: {
      const auto from = reinterpret_cast<HWND>(lParam);
      if (GetDlgCtrlID(from) == kBorderId) return reinterpret_cast<LRESULT>(BrushOf(BoxEdge(colours_)));
      const Control* const control = ControlOf(from);
      if (control == nullptr || control->Type == Kind::TextBox) return std::nullopt;
      const auto dc = reinterpret_cast<HDC>(wParam);
      const Colour ground = GroundOf(*control, colours_);
      SetBkColor(dc, ground);
      SetTextColor(dc, TextOn(ground, colours_));
      return reinterpret_cast<LRESULT>(BrushOf(ground));
    }
    default: return std::nullopt;
  }
}

std::optional<LRESULT> WinForm::Command(WPARAM wParam, HWND from) {
  Control* const control = ControlOf(from);
  if (control == nullptr) return std::nullopt;
  const int code = HIWORD(wParam);
  switch (control->Type) {
    case Kind::CommandButton:
    case Kind::OptionButton:
    case Kind::CheckBox:
      if (code == BN_CLICKED && !focusing_) Clicked(control);  // an option button tells its focus so, too
      return 0;
    case Kind::ListBox:
      if (code == LBN_SELCHANGE) RowChosen(control, ChosenRow(*control, from));
      return 0;
    case Kind::ComboBox:
    case Kind::ImageCombo:
      if (code == CBN_SELENDOK) PostMessageW(window_, kChoose, 0, reinterpret_cast<LPARAM>(from));
      if (code == CBN_SELENDCANCEL) PostMessageW(window_, kGivenUp, 0, reinterpret_cast<LPARAM>(from));
      return 0;
    case Kind::TextBox:
      // A text that came by none of its keys is put back: the box shows what the tree has.
      if (code == EN_CHANGE && !typingNow_) SyncControl(*control);
      return 0;
    case Kind::Toolbar:
      if (LOWORD(wParam) != 0) ToolPressed(control, LOWORD(wParam) - 1);
      return 0;
    default: return std::nullopt;
  }
}

}  // namespace Tarnwise
