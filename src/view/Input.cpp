#include "view/Input.h"

#include "runtime/Utf8.h"
#include "view/Dispatch.h"
#include "view/Keys.h"
#include "view/Platform.h"
#include "view/Reach.h"
#include "view/Rows.h"

#include <algorithm>
#include <cctype>

namespace Tarnwise::Input {

namespace {

// Arrows, Home and End choose a row; a key that leads nowhere chooses nothing.
bool RowKey(Control& list, int code) {
  const Rows rows = RowsOf(list);
  int row = rows.Chosen;
  if (code == kKeyUp || code == kKeyLeft)
    --row;
  else if (code == kKeyDown || code == kKeyRight)
    ++row;
  else if (code == kKeyHome)
    row = rows.First;
  else if (code == kKeyEnd)
    row = rows.Last();
  else
    return false;
  if (rows.Count == 0) return true;
  row = std::clamp(row, rows.First, rows.Last());
  if (row != rows.Chosen) SelectRow(list, row);
  return true;
}

// Marks and blanks may stand before the letter that a row begins with. Letters beyond ASCII have no key here.
bool BeginsWith(const String& text, int capital) {
  const auto first = std::find_if(text.begin(), text.end(), [](char c) {
    const int byte = static_cast<unsigned char>(c);
    return byte < 0x80 ? std::isalnum(byte) != 0 : byte >= 0xC3;  // 0xC2 and what follows it are marks
  });
  return first != text.end() && std::toupper(static_cast<unsigned char>(*first)) == capital;
}

// A letter or a digit chooses the next row that begins with it, from the first again after the last.
bool LetterKey(Control& list, int code) {
  const bool isLetterOrDigit = (code >= '0' && code <= '9') || (code >= 'A' && code <= 'Z');
  if (!isLetterOrDigit || list.Type == Kind::TabStrip) return false;
  const Rows rows = RowsOf(list);
  const int before = std::max(rows.Chosen - rows.First, -1);  // counted from 0; -1 where none is chosen
  for (int step = 1; step <= rows.Count; ++step) {
    const int row = rows.First + (before + step) % rows.Count;
    if (row == rows.Chosen || !BeginsWith(RowText(list, row), code)) continue;
    SelectRow(list, row);
    break;
  }
  return true;
}

bool BarKey(VScrollBar& bar, int code) {
  switch (code) {
    case kKeyUp:
    case kKeyLeft: ScrollTo(bar, bar.Value - bar.SmallChange, false); return true;
    case kKeyDown:
    case kKeyRight: ScrollTo(bar, bar.Value + bar.SmallChange, false); return true;
    case kKeyPageUp: ScrollTo(bar, bar.Value - bar.LargeChange, false); return true;
    case kKeyPageDown: ScrollTo(bar, bar.Value + bar.LargeChange, false); return true;
    case kKeyHome: ScrollTo(bar, bar.Min, false); return true;
    case kKeyEnd: ScrollTo(bar, bar.Max, false); return true;
    default: return false;
  }
}

// The arrows choose one of the buttons, Space and Return press it.
bool ToolbarKey(Toolbar& toolbar, int code) {
  const int count = static_cast<int>(toolbar.Buttons.size());
  if (code >= kKeyLeft && code <= kKeyDown) {
    const int step = code == kKeyRight || code == kKeyDown ? 1 : -1;
    toolbar.Current = std::max(1, std::min(count, toolbar.Current + step));
    return true;
  }
  if ((code != kKeySpace && code != kKeyReturn) || toolbar.Current > count) return false;
  const Toolbar::Button& button = toolbar.Buttons[static_cast<std::size_t>(toolbar.Current()) - 1];
  if (button.Enabled) PressToolButton(toolbar, String(button.Key));
  return true;
}

constexpr int kWheelStep = 40;  // 120ths of a notch for a small change

VScrollBar* BarFor(Control& control) {
  if (control.Type == Kind::VScrollBar) return IsUsable(control) ? &static_cast<VScrollBar&>(control) : nullptr;
  for (const Control* around = &control; around != nullptr; around = around->Parent) {
    for (Control* child : ChildrenOf(control.Owner, around)) {
      if (child->Type == Kind::VScrollBar && IsUsable(*child)) return static_cast<VScrollBar*>(child);
    }
  }
  return nullptr;
}

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
  for (Control* const toolbar : {former, &control}) {
    if (toolbar != nullptr && toolbar->Type == Kind::Toolbar) MarkChanged(*toolbar);  // the ring comes and goes
  }
  platform.Tools().Focus(control);
  if (former != nullptr) {
    ++platform.LosingFocus;
    RaiseEvent(*former, "LostFocus", former->LostFocus);
    --platform.LosingFocus;
  }
  if (platform.MessagesShown() != messages || form.Released || !form.Visible) return false;
  if (form.ActiveControl == &control) RaiseEvent(control, "GotFocus", control.GotFocus);
  const auto& controls = form.Controls();
  return std::find(controls.begin(), controls.end(), &control) != controls.end() && IsUsable(control);
}

bool Press(Control& control) {
  if (control.Owner.Screen().IsBlocked(control.Owner)) return false;
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
  // The handler may unload the control.
  const std::shared_ptr<Form> held = control.Owner.shared_from_this();
  const bool handled = control.Click != nullptr;
  RaiseEvent(control, "Click", control.Click);
  // What a click without a handler changed still has to reach the screen.
  if (!handled && held->Screen().HandlerDepth == 0) held->Screen().SyncAll();
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

bool Wheel(Control& control, int by) {
  if (control.Type == Kind::Grid || control.Type == Kind::ListBox) return false;
  VScrollBar* const bar = BarFor(control);
  if (bar == nullptr) return true;
  int& turned = control.Owner.Screen().WheelTurned;
  if ((turned < 0) != (by < 0)) turned = 0;
  turned += by;
  const int steps = turned / kWheelStep;
  turned -= steps * kWheelStep;
  if (steps != 0) ScrollTo(*bar, bar->Value - steps * bar->SmallChange, false);
  return true;
}

void Tick(Timer& timer) { RaiseEvent(timer, "Timer", timer.Tick); }

void CloseForm(Form& form) {
  if (form.Screen().IsBlocked(form)) return;
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

void PutCaretAtEnd(Control& control) {
  if (control.Type != Kind::TextBox) return;
  auto& box = static_cast<TextBox&>(control);
  box.SelStart = Length(box.Text());
  box.SelLength = 0;
}

bool ControlKey(Control& control, int code, int shift) {
  Platform& platform = control.Owner.Screen();
  if (platform.Drag.Active()) {
    if (code == kKeySpace) {
      platform.Drag.Drop();
    } else if (code == kKeyEscape) {
      platform.Drag.Cancel();
    } else {
      return platform.Drag.Key(code, (shift & kShift) != 0);
    }
    return true;
  }
  if (code == kKeySpace && control.DragAutomatic) {
    platform.Drag.Begin(control);
    return true;
  }
  const bool pressed = code == kKeySpace || code == kKeyReturn;
  switch (control.Type) {
    case Kind::CommandButton:
      if (!pressed) return false;
      Activate(control);
      return true;
    case Kind::CheckBox:
    case Kind::OptionButton:
      if (code != kKeySpace) return false;
      Activate(control);
      return true;
    case Kind::ListBox:
    case Kind::ComboBox:
    case Kind::ImageCombo:
    case Kind::TabStrip: return RowKey(control, code) || LetterKey(control, code);
    case Kind::VScrollBar: return BarKey(static_cast<VScrollBar&>(control), code);
    case Kind::Toolbar: return ToolbarKey(static_cast<Toolbar&>(control), code);
    default: return false;
  }
}

void TabKey(Form& form, bool back) {
  if (form.Screen().Drag.Active()) form.Screen().Drag.Cancel();
  if (Control* const next = NextInTabOrder(form, back)) MoveFocus(*next);
}

}  // namespace Tarnwise::Input
