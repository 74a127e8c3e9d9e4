#include "SessionLines.h"

#include "direct/frmDirectB.h"
#include "ordering/frmIniImpOrder.h"
#include "tradeoffs/frmTradeOffsB.h"
#include "view/Platform.h"
#include "view/Reach.h"

#include <algorithm>

namespace Tarnwise {

namespace {

const char* const kKeys[] = {"Return", "Backspace", "Delete", "Left",   "Right",      "Home",        "End",  "Tab",
                             "Space",  "Shift+Tab", "Ctrl+V", "Ctrl+A", "Escape",     "Up",          "Down", "Space",
                             "Return", "Tab",       "Space",  "Right",  "Shift+Left", "Shift+Insert"};
const char* const kTexts[] = {"1",  "0.5", "1.25",  ".",     "1.2.3", "0",      "x", "200", "33",   "\" \"", "0.8",
                              "9.", "1e5", "\"é\"", "0.001", "150",   "99.995", "2", "-1",  "1.00", "12"};

using Controls = std::vector<Control*>;

String Number(int n) { return std::to_string(n); }

template <class Test>
Controls Those(const Form& form, Test test) {
  Controls found;
  for (Control* control : form.Controls()) {
    if (test(*control)) found.push_back(control);
  }
  return found;
}

Control* OneOf(ByteSource& bytes, const Controls& controls) {
  if (controls.empty()) return nullptr;
  const int high = controls.size() > 200 ? bytes.Byte() : 0;
  return controls[static_cast<std::size_t>(high * 256 + bytes.Byte()) % controls.size()];
}

bool CanBeUsed(const Control& control) { return Refusal(control).empty(); }

bool IsCalled(const Control& control, const String& name) { return control.Name == name && IsUsable(control); }

// With its twin of the cost group.
bool IsEither(const Control& control, const String& name) {
  return control.Name.starts_with(name) && control.Name.size() <= name.size() + 1 && IsUsable(control);
}

String Point(ByteSource& bytes, const Control& target) {
  const Single unit = target.Scale == ScaleMode::Pixels ? kTwipsPerPixel : 1.0F;
  const auto x = static_cast<int>(bytes.Part() * static_cast<Double>(target.Width / unit));
  const auto y = static_cast<int>(bytes.Part() * static_cast<Double>(target.Height / unit));
  return " " + Number(x) + " " + Number(y);
}

String DragOf(ByteSource& bytes, const Control& source) {
  const Controls targets = Those(source.Owner, [&source](const Control& c) {
    return c.TakesDrags() && &c != &source && IsOnScreen(c) && c.Width > 0.0F;
  });
  Control* const target = OneOf(bytes, targets);
  if (target == nullptr) return "grab " + source.FullName();
  // Where handles and marks are dragged to matters; where an attribute is dropped on its row does not.
  const bool point = target->Name == "picTradeOffsRange" || bytes.OneIn(4);
  return "drag " + source.FullName() + " " + target->FullName() + (point ? Point(bytes, *target) : "");
}

int RowCount(const Control& list) {
  switch (list.Type) {
    case Kind::ListBox: return static_cast<int>(static_cast<const ListBox&>(list).List().size());
    case Kind::ComboBox: return static_cast<int>(static_cast<const ComboBox&>(list).List().size());
    case Kind::ImageCombo: return static_cast<int>(static_cast<const ImageCombo&>(list).Items.size());
    default: return static_cast<int>(static_cast<const TabStrip&>(list).Tabs.size());
  }
}

String PressOf(ByteSource& bytes, const Toolbar& toolbar) {
  const auto& buttons = toolbar.Buttons;
  if (buttons.empty()) return "press " + toolbar.FullName() + " None";
  const auto k = static_cast<std::size_t>(bytes.Below(static_cast<int>(buttons.size())));
  return "press " + toolbar.FullName() + " " + buttons[k].Key;
}

// Something that this kind of control is for.
String ActionOn(ByteSource& bytes, const Control& control) {
  const String name = control.FullName();
  switch (control.Type) {
    case Kind::TextBox: return "focus " + name;
    case Kind::VScrollBar: {
      const auto& bar = static_cast<const VScrollBar&>(control);
      return "scroll " + name + " " + Number(bar.Min + static_cast<int>(bytes.Part() * (bar.Max - bar.Min)));
    }
    case Kind::Timer: return "tick " + name + (bytes.OneIn(4) ? " 3" : "");
    case Kind::Toolbar: return PressOf(bytes, static_cast<const Toolbar&>(control));
    case Kind::ListBox:
    case Kind::ComboBox: return "select " + name + " " + Number(bytes.Below(RowCount(control) + 1));
    case Kind::ImageCombo:
    case Kind::TabStrip: return "select " + name + " " + Number(1 + bytes.Below(RowCount(control) + 1));
    case Kind::Form: return "close";
    default: break;
  }
  if (control.DragAutomatic && bytes.OneIn(2)) return DragOf(bytes, control);
  return (bytes.OneIn(16) ? "focus " : "click ") + name;
}

// Asking whether a control can be used takes its time, so the first of a few that can.
Control* FirstUsable(const Controls& controls, std::size_t from) {
  for (std::size_t k = 0; k < std::min<std::size_t>(12, controls.size()); ++k) {
    Control* const control = controls[(from + k) % controls.size()];
    if (CanBeUsed(*control)) return control;
  }
  return nullptr;
}

String RandomAction(ByteSource& bytes, const Form& form) {
  const bool any = bytes.OneIn(8);
  const Controls controls = Those(form, [any](const Control& c) {
    return any || c.Click || c.DragAutomatic || TakesTab(c) || c.Type == Kind::Timer;
  });
  Control* const control = any ? OneOf(bytes, controls) : FirstUsable(controls, static_cast<std::size_t>(bytes.Byte()));
  return control == nullptr ? "forms" : ActionOn(bytes, *control);
}

// Onwards in the ordering step: an attribute onto a row, a row more, a reference, Next.
String OrderingStep(ByteSource& bytes, const frmIniImpOrder& form) {
  if (form.Stage == 1) {
    Control* const button = OneOf(bytes, Those(form, [](const Control& c) { return IsEither(c, "cmdAttButtons"); }));
    return button != nullptr && !bytes.OneIn(3) ? "click " + button->FullName() : "click cmdNext";
  }
  if (bytes.OneIn(3)) {
    Control* const adder = OneOf(bytes, Those(form, [](const Control& c) { return IsEither(c, "cmdAdd"); }));
    if (adder != nullptr) return "click " + adder->FullName();
  }
  Control* const listed = OneOf(bytes, Those(form, [](const Control& c) { return IsEither(c, "cmdAttA"); }));
  if (listed == nullptr) return "click cmdNext";
  const String rows = listed->Name == "cmdAttA" ? "picOrder" : "picOrder1";
  Control* const row = OneOf(bytes, Those(form, [&rows](const Control& c) { return IsCalled(c, rows); }));
  return row == nullptr ? "forms" : "drag " + listed->FullName() + " " + row->FullName();
}

String ChooseTarget(ByteSource& bytes, const ImageCombo& list) {
  return "select " + list.Name + " " + Number(1 + bytes.Below(std::max(1, RowCount(list))));
}

String JudgmentStep(ByteSource& bytes, const Form& form, const ImageCombo& list, const CommandButton& next) {
  if (CanBeUsed(next) && bytes.OneIn(4)) return "click cmdNext";
  switch (bytes.Below(4)) {
    case 0: return ChooseTarget(bytes, list);
    case 1: {
      Control* const source = OneOf(bytes, Those(form, [](const Control& c) { return c.DragAutomatic; }));
      const Control* const chart = form.Find("picTradeOffsRange");
      if (source == nullptr || chart == nullptr) return "forms";
      return "drag " + source->FullName() + " picTradeOffsRange" + Point(bytes, *chart);
    }
    case 2: {
      Control* const tool = OneOf(bytes, Those(form, [](const Control& c) { return c.Type == Kind::Toolbar; }));
      if (tool != nullptr) return PressOf(bytes, static_cast<const Toolbar&>(*tool));
      return RandomAction(bytes, form);
    }
    default: return "click cmdEnter";
  }
}

// What brings the session on from where it stands.
String Onwards(ByteSource& bytes, const Form& form) {
  if (const auto* ordering = dynamic_cast<const frmIniImpOrder*>(&form)) return OrderingStep(bytes, *ordering);
  if (const auto* direct = dynamic_cast<const frmDirectB*>(&form)) {
    if (direct->mResultsStage == 1) return bytes.OneIn(2) ? "click cmdBack" : "click cmdFinish";
    return JudgmentStep(bytes, form, direct->imgcmbTargetAtt, direct->cmdNext);
  }
  if (const auto* traded = dynamic_cast<const frmTradeOffsB*>(&form)) {
    if (traded->mPage == 2) return bytes.OneIn(2) ? "click cmdBack" : "click cmdFinish";
    return JudgmentStep(bytes, form, traded->imgcmbTargetAtt, traded->cmdNext);
  }
  if (bytes.OneIn(2)) return "select lstMethods " + Number(bytes.Below(2));
  return "click cmdNext";
}

String Typing(ByteSource& bytes) {
  const int choice = bytes.Byte();
  if (choice < 140) return String("key ") + kKeys[static_cast<std::size_t>(choice) % std::size(kKeys)];
  return String("type ") + kTexts[static_cast<std::size_t>(choice) % std::size(kTexts)];
}

String Points(ByteSource& bytes) {
  String array = "[";
  const int count = 30 + bytes.Below(3);
  for (int i = 0; i < count; ++i) array += (i == 0 ? "" : ",") + Number(bytes.Below(120) - 10);
  array += "]";
  String all = "host points {";
  for (const char* name : {"AX", "AY", "BX", "BY", "ALX", "ALY", "AUX", "AUY"}) {
    all += "\"" + String(name) + "\":" + array + ",";
  }
  return all + "\"AOrientation\":" + (bytes.OneIn(2) ? array : "[0,1,2,0,1,2,0,1,2]") + "}";
}

String HostLine(SessionLines& lines) {
  switch (lines.Bytes.Below(12)) {
    case 0: return "host unload";
    case 1: return "host new";
    case 2: return "host answer off";
    case 3: return "host answer on";
    case 4: return Points(lines.Bytes);
    case 5: return "host load " + lines.Model + " C:/KESTA 2";
    case 6: return "host load " + lines.OtherModel;
    case 7: return "host load .";
    case 8: return "host load " + lines.Model + " C:/KESTA 40000";
    case 9: return "host points zero";
    default: return "host show";
  }
}

// A drag in its stages, with whatever comes between.
String DragStage(ByteSource& bytes, const Form& form) {
  const auto takes = [](const Control& c) { return c.TakesDrags() && IsOnScreen(c); };
  switch (bytes.Below(4)) {
    case 0: {
      Control* const source = OneOf(bytes, Those(form, [](const Control& c) { return c.DragAutomatic; }));
      return source == nullptr ? "drop" : "grab " + source->FullName();
    }
    case 1: {
      Control* const target = OneOf(bytes, Those(form, takes));
      return target == nullptr ? "drop" : "over " + target->FullName();
    }
    case 2: {
      Control* const target = OneOf(bytes, Those(form, takes));
      return target == nullptr ? "drop" : "over " + target->FullName() + Point(bytes, *target);
    }
    default: return "drop";
  }
}

String Question(ByteSource& bytes, const Form& form) {
  switch (bytes.Below(6)) {
    case 0: return "data Weights";
    case 1: return "forms";
    case 2: return "call GetAttValue " + Number(bytes.Below(9)) + " " + Number(bytes.Below(120) - 10);
    case 3: return "call GetAttScore " + Number(bytes.Below(9)) + " 0." + Number(bytes.Below(100));
    case 4: return "call GetAttValueFunc " + Number(bytes.Below(9)) + " " + Number(bytes.Byte());
    default: {
      Control* const control = OneOf(bytes, form.Controls());
      return control == nullptr ? "dump" : "get " + control->FullName() + ".Visible";
    }
  }
}

String Refusable(ByteSource& bytes) {
  const char* const lines[] = {"click cmdNoSuch",
                               "click frmNone.cmdNext",
                               "click frmIniImpOrder.cmdNext",
                               "click frmTRNSelMethod.cmdNext",
                               "select tsTab 9",
                               "press tbCertain Nothing",
                               "tick Timer1",
                               "drag picHandle(7) picPanel",
                               "click picOrder(99)",
                               "scroll vsrOrder 99999",
                               "click cmdFinish",
                               "get cmdNext.Nothing",
                               "type \"  1\"",
                               "click cmdAttB(0)",
                               "focus lblTitle",
                               "drag cmdAttB(0) cmdAttB1(0)",
                               "click cmdBack",
                               "click cmdResetB",
                               "click cmdResetC",
                               "click cmdInsert",
                               "click cmdInsert1",
                               "close"};
  return lines[bytes.Below(static_cast<int>(std::size(lines)))];
}

}  // namespace

String NextLine(SessionLines& lines, const Platform& screen) {
  if (!lines.Queued.empty()) {
    const String line = lines.Queued.front();
    lines.Queued.pop_front();
    return line;
  }
  ByteSource& bytes = lines.Bytes;
  if (bytes.Done()) return {};
  const int choice = bytes.Byte();
  const Form* const form = screen.ActiveForm();
  if (form == nullptr || choice >= 248) return HostLine(lines);
  if (choice < 130) return Onwards(bytes, *form);
  if (choice < 180) return RandomAction(bytes, *form);
  if (choice < 208) return Typing(bytes);
  if (choice < 218) return DragStage(bytes, *form);
  if (choice < 226) return Question(bytes, *form);
  if (choice < 236) return Refusable(bytes);
  if (choice < 242) return "click cmdReStart";
  lines.Queued = {"click cmdNext"};
  return "click cmdBack";
}

}  // namespace Tarnwise
