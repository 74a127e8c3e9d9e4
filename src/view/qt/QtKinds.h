// The native widget of each kind of control: how it is made, and how it is brought to what its record says.
// Programmatic changes raise nothing.
#pragma once

#include "view/Controls.h"

#include <QWidget>

namespace Tarnwise {

class QtForm;

struct QtKind {
  QWidget* (*Make)(QtForm& form, Control& control, QWidget& parent);
  void (*Sync)(QtForm& form, Control& control, QWidget& widget);
};

// Null for kinds without a widget of their own: timers, lines, and shapes that only stand there.
const QtKind* KindOf(const Control& control);

extern const QtKind kQtLabel;
extern const QtKind kQtImage;
extern const QtKind kQtFrame;
extern const QtKind kQtCommandButton;
extern const QtKind kQtOptionButton;
extern const QtKind kQtCheckBox;
extern const QtKind kQtToolbar;
extern const QtKind kQtTextBox;
extern const QtKind kQtListBox;
extern const QtKind kQtTabStrip;
extern const QtKind kQtComboBox;
extern const QtKind kQtImageCombo;
extern const QtKind kQtGrid;
extern const QtKind kQtScrollBar;
extern const QtKind kQtPictureBox;
extern const QtKind kQtShape;

// Text that is elided in its widget is told in full by the tool tip, unless the control has one of its own.
void SetFullText(QWidget& widget, const Control& control, const QString& text, bool cut);

}  // namespace Tarnwise
