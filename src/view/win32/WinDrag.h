// The pointer's side of an automatic drag: from the press through the moves to the release, and what is seen of it.
#pragma once

#include "view/Drag.h"
#include "view/win32/WinApi.h"

namespace Tarnwise {

class WinForm;

class WinDrag {
 public:
  WinDrag() = default;
  WinDrag(const WinDrag&) = delete;
  WinDrag& operator=(const WinDrag&) = delete;
  ~WinDrag() { Clear(); }

  // The left button went down on a drag source; the drag begins when the pointer has moved far enough. Positions are
  // device pixels in the form's window.
  void Arm(WinForm& form, Control& source, POINT inWindow);
  bool Move(double x, double y);  // true while the drag is on
  bool Release();                 // true when there was a drag to end
  bool Cancel();
  void Begin();  // without waiting for the distance
  bool ByMouse() const { return on_; }
  void Forget(const Control& control);
  void Forget(const WinForm& form);

  // Brings the picture to where the session says; for a drag by keys too.
  void Show(WinForm& form);

 private:
  bool Alive() const;
  void Follow(WinForm& form, double x, double y);
  void MakeGhost(WinForm& form, const DragSession& drag);
  bool End(void (DragSession::*how)());
  void Clear();

  WinForm* form_ = nullptr;
  Control* source_ = nullptr;
  POINT start_{};
  bool on_ = false;
  HWND ghost_ = nullptr;
  SIZE ghostSize_{};
  String ghostOf_;
};

}  // namespace Tarnwise
