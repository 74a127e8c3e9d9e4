#include "view/Input.h"

#include "view/Dispatch.h"
#include "view/Platform.h"
#include "view/Reach.h"

namespace Tarnwise::Input {

namespace {

constexpr int kReturn = 13;
constexpr int kSpace = 32;
constexpr int kEscape = 27;

bool RaiseKey(TextBox& box, const char* event, const std::function<void(KeyEvent&)>& handler, KeyEvent& key) {
  if (handler) Dispatch(box, event, [&] { handler(key); });
  return key.Code != 0;
}

}  // namespace

bool MoveFocus(Control& control) {
  Form& form = control.Owner;
  const std::shared_ptr<Form> held = form.shared_from_this();
  Platform& platform = form.Screen();
  Control* const former = form.ActiveControl;
  if (former == &control) return true;
  const int messages = platform.MessagesShown();
  form.ActiveControl = &control;
  platform.Tools().Focus(control);
  if (former != nullptr) {
    ++platform.LosingFocus;
    RaiseEvent(*former, "LostFocus", former->LostFocus);
    --platform.LosingFocus;
  }
  if (platform.MessagesShown() != messages || form.Released || !form.Visible) return false;
  if (form.ActiveControl == &control) RaiseEvent(control, "GotFocus", control.GotFocus);
  return IsUsable(control);
}

bool Press(Control& control) {
  if (control.DragAutomatic || !TakesFocus(control)) return !control.Owner.Released && IsUsable(control);
  return MoveFocus(control);
}

void Activate(Control& control) {
  if (control.Type == Kind::CheckBox) {
    auto& box = static_cast<CheckBox&>(control);
    box.Value = 1 - box.Value;
  } else if (control.Type == Kind::OptionButton) {
    static_cast<OptionButton&>(control).SetOn();
  }
  RaiseEvent(control, "Click", control.Click);
  // What a click without a handler changed still has to reach the screen.
  if (!control.Click && control.Owner.Screen().HandlerDepth == 0) control.Owner.Screen().SyncAll();
}

void SelectRow(Control& list, int index) {
  switch (list.Type) {
    case Kind::ListBox: static_cast<ListBox&>(list).ListIndex = index; break;
    case Kind::ComboBox: static_cast<ComboBox&>(list).ListIndex = index; break;
    case Kind::ImageCombo: static_cast<ImageCombo&>(list).SelectedItem = index; break;
    case Kind::TabStrip: static_cast<TabStrip&>(list).SelectedItem = index; break;
    default: return;
  }
  Activate(list);
}

void PressToolButton(Toolbar& toolbar, const String& key) {
  if (!toolbar.ButtonClick) return;
  Dispatch(toolbar, "ButtonClick", [&] { toolbar.ButtonClick(key); });
}

void ScrollTo(VScrollBar& bar, int value, bool dragging) {
  if (dragging) {
    if (value == bar.Value) return;
    bar.Value = value;
    RaiseEvent(bar, "Scroll", bar.Scroll);
    return;
  }
  bar.SetValue(value);
}

void Tick(Timer& timer) { RaiseEvent(timer, "Timer", timer.Tick); }

void CloseForm(Form& form) {
  Dispatch(form, "QueryUnload", [&form] { form.CloseBox(); });
}

bool KeyDown(TextBox& box, KeyEvent& key) { return RaiseKey(box, "KeyDown", box.KeyDown, key); }

bool KeyPress(TextBox& box, KeyEvent& key) { return RaiseKey(box, "KeyPress", box.KeyPress, key); }

void KeyUp(TextBox& box, KeyEvent key) { RaiseKey(box, "KeyUp", box.KeyUp, key); }

void TextEdited(TextBox& box, const String& text, int caret) {
  box.SelStart = caret;
  box.SelLength = 0;
  if (text == box.Text()) return;
  box.Text = text;
  RaiseEvent(box, "Change", box.Change);
}

bool ControlKey(Control& control, int code, int shift) {
  Platform& platform = control.Owner.Screen();
  if (platform.Drag.Active()) {
    if (code == kSpace) {
      platform.Drag.Drop();
    } else if (code == kEscape) {
      platform.Drag.Cancel();
    } else {
      return platform.Drag.Key(code, (shift & 1) != 0);
    }
    return true;
  }
  if (code == kSpace && control.DragAutomatic) {
    platform.Drag.Begin(control);
    return true;
  }
  const bool pressed = code == kSpace || code == kReturn;
  switch (control.Type) {
    case Kind::CommandButton:
      if (!pressed) return false;
      Activate(control);
      return true;
    case Kind::CheckBox:
    case Kind::OptionButton:
      if (code != kSpace) return false;
      Activate(control);
      return true;
    default: return false;
  }
}

void TabKey(Form& form, bool back) {
  if (form.Screen().Drag.Active()) form.Screen().Drag.Cancel();
  if (Control* const next = NextInTabOrder(form, back)) MoveFocus(*next);
}

}  // namespace Tarnwise::Input
