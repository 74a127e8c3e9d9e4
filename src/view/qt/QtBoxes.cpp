// What the tree paints: labels, images, frames, picture boxes and handles.
#include "view/Captions.h"
#include "view/Painting.h"
#include "view/Reach.h"
#include "view/qt/QtForm.h"
#include "view/qt/QtKinds.h"
#include "view/qt/QtPaint.h"

#include <QGroupBox>
#include <QLabel>

namespace Tarnwise {

namespace {

// The frame of a bordered box stands in front of whatever the box contains.
class BorderWidget : public QWidget {
 public:
  BorderWidget(QtForm& form, QWidget* parent) : QWidget(parent), form_(form) {
    setObjectName("border");
    setAttribute(Qt::WA_TransparentForMouseEvents);
  }
  void Surround() {
    const QRect all = parentWidget()->rect();
    if (geometry() == all) return;
    setGeometry(all);
    setMask(QRegion(all).subtracted(QRegion(all.adjusted(2, 2, -2, -2))));
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    const QColor colour = ToQColor(BoxEdge(form_.Colours()));
    // Filled, not stroked: a line may fall between the pixels where the screen's scale is no whole number.
    painter.fillRect(0, 0, width(), 1, colour);
    painter.fillRect(0, height() - 1, width(), 1, colour);
    painter.fillRect(0, 0, 1, height(), colour);
    painter.fillRect(width() - 1, 0, 1, height(), colour);
  }

 private:
  QtForm& form_;
};

void SyncBorder(QtForm& form, QWidget& box, bool bordered) {
  auto* border = static_cast<BorderWidget*>(box.findChild<QWidget*>("border", Qt::FindDirectChildrenOnly));
  if (border == nullptr && !bordered) return;
  if (border == nullptr) border = new BorderWidget(form, &box);
  border->Surround();
  border->setVisible(bordered);
}

// Qt finds a mnemonic only where there is a widget that the label stands for.
void SetBuddy(QtForm& form, const Label& label, QLabel& shown) {
  const Control* const meant = LabelledBy(label);
  QWidget* const buddy = meant == nullptr ? nullptr : form.WidgetOf(*meant);
  QWidget* const wanted = buddy != nullptr ? buddy : &form.Window();
  if (shown.buddy() != wanted) shown.setBuddy(wanted);
}

QWidget* MakeLabel(QtForm& form, Control& /*control*/, QWidget& parent) {
  auto* const label = new Painted<QLabel>(form, &parent);
  label->setTextFormat(Qt::PlainText);
  return label;
}

void SyncLabel(QtForm& form, Control& control, QWidget& widget) {
  const auto& label = static_cast<const Label&>(control);
  auto& shown = static_cast<QLabel&>(widget);
  const QString text = Caption(label.Caption);
  if (shown.text() != text) shown.setText(text);
  if (MnemonicOf(label.Caption) != 0) SetBuddy(form, label, shown);
  widget.update();
}

QWidget* MakeFrame(QtForm& form, Control& /*control*/, QWidget& parent) {
  auto* const frame = new Painted<QGroupBox>(form, &parent);
  frame->setFocusPolicy(Qt::NoFocus);
  frame->setAttribute(Qt::WA_OpaquePaintEvent);
  return frame;
}

void SyncFrame(QtForm& /*form*/, Control& control, QWidget& widget) {
  auto& frame = static_cast<QGroupBox&>(widget);
  const QString title = Caption(CaptionOf(control));
  if (frame.title() != title) frame.setTitle(title);
  widget.update();
}

QWidget* MakeBox(QtForm& form, Control& control, QWidget& parent) {
  auto* const box = new QtBox(form, &parent);
  box->setAttribute(Qt::WA_OpaquePaintEvent, IsOpaque(control));
  box->setAttribute(Qt::WA_Hover, control.DragAutomatic);
  return box;
}

void SyncBox(QtForm& form, Control& control, QWidget& widget) {
  const bool box = control.Type == Kind::PictureBox && IsOpaque(control);
  if (box) SyncBorder(form, widget, static_cast<PictureBox&>(control).Bordered);
  widget.update();
}

}  // namespace

Control* QtBox::Source() const { return form_.ControlOf(this); }

const QtKind kQtLabel{MakeLabel, SyncLabel};
const QtKind kQtFrame{MakeFrame, SyncFrame};
const QtKind kQtBox{MakeBox, SyncBox};

const QtKind* KindOf(const Control& control) {
  switch (control.Type) {
    case Kind::Label: return &kQtLabel;
    case Kind::Frame: return &kQtFrame;
    case Kind::Image:
    case Kind::PictureBox: return &kQtBox;
    case Kind::Shape: return IsPainted(control) ? nullptr : &kQtBox;
    case Kind::CommandButton: return &kQtCommandButton;
    case Kind::OptionButton: return &kQtOptionButton;
    case Kind::CheckBox: return &kQtCheckBox;
    case Kind::Toolbar: return &kQtToolbar;
    case Kind::TextBox: return &kQtTextBox;
    case Kind::ListBox: return &kQtListBox;
    case Kind::TabStrip: return &kQtTabStrip;
    case Kind::ComboBox: return &kQtComboBox;
    case Kind::ImageCombo: return &kQtImageCombo;
    case Kind::Grid: return &kQtGrid;
    case Kind::VScrollBar: return &kQtScrollBar;
    default: return nullptr;
  }
}

}  // namespace Tarnwise
