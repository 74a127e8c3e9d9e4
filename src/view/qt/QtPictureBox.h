// Picture boxes, and what containers paint themselves: lines, shapes and drawings.
#pragma once

#include "view/Form.h"

#include <QPainter>
#include <QWidget>

namespace Tarnwise {

class QtForm;

class QtBox : public QWidget {
 public:
  QtBox(QtForm& form, Control& control, QWidget& parent);
  Control* Source() const;  // the control while it is there
  QtForm& Owner() const { return form_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  void PaintHandle(QPainter& painter, Colour colour, bool round);
  void PaintBox(QPainter& painter, const PictureBox& box);

  QtForm& form_;
};

// Lines and shapes of a container, back to front.
void PaintChildren(QPainter& painter, const QtForm& form, const Control& container, const QRect& area);

}  // namespace Tarnwise
