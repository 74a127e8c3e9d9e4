// How the tree's lengths, colours and pictures look in Qt.
#pragma once

#include "view/Controls.h"

#include <QColor>
#include <QCursor>
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

double PixelsPerUnit(const Control& container);  // logical pixels in a unit of its scale
QRect PixelPlace(const Control& control);        // in its container, edges on whole pixels

bool IsSystemColour(Colour colour);
QColor ToQColor(Colour colour, const QPalette& palette);
QColor InkOn(const QColor& ground);  // a text colour that can be read on it
// What a control stands on: the next coloured box around it, else the window's colour.
QColor GroundOf(const Control& control, const QPalette& palette);

QFont BaseFont(int points = 9, bool bold = false);
// The font, a little narrower where the text would not fit the width otherwise.
QFont FittedFont(const QFont& font, const QString& text, int width);

void DrawPicture(QPainter& painter, const String& name, const QRectF& place);
QPixmap PicturePixmap(const String& name, int size, double ratio);
QIcon PictureIcon(const String& name);

Qt::CursorShape CursorFor(int mousePointer);

}  // namespace Tarnwise
