#include "play/ControlJson.h"

#include "view/Form.h"

namespace Tarnwise {

namespace {

Json Texts(const std::vector<String>& texts) {
  Json list = Json::array();
  for (const String& text : texts) list.push_back(text);
  return list;
}

Json DrawnJson(const Drawn& shape) {
  Json points = Json::array();
  if (shape.Shape == Drawn::What::Polygon) {
    for (std::size_t i = 0; i + 1 < shape.Points.size(); i += 2) {
      points.push_back(Json::array({ToJson(shape.Points[i]), ToJson(shape.Points[i + 1])}));
    }
    return {{"polygon", points}, {"fill", shape.Ink}};
  }
  for (const Single x : shape.Points) points.push_back(ToJson(x));
  if (shape.Shape == Drawn::What::Line) return {{"line", points}, {"color", shape.Ink}, {"width", shape.LineWidth}};
  return {{"box", points}, {"color", shape.Ink}};
}

void AddPlace(Json& all, const Control& c) {
  all["Left"] = ToJson(c.Left());
  all["Top"] = ToJson(c.Top());
  all["Width"] = ToJson(c.Width());
  all["Height"] = ToJson(c.Height());
}

void AddOwn(Json& all, const Label& c) {
  all["Caption"] = c.Caption();
  all["ForeColor"] = c.ForeColor();
  all["BackColor"] = c.BackColor();
}

void AddOwn(Json& all, const CommandButton& c) {
  all["Caption"] = c.Caption();
  all["BackColor"] = c.BackColor();
}

void AddOwn(Json& all, const TextBox& c) {
  all["Text"] = c.Text();
  all["SelStart"] = c.SelStart();
  all["SelLength"] = c.SelLength();
}

template <class List>
void AddList(Json& all, const List& c) {
  all["ListIndex"] = c.ListIndex();
  all["ListCount"] = c.List().size();
  all["List"] = Texts(c.List());
}

void AddOwn(Json& all, const VScrollBar& c) {
  all["Value"] = c.Value();
  all["Min"] = c.Min();
  all["Max"] = c.Max();
  all["SmallChange"] = c.SmallChange();
  all["LargeChange"] = c.LargeChange();
}

void AddOwn(Json& all, const Line& c) {
  all["X1"] = ToJson(c.X1());
  all["Y1"] = ToJson(c.Y1());
  all["X2"] = ToJson(c.X2());
  all["Y2"] = ToJson(c.Y2());
  all["BorderColor"] = c.BorderColor();
}

void AddOwn(Json& all, const PictureBox& c) {
  all["BackColor"] = c.BackColor();
  Json shapes = Json::array();
  for (const Drawn& shape : c.Drawing) shapes.push_back(DrawnJson(shape));
  all["Drawing"] = shapes;
}

void AddOwn(Json& all, const TabStrip& c) {
  all["SelectedItem"] = c.SelectedItem();
  Json items = Json::array();
  for (const auto& tab : c.Tabs) items.push_back(tab.Caption);
  all["Items"] = items;
}

void AddOwn(Json& all, const Toolbar& c) {
  Json buttons = Json::object();
  for (const auto& button : c.Buttons) buttons[button.Key] = button.Enabled;
  all["Buttons"] = buttons;
}

void AddOwn(Json& all, const ImageCombo& c) {
  all["SelectedItem"] = c.SelectedItem();
  Json items = Json::array();
  for (const auto& item : c.Items) items.push_back(item.Text);
  all["Items"] = items;
}

void AddOwn(Json& all, const Grid& c) {
  all["Rows"] = c.Rows();
  all["Cols"] = c.Cols();
  all["ColWidth"] = c.ColWidth;
  all["TextMatrix"] = c.TextMatrix;
}

void AddOfKind(Json& all, const Control& c) {
  switch (c.Type) {
    case Kind::Form: all["Caption"] = static_cast<const Form&>(c).Caption(); break;
    case Kind::Label: AddOwn(all, static_cast<const Label&>(c)); break;
    case Kind::CommandButton: AddOwn(all, static_cast<const CommandButton&>(c)); break;
    case Kind::TextBox: AddOwn(all, static_cast<const TextBox&>(c)); break;
    case Kind::ListBox: AddList(all, static_cast<const ListBox&>(c)); break;
    case Kind::ComboBox: AddList(all, static_cast<const ComboBox&>(c)); break;
    case Kind::OptionButton:
      all["Caption"] = static_cast<const OptionButton&>(c).Caption();
      all["Value"] = static_cast<const OptionButton&>(c).Value();
      break;
    case Kind::CheckBox:
      all["Caption"] = static_cast<const CheckBox&>(c).Caption();
      all["Value"] = static_cast<const CheckBox&>(c).Value();
      break;
    case Kind::Frame: all["Caption"] = static_cast<const Frame&>(c).Caption(); break;
    case Kind::VScrollBar: AddOwn(all, static_cast<const VScrollBar&>(c)); break;
    case Kind::Timer: all["Interval"] = static_cast<const Timer&>(c).Interval(); break;
    case Kind::Image: all["Picture"] = static_cast<const Image&>(c).Picture(); break;
    case Kind::Shape:
      all["FillColor"] = static_cast<const Shape&>(c).FillColor();
      all["BorderColor"] = static_cast<const Shape&>(c).BorderColor();
      break;
    case Kind::Line: AddOwn(all, static_cast<const Line&>(c)); break;
    case Kind::PictureBox: AddOwn(all, static_cast<const PictureBox&>(c)); break;
    case Kind::TabStrip: AddOwn(all, static_cast<const TabStrip&>(c)); break;
    case Kind::Toolbar: AddOwn(all, static_cast<const Toolbar&>(c)); break;
    case Kind::ImageCombo: AddOwn(all, static_cast<const ImageCombo&>(c)); break;
    case Kind::Grid: AddOwn(all, static_cast<const Grid&>(c)); break;
  }
}

Json AllProperties(const Control& c) {
  Json all = Json::object();
  if (c.Type != Kind::Line && c.Type != Kind::Timer) {
    AddPlace(all, c);
    all["ToolTipText"] = c.ToolTipText();
    all["MousePointer"] = c.MousePointer();
  }
  if (c.Type != Kind::Timer) all["Visible"] = c.Visible();
  all["Enabled"] = c.Enabled();
  all["Tag"] = c.Tag();
  AddOfKind(all, c);
  return all;
}

}  // namespace

std::optional<Json> PropertyJson(const Control& control, const String& property) {
  const Json all = AllProperties(control);
  const auto found = all.find(property);
  return found == all.end() ? std::nullopt : std::optional<Json>(*found);
}

Json ControlJson(const Control& control) {
  Json object = {{"name", control.FullName()}};
  object.update(AllProperties(control));
  return object;
}

}  // namespace Tarnwise
