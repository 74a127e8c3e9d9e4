// What a person's hand on a form means, in terms of the tree: who gets the focus, what is refused, when a drag begins,
// what keys do, what the pointer shows. Toolkits hand their native events in and are told whether the native control
// may have them; where the answer is no, the tree has already had its say.
#pragma once

#include "view/Mirror.h"

#include <functional>

namespace Tarnwise {

class Platform;

// Where a key that went down goes on to.
enum class KeyGoes {
  Nowhere,   // it has been used, or is nobody's
  ToNative,  // the native control may answer it
  ToBox,     // the text box with the focus: BoxKeyDown and what follows it
  ToMenu,    // with Alt: it may be a mnemonic
};

class Gesture {
 public:
  explicit Gesture(Platform& platform) : platform_(platform) {}

  // --- mouse; true: the native control must not see it ---
  bool Press(Mirror& mirror, Control& control, FormPoint at);  // the left button, once or twice
  bool Move(Mirror& mirror, FormPoint at, bool leftIsDown);
  // `native` lets the native control see it, where it follows the mouse by itself: what it tells comes from inside.
  bool Release(Mirror& mirror, FormPoint at, const std::function<void()>& native);
  bool Wheel(Mirror& mirror, Control& control, int by);
  void MouseLost();                                  // another program has taken it
  static bool FollowsMouse(const Control& control);  // its native control does the rest of a press by itself

  // --- keys ---
  KeyGoes KeyDown(Mirror& mirror, const Control& at, KeyEvent key);
  // In a text box, one after the other; false: the key ends here.
  bool BoxKeyDown(Mirror& mirror, TextBox& box, KeyEvent& down);
  bool BoxKeyPress(Mirror& mirror, TextBox& box, KeyEvent& press);  // Code 0: it types nothing
  void BoxChanged(Mirror& mirror, TextBox& box);                    // takes what the key left in the native box
  static void StoreCaret(const Mirror& mirror, TextBox& box);       // keeps the tree's selection as it is seen
  bool KeyUp(Mirror& mirror, KeyEvent key);                         // false: it did not go down in a text box
  bool Mnemonic(Mirror& mirror, int character);

  // --- what native controls tell: at the end of a press, or by a screen reader ---
  void Clicked(Mirror& mirror, Control& control);
  void ToolPressed(Mirror& mirror, Toolbar& bar, std::size_t button);  // from 0
  void RowChosen(Mirror& mirror, Control& list, int row);
  void Scrolled(Mirror& mirror, VScrollBar& bar, int value, bool dragging);
  void FocusCame(Mirror& mirror, Control& control);     // by a way of the platform's own: the tree follows where it can
  void CarriedTo(Control& source, Single x, Single y);  // a whole drag inside what the source stands in
  void CloseWanted(Mirror& mirror);
  void Ticked(Mirror& mirror, Timer& timer);

  // --- drags by the mouse ---
  bool DragsByMouse() const { return dragging_; }
  void BeginDrag();             // of what is pressed, without waiting for the distance
  bool MoveDrag(FormPoint at);  // true while it is on
  void CancelDrag();
  void ShowDrag(Mirror& mirror);  // brings what is seen of it to what the session says; by keys too

  void Forget(const Control& control);
  void Forget(const Mirror& mirror);

 private:
  struct LeftButton {
    Control* On = nullptr;
    int Row = -1;
    bool Refused = false;  // the rest of it is nobody's
    bool Native = false;   // the native control follows it itself
  };

  bool PressIsGood(Mirror& mirror, Control& control, FormPoint at);
  void FinishPress(Mirror& mirror, const LeftButton& press, FormPoint at);
  bool WasPressed(Control& control);
  bool EndDrag(void (DragSession::*how)());
  void Follow(Mirror& mirror, FormPoint at);
  void ClearDrag();

  Platform& platform_;
  LeftButton press_;
  int typing_ = 0;         // key that went down in a text box and has not come up
  bool scrolled_ = false;  // a bar has told of a drag's steps
  Mirror* armed_ = nullptr;
  Control* source_ = nullptr;  // pressed, and a drag source
  FormPoint start_;
  bool dragging_ = false;
  Mirror* seenIn_ = nullptr;  // shows what is carried
};

// The shape of the pointer over a control. The first are the tree's numbers.
constexpr int kTextPointer = 3;
constexpr int kGrabPointer = 100;   // it can be picked up
constexpr int kCarryPointer = 101;  // it is carried over what would take it
int ShownPointer(const Control& control);
int ShownPointer(const Carried& carried);

}  // namespace Tarnwise
