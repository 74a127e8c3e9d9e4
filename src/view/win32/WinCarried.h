// What a person sees of a drag.
#pragma once

#include "view/Carrying.h"

#include "view/win32/WinApi.h"

namespace Tarnwise {

class WinCarried : public Carrying {
 public:
  WinCarried() = default;
  WinCarried(const WinCarried&) = delete;
  WinCarried& operator=(const WinCarried&) = delete;
  ~WinCarried() override {
    if (ghost_ != nullptr) DestroyWindow(ghost_);
  }

 protected:
  PixelSize Make(const Mirror& mirror, const Carried& carried, int side) override;
  void MoveTo(const Mirror& mirror, int left, int top) override;
  void Destroy() override;
  void Point(int pointer) override;

 private:
  HWND ghost_ = nullptr;  // the layered window of the picture
};

}  // namespace Tarnwise
