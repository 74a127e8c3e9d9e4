// The native widget of each kind of control: how it is made, and how it is brought to what its record says.
// Programmatic changes raise nothing.
#pragma once

#include "view/Controls.h"
#include "view/qt/QtForm.h"

#include <QPaintEvent>
#include <QWidget>

namespace Tarnwise {

struct QtKind {
  QWidget* (*Make)(QtForm& form, Control& control, QWidget& parent);
  void (*Sync)(QtForm& form, Control& control, QWidget& widget);
};

// Null for kinds without a widget of their own: timers, lines, and shapes that only stand there.
const QtKind* KindOf(const Control& control);

extern const QtKind kQtLabel;
extern const QtKind kQtFrame;
extern const QtKind kQtBox;  // images, picture boxes, handles
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

// A widget of Qt's that the tree paints: what is left of its own are its role, its name and its mnemonic.
template <class Base>
class Painted : public Base {
 public:
  Painted(QtForm& form, QWidget* parent) : Base(parent), form_(form) {}

 protected:
  void paintEvent(QPaintEvent* event) override { form_.Paint(*this, event->rect()); }
  QtForm& form_;
};

class QtBox : public Painted<QWidget> {
 public:
  using Painted::Painted;
  Control* Source() const;  // the control while it is there
};

}  // namespace Tarnwise
