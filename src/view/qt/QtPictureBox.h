// Picture boxes and handles.
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
  QtForm& form_;
};

}  // namespace Tarnwise
