#include "view/qt/QtPictureBox.h"

#include "view/Reach.h"
#include "view/qt/QtForm.h"
#include "view/qt/QtKinds.h"
#include "view/qt/QtPaint.h"

#include <QEvent>
#include <QPaintEvent>
#include <QStyle>
#include <algorithm>
#include <cmath>

namespace Tarnwise {

namespace {

constexpr double kHandleRadius = 5.0;  // as drawn, whatever its size in the tree
constexpr double kSlantedLine = 1.6;   // pixels

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

// Upright and level lines stay on whole pixels, slanted ones are smoothed.
void DrawLine(QPainter& painter, const QPointF& from, const QPointF& to, const QColor& colour, double width) {
  const bool straight = std::abs(from.x() - to.x()) < 0.01 || std::abs(from.y() - to.y()) < 0.01;
  painter.setRenderHint(QPainter::Antialiasing, !straight);
  painter.setPen(QPen(colour, straight ? width : width * kSlantedLine, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(from, to);
}

void DrawShapeControl(QPainter& painter, const Shape& shape, const QRectF& place, const Palette& palette) {
  painter.setRenderHint(QPainter::Antialiasing);
  const ShapeLook look = LookOf(shape, palette);
  painter.setBrush(ToQColor(look.Fill));
  painter.setPen(QPen(ToQColor(look.Edge), 1.0));
  const QRectF body = place.adjusted(0.75, 0.75, -0.75, -0.75);
  if (shape.Round)
    painter.drawEllipse(body);
  else
    painter.drawRoundedRect(body, 2.0, 2.0);
}

QPointF EndOf(Single x, Single y, double unit) {
  return {static_cast<double>(x) * unit, static_cast<double>(y) * unit};
}

void PaintLine(QPainter& painter, const Line& line, const Palette& palette) {
  const double unit = PixelsPerUnit(*line.Parent, 1.0);
  DrawLine(painter, EndOf(line.X1, line.Y1, unit), EndOf(line.X2, line.Y2, unit), ToQColor(InkOf(line, palette)), 1.0);
}

void PaintDrawn(QPainter& painter, const Drawn& drawn, double unit, Colour ground) {
  QPolygonF points;
  for (std::size_t i = 0; i + 1 < drawn.Points.size(); i += 2) {
    points << EndOf(drawn.Points[i], drawn.Points[i + 1], unit);
  }
  const QColor ink = ToQColor(InkOf(drawn, ground));
  if (drawn.Shape == Drawn::What::Polygon) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawPolygon(points, Qt::WindingFill);
  } else if (points.size() >= 2 && drawn.Shape == Drawn::What::Line) {
    DrawLine(painter, points[0], points[1], ink, drawn.LineWidth);
  } else if (points.size() >= 2) {
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(ink, drawn.LineWidth));
    painter.drawRect(QRectF(points[0], points[1]).normalized());
  }
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

void PaintChildren(QPainter& painter, const QtForm& form, const Control& container, const QRect& area) {
  for (const Control* control : ChildrenOf(container.Owner, &container)) {
    if (!IsPainted(*control) || !control->Visible || !ToQRect(PaintedPlace(*control, 1.0)).intersects(area)) continue;
    if (control->Type == Kind::Line)
      PaintLine(painter, static_cast<const Line&>(*control), form.Colours());
    else
      DrawShapeControl(painter, static_cast<const Shape&>(*control), QRectF(ToQRect(PixelPlace(*control, 1.0))),
                       form.Colours());
  }
}

QtBox::QtBox(QtForm& form, Control& control, QWidget& parent) : QWidget(&parent), form_(form) {
  if (control.Type == Kind::PictureBox && !IsHandle(control)) setAttribute(Qt::WA_OpaquePaintEvent);
}

Control* QtBox::Source() const { return form_.ControlOf(this); }

void QtBox::paintEvent(QPaintEvent* event) {
  const Control* const control = Source();
  if (control == nullptr) return;
  QPainter painter(this);
  if (control->Type == Kind::Shape) {
    PaintHandle(painter, static_cast<const Shape*>(control)->FillColor, static_cast<const Shape*>(control)->Round);
  } else if (IsHandle(*control)) {
    PaintHandle(painter, static_cast<const PictureBox*>(control)->BackColor, true);
  } else {
    PaintBox(painter, static_cast<const PictureBox&>(*control));
    PaintChildren(painter, form_, *control, event->rect());
  }
}

void QtBox::PaintBox(QPainter& painter, const PictureBox& box) {
  const Colour ground = FillOf(box, form_.Colours());
  painter.fillRect(rect(), ToQColor(ground));
  DrawPicture(painter, box.Picture, QRectF(rect()).adjusted(6, 6, -6, -6), ground);
  for (const Drawn& drawn : box.Drawing) PaintDrawn(painter, drawn, PixelsPerUnit(box, 1.0), ground);
  if (hasFocus() && box.DragAutomatic) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
  }
}

void QtBox::PaintHandle(QPainter& painter, Colour colour, bool round) {
  const Control& control = *Source();
  const Colour ground = GroundOf(control, form_.Colours());
  painter.setRenderHint(QPainter::Antialiasing);
  const QPointF middle = QRectF(rect()).center();
  const double own = std::min(rect().width(), rect().height()) / 2.0 - kGrabMargin;
  const double radius = std::max(own, kHandleRadius) - (underMouse() ? 0.0 : 0.5);
  if (control.Type == Kind::PictureBox && !static_cast<const PictureBox&>(control).Picture().empty()) {
    DrawPicture(painter, static_cast<const PictureBox&>(control).Picture, QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5),
                ground);
  } else {
    painter.setBrush(ToQColor(MarkOn(colour, ground)));
    painter.setPen(QPen(ToQColor(ground), 1.5));
    const QRectF body(middle - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius));
    if (round)
      painter.drawEllipse(body);
    else
      painter.drawRoundedRect(body, 2, 2);
  }
  if (!hasFocus() && !underMouse()) return;
  painter.setBrush(Qt::NoBrush);
  QColor ring = palette().color(QPalette::Highlight);
  if (!hasFocus()) ring.setAlphaF(0.5F);
  painter.setPen(QPen(ring, 2.0));
  const double around = std::min(rect().width(), rect().height()) / 2.0 - 1.0;
  painter.drawEllipse(middle, around, around);
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
