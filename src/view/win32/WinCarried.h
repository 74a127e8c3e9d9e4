// What a person sees of a drag: the picture that goes along, and the pointer's shape.
#pragma once

#include "view/Mirror.h"
#include "view/win32/WinApi.h"

namespace Tarnwise {

class WinForm;

class WinCarried {
 public:
  WinCarried() = default;
  WinCarried(const WinCarried&) = delete;
  WinCarried& operator=(const WinCarried&) = delete;
  ~WinCarried() { Hide(); }

  void Show(const WinForm& form, const Carried& carried);
  void Hide();

 private:
  void MakeGhost(const WinForm& form, const Carried& carried);

  HWND ghost_ = nullptr;
  SIZE ghostSize_{};
  String ghostOf_;
};

}  // namespace Tarnwise
