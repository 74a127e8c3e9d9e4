// One form on the screen: its window, and a child window for each of its controls, made when the screen first needs
// them. All windows share one message procedure, which puts what a person does to the tree.
#pragma once

#include "view/Form.h"
#include "view/win32/WinPaint.h"

#include "view/win32/WinApi.h"

#include <commctrl.h>

#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

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

// The left button is down.
struct WinPress {
  Control* On = nullptr;
  int Row = -1;          // of a list or a tab strip
  bool Refused = false;  // the rest of it is nobody's
  bool Native = false;   // the window follows it itself
};

class WinForm : public std::enable_shared_from_this<WinForm> {
 public:
  WinForm(Form& form, WinToolkit& toolkit);
  WinForm(const WinForm&) = delete;
  WinForm& operator=(const WinForm&) = delete;
  ~WinForm();

  Form* Tree() const { return form_; }  // null once it is released
  WinToolkit& Tools() const { return toolkit_; }
  HWND Window() const { return window_; }
  double Scale() const { return scale_; }  // device pixels in a pixel of 96 to the inch
  const Palette& Colours() const { return colours_; }

  HWND WindowOf(const Control& control) const;
  Control* ControlOf(HWND window) const;  // null when the control has gone
  // Messages of this window are the control's: of its own window, and of parts of it.
  void Watch(HWND window, Control& control);
  HBRUSH BrushOf(COLORREF colour);
  // The tool tip of a control's window; empty: none.
  void SetTip(HWND window, const std::wstring& text);

  // The pictures that a toolbar or a combo shows, kept for as long as it lives.
  void KeepImages(HWND window, Images images, Images disabled = nullptr);

  void Show(Showing how, HWND behind);  // `behind`: where it is blocked, the window that stays in front of it
  void Sync();                          // what the tree has marked
  void SyncControl(Control& control);
  void FocusTree();  // the keyboard goes to the window of the tree's active control, or to the form's own
  void Settle(Control* control);
  void Forget(const Control& control);
  void Release();

  std::optional<LRESULT> Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

 private:
  void MakeWindow();
  void Make(Control& control);
  void SyncPlace(Control& control, HWND window);
  void SyncLook(Control& control, HWND window);
  void SyncFormWindow();
  void SyncPainted(const Control& control);
  void SyncTimer(Control& control);
  void StopTimer(const Control& control);
  void Restack(const Control& container);
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

  bool Press(HWND window, Control& control, POINT inWindow);
  bool Move(HWND window, POINT at, bool down);
  bool LetGo(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void FinishPress(const WinPress& press, POINT inForm);
  std::optional<LRESULT> Wheel(HWND window, Control& control, WPARAM wParam, LPARAM lParam);
  bool Pressed(Control& control);
  void Clicked(Control& control);
  void RowChosen(Control& control);
  void Scrolled(Control& control, HWND bar, int code);
  bool Mnemonic(WPARAM character);
  bool KeyDown(HWND window, Control& control, UINT message, WPARAM wParam, LPARAM lParam);
  bool Character(HWND window, WPARAM unit);
  void TakeText(TextBox& box, HWND edit);
  void KeyUp(int code);
  void CloseWanted();
  void Ticked(UINT_PTR id);
  void FocusCame(HWND window);

  Form* form_;
  WinToolkit& toolkit_;
  HWND window_ = nullptr;
  HWND tips_ = nullptr;
  double scale_ = 1.0;
  Palette colours_ = SystemColours();
  std::map<const Control*, HWND> windows_;
  std::map<HWND, Control*> controls_;
  std::map<const Control*, UINT_PTR> timers_;
  std::map<const Control*, int> orders_;    // as the windows are stacked now
  std::map<const Control*, RECT> painted_;  // where lines and shapes are seen now
  std::vector<const Control*> restack_;     // containers whose children changed their order
  std::map<COLORREF, Brush> brushes_;
  std::map<HWND, std::wstring> tipTexts_;
  std::map<HWND, std::pair<Images, Images>> images_;
  POINT placed_{};      // where the tree last wanted the window
  bool moved_ = false;  // it has wanted it somewhere
  WinPress press_;
  int typing_ = 0;              // key that went down in a text box and has not come up
  bool typingNow_ = false;      // a text box changes by its keys
  bool dropCharacter_ = false;  // what the key that went down would type
  wchar_t highSurrogate_ = 0;
  UINT_PTR nextTimer_ = 1;
  bool focusing_ = false;  // the keyboard moves by the tree's will
};

}  // namespace Tarnwise
