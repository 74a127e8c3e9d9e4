// Command buttons, option buttons, check boxes and tool bars.
#include "view/Pictures.h"
#include "view/qt/QtForm.h"
#include "view/qt/QtKinds.h"
#include "view/qt/QtPaint.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStyleOptionButton>
#include <QToolButton>

namespace Tarnwise {

namespace {

// A push button in the platform's look, or a flat one where the form gives it a colour of its own.
class ButtonWidget : public QPushButton {
 public:
  ButtonWidget(QtForm& form, QWidget* parent) : QPushButton(parent), form_(form) {}
  bool Flat = false;

 protected:
  void initStyleOption(QStyleOptionButton* option) const override {
    QPushButton::initStyleOption(option);
    if (underMouse()) option->state.setFlag(QStyle::State_MouseOver);
  }

  void paintEvent(QPaintEvent* event) override {
    if (Flat)
      form_.Paint(*this, event->rect());
    else
      QPushButton::paintEvent(event);
  }

 private:
  QtForm& form_;
};

void SetCaption(const QtForm& form, const Control& control, QAbstractButton& button) {
  const FittedCaption caption = form.Fitted(control);
  const QFont font = FontOf(caption.Shown.Face);
  if (button.font() != font) button.setFont(font);
  const QString plain = PlainCaption(CaptionOf(control));
  const QString text = caption.Cut
                           ? QFontMetrics(font).elidedText(plain, Qt::ElideRight, caption.Room).replace("&", "&&")
                           : Text(caption.Shown.Text);
  if (button.text() != text) button.setText(text);
}

// The widget's own toggling is undone or confirmed by what the tree says afterwards.
void TellClicks(QtForm& form, QAbstractButton& button) {
  QObject::connect(&button, &QAbstractButton::clicked, &form,
                   [&form, &button] { form.Clicked(form.ControlOf(&button)); });
}

QWidget* MakeButton(QtForm& form, Control& control, QWidget& parent) {
  auto* const button = new ButtonWidget(form, &parent);
  button->setAutoDefault(false);
  button->setDefault(static_cast<CommandButton&>(control).Default);
  button->setAttribute(Qt::WA_Hover);
  TellClicks(form, *button);
  return button;
}

void SyncButton(QtForm& form, Control& control, QWidget& widget) {
  auto& shown = static_cast<ButtonWidget&>(widget);
  SetCaption(form, control, shown);
  shown.Flat = static_cast<CommandButton&>(control).BackColor != kButtonFace;
  if (shown.Flat) widget.update();
}

void Check(QAbstractButton& button, bool on) {
  const QSignalBlocker quiet(button);
  if (button.isChecked() != on) button.setChecked(on);
}

void SetInk(const QtForm& form, QWidget& widget, const Control& control) {
  const QColor ink = ToQColor(TextOn(GroundOf(control, form.Colours()), form.Colours()));
  QPalette palette = widget.palette();
  if (palette.color(QPalette::Active, QPalette::WindowText) == ink) return;
  palette.setColor(QPalette::Active, QPalette::WindowText, ink);
  palette.setColor(QPalette::Inactive, QPalette::WindowText, ink);
  widget.setPalette(palette);
}

QWidget* MakeOption(QtForm& form, Control& /*control*/, QWidget& parent) {
  auto* const option = new QRadioButton(&parent);
  option->setAutoExclusive(false);
  TellClicks(form, *option);
  return option;
}

void SyncOption(QtForm& form, Control& control, QWidget& widget) {
  auto& shown = static_cast<QRadioButton&>(widget);
  SetInk(form, widget, control);
  SetCaption(form, control, shown);
  Check(shown, static_cast<OptionButton&>(control).Value);
}

QWidget* MakeCheck(QtForm& form, Control& /*control*/, QWidget& parent) {
  auto* const box = new QCheckBox(&parent);
  TellClicks(form, *box);
  return box;
}

void SyncCheck(QtForm& form, Control& control, QWidget& widget) {
  auto& shown = static_cast<QCheckBox&>(widget);
  SetInk(form, widget, control);
  SetCaption(form, control, shown);
  Check(shown, static_cast<CheckBox&>(control).Value != 0);
}

QWidget* MakeToolbar(QtForm& /*form*/, Control& /*control*/, QWidget& parent) { return new QWidget(&parent); }

void AddTool(QtForm& form, Toolbar& bar, QWidget& widget, int i) {
  const Toolbar::Button& button = bar.Buttons[static_cast<std::size_t>(i)];
  auto* const tool = new QToolButton(&widget);
  tool->setObjectName(Text(button.Key));
  tool->setAutoRaise(false);
  tool->setFocusPolicy(Qt::NoFocus);
  tool->setToolTip(Text(button.ToolTip));
  tool->setAccessibleName(Text(button.ToolTip.empty() ? button.Key : button.ToolTip));
  if (FindPicture(button.Picture) == nullptr) tool->setText(Text(button.Key));
  tool->show();
  form.Watch(*tool, bar);
  QObject::connect(tool, &QToolButton::clicked, &form,
                   [&form, &widget, i] { form.ToolPressed(form.ControlOf(&widget), i); });
}

QList<QToolButton*> ButtonsIn(const QWidget& widget) {
  return widget.findChildren<QToolButton*>(QString(), Qt::FindDirectChildrenOnly);
}

// Drawn for the ground of the platform's buttons, and anew for another one.
void SetPicture(QToolButton& tool, const String& name, Colour ground) {
  const QVariant drawn = tool.property("ground");
  if (drawn.isValid() && drawn.toUInt() == ground) return;
  tool.setProperty("ground", ground);
  tool.setIcon(PictureIcon(name, ground, tool.iconSize().height()));
}

void SyncToolbar(QtForm& form, Control& control, QWidget& widget) {
  auto& bar = static_cast<Toolbar&>(control);
  const int wanted = static_cast<int>(bar.Buttons.size());
  for (int i = static_cast<int>(ButtonsIn(widget).size()); i < wanted; ++i) AddTool(form, bar, widget, i);
  const auto tools = ButtonsIn(widget);
  const auto [side, upright] = ToolsOf(bar, form.Scale());
  for (int i = 0; i < tools.size(); ++i) {
    tools[i]->setGeometry(upright ? 0 : i * side, upright ? i * side : 0, side, side);
    tools[i]->setIconSize(QSize(side, side) * 5 / 8);
    tools[i]->setEnabled(bar.Buttons[static_cast<std::size_t>(i)].Enabled);
    SetPicture(*tools[i], bar.Buttons[static_cast<std::size_t>(i)].Picture, form.Colours().Button);
    // With the keyboard on the bar a ring shows which button it presses.
    const bool ring = bar.Owner.ActiveControl == &bar && i + 1 == bar.Current;
    const QString style = ring ? QStringLiteral("border: 2px solid palette(highlight); border-radius: 3px") : QString();
    if (tools[i]->styleSheet() != style) tools[i]->setStyleSheet(style);
  }
}

}  // namespace

const QtKind kQtCommandButton{MakeButton, SyncButton};
const QtKind kQtOptionButton{MakeOption, SyncOption};
const QtKind kQtCheckBox{MakeCheck, SyncCheck};
const QtKind kQtToolbar{MakeToolbar, SyncToolbar};

}  // namespace Tarnwise
