// A form as a toolkit shows it: when its windows are made, brought to what the tree says, restacked and destroyed. The
// toolkit says how.
#pragma once

#include "view/Drag.h"
#include "view/Lettering.h"
#include "view/Pixels.h"
#include "view/Reach.h"

#include <map>
#include <vector>

namespace Tarnwise {

class Gesture;

// What is seen of a drag.
struct Carried {
  Control& Source;
  String Picture;  // path or name of what stands for the source; empty: its own picture, or none
  bool Own;        // the source's own picture
  FormPoint At;
  bool ByMouse;  // which the picture hangs beside
  bool Taken;    // a drop there would be taken
};

struct Touch {
  bool Inside = true;  // on the control's window
  int Row = -1;        // of a list or a tab strip, in the control's own numbers; -1: none
};

// What a native text box holds, counted in characters.
struct Entered {
  String Text;
  int SelStart = 0;
  int SelLength = 0;
  int Caret = 0;
};

class Mirror {
 public:
  explicit Mirror(Form& form) : form_(&form) {}
  Mirror(const Mirror&) = delete;
  Mirror& operator=(const Mirror&) = delete;
  virtual ~Mirror() = default;

  Form* Tree() const { return form_; }  // null once it is released
  Gesture& Hand() const;                // while it is not

  void SyncAll();       // all that there is
  virtual void Sync();  // what the tree has marked
  void SyncControl(Control& control);
  // After what a person did: what no handler has brought to the screen, and the control as the tree has it, whatever
  // its window did by itself; null: none.
  void Settle(Control* control);
  void Forget(const Control& control);  // it goes
  void Release();                       // the form has gone: the windows are hidden, and nobody hears of them
  void Orphan();                        // the toolkit goes

  // --- what gestures need of a toolkit ---
  virtual double Scale() const { return 1.0; }
  FittedCaption Fitted(const Control& control) const;
  virtual bool HasWindow(const Control& control) const = 0;
  virtual void FocusTree() = 0;  // the keyboard goes to the window of the tree's active control, or to the form's own
  virtual Touch TouchOf(const Control& control, FormPoint at) const = 0;
  virtual bool IsFar(FormPoint from, FormPoint to) const = 0;  // enough for a drag to begin
  virtual Entered EnteredIn(const TextBox& box) const = 0;
  virtual void HoldMouse() {}  // moves and the release come here, wherever the pointer goes
  virtual void LetMouseGo() {}
  virtual void Announce(const Label& label,
                        bool renamed) = 0;  // to a screen reader; `renamed`: it is to read the name anew
  virtual void ShowCarried(const Carried& carried) = 0;
  virtual void HideCarried() = 0;

 protected:
  // --- what synchronising needs of it ---
  virtual bool Create(Control& control) = 0;  // its window in that of its container, hidden; false: it has none
  virtual void PutAt(Control& control, const PixelRect& place) = 0;
  virtual void Apply(Control& control) = 0;                                   // what its record says
  virtual void ShowTip(const Control& control, const String& tip) = 0;        // empty: none
  virtual int TextWidth(const String& text, const TypeFace& face) const = 0;  // without marks, pixels
  virtual void ApplyForm() = 0;                                               // the same for the form's own window
  virtual void Destroy(const Control& control) = 0;                           // hides at once, and buries
  virtual void DestroyAll() = 0;  // hides the form; its windows go with the mirror
  virtual void Repaint(const Control& container, const PixelRect& area) = 0;
  virtual void ToFront(const Control& control) = 0;
  virtual void BorderToFront(const Control& container) = 0;  // the line around it stands in front of what it contains
  virtual void RunTimer(Timer& timer, int interval) = 0;     // 0: stops it

 private:
  void Make(Control& control);
  void Bring(Control& control);
  void SyncPainted(const Control& control);
  void RestackLater(const Control& container);
  void Restack();

  Form* form_;
  std::map<const Control*, int> orders_;         // as the windows are stacked now
  std::map<const Control*, PixelRect> painted_;  // where lines and shapes are seen now
  std::vector<const Control*> restack_;          // containers whose children changed their order
};

}  // namespace Tarnwise
