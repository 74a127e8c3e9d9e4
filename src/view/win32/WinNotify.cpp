// What native controls tell the window around them: presses, choices, scrolling, and wishes to be painted.
#include "view/Dispatch.h"
#include "view/Input.h"
#include "view/Reach.h"
#include "view/win32/WinForm.h"
#include "view/win32/WinKinds.h"
#include "view/win32/WinLifetime.h"
#include "view/win32/WinToolkit.h"

namespace Tarnwise {

// A native control says that it was pressed: by the mouse, whose press the tree knows, or without it, by a screen
// reader.
bool WinForm::Pressed(Control& control) {
  if (press_.On != &control || press_.Refused) return Refusal(control).empty() && Input::Press(control);
  press_ = {};
  return true;
}

void WinForm::Clicked(Control& control) {
  const WinEntry entry(*form_);
  if (Pressed(control)) Input::Activate(control);
  Settle(nullptr);
}

void WinForm::RowChosen(Control& control) {
  const HWND window = WindowOf(control);
  if (window == nullptr) return;
  const WinEntry entry(*form_);
  if (Refusal(control).empty()) Input::SelectRow(control, ChosenRow(control, window));
  Settle(ControlOf(window));
}

void WinForm::Scrolled(Control& control, HWND bar, int code) {
  const WinEntry entry(*form_);
  auto& record = static_cast<VScrollBar&>(control);
  if (code == SB_ENDSCROLL) {
    Settle(&control);
    return;
  }
  const bool dragging = code == SB_THUMBTRACK;
  const bool dragged = code == SB_THUMBPOSITION;
  const int value = ScrolledValue(record, bar, code);
  // What was dragged has told each step by Scroll; its end is a change, too.
  if (dragged && value == record.Value && record.Change) {
    Dispatch(record, "Change", [&record] { record.Change(); });
  } else {
    Input::ScrollTo(record, value, dragging);
  }
  Settle(dragging ? nullptr : ControlOf(bar));
}

// Messages that children send to what contains them.
std::optional<LRESULT> WinForm::Parent(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND: return Command(wParam, reinterpret_cast<HWND>(lParam));
    case WM_VSCROLL: {
      Control* const bar = ControlOf(reinterpret_cast<HWND>(lParam));
      if (bar == nullptr || bar->Type != Kind::VScrollBar) return std::nullopt;
      const auto held = shared_from_this();
      Scrolled(*bar, reinterpret_cast<HWND>(lParam), LOWORD(wParam));
      return 0;
    }
    case WM_NOTIFY: {
      const auto& notice = *reinterpret_cast<const NMHDR*>(lParam);
      Control* const from = ControlOf(notice.hwndFrom);
      if (from == nullptr || notice.hwndFrom != WindowOf(*from)) return std::nullopt;
      if (from->Type == Kind::TabStrip && notice.code == TCN_SELCHANGE) {
        const auto held = shared_from_this();
        RowChosen(*from);
        return 0;
      }
      if (from->Type == Kind::Grid) return AnswerGrid(*this, notice);
      if (from->Type != Kind::Toolbar || notice.code != NM_CUSTOMDRAW) return std::nullopt;
      return PaintTool(*this, *from, reinterpret_cast<const NMTBCUSTOMDRAW&>(notice));
    }
    case WM_DRAWITEM: {
      const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
      Control* const control = ControlOf(item.hwndItem);
      const WinKind* const kind = control != nullptr ? KindOf(*control) : nullptr;
      if (kind == nullptr || kind->Draw == nullptr) return std::nullopt;
      kind->Draw(*this, *control, item);
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
  const auto held = shared_from_this();
  const int code = HIWORD(wParam);
  switch (control->Type) {
    case Kind::CommandButton:
    case Kind::OptionButton:
    case Kind::CheckBox:
      if (code == BN_CLICKED && !focusing_) Clicked(*control);  // an option button tells its focus so, too
      return 0;
    case Kind::ListBox:
      if (code == LBN_SELCHANGE) RowChosen(*control);
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
    case Kind::Toolbar: {
      const auto& bar = static_cast<Toolbar&>(*control);
      const std::size_t button = LOWORD(wParam);
      if (button == 0 || button > bar.Buttons.size() || !bar.Buttons[button - 1].Enabled) return 0;
      const WinEntry entry(*form_);
      if (Pressed(*control))
        Input::PressToolButton(static_cast<Toolbar&>(*control), String(bar.Buttons[button - 1].Key));
      Settle(nullptr);
      return 0;
    }
    default: return std::nullopt;
  }
}

}  // namespace Tarnwise
