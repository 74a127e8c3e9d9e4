#include "view/qt/QtPictureBox.h"

#include "view/Painting.h"
#include "view/qt/QtForm.h"
#include "view/qt/QtKinds.h"
#include "view/qt/QtPaint.h"
#include "view/qt/QtSurface.h"

#include <QEvent>
#include <QPaintEvent>
#include <QStyle>

namespace Tarnwise {

namespace {

// The frame of a bordered box stands in front of whatever the box contains.
class BorderWidget : public QWidget {
 public:
  BorderWidget(QtForm& form, QWidget* parent) : QWidget(parent), form_(form) {
    setObjectName("border");
    setAttribute(Qt::WA_TransparentForMouseEvents);
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
  void resizeEvent(QResizeEvent* /*event*/) override {
    setMask(QRegion(rect()).subtracted(QRegion(rect().adjusted(2, 2, -2, -2))));
  }

 private:
  QtForm& form_;
};

BorderWidget* BorderOf(const QWidget& box) {
  return static_cast<BorderWidget*>(box.findChild<QWidget*>("border", Qt::FindDirectChildrenOnly));
}

void SyncPictureBox(QtForm& form, Control& control, QWidget& widget) {
  const bool bordered = static_cast<PictureBox&>(control).Bordered && !IsHandle(control);
  BorderWidget* const border = BorderOf(widget);
  if (border != nullptr) border->setVisible(bordered);
  if (border == nullptr && bordered) {
    auto* const fresh = new BorderWidget(form, &widget);
    fresh->setGeometry(widget.rect());
    fresh->show();
  }
  widget.update();
}

QWidget* MakeBox(QtForm& form, Control& control, QWidget& parent) { return new QtBox(form, control, parent); }

void SyncShape(QtForm& /*form*/, Control& /*control*/, QWidget& widget) { widget.update(); }

}  // namespace

QtBox::QtBox(QtForm& form, Control& control, QWidget& parent) : QWidget(&parent), form_(form) {
  if (control.Type == Kind::PictureBox && !IsHandle(control)) setAttribute(Qt::WA_OpaquePaintEvent);
}

Control* QtBox::Source() const { return form_.ControlOf(this); }

void QtBox::paintEvent(QPaintEvent* event) {
  const Control* const control = Source();
  if (control == nullptr) return;
  QPainter painter(this);
  QtSurface surface(painter);
  const Brushes brushes{surface, form_.Colours()};
  if (control->Type == Kind::Shape || IsHandle(*control)) {
    PaintHandle(brushes, *control, ToPixelRect(rect()), {hasFocus(), underMouse()});
    return;
  }
  PaintContainer(brushes, *control, ToPixelRect(rect()), ToPixelRect(event->rect()));
  if (hasFocus() && control->DragAutomatic) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
  }
}

void QtBox::resizeEvent(QResizeEvent* /*event*/) {
  if (QWidget* const border = BorderOf(*this)) border->setGeometry(rect());
}

void QtBox::enterEvent(QEnterEvent* /*event*/) {
  if (Source() != nullptr && Source()->DragAutomatic) update();
}

void QtBox::leaveEvent(QEvent* /*event*/) {
  if (Source() != nullptr && Source()->DragAutomatic) update();
}

const QtKind kQtPictureBox{MakeBox, SyncPictureBox};
const QtKind kQtShape{MakeBox, SyncShape};

const QtKind* KindOf(const Control& control) {
  switch (control.Type) {
    case Kind::Label: return &kQtLabel;
    case Kind::Image: return &kQtImage;
    case Kind::Frame: return &kQtFrame;
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
    case Kind::PictureBox: return &kQtPictureBox;
    case Kind::Shape: return IsPainted(control) ? nullptr : &kQtShape;
    default: return nullptr;
  }
}

}  // namespace Tarnwise
