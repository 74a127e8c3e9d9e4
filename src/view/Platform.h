// What the forms need of the world around them: showing and hiding, message boxes, focus, pointer, help. A Platform
// keeps the list of forms that exist and tells a Toolkit, which mirrors them on a screen, what to do.
#pragma once

#include "view/Drag.h"
#include "view/Form.h"
#include "view/Gesture.h"

#include <tarnwise/Platform.h>

#include <functional>
#include <memory>
#include <vector>

namespace Tarnwise {

// How a form comes to the screen. Blocked: it is seen, behind the form that takes the input, and takes none itself.
enum class Showing { Modeless, Modal, Blocked };

// One way of bringing forms to a screen. All calls come on the thread of the forms.
class Toolkit {
 public:
  virtual ~Toolkit() = default;

  // For a script player: it pushes what comes instead of a person.
  std::function<bool()> Pump;  // the next thing while a modal form is up, false when nothing comes any more
  bool RealTimers = true;      // false: a form's timers wait for the script

  virtual void Show(Form& form, Showing how) = 0;  // one that is shown already comes to the front
  virtual void Hide(Form& form) = 0;
  virtual void Release(Form& form) = 0;                // drop the window; the form itself may live on
  virtual void ControlUnloaded(Control& control) = 0;  // an element of a control array goes
  virtual void Sync(Form& form) = 0;                   // bring form.ChangedControls to the screen
  // Lets events in until the form is hidden or released, or nothing can come any more.
  virtual void RunModal(Form& form) = 0;
  virtual void MessageBox(Form* over, const String& text, int style, const String& title) = 0;
  virtual void Beep() = 0;
  virtual void SetPointer(int pointer) = 0;
  // Where the host has no way of its own.
  virtual void Help(Form& form, const String& path, int command, int context) = 0;
  virtual WindowHandle WindowOf(const Form& form) = 0;
  virtual void Focus(Control& control) = 0;          // the tree's focus has gone there
  virtual void AnnounceChange(Label& label) = 0;     // tell a screen reader what it says now
  virtual Single TextWidth(const String& text) = 0;  // twips, in a grid's font
  virtual Single ScreenWidth() = 0;                  // twips
  virtual Single ScreenHeight() = 0;
};

// What an onlooker (a script player, a test) may watch. Empty ones are not called.
struct PlatformTrace {
  std::function<void(const Form&, bool modal)> Shown;
  std::function<void(const Form&)> Hidden;
  std::function<void(const Form&)> Released;
  std::function<void(const String& text, int style, const String& title)> MessageBox;
  std::function<void()> Beep;
  std::function<void(int pointer)> Pointer;
  std::function<void(const String& path, int command, int context)> Help;
  std::function<void(const Control&)> Focus;
  std::function<void(const Label&)> Announced;  // a screen reader is told what it says now
  // Return true when the error has been told and no message box is wanted.
  std::function<bool(const RuntimeError&, const String& in)> Failed;
};

class Platform {
 public:
  explicit Platform(std::shared_ptr<Toolkit> toolkit);
  ~Platform();

  // Forms. Show brings a hidden form up; ShowModal also blocks until it is hidden. A form is made known by Created and
  // forgotten by Release, which hides it first.
  void Created(Form& form);
  void Show(Form& form);
  void ShowModal(Form& form);
  void Hide(Form& form);
  void Release(Form& form);

  const std::vector<Form*>& Forms() const { return forms_; }  // in the order in which they were created
  bool IsModal(const Form& form) const;                       // its modal call is running
  bool IsBlocked(const Form& form) const;                     // another form's modal call keeps the input from it
  Form* ActiveForm() const;  // the one that takes input: the innermost visible modal one, else the last one shown

  void MessageBox(const String& text, int style, const String& title);
  void Beep();
  void SetPointer(int pointer);
  int Pointer() const { return pointer_; }
  void Help(Form& form, const String& path, int command, int context);
  void SetFocus(Control& control);  // by the program; nothing happens where the control can't take it
  Single TextWidth(const String& text) { return toolkit_->TextWidth(text); }

  // Tells the user of a fault. `in` is the handler that ended.
  void ReportError(const RuntimeError& error, const String& in);
  void ReportForeignError(const String& what, const String& in);

  // How many messages the user has been shown so far, faults included.
  int MessagesShown() const { return messagesShown_; }

  void SyncAll();
  void Forget(Control& control);  // it is about to go
  Toolkit& Tools() { return *toolkit_; }

  PlatformTrace Trace;
  HelpOperation HostsHelp;  // in place of the toolkit's; see SetHelp

  // The drag that is under way, if any (view/Drag.h).
  DragSession Drag;
  // What a person's hand does, one for all forms.
  Gesture Hand{*this};

  // Bookkeeping of view/Dispatch.h and view/Input.h.
  int HandlerDepth = 0;
  int LosingFocus = 0;
  int WheelTurned = 0;  // what is not enough for a step yet

 private:
  Showing ShowingOf(const Form& form) const;

  std::shared_ptr<Toolkit> toolkit_;
  std::vector<Form*> forms_;
  std::vector<Form*> shownOrder_;
  std::vector<Form*> modal_;
  int pointer_ = 0;
  int messagesShown_ = 0;
};

}  // namespace Tarnwise
