#include "view/qt/QtSurface.h"

#include "view/qt/QtPaint.h"

namespace Tarnwise {

namespace {

QPolygonF Points(const std::vector<Spot>& spots) {
  QPolygonF points;
  for (const Spot& spot : spots) points << QPointF(spot.X, spot.Y);
  return points;
}

QRectF Rectangle(const Box& box) { return {box.Left, box.Top, box.Width(), box.Height()}; }

}  // namespace

void QtSurface::Take(const Ink& ink) {
  painter_.setRenderHint(QPainter::Antialiasing);
  painter_.setBrush(ink.Fill ? QBrush(ToQColor(*ink.Fill)) : QBrush(Qt::NoBrush));
  QColor edge = ToQColor(ink.Edge.value_or(0));
  edge.setAlphaF(static_cast<float>(ink.Opacity));
  painter_.setPen(ink.Edge ? QPen(edge, ink.Width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin) : QPen(Qt::NoPen));
}

void QtSurface::Fill(const Box& box, Colour colour) { painter_.fillRect(Rectangle(box), ToQColor(colour)); }

void QtSurface::Straight(Spot from, Spot to, Colour colour, double width) {
  painter_.setRenderHint(QPainter::Antialiasing, false);
  painter_.setPen(QPen(ToQColor(colour), width, Qt::SolidLine, Qt::RoundCap));
  painter_.drawLine(QPointF(from.X, from.Y), QPointF(to.X, to.Y));
}

void QtSurface::Polyline(const std::vector<Spot>& spots, const Ink& ink) {
  Take(ink);
  painter_.drawPolyline(Points(spots));
}

void QtSurface::Polygon(const std::vector<Spot>& spots, const Ink& ink) {
  Take(ink);
  painter_.drawPolygon(Points(spots), ink.Winding ? Qt::WindingFill : Qt::OddEvenFill);
}

void QtSurface::Ellipse(const Box& box, const Ink& ink) {
  Take(ink);
  painter_.drawEllipse(Rectangle(box));
}

void QtSurface::RoundBox(const Box& box, double radius, const Ink& ink) {
  Take(ink);
  painter_.drawRoundedRect(Rectangle(box), radius, radius);
}

void QtSurface::Text(const Box& room, const Writing& text, Colour ink) {
  const QRect place = Rectangle(room).toRect();
  const int across = text.Across == Align::Left    ? Qt::AlignLeft
                     : text.Across == Align::Right ? Qt::AlignRight
                                                   : Qt::AlignHCenter;
  const int lines = text.Wraps ? Qt::AlignTop | Qt::TextWordWrap : Qt::AlignVCenter;
  painter_.setFont(FontOf(text.Face));
  painter_.setPen(ToQColor(ink));
  QString shown = Tarnwise::Text(text.Text);
  if (!text.Wraps) {
    shown = painter_.fontMetrics().elidedText(shown, Qt::ElideRight, place.width() + 1, Qt::TextShowMnemonic);
  }
  painter_.drawText(place, across | lines | Qt::TextShowMnemonic, shown);
}

int QtSurface::WidthOf(const String& text, const TypeFace& face) const { return TextWidthIn(face, text); }

}  // namespace Tarnwise
