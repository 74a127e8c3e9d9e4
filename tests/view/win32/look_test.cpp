// Every step in the colours that people have, looked at pixel by pixel. With TARNWISE_LOOKS, a folder, the pictures are
// kept there.
#include "view/Looked.h"

#include "Messages.h"
#include "view/Legible.h"
#include "view/Palettes.h"
#include "view/win32/Win32Driver.h"
#include "view/win32/WinForm.h"
#include "view/win32/WinText.h"
#include "view/win32/WinToolkit.h"
#include "view/win32/WindowPicture.h"

#include <tarnwise/TRN_DEA.h>

#include <array>
#include <cstdlib>
#include <stdexcept>

namespace Tarnwise {

// The system's colours are those of the palette for as long as this lives.
class SystemColoursOf {
 public:
  explicit SystemColoursOf(const Palette& p) {
    for (std::size_t i = 0; i < kNames.size(); ++i) former_[i] = GetSysColor(kNames[i]);
    const Colour grey = Blend(p.Window, p.WindowText, 45);
    const Colour light = Blend(p.Button, p.ButtonText, IsDark(p.Button) ? 35 : 0);
    const Colour dark = Blend(p.Button, p.ButtonText, IsDark(p.Button) ? 55 : 35);
    Set({p.Window, p.WindowText, p.Base, p.Text, p.Highlight, p.HighlightText, grey, light, dark, p.WindowText,
         Blend(p.Base, p.Text, 12), p.Button, p.ButtonText});
  }
  SystemColoursOf(const SystemColoursOf&) = delete;
  SystemColoursOf& operator=(const SystemColoursOf&) = delete;
  ~SystemColoursOf() { Set(former_); }

 private:
  static constexpr std::array<int, 13> kNames{COLOR_BTNFACE,   COLOR_BTNTEXT,       COLOR_WINDOW,    COLOR_WINDOWTEXT,
                                              COLOR_HIGHLIGHT, COLOR_HIGHLIGHTTEXT, COLOR_GRAYTEXT,  COLOR_BTNHIGHLIGHT,
                                              COLOR_BTNSHADOW, COLOR_WINDOWFRAME,   COLOR_SCROLLBAR, COLOR_3DLIGHT,
                                              COLOR_3DDKSHADOW};
  static void Set(const std::array<COLORREF, 13>& colours) {
    SetSysColors(static_cast<int>(kNames.size()), kNames.data(), colours.data());
    // The library of controls keeps colours of its own and looks at the system's when one of its windows hears of them.
    const HWND control =
        CreateWindowExW(0, TOOLBARCLASSNAMEW, L"", 0, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    SendMessageW(control, WM_SYSCOLORCHANGE, 0, 0);
    DestroyWindow(control);
    TakeMessages();
  }

  std::array<COLORREF, 13> former_{};
};

Pixels PixelsOf(HWND window) {
  RECT client{};
  GetClientRect(window, &client);
  const HDC from = GetDC(window);
  const HDC to = CreateCompatibleDC(from);
  BITMAPINFO info{};
  info.bmiHeader = {sizeof info.bmiHeader, client.right, -client.bottom, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  const Bitmap bitmap(CreateDIBSection(to, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  {
    const Selected selected(to, bitmap.get());
    BitBlt(to, 0, 0, client.right, client.bottom, from, 0, 0, SRCCOPY);
    GdiFlush();
  }
  Pixels pixels{client.right, client.bottom, {}};
  const auto* const bgr = static_cast<const std::uint32_t*>(bits);
  for (LONG i = 0; i < client.right * client.bottom; ++i) {
    pixels.Rows.push_back(((bgr[i] >> 16U) & 0xFFU) | (bgr[i] & 0xFF00U) | ((bgr[i] & 0xFFU) << 16U));
  }
  DeleteDC(to);
  ReleaseDC(window, from);
  return pixels;
}

const NamedPalette& PaletteOf(const String& name) {
  for (const NamedPalette& palette : PeoplesPalettes()) {
    if (palette.Name == name) return palette;
  }
  throw std::out_of_range(name);
}

class WinPalette : public testing::Test {
 protected:
  static HWND WindowOf(const Form& form) {
    const WinForm* const shown = static_cast<WinToolkit&>(form.Screen().Tools()).FormOf(form);
    return shown == nullptr ? nullptr : shown->Window();
  }

  static Pixels PictureOf(const Form& form) {
    TakeMessages();
    RedrawWindow(WindowOf(form), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    TakeMessages();
    return PixelsOf(WindowOf(form));
  }

  static void LookAt(const Form& form, const NamedPalette& palette, const String& at) {
    ASSERT_NE(WindowOf(form), nullptr) << at;
    const Pixels pixels = PictureOf(form);
    Keep(WindowOf(form), palette, at);
    ExpectLegible(form, pixels, palette.Dark, at);
    if (palette.Dark) ExpectNoGlare(form, pixels, at);
  }

 private:
  static void Keep(HWND window, const NamedPalette& palette, const String& at) {
    const char* const folder = std::getenv("TARNWISE_LOOKS");
    if (folder == nullptr) return;
    const std::wstring path = Wide(String(folder) + "/" + palette.Name);
    CreateDirectoryW(path.c_str(), nullptr);
    EXPECT_TRUE(SaveWindowPicture(window, path + L"/" + Wide(at) + L".png"));
  }
};

class WinLook : public WinPalette, public testing::WithParamInterface<NamedPalette> {
 private:
  const SystemColoursOf colours_{GetParam().Colours};
};

TEST_P(WinLook, OfEveryStepToDirectJudgmentsIsReadable) {
  PlayLookedAt(MakeWin32Driver(MakeWin32Platform()), TARNWISE_SAMPLES, EveryStep(0),
               [](Form& form, const String& name) { LookAt(form, GetParam(), "direct-" + name); });
}

TEST_P(WinLook, OfEveryStepToTradeOffsIsReadable) {
  PlayLookedAt(MakeWin32Driver(MakeWin32Platform()), TARNWISE_SAMPLES, EveryStep(1),
               [](Form& form, const String& name) { LookAt(form, GetParam(), "tradeoffs-" + name); });
}

TEST_F(WinPalette, IsFollowedWhileAFormIsOpen) {
  const SystemColoursOf light(PaletteOf("light").Colours);
  PlayLookedAt(MakeWin32Driver(MakeWin32Platform()), TARNWISE_SAMPLES, EveryStep(1),
               [](Form& form, const String& name) {
                 if (name != "ranking" && name != "uncertain" && name != "results") return;
                 const Pixels before = PictureOf(form);
                 {
                   const SystemColoursOf dark(PaletteOf("dark").Colours);
                   LookAt(form, PaletteOf("dark"), "changed-" + name);
                 }
                 EXPECT_EQ(PictureOf(form).Rows, before.Rows) << name;
               });
}

TEST_F(WinPalette, TheRegionKeepsItsColourOnADarkChart) {
  const SystemColoursOf dark(PaletteOf("dark").Colours);
  PlayLookedAt(MakeWin32Driver(MakeWin32Platform()), TARNWISE_SAMPLES, EveryStep(0),
               [](Form& form, const String& name) {
                 if (name != "inconsistent") return;
                 EXPECT_EQ(ShadesOf(PictureOf(form), kInRegion, 1.0).Ground, 0xC0E0FFU);
               });
}

INSTANTIATE_TEST_SUITE_P(Palettes, WinLook, testing::ValuesIn(PeoplesPalettes()),
                         [](const auto& palette) { return palette.param.Name; });

}  // namespace Tarnwise
