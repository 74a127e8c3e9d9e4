// How the tree's lengths, colours, fonts and pictures look on Windows. Lengths are device pixels; `scale` is how many
// of them make a pixel of 96 to the inch.
#pragma once

#include "view/Lettering.h"
#include "view/Look.h"
#include "view/Pixels.h"

#include "view/win32/WinApi.h"

#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>

namespace Tarnwise {

// Graphics objects that go with their owner.
struct DeleteGraphics {
  void operator()(HGDIOBJ object) const { DeleteObject(object); }
};
using Brush = std::unique_ptr<std::remove_pointer_t<HBRUSH>, DeleteGraphics>;
using Pen = std::unique_ptr<std::remove_pointer_t<HPEN>, DeleteGraphics>;
using Bitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, DeleteGraphics>;
using Font = std::unique_ptr<std::remove_pointer_t<HFONT>, DeleteGraphics>;

// An object selected into a device context for as long as this lives.
class Selected {
 public:
  Selected(HDC dc, HGDIOBJ object) : dc_(dc), former_(SelectObject(dc, object)) {}
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;
  ~Selected() { SelectObject(dc_, former_); }

 private:
  HDC dc_;
  HGDIOBJ former_;
};

inline RECT ToRect(const PixelRect& place) { return {place.Left, place.Top, place.Right, place.Bottom}; }
inline PixelRect ToPixelRect(const RECT& r) { return {r.left, r.top, r.right, r.bottom}; }
inline int WidthOf(const RECT& r) { return r.right - r.left; }
inline int HeightOf(const RECT& r) { return r.bottom - r.top; }

// The system's own, every text readable on its ground. A number of the tree's is a COLORREF as it is.
Palette SystemColours();
// A visual style paints controls in colours of its own. Those of a light one do not go with a dark form, unless it is
// the system's for high contrast: the window and those in it are then drawn in the system's colours alone.
void UseFittingStyle(HWND window, const Palette& colours);

constexpr int kSmooth = 3;  // how many times larger than it becomes what has smooth edges is drawn

// The font of labels and buttons. Kept for the life of the thread.
HFONT BaseFont(double scale, const TypeFace& face = {});
int TextWidthIn(HFONT font, const std::wstring& text);

// A picture in memory that is drawn larger than it becomes, so that its edges are smooth.
class Canvas {
 public:
  Canvas(int width, int height, int fine);
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;
  ~Canvas();

  HDC Dc() const { return dc_; }
  int Fine() const { return fine_; }
  void Fill(COLORREF colour);
  void PutOnto(HDC target, int x, int y);  // brings it to its size
  Bitmap Reduced(std::uint32_t** pixels);  // the same as a bitmap, top row first

 private:
  void Average(std::uint32_t* to) const;

  int width_;
  int height_;
  int fine_;
  HDC dc_ = nullptr;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ former_ = nullptr;
  std::uint32_t* pixels_ = nullptr;
};

// A picture in colours for the ground. Null when there is none; the caller destroys it.
HICON MakePictureIcon(const String& name, int side, Colour ground, int opacity = 100);

HCURSOR CursorFor(int mousePointer);

}  // namespace Tarnwise
