#include "view/qt/QtPaint.h"

#include "view/Captions.h"
#include "view/Pictures.h"
#include "view/Reach.h"

#include <QApplication>
#include <QFontMetrics>
#include <algorithm>
#include <cmath>

namespace Tarnwise {

namespace {

const QColor kDarkInk(31, 41, 55);

QColor PictureColour(Colour colour) {
  return QColor(static_cast<int>(colour & 0xFFU), static_cast<int>((colour >> 8U) & 0xFFU),
                static_cast<int>((colour >> 16U) & 0xFFU));
}

void DrawShape(QPainter& painter, const PictureShape& shape) {
  painter.setBrush(shape.Fill ? QBrush(PictureColour(*shape.Fill)) : QBrush(Qt::NoBrush));
  painter.setPen(shape.Stroke ? QPen(PictureColour(*shape.Stroke), static_cast<double>(shape.StrokeWidth),
                                     Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin)
                              : QPen(Qt::NoPen));
  QPolygonF points;
  for (std::size_t i = 0; i + 1 < shape.Points.size(); i += 2) {
    points << QPointF(static_cast<double>(shape.Points[i]), static_cast<double>(shape.Points[i + 1]));
  }
  switch (shape.Shape) {
    case PictureShape::What::Polygon: painter.drawPolygon(points); break;
    case PictureShape::What::Ellipse: painter.drawEllipse(QRectF(points.first(), points.last())); break;
    case PictureShape::What::Polyline: painter.drawPolyline(points); break;
  }
}

}  // namespace

QString Caption(const String& caption) { return Text(MarkedCaption(caption)); }

QString PlainCaption(const String& caption) { return Text(UnmarkedCaption(caption)); }

double PixelsPerUnit(const Control& container) { return UnitOf(container) / static_cast<double>(kTwipsPerPixel); }

QRect PixelPlace(const Control& control) {
  const double unit = control.Parent == nullptr ? 1.0 / 15.0 : PixelsPerUnit(*control.Parent);
  const auto edge = [unit](Single at) { return static_cast<int>(std::lround(static_cast<double>(at) * unit)); };
  const int left = edge(control.Left);
  const int top = edge(control.Top);
  return {left, top, edge(control.Left + control.Width) - left, edge(control.Top + control.Height) - top};
}

bool IsSystemColour(Colour colour) { return (colour & 0x80000000U) != 0; }

QColor ToQColor(Colour colour, const QPalette& palette) {
  switch (colour) {
    case kWindowBackground: return palette.color(QPalette::Base);
    case kWindowText: return palette.color(QPalette::Text);
    case kHighlightText: return palette.color(QPalette::HighlightedText);
    case kButtonFace: return palette.color(QPalette::Window);
    case kButtonText: return palette.color(QPalette::WindowText);
    default: return PictureColour(colour);
  }
}

QColor InkOn(const QColor& ground) { return qGray(ground.rgb()) > 120 ? kDarkInk : QColor(Qt::white); }

QColor GroundOf(const Control& control, const QPalette& palette) {
  for (const Control* around = control.Parent; around != nullptr; around = around->Parent) {
    if (around->Type != Kind::PictureBox) continue;
    return ToQColor(static_cast<const PictureBox*>(around)->BackColor, palette);
  }
  return palette.color(QPalette::Window);
}

QFont BaseFont(int points, bool bold) {
  QFont font = QApplication::font();
  font.setPixelSize((points * 4 + 1) / 3);
  font.setBold(bold);
  return font;
}

QFont FittedFont(const QFont& font, const QString& text, int width) {
  QFont fitted = font;
  for (const int stretch : {100, 95, 90, 85}) {
    fitted.setStretch(stretch);
    if (QFontMetrics(fitted).size(Qt::TextShowMnemonic, text).width() <= width) break;
  }
  return fitted;
}

void DrawPicture(QPainter& painter, const String& name, const QRectF& place) {
  const Picture* const picture = FindPicture(name);
  if (picture == nullptr || place.isEmpty()) return;
  const auto width = static_cast<double>(picture->Width);
  const auto height = static_cast<double>(picture->Height);
  const double scale = std::min(place.width() / width, place.height() / height);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(place.center() - QPointF(width, height) * scale / 2.0);
  painter.scale(scale, scale);
  for (const PictureShape& shape : picture->Shapes) DrawShape(painter, shape);
  painter.restore();
}

QPixmap PicturePixmap(const String& name, int size, double ratio) {
  QPixmap pixmap((QSizeF(size, size) * ratio).toSize());
  pixmap.setDevicePixelRatio(ratio);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  DrawPicture(painter, name, QRectF(0, 0, size, size));
  return pixmap;
}

QIcon PictureIcon(const String& name) {
  QIcon icon;
  if (FindPicture(name) == nullptr) return icon;
  for (const int size : {16, 20, 24, 32, 40, 48, 64}) icon.addPixmap(PicturePixmap(name, size, 1.0));
  return icon;
}

Qt::CursorShape CursorFor(int mousePointer) {
  switch (mousePointer) {
    case 2: return Qt::CrossCursor;
    case 3: return Qt::IBeamCursor;
    case 5:
    case 15: return Qt::SizeAllCursor;
    case 6: return Qt::SizeBDiagCursor;
    case 7: return Qt::SizeVerCursor;
    case 8: return Qt::SizeFDiagCursor;
    case 9: return Qt::SizeHorCursor;
    case 10: return Qt::UpArrowCursor;
    case 11: return Qt::WaitCursor;
    case 12: return Qt::ForbiddenCursor;
    case 13: return Qt::BusyCursor;
    case 14: return Qt::WhatsThisCursor;
    default: return Qt::ArrowCursor;
  }
}

}  // namespace Tarnwise
