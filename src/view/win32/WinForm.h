// One form on the screen: its window, and a child window for each of its controls, made when the screen first needs
// them. All windows share one message procedure, which puts what a person does to the tree.
#pragma once

#include "view/WindowedMirror.h"
#include "view/win32/WinPaint.h"

#include "view/win32/WinApi.h"

#include <commctrl.h>

#include <map>
#include <memory>
#include <optional>
#include <utility>

namespace Tarnwise {

class WinToolkit;
enum class Showing;

struct DestroyImages {
  void operator()(HIMAGELIST images) const { ImageList_Destroy(images); }
};
using Images = std::unique_ptr<std::remove_pointer_t<HIMAGELIST>, DestroyImages>;

// What a form's window posts to itself.
constexpr UINT kChoose = WM_APP + 1;     // a drop list has closed over a choice
constexpr UINT kFocusCame = WM_APP + 2;  // by a way of the platform's own
constexpr UINT kGivenUp = WM_APP + 3;    // a drop list has closed over none, though it may show where the person was

class WinForm : public WindowedMirror, public std::enable_shared_from_this<WinForm> {
 public:
  WinForm(Form& form, WinToolkit& toolkit);
  WinForm(const WinForm&) = delete;
  WinForm& operator=(const WinForm&) = delete;
  ~WinForm() override;

  WinToolkit& Tools() const { return toolkit_; }
  HWND Window() const { return window_; }
  POINT InPixels(FormPoint at) const;  // of the client area
  const Palette& Colours() const { return colours_; }

  HWND WindowOf(const Control& control) const;
  Control* ControlOf(HWND window) const;  // null when the control has gone
  // Messages of this window are the control's: of its own window, and of parts of it.
  void Watch(HWND window, Control& control);
  HBRUSH BrushOf(COLORREF colour);
  // The pictures that a toolbar or a combo shows, kept for as long as it lives.
  void KeepImages(HWND window, Images images, Images disabled = nullptr);

  void Show(Showing how, HWND behind);  // `behind`: where it is blocked, the window that stays in front of it
  void Sync() override;                 // with the look of this module

  std::optional<LRESULT> Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  double Scale() const override { return scale_; }  // device pixels in a pixel of 96 to the inch
  void FocusTree() override;
  Touch TouchOf(const Control& control, FormPoint at) const override;
  bool IsFar(FormPoint from, FormPoint to) const override;
  Entered EnteredIn(const TextBox& box) const override;
  void HoldMouse() override { SetCapture(window_); }
  void LetMouseGo() override;
  void Announce(const Label& label, bool renamed) override;

 protected:
  bool Create(Control& control) override;
  void PutAt(Control& control, const PixelRect& place) override;
  void Apply(Control& control) override;
  void ShowTip(const Control& control, const String& tip) override;
  int TextWidth(const String& text, const TypeFace& face) const override;
  void ApplyForm() override;
  void BuryWindow(void* window) override;
  void HideForm() override;
  void Repaint(const Control& container, const PixelRect& area) override;
  void ToFront(const Control& control) override;
  void BorderToFront(const Control& container) override;
  int StartClock(int milliseconds) override;
  void StopClock(int clock) override;

 private:
  void MakeWindow();
  void SetTip(HWND window, const std::wstring& text);
  void Rescale(double scale);
  void Recolour();
  void Lost(HWND window);

  std::optional<LRESULT> Mouse(HWND window, Control& control, UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> Keyboard(HWND window, Control& control, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT InputMethod(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> Parent(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> Window(Control& control, HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> Erase(const Control& control, HWND window, HDC dc);
  std::optional<LRESULT> Command(WPARAM wParam, HWND from);

  std::optional<LRESULT> Wheel(HWND window, Control& control, WPARAM wParam, LPARAM lParam);
  bool KeyDown(HWND window, Control& control, UINT message, WPARAM wParam, LPARAM lParam);
  bool Character(HWND window, WPARAM unit);
  FormPoint PointIn(HWND window, LPARAM at) const;

  WinToolkit& toolkit_;
  HWND window_ = nullptr;
  HWND tips_ = nullptr;
  double scale_ = 1.0;
  Palette colours_ = SystemColours();
  std::map<COLORREF, Brush> brushes_;
  std::map<HWND, std::wstring> tipTexts_;
  std::map<HWND, std::pair<Images, Images>> images_;
  POINT placed_{};              // where the tree last wanted the window
  bool moved_ = false;          // it has wanted it somewhere
  bool typingNow_ = false;      // a text box changes by its keys
  bool dropCharacter_ = false;  // what the key that went down would type
  wchar_t highSurrogate_ = 0;
  int lastClock_ = 0;
  bool focusing_ = false;  // the keyboard moves by the tree's will
};

}  // namespace Tarnwise
