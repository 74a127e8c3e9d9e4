#include "view/win32/WinPaint.h"

#include "runtime/PerThread.h"
#include "view/Gesture.h"
#include "view/Painting.h"
#include "view/Pictures.h"
#include "view/win32/WinSurface.h"

#include <uxtheme.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>
#include <vector>

namespace Tarnwise {

namespace {

constexpr int kSmoothIcon = 4;  // the same of an icon, which is small

LOGFONTW MessageFont() {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  if (SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0) != 0) return metrics.lfMessageFont;
  LOGFONTW plain{};
  plain.lfCharSet = DEFAULT_CHARSET;
  return plain;
}

int AverageWidth(HFONT font) {
  const HDC screen = GetDC(nullptr);
  TEXTMETRICW metrics{};
  {
    const Selected selected(screen, font);
    GetTextMetricsW(screen, &metrics);
  }
  ReleaseDC(nullptr, screen);
  return metrics.tmAveCharWidth;
}

Font NewFont(double scale, const TypeFace& face) {
  LOGFONTW look = MessageFont();
  look.lfHeight = -static_cast<LONG>(std::lround((face.Points * 4 + 1) / 3 * scale));
  look.lfWidth = 0;
  look.lfWeight = face.Bold ? FW_BOLD : FW_NORMAL;
  look.lfQuality = CLEARTYPE_QUALITY;
  Font font(CreateFontIndirectW(&look));
  if (face.Stretch == kNormalStretch) return font;
  look.lfWidth = AverageWidth(font.get()) * face.Stretch / kNormalStretch;
  return Font(CreateFontIndirectW(&look));
}

}  // namespace

Palette SystemColours() {
  return Readable({GetSysColor(COLOR_BTNFACE), GetSysColor(COLOR_BTNTEXT), GetSysColor(COLOR_WINDOW),
                   GetSysColor(COLOR_WINDOWTEXT), GetSysColor(COLOR_BTNFACE), GetSysColor(COLOR_BTNTEXT),
                   GetSysColor(COLOR_HIGHLIGHT), GetSysColor(COLOR_HIGHLIGHTTEXT)});
}

void UseFittingStyle(HWND window, const Palette& colours) {
  HIGHCONTRASTW contrast{};
  contrast.cbSize = sizeof contrast;
  const bool asked = SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) != 0;
  const bool fits = !IsDark(colours.Window) || (asked && (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0);
  constexpr const wchar_t* kPlain = L"TarnwisePlain";
  if (fits == (GetPropW(window, kPlain) == nullptr)) return;
  if (fits) {
    RemovePropW(window, kPlain);
  } else {
    SetPropW(window, kPlain, window);
  }
  SetWindowTheme(window, fits ? nullptr : L" ", fits ? nullptr : L" ");
  for (HWND part = GetWindow(window, GW_CHILD); part != nullptr; part = GetWindow(part, GW_HWNDNEXT)) {
    UseFittingStyle(part, colours);
  }
}

HFONT BaseFont(double scale, const TypeFace& face) {
  static PerThread<std::map<std::pair<int, TypeFace>, Font>> fonts;
  Font& font = fonts.Get()[{static_cast<int>(std::lround(scale * 96)), face}];
  if (!font) font = NewFont(scale, face);
  return font.get();
}

int TextWidthIn(HFONT font, const std::wstring& text) {
  const HDC screen = GetDC(nullptr);
  SIZE size{};
  {
    const Selected selected(screen, font);
    GetTextExtentPoint32W(screen, text.c_str(), static_cast<int>(text.size()), &size);
  }
  ReleaseDC(nullptr, screen);
  return size.cx;
}

Canvas::Canvas(int width, int height, int fine)
    : width_(std::max(width, 1)), height_(std::max(height, 1)), fine_(fine) {
  BITMAPINFO info{};
  info.bmiHeader = {sizeof info.bmiHeader, width_ * fine_, -height_ * fine_, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  dc_ = CreateCompatibleDC(nullptr);
  bitmap_ = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  pixels_ = static_cast<std::uint32_t*>(bits);
  former_ = SelectObject(dc_, bitmap_);
  SetBkMode(dc_, TRANSPARENT);
}

Canvas::~Canvas() {
  SelectObject(dc_, former_);
  DeleteObject(bitmap_);
  DeleteDC(dc_);
}

void Canvas::Fill(COLORREF colour) {
  const RECT all{0, 0, width_ * fine_, height_ * fine_};
  const Brush brush(CreateSolidBrush(colour));
  FillRect(dc_, &all, brush.get());
}

void Canvas::Average(std::uint32_t* to) const {
  GdiFlush();
  const int row = width_ * fine_;
  const auto count = static_cast<std::uint32_t>(fine_ * fine_);
  for (int y = 0; y < height_; ++y) {
    for (int x = 0; x < width_; ++x) {
      std::uint32_t red = 0;
      std::uint32_t green = 0;
      std::uint32_t blue = 0;
      for (int j = 0; j < fine_; ++j) {
        const std::uint32_t* from = pixels_ + (y * fine_ + j) * row + x * fine_;
        for (int i = 0; i < fine_; ++i) {
          red += (from[i] >> 16U) & 0xFFU;
          green += (from[i] >> 8U) & 0xFFU;
          blue += from[i] & 0xFFU;
        }
      }
      to[y * width_ + x] = ((red / count) << 16U) | ((green / count) << 8U) | (blue / count);
    }
  }
}

Bitmap Canvas::Reduced(std::uint32_t** pixels) {
  BITMAPINFO info{};
  info.bmiHeader = {sizeof info.bmiHeader, width_, -height_, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  Bitmap small(CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  if (!small) return small;
  *pixels = static_cast<std::uint32_t*>(bits);
  Average(*pixels);
  return small;
}

void Canvas::PutOnto(HDC target, int x, int y) {
  if (fine_ == 1) {
    BitBlt(target, x, y, width_, height_, dc_, 0, 0, SRCCOPY);
    return;
  }
  std::uint32_t* pixels = nullptr;
  const Bitmap small = Reduced(&pixels);
  if (!small) return;
  const HDC source = CreateCompatibleDC(target);
  {
    const Selected selected(source, small.get());
    BitBlt(target, x, y, width_, height_, source, 0, 0, SRCCOPY);
  }
  DeleteDC(source);
}

// What covers a pixel is found by drawing once on black and once on white.
HICON MakePictureIcon(const String& name, int side, Colour ground, int opacity) {
  if (FindPicture(name) == nullptr) return nullptr;
  Canvas dark(side, side, kSmoothIcon);
  Canvas light(side, side, kSmoothIcon);
  const Box place{0.0, 0.0, static_cast<double>(side), static_cast<double>(side)};
  dark.Fill(RGB(0, 0, 0));
  light.Fill(RGB(255, 255, 255));
  for (Canvas* const canvas : {&dark, &light}) {
    WinSurface surface(*canvas);
    PaintPicture(surface, name, place, ground);
  }
  std::uint32_t* onDark = nullptr;
  std::uint32_t* onLight = nullptr;
  const Bitmap colours = dark.Reduced(&onDark);
  const Bitmap other = light.Reduced(&onLight);
  if (!colours || !other) return nullptr;
  const auto count = static_cast<std::size_t>(side) * static_cast<std::size_t>(side);
  for (std::size_t i = 0; i < count; ++i) {
    const std::uint32_t alpha = 255U - (((onLight[i] >> 8U) & 0xFFU) - ((onDark[i] >> 8U) & 0xFFU));
    const auto whole = [alpha, colour = onDark[i]](unsigned shift) {
      return alpha == 0 ? 0U : std::min(255U, ((colour >> shift) & 0xFFU) * 255U / alpha);
    };
    onDark[i] = ((alpha * static_cast<std::uint32_t>(opacity) / 100U) << 24U) | (whole(16) << 16U) | (whole(8) << 8U) |
                whole(0);
  }
  const std::vector<std::uint8_t> nothing(count);  // more than enough of a mask
  const Bitmap mask(CreateBitmap(side, side, 1, 1, nothing.data()));
  ICONINFO icon{TRUE, 0, 0, mask.get(), colours.get()};
  return CreateIconIndirect(&icon);
}

HCURSOR CursorFor(int mousePointer) {
  LPCWSTR name = IDC_ARROW;
  switch (mousePointer) {
    case kTextPointer: name = IDC_IBEAM; break;
    case kHourglass: name = IDC_WAIT; break;
    case kNoDrop: name = IDC_NO; break;
    case kGrabPointer:
    case kCarryPointer: name = IDC_HAND; break;
    default: break;
  }
  return LoadCursorW(nullptr, name);
}

}  // namespace Tarnwise
