// The platform's style, but for two things that it leaves to be wished: on a palette of high contrast its frames and
// boxes have the colour of their ground, and texts too long for a list box are cut in the middle of a letter.
#pragma once

#include <QProxyStyle>

namespace Tarnwise {

// Whether frames that are a shade of the ground can't be seen on it: black or white ground, the other one for texts.
bool IsHighContrast(const QPalette& palette);

class WindowStyle : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override;
};

}  // namespace Tarnwise
