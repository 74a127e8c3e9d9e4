#include "view/qt/QtPaint.h"

#include "view/Captions.h"
#include "view/Gesture.h"
#include "view/Painting.h"
#include "view/Pictures.h"
#include "view/qt/QtSurface.h"

#include <QApplication>
#include <QFontMetrics>
#include <QWidget>

namespace Tarnwise {

namespace {

Colour ColourOf(const QColor& colour) {
  return static_cast<Colour>(colour.red()) | (static_cast<Colour>(colour.green()) << 8U) |
         (static_cast<Colour>(colour.blue()) << 16U);
}

}  // namespace

QString Caption(const String& caption) { return Text(MarkedCaption(caption)); }

QString PlainCaption(const String& caption) { return Text(UnmarkedCaption(caption)); }

QColor ToQColor(Colour colour) {
  return QColor(static_cast<int>(colour & 0xFFU), static_cast<int>((colour >> 8U) & 0xFFU),
                static_cast<int>((colour >> 16U) & 0xFFU));
}

Palette ColoursOf(const QPalette& palette) {
  const auto of = [&palette](QPalette::ColorRole role) { return ColourOf(palette.color(QPalette::Active, role)); };
  return {of(QPalette::Window), of(QPalette::WindowText), of(QPalette::Base),      of(QPalette::Text),
          of(QPalette::Button), of(QPalette::ButtonText), of(QPalette::Highlight), of(QPalette::HighlightedText)};
}

QPalette WithGrounds(QPalette palette, const Palette& colours) {
  const auto set = [&palette](QPalette::ColorRole role, Colour colour) {
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
      if (ColourOf(palette.color(group, role)) != colour) palette.setColor(group, role, ToQColor(colour));
    }
  };
  set(QPalette::Window, colours.Window);
  set(QPalette::Base, colours.Base);
  set(QPalette::Button, colours.Button);
  set(QPalette::Highlight, colours.Highlight);
  const QColor other = palette.color(QPalette::Active, QPalette::AlternateBase);
  if (Contrast(ColourOf(other), colours.Text) < kReadable) set(QPalette::AlternateBase, colours.Base);
  return palette;
}

void ShowOutline(QWidget& widget, const Palette& colours) {
  constexpr int kStylesDarken = 140;  // percent
  constexpr double kClear = 3.0;
  const Colour edge = BoxEdge(colours);
  const bool helps = IsDark(colours.Window) || Contrast(edge, colours.Window) > kClear;
  const QColor wanted = helps ? ToQColor(edge).lighter(kStylesDarken) : ToQColor(colours.Window);
  QPalette palette = widget.palette();
  if (palette.color(QPalette::Active, QPalette::Window) == wanted) return;
  palette.setColor(QPalette::Window, wanted);
  widget.setPalette(palette);
}

QFont FontOf(const TypeFace& face) {
  QFont font = QApplication::font();
  font.setPixelSize((face.Points * 4 + 1) / 3);
  font.setBold(face.Bold);
  font.setStretch(face.Stretch);
  return font;
}

int TextWidthIn(const TypeFace& face, const String& text) {
  return QFontMetrics(FontOf(face)).size(0, Text(text)).width();
}

QPixmap PicturePixmap(const String& name, int size, double ratio, Colour ground, int opacity) {
  QPixmap pixmap((QSizeF(size, size) * ratio).toSize());
  pixmap.setDevicePixelRatio(ratio);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setOpacity(opacity / 100.0);
  QtSurface surface(painter);
  const auto side = static_cast<double>(size);
  PaintPicture(surface, name, {0.0, 0.0, side, side}, ground);
  return pixmap;
}

QIcon PictureIcon(const String& name, Colour ground, int side) {
  QIcon icon;
  if (FindPicture(name) == nullptr) return icon;
  const double ratio = qApp->devicePixelRatio();
  icon.addPixmap(PicturePixmap(name, side, ratio, ground));
  icon.addPixmap(PicturePixmap(name, side, ratio, ground, kDisabledOpacity), QIcon::Disabled);
  return icon;
}

Qt::CursorShape CursorFor(int mousePointer) {
  switch (mousePointer) {
    case kTextPointer: return Qt::IBeamCursor;
    case kHourglass: return Qt::WaitCursor;
    case kNoDrop: return Qt::ForbiddenCursor;
    case kGrabPointer: return Qt::OpenHandCursor;
    case kCarryPointer: return Qt::ClosedHandCursor;
    default: return Qt::ArrowCursor;
  }
}

}  // namespace Tarnwise
