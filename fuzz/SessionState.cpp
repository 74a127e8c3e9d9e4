#include "SessionState.h"

#include "model/mdTRNMain.h"
#include "view/Platform.h"

#include <algorithm>
#include <cstring>

namespace Tarnwise {

namespace {

// Sections, each with a readable heading, then values as they lie in memory: it is written before most lines.
class State {
 public:
  String Text;

  void Heading(const String& name) { Text += "\n@" + name + "@"; }

  template <class T>
  State& Put(const T& value) {
    static_assert(std::is_arithmetic_v<T> || std::is_enum_v<T>);
    Text.append(reinterpret_cast<const char*>(&value), sizeof value);
    return *this;
  }
  State& Put(const String& text) {
    Put(text.size());
    Text += text;
    return *this;
  }
  State& Put(const Variant& value) {
    Put(value.index());
    if (const auto* text = std::get_if<String>(&value)) return Put(*text);
    return std::holds_alternative<Null>(value) ? *this : Put(ToDouble(value));
  }
  template <class T>
  State& Put(const std::vector<T>& items) {
    for (const T& item : items) Put(item);
    return *this;
  }
  State& Put(const std::vector<bool>& items) {
    for (const bool item : items) Put(item);
    return *this;
  }
  State& Put(const ABPoint& p) {
    for (const Single x : {p.AX, p.AY, p.BX, p.BY, p.ALX, p.ALY, p.AUX, p.AUY}) Put(x);
    return Put(p.AOrientation);
  }
  State& Put(const Drawn& shape) { return Put(shape.Shape).Put(shape.Points).Put(shape.Ink).Put(shape.LineWidth); }
};

void PutCommon(State& s, const Control& c) {
  s.Put(c.Left()).Put(c.Top()).Put(c.Width()).Put(c.Height()).Put(c.Visible()).Put(c.Enabled()).Put(c.Tag());
  s.Put(c.ToolTipText()).Put(c.MousePointer());
}

void PutOwn(State& s, const Label& c) { s.Put(c.Caption()).Put(c.ForeColor()).Put(c.BackColor()); }
void PutOwn(State& s, const CommandButton& c) { s.Put(c.Caption()).Put(c.BackColor()); }
void PutOwn(State& s, const TextBox& c) { s.Put(c.Text()).Put(c.SelStart()).Put(c.SelLength()); }
void PutOwn(State& s, const VScrollBar& c) { s.Put(c.Value()).Put(c.Min()).Put(c.Max()); }
void PutOwn(State& s, const Line& c) { s.Put(c.X1()).Put(c.Y1()).Put(c.X2()).Put(c.Y2()).Put(c.BorderColor()); }
void PutOwn(State& s, const PictureBox& c) { s.Put(c.BackColor()).Put(c.Drawing); }
void PutOwn(State& s, const Toolbar& c) {
  for (const auto& button : c.Buttons) s.Put(button.Enabled);
}
void PutOwn(State& s, const ImageCombo& c) {
  s.Put(c.SelectedItem());
  for (const auto& item : c.Items) s.Put(item.Text);
}
void PutOwn(State& s, const Grid& c) { s.Put(c.ColWidth).Put(c.TextMatrix); }

void PutOfKind(State& s, const Control& c) {
  switch (c.Type) {
    case Kind::Form: s.Put(static_cast<const Form&>(c).Caption()); break;
    case Kind::Label: PutOwn(s, static_cast<const Label&>(c)); break;
    case Kind::CommandButton: PutOwn(s, static_cast<const CommandButton&>(c)); break;
    case Kind::TextBox: PutOwn(s, static_cast<const TextBox&>(c)); break;
    case Kind::ListBox: s.Put(static_cast<const ListBox&>(c).ListIndex()); break;
    case Kind::OptionButton: s.Put(static_cast<const OptionButton&>(c).Value()); break;
    case Kind::CheckBox: s.Put(static_cast<const CheckBox&>(c).Value()); break;
    case Kind::VScrollBar: PutOwn(s, static_cast<const VScrollBar&>(c)); break;
    case Kind::Timer: s.Put(static_cast<const Timer&>(c).Interval()); break;
    case Kind::Image: s.Put(static_cast<const Image&>(c).Picture()); break;
    case Kind::Shape: s.Put(static_cast<const Shape&>(c).FillColor()); break;
    case Kind::Line: PutOwn(s, static_cast<const Line&>(c)); break;
    case Kind::PictureBox: PutOwn(s, static_cast<const PictureBox&>(c)); break;
    case Kind::TabStrip: s.Put(static_cast<const TabStrip&>(c).SelectedItem()); break;
    case Kind::Toolbar: PutOwn(s, static_cast<const Toolbar&>(c)); break;
    case Kind::ImageCombo: PutOwn(s, static_cast<const ImageCombo&>(c)); break;
    case Kind::ComboBox:
      s.Put(static_cast<const ComboBox&>(c).ListIndex()).Put(static_cast<const ComboBox&>(c).List());
      break;
    case Kind::Grid: PutOwn(s, static_cast<const Grid&>(c)); break;
    case Kind::Frame: break;
  }
}

void PutControl(State& s, const Control& control) {
  s.Text += "\n@" + control.Name + "@";
  s.Put(control.Index);
  PutCommon(s, control);
  PutOfKind(s, control);
}

void PutRanking(State& s, const WizardData& data) {
  s.Heading("ranking");
  s.Put(data.BAttCount).Put(data.CAttCount);
  s.Put(data.BOM.Items()).Put(data.COM.Items()).Put(data.AttO.Items());
}

void PutStored(State& s, const WizardData& data) {
  PutRanking(s, data);
  s.Heading("references");
  s.Put(data.BRefAttID).Put(data.CRefAttID).Put(data.BRankCount).Put(data.CRankCount).Put(data.RefAttWR);
  s.Heading("intervals");
  s.Put(data.WeightsL.Items()).Put(data.Weights.Items()).Put(data.WeightsH.Items()).Put(data.WeightDone.Items());
  s.Heading("points");
  s.Put(data.ABPoints1.Items()).Put(data.ABPoints2.Items());
}

template <std::size_t N>
void PutControlsCalled(State& s, const Form& form, const char* const (&names)[N]) {
  for (const Control* control : form.Controls()) {
    const bool wanted = std::any_of(std::begin(names), std::end(names), [control](const String& name) {
      return control->Name.starts_with(name) && (control->Name.size() == name.size() || control->Name == name + "1");
    });
    if (wanted) PutControl(s, *control);
  }
}

}  // namespace

String WorldText(const Platform& screen, const WizardData& data) {
  State s;
  PutStored(s, data);
  s.Heading("model");
  s.Put(data.NumAtts()).Put(data.AttributeList.AttName.Items()).Put(data.AttributeList.AttOrientation.Items());
  s.Put(data.RJType()).Put(data.SavedJudgments.SavedWeights.Items());
  s.Heading("switches");
  s.Put(data.KestaDir).Put(data.FileIndex).Put(data.PathAndFileName);
  s.Put(data.MethodIndex).Put(data.IncnsistCtrl).Put(data.OrderChanged).Put(screen.Pointer());
  s.Heading("drag");
  if (screen.Drag.Active()) s.Put(screen.Drag.Source()->FullName());
  for (const Form* form : screen.Forms()) {
    PutControl(s, *form);
    s.Heading("focus of " + form->Name);
    if (form->ActiveControl != nullptr) s.Put(form->ActiveControl->FullName());
    for (const Control* control : form->Controls()) {
      PutControl(s, *control);
      s.Put(control->Order());
    }
  }
  return std::move(s.Text);
}

String StoredText(const WizardData& data) {
  State s;
  PutStored(s, data);
  return std::move(s.Text);
}

String PanelsText(const Form& form) {
  const char* const names[] = {"cmdAttA", "lblAttName", "picOrderCon", "picOrder", "lblOrderID", "cmdAttB"};
  State s;
  PutControlsCalled(s, form, names);
  return std::move(s.Text);
}

String RankingText(const Form& form, const WizardData& data) {
  const char* const names[] = {"picO", "lblOID", "cmdAttButtons"};
  State s;
  PutRanking(s, data);
  PutControlsCalled(s, form, names);
  return std::move(s.Text);
}

String Parting(const String& before, const String& after) {
  const auto place = std::mismatch(before.begin(), before.end(), after.begin(), after.end()).first - before.begin();
  const auto at = static_cast<std::size_t>(place);
  const std::size_t heading = before.rfind("\n@", at);
  const std::size_t from = heading == String::npos ? 0 : heading + 2;
  const std::size_t end = before.find('@', from);
  return ": " + before.substr(from, end - from) + ", " + std::to_string(at - end) + " bytes in";
}

}  // namespace Tarnwise
