// The pointer's side of an automatic drag: from the press through the moves to the release, and what is seen of it.
#pragma once

#include "view/Drag.h"

#include <QPixmap>
#include <QPointF>
#include <QPointer>
#include <QWidget>

namespace Tarnwise {

class QtForm;

class QtDrag {
 public:
  // The left button went down on a drag source; the drag begins when the pointer has moved far enough. Positions are
  // those in the form's window.
  void Arm(QtForm& form, Control& source, const QPointF& inWindow);
  // True while the drag is on.
  bool Move(const QPointF& inWindow);
  bool Release();  // true when there was a drag to end
  bool Cancel();
  void Begin();  // without waiting for the distance
  bool ByMouse() const { return on_; }
  void Forget(const Control& control);

  // Brings picture and pointer to what the session says; for a drag by keys too.
  void Show(QtForm& form);

 private:
  void Follow(QtForm& form, const QPointF& inWindow);
  QPixmap PictureOf(QtForm& form, const DragSession& drag);
  void SetCursor(bool taken);
  bool End(void (DragSession::*how)());
  void Clear();

  QPointer<QtForm> form_;
  Control* source_ = nullptr;
  QPointF start_;
  bool on_ = false;
  bool pointed_ = false;  // the pointer has a shape of the drag's
  QPointer<QWidget> ghost_;
  String ghostOf_;
};

}  // namespace Tarnwise
