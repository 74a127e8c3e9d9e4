#include "view/Dispatch.h"
#include "view/Form.h"

#include <algorithm>

namespace Tarnwise {

void MarkChanged(Control& control) {
  if (control.Changed) return;
  control.Changed = true;
  control.Owner.ChangedControls.push_back(&control);
}

Control::Control(Form& form, Control* parent, Kind kind, String name)
    : Owner(form), Parent(parent), Type(kind), Name(std::move(name)) {
  if (Parent != nullptr) Owner.Register(*this);
}

Control::~Control() {
  if (Parent != nullptr) Owner.Unregister(*this);
}

void Control::ZOrder() { Order = Owner.nextOrder_++; }

String Control::FullName() const { return Index < 0 ? Name : Name + "(" + std::to_string(Index) + ")"; }

Label::Label(Form& form, Control* parent, String name) : Control(form, parent, Kind::Label, std::move(name)) {}
CommandButton::CommandButton(Form& form, Control* parent, String name)
    : Control(form, parent, Kind::CommandButton, std::move(name)) {}
TextBox::TextBox(Form& form, Control* parent, String name) : Control(form, parent, Kind::TextBox, std::move(name)) {}
ListBox::ListBox(Form& form, Control* parent, String name) : Control(form, parent, Kind::ListBox, std::move(name)) {}
OptionButton::OptionButton(Form& form, Control* parent, String name)
    : Control(form, parent, Kind::OptionButton, std::move(name)) {}
CheckBox::CheckBox(Form& form, Control* parent, String name) : Control(form, parent, Kind::CheckBox, std::move(name)) {}
Frame::Frame(Form& form, Control* parent, String name) : Control(form, parent, Kind::Frame, std::move(name)) {}
VScrollBar::VScrollBar(Form& form, Control* parent, String name)
    : Control(form, parent, Kind::VScrollBar, std::move(name)) {}
Timer::Timer(Form& form, Control* parent, String name) : Control(form, parent, Kind::Timer, std::move(name)) {}
Image::Image(Form& form, Control* parent, String name) : Control(form, parent, Kind::Image, std::move(name)) {}
Shape::Shape(Form& form, Control* parent, String name) : Control(form, parent, Kind::Shape, std::move(name)) {}
Line::Line(Form& form, Control* parent, String name) : Control(form, parent, Kind::Line, std::move(name)) {}
PictureBox::PictureBox(Form& form, Control* parent, String name)
    : Control(form, parent, Kind::PictureBox, std::move(name)) {}
TabStrip::TabStrip(Form& form, Control* parent, String name) : Control(form, parent, Kind::TabStrip, std::move(name)) {}
Toolbar::Toolbar(Form& form, Control* parent, String name) : Control(form, parent, Kind::Toolbar, std::move(name)) {}
ImageCombo::ImageCombo(Form& form, Control* parent, String name)
    : Control(form, parent, Kind::ImageCombo, std::move(name)) {}
ComboBox::ComboBox(Form& form, Control* parent, String name) : Control(form, parent, Kind::ComboBox, std::move(name)) {}
Grid::Grid(Form& form, Control* parent, String name) : Control(form, parent, Kind::Grid, std::move(name)) {}

void TextBox::SetText(const String& text) {
  SelStart = 0;
  SelLength = 0;
  if (text == Text()) return;
  Text = text;
  RaiseEvent(*this, "Change", Change);
}

void OptionButton::SetOn() {
  for (Control* other : Owner.Controls()) {
    if (other != this && other->Type == Kind::OptionButton && other->Parent == Parent) {
      static_cast<OptionButton*>(other)->Value = false;
    }
  }
  Value = true;
}

void VScrollBar::SetValue(int value) {
  const int brought = std::max(Min(), std::min(value, Max()));
  if (brought == Value) return;
  Value = brought;
  RaiseEvent(*this, "Change", Change);
}

void PictureBox::Cls() {
  if (Drawing.empty()) return;
  Drawing.clear();
  MarkChanged(*this);
}

void PictureBox::Draw(Drawn shape) {
  Drawing.push_back(std::move(shape));
  MarkChanged(*this);
}

void Toolbar::EnableButton(int index, bool enabled) {
  if (index < 1 || index > static_cast<int>(Buttons.size())) throw RuntimeError(9);
  Button& button = Buttons[static_cast<std::size_t>(index) - 1];
  if (button.Enabled == enabled) return;
  button.Enabled = enabled;
  MarkChanged(*this);
}

const Toolbar::Button* Toolbar::Find(const String& key) const {
  const auto found = std::find_if(Buttons.begin(), Buttons.end(), [&key](const Button& b) { return b.Key == key; });
  return found == Buttons.end() ? nullptr : &*found;
}

void ImageCombo::Clear() {
  Items.clear();
  SelectedItem = 0;
  MarkChanged(*this);
}

void ImageCombo::Add(Item item) {
  Items.push_back(std::move(item));
  MarkChanged(*this);
}

void ImageCombo::SetItemText(int index, const String& text) {
  if (index < 1 || index > static_cast<int>(Items.size())) throw RuntimeError(9);
  Items[static_cast<std::size_t>(index) - 1].Text = text;
  MarkChanged(*this);
}

void Grid::Shape(int rows, int cols) {
  TextMatrix.assign(static_cast<std::size_t>(rows), std::vector<String>(static_cast<std::size_t>(cols)));
  ColWidth.assign(static_cast<std::size_t>(cols), 0);
  MarkChanged(*this);
}

void Grid::SetCell(int row, int col, const String& text) {
  if (row < 0 || row >= Rows() || col < 0 || col >= Cols()) throw RuntimeError(9);
  TextMatrix[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)] = text;
  MarkChanged(*this);
}

void Grid::SetColWidth(int col, int width) {
  if (col < 0 || col >= Cols()) throw RuntimeError(9);
  ColWidth[static_cast<std::size_t>(col)] = width;
  MarkChanged(*this);
}

}  // namespace Tarnwise
