// How the tree's lengths, colours and pictures look in Qt.
#pragma once

#include "view/Lettering.h"
#include "view/Look.h"
#include "view/Pixels.h"

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QPainter>
#include <QPalette>
#include <QRect>
#include <QString>

namespace Tarnwise {

inline QString Text(const String& text) { return QString::fromStdString(text); }
inline String Text(const QString& text) { return text.toStdString(); }

// A caption with its mnemonic. An ampersand inside a name ("R&D", "bed & board") is no mnemonic and stays visible.
QString Caption(const String& caption);
QString PlainCaption(const String& caption);  // without marks, for what is read aloud or shown in a tool tip

inline QRect ToQRect(const PixelRect& place) { return {place.Left, place.Top, place.Width(), place.Height()}; }

inline PixelRect ToPixelRect(const QRect& r) { return {r.left(), r.top(), r.left() + r.width(), r.top() + r.height()}; }

QColor ToQColor(Colour colour);  // a number, not one of the platform's names
Palette ColoursOf(const QPalette& palette);
// The palette with the grounds of those colours, so that Qt's own widgets show them.
QPalette WithGrounds(QPalette palette, const Palette& colours);

// Styles make the outlines of their widgets by darkening the window's colour: of one that is dark already, where there
// is nothing to see then, the widget gets a lighter one.
void ShowOutline(QWidget& widget, const Palette& colours);

QFont FontOf(const TypeFace& face = {});
int TextWidthIn(const TypeFace& face, const String& text);  // without marks

// Pictures in colours for the ground that they stand on.
QPixmap PicturePixmap(const String& name, int size, double ratio, Colour ground, int opacity = 100);
QIcon PictureIcon(const String& name, Colour ground, int side);

Qt::CursorShape CursorFor(int mousePointer);

}  // namespace Tarnwise
